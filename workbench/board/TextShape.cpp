#include "board/TextShape.h"

#include "board/Areas.h"
#include "board/Codes.h"
#include "board/Paths.h"
#include "board/StrokeFont.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace Pcb {
namespace {

constexpr int narrowBarsOfHeight = 25;    // of a bar code: its height in narrow bars
constexpr int quietBars = 10;             // on either side of it
constexpr int quietModules = 2;           // around a matrix
constexpr double stampHeight = 1016;      // of font size 1, zoom 1
constexpr double stringOfHeight = 0.2;    // of the readable string beside a code
constexpr double strokeOfHeight = 0.12;   // pen width of such a string and of a stamp
constexpr double columnsOfAdvance = 6.0;  // from one character to the next, in glyph columns

struct CharacterSize {
    double width;
    double height;
};

/// The letters that the font lacks, each once. One may be a pair of characters.
QString lackingIn(const QString& text)
{
    QString letters;
    for (const uint code : text.toUcs4()) {
        const QString letter = QString::fromUcs4(&code, 1);
        if (!hasGlyph(letter.front()) && !letters.contains(letter)) {
            letters += letter;
        }
    }
    return letters;
}

void appendString(TextDrawing& drawing, const QString& text, const QPointF& corner,
                  const CharacterSize& size)
{
    const double column = size.width / (glyphColumns - 1);
    const double row = size.height / (glyphRows - 1);
    QPointF origin = corner;
    for (const QChar character : text) {
        for (const QVector<QPoint>& stroke : glyphStrokes(character)) {
            QPolygonF placed;
            for (const QPoint& point : stroke) {
                placed.append(origin + QPointF(point.x() * column, point.y() * row));
            }
            if (hasGlyph(character)) {
                drawing.strokes.append(placed);
            } else {
                drawing.unknown.addPolygon(placed);
            }
        }
        origin.rx() += column * columnsOfAdvance;
    }
    drawing.lacking = lackingIn(text);
}

double widthOfString(const QString& text, const CharacterSize& size)
{
    const double column = size.width / (glyphColumns - 1);
    return text.isEmpty() ? 0 : column * (columnsOfAdvance * text.size() - 2);
}

/// A code in its place, the corner of its box at the origin.
struct PlacedCode {
    QPainterPath bars;
    QRectF box;
    double quiet = 0;
};

/// Bars that touch are one area, so that nothing gapes between them.
PlacedCode placed(const Code& code, bool isMatrix, double height)
{
    const int count = code.rows.size();
    const double step = isMatrix ? height / count : height / narrowBarsOfHeight;
    const double heightOfRow = height / count;
    const int width = code.rows.first().size();
    QPainterPath bars;
    for (int row = 0; row < count; ++row) {
        const QVector<bool>& modules = code.rows.at(row);
        for (int column = 0; column < width; ++column) {
            const int first = column;
            while (column < width && modules.at(column)) {
                ++column;
            }
            if (column > first) {
                bars.addRect(first * step, (count - 1 - row) * heightOfRow, (column - first) * step,
                             heightOfRow);
            }
        }
    }
    return {isMatrix ? bars.simplified() : bars, QRectF(0, 0, width * step, height),
            (isMatrix ? quietModules : quietBars) * step};
}

/// An angle in each corner of the quiet zone, as thick as a quarter of it.
QPainterPath cornerMarkers(const QRectF& zone, double quiet)
{
    const double thick = quiet / 4;
    const double arm = quiet;
    QPainterPath markers;
    for (const bool left : {true, false}) {
        for (const bool bottom : {true, false}) {
            const QPointF corner(left ? zone.left() : zone.right(),
                                 bottom ? zone.top() : zone.bottom());
            const double x = left ? 1 : -1;
            const double y = bottom ? 1 : -1;
            QPolygonF angle;
            for (const QPointF& step :
                 {QPointF(0, 0), QPointF(arm, 0), QPointF(arm, thick), QPointF(thick, thick),
                  QPointF(thick, arm), QPointF(0, arm)}) {
                angle.append(corner + QPointF(step.x() * x, step.y() * y));
            }
            markers.addPolygon(angle);
            markers.closeSubpath();
        }
    }
    return markers;
}

TextDrawing drawString(const TextSpec& text)
{
    TextDrawing drawing;
    drawing.lineWidth = text.lineWidth;
    appendString(drawing, text.content, {}, {text.xSize, text.ySize});
    return drawing;
}

void addReadableString(TextDrawing& drawing, const TextSpec& text, const PlacedCode& code)
{
    const double height = text.barcodeHeight * stringOfHeight;
    const CharacterSize size{height * 2 / 3, height};
    drawing.lineWidth = height * strokeOfHeight;
    const double x = code.box.center().x() - widthOfString(text.content, size) / 2;
    const double gap = height / 2 + code.quiet * (text.addBackground ? 1 : 0);
    const double y = text.stringOnTop ? code.box.height() + gap : -gap - height;
    appendString(drawing, text.content, {x, y}, size);
}

TextDrawing drawBarcode(const TextSpec& text)
{
    const bool isMatrix = text.barcode == BarcodeType::Matrix;
    const Code encoded = encode(text.barcode, text.content, text.matrix);
    if (encoded.rows.isEmpty()) {
        return {};
    }
    const PlacedCode code = placed(encoded, isMatrix, text.barcodeHeight);
    const QRectF zone = code.box.adjusted(-code.quiet, -code.quiet, code.quiet, code.quiet);
    TextDrawing drawing;
    drawing.areas = code.bars;
    if (text.addMarkers && isMatrix) {
        drawing.areas.addPath(cornerMarkers(zone, code.quiet));
    }
    if (text.addBackground) {
        // By the odd-even rule everything drawn on it is cut out of it.
        drawing.areas.addRect(zone);
    }
    if (text.addString) {
        addReadableString(drawing, text, code);
    }
    return drawing;
}

TextDrawing drawStamp(const TextSpec& text)
{
    const double height = stampHeight * text.stampFontSize * text.stampZoom;
    TextDrawing drawing;
    if (text.stampBarcode) {
        const Code code = encode(BarcodeType::Code39, text.content);
        if (!code.rows.isEmpty()) {
            drawing.areas = placed(code, false, height * 2).bars;
        }
        return drawing;
    }
    drawing.lineWidth = height * strokeOfHeight;
    appendString(drawing, text.content, {}, {height * 2 / 3, height});
    return drawing;
}

/// Holes on a matrix whose pitch is half as wide again as a hole.
TextDrawing drawCanned(const TextSpec& text)
{
    const double pitch = text.holeSize * 1.5;
    const QPointF half(text.holeSize / 2, text.holeSize / 2);
    TextDrawing drawing;
    QPointF origin = half;
    for (const QChar character : text.content) {
        QPainterPath& path = hasGlyph(character) ? drawing.areas : drawing.unknown;
        for (const QPoint& dot : glyphDots(character, text.cannedColumns)) {
            path.addPath(circlePath(origin + QPointF(dot) * pitch, text.holeSize / 2));
        }
        origin.rx() += pitch * (text.cannedColumns + 1);
    }
    drawing.lacking = lackingIn(text.content);
    return drawing;
}

auto tied(const TextSpec& text)
{
    return std::tie(text.format, text.content, text.font, text.xSize, text.ySize, text.lineWidth,
                    text.barcode, text.addString, text.addBackground, text.addMarkers,
                    text.stringOnTop, text.barcodeHeight, text.matrix, text.stampBarcode,
                    text.stampFontSize, text.stampZoom, text.cannedColumns, text.holeSize);
}

}  // namespace

bool TextSpec::operator==(const TextSpec& other) const
{
    return tied(*this) == tied(other);
}

TextDrawing drawText(const TextSpec& given)
{
    TextSpec text = given;
    text.content.truncate(longestText);
    switch (text.format) {
        case TextFormat::Barcode:
            return drawBarcode(text);
        case TextFormat::PlotStamp:
            return drawStamp(text);
        case TextFormat::Canned:
            return drawCanned(text);
        case TextFormat::String:
            break;
    }
    return drawString(text);
}

QString leftOut(const TextSpec& text)
{
    const QString content = text.content.left(longestText);
    if (text.format == TextFormat::Barcode) {
        return encode(text.barcode, content, text.matrix).leftOut;
    }
    const bool isBars = text.format == TextFormat::PlotStamp && text.stampBarcode;
    return isBars ? encode(BarcodeType::Code39, content).leftOut : QString();
}

QPainterPath coveredBy(const TextDrawing& drawing)
{
    if (drawing.strokes.isEmpty()) {
        return drawing.areas;
    }
    QPainterPath area = roundStrokes(drawing.strokes, drawing.lineWidth);
    area.addPath(byWinding(drawing.areas));
    return area;
}

QString resolveSpecialText(const QString& content, const QMap<QString, QString>& values)
{
    if (!content.startsWith(QLatin1String("$$"))) {
        return content;
    }
    QString name = content.mid(2);
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        if (entry.key().compare(name, Qt::CaseInsensitive) == 0) {
            return entry.value();
        }
    }
    return name;
}

}  // namespace Pcb
