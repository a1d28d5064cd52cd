#pragma once

#include "board/Feature.h"

#include <QByteArray>
#include <QHash>
#include <QPolygonF>

namespace Pcb {

/// Writes the commands of an RS-274X file. All lengths given are micrometres.
class GerberWriter {
public:
    /// What defines a standard aperture: C with a diameter, R or O with width and height.
    static QByteArray aperture(char kind, double width, double height = 0);

    /// Words for people and programs, at the beginning of the file; they draw nothing.
    void comment(const QString& words);

    /// What defines an aperture of closed outlines around the place where it is flashed.
    QByteArray macro(const QVector<QPolygonF>& outlines);

    void setPolarity(bool dark);
    void flash(const QByteArray& aperture, const QPointF& place);
    /// Draws along the points with a round pen; a single point is flashed.
    void draw(double width, const QPolygonF& points);
    void drawArc(double width, const ArcPlace& arc);
    void region(const QPainterPath& area);

    /// Whether every coordinate so far could be written with four digits before the point.
    bool isInRange() const { return m_isInRange; }

    QByteArray file() const;

private:
    void select(const QByteArray& aperture);
    QByteArray coordinates(const QPointF& point);
    QByteArray number(char axis, double micrometres);

    QByteArray m_comments;
    QByteArray m_macros;
    QByteArray m_apertures;
    QByteArray m_body;
    QHash<QByteArray, int> m_codeOfAperture;
    QHash<QByteArray, QByteArray> m_nameOfMacro;
    int m_selected = 0;
    bool m_isDark = true;
    bool m_isInRange = true;
};

}  // namespace Pcb
