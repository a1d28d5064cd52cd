#include "board/GerberWriter.h"

#include "board/Areas.h"
#include "board/Paths.h"

#include <cmath>

namespace Pcb {
namespace {

constexpr int firstAperture = 10;
constexpr double micrometresOfMillimetre = 1000;
constexpr double unitsOfMicrometre = 1000;   // six digits after the point of a millimetre
constexpr double largestUnits = 9999999999;  // four digits before it

QByteArray millimetres(double micrometres)
{
    return QByteArray::number(micrometres / micrometresOfMillimetre, 'f', 6);
}

/// Corners on the grid of the file, none twice in a row.
QPolygonF onGrid(const QPolygonF& points)
{
    QPolygonF rounded;
    for (const QPointF& point : points) {
        const QPointF place(std::round(point.x() * unitsOfMicrometre) / unitsOfMicrometre,
                            std::round(point.y() * unitsOfMicrometre) / unitsOfMicrometre);
        if (rounded.isEmpty() || rounded.last() != place) {
            rounded.append(place);
        }
    }
    return rounded;
}

}  // namespace

QByteArray GerberWriter::aperture(char kind, double width, double height)
{
    QByteArray definition = QByteArray(1, kind) + ',' + millimetres(width);
    return kind == 'C' ? definition : definition + 'X' + millimetres(height);
}

QByteArray GerberWriter::macro(const QVector<QPolygonF>& outlines)
{
    QByteArray content;
    for (const QPolygonF& outline : outlines) {
        content += "4,1," + QByteArray::number(outline.size());
        for (int i = 0; i <= outline.size(); ++i) {
            const QPointF point = outline.at(i % outline.size());
            content += ',' + millimetres(point.x()) + ',' + millimetres(point.y());
        }
        content += ",0*\n";
    }
    QByteArray& name = m_nameOfMacro[content];
    if (name.isEmpty()) {
        name = "SHAPE" + QByteArray::number(m_nameOfMacro.size());
        content.chop(1);
        m_macros += "%AM" + name + "*\n" + content + "%\n";
    }
    return name;
}

void GerberWriter::setPolarity(bool dark)
{
    if (dark != m_isDark) {
        m_body += dark ? "%LPD*%\n" : "%LPC*%\n";
        m_isDark = dark;
    }
}

void GerberWriter::select(const QByteArray& aperture)
{
    int& code = m_codeOfAperture[aperture];
    if (code == 0) {
        code = firstAperture - 1 + m_codeOfAperture.size();
        m_apertures += "%ADD" + QByteArray::number(code) + aperture + "*%\n";
    }
    if (code != m_selected) {
        m_body += 'D' + QByteArray::number(code) + "*\n";
        m_selected = code;
    }
}

QByteArray GerberWriter::number(char axis, double micrometres)
{
    const double units = std::round(micrometres * unitsOfMicrometre);
    if (!(std::abs(units) <= largestUnits)) {
        m_isInRange = false;
        return {};
    }
    return axis + QByteArray::number(static_cast<qlonglong>(units));
}

QByteArray GerberWriter::coordinates(const QPointF& point)
{
    return number('X', point.x()) + number('Y', point.y());
}

void GerberWriter::flash(const QByteArray& aperture, const QPointF& place)
{
    select(aperture);
    m_body += coordinates(place) + "D03*\n";
}

void GerberWriter::comment(const QString& words)
{
    m_comments += "G04 ";
    for (const QChar character : words) {
        const ushort code = character.unicode();
        const bool isPlain = code >= ' ' && code <= '~' && code != '*' && code != '%';
        m_comments += isPlain
                          ? QByteArray(1, char(code))
                          : "\\u" + QByteArray::number(code, 16).toUpper().rightJustified(4, '0');
    }
    m_comments += "*\n";
}

void GerberWriter::draw(double width, const QPolygonF& points)
{
    const QPolygonF corners = onGrid(points);
    if (corners.size() == 1) {
        flash(aperture('C', width), corners.first());
        return;
    }
    select(aperture('C', width));
    for (int i = 0; i < corners.size(); ++i) {
        m_body += coordinates(corners.at(i)) + (i == 0 ? "D02*\n" : "D01*\n");
    }
}

void GerberWriter::drawArc(double width, const ArcPlace& arc)
{
    // With little or nothing between the ends, some readers draw a full circle as nothing.
    const int parts = std::abs(arc.sweep) > 270 ? 2 : 1;
    QPolygonF ends;
    for (int part = 0; part <= parts; ++part) {
        ends.append(polar(arc.centre, arc.radius, arc.start + arc.sweep * part / parts));
    }
    if (onGrid(ends).size() == 1) {
        flash(aperture('C', width), ends.first());
        return;
    }
    select(aperture('C', width));
    m_body += coordinates(ends.first()) + "D02*\n";
    m_body += arc.sweep < 0 ? "G02*\n" : "G03*\n";
    for (int part = 0; part < parts; ++part) {
        const QPointF toCentre = arc.centre - ends.at(part);
        m_body += coordinates(ends.at(part + 1)) + number('I', toCentre.x()) +
                  number('J', toCentre.y()) + "D01*\n";
    }
    m_body += "G01*\n";
}

void GerberWriter::region(const QPainterPath& area)
{
    for (const Island& island : islands(area)) {
        const QPolygonF corners = onGrid(cutOpen(island));
        if (corners.size() < 3) {
            continue;
        }
        m_body += "G36*\n";
        for (int i = 0; i <= corners.size(); ++i) {
            m_body += coordinates(corners.at(i % corners.size())) + (i == 0 ? "D02*\n" : "D01*\n");
        }
        m_body += "G37*\n";
    }
}

QByteArray GerberWriter::file() const
{
    // Readers take a file without any aperture for the older format.
    const QByteArray apertures = m_apertures.isEmpty() ? "%ADD10C,0.010000*%\n" : m_apertures;
    return m_comments + "%FSLAX46Y46*%\n%MOMM*%\n" + m_macros + apertures + "%LPD*%\nG75*\nG01*\n" +
           m_body + "M02*\n";
}

}  // namespace Pcb
