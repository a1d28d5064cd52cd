#include "board/StrokeFont.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace Pcb {
namespace {

constexpr char16_t firstGlyph = u' ';

/// Strokes separated by blanks, each a row of points, each point two digits: x and y.
constexpr const char* glyphs[] = {
    "",                                  // blank
    "2622 20",                           // !
    "1614 3634",                         // "
    "1016 3036 0242 0444",               // #
    "4515041333423101 2620",             // $
    "0046 0506161505 3031414030",        // %
    "400405162635340201102042",          // &
    "2624",                              // '
    "36252130",                          // (
    "16252110",                          // )
    "2521 0442 0244",                    // *
    "2521 0343",                         // +
    "212010",                            // ,
    "0343",                              // -
    "20",                                // .
    "0046",                              // /
    "103041453616050110 0145",           // 0
    "152620 1030",                       // 1
    "05163645440040",                    // 2
    "0516364544334241301001 1333",       // 3
    "30360242",                          // 4
    "460603334241301001",                // 5
    "4536160501103041423303",            // 6
    "06462220",                          // 7
    "13334445361605041302011030414233",  // 8
    "0110304145361605041343",            // 9
    "24 21",                             // :
    "24 2110",                           // ;
    "360330",                            // <
    "0444 0242",                         // =
    "164310",                            // >
    "051636454422 20",                   // ?
    "32341412324245361605011030",        // @
    "0004264440 0242",                   // A
    "00063645443303 3342413000",         // B
    "4536160501103041",                  // C
    "00062644422000",                    // D
    "46060040 0333",                     // E
    "460600 0333",                       // F
    "45361605011030414323",              // G
    "0006 4046 0343",                    // H
    "1030 1636 2026",                    // I
    "464130100102",                      // J
    "0006 4602 1340",                    // K
    "060040",                            // L
    "0006244640",                        // M
    "0006 0541 4046",                    // N
    "103041453616050110",                // O
    "00063645443303",                    // P
    "103041453616050110 2240",           // Q
    "00063645443303 1340",               // R
    "453616050413334241301001",          // S
    "0646 2026",                         // T
    "060110304146",                      // U
    "0602204246",                        // V
    "0600224046",                        // W
    "00014546 06054140",                 // X
    "0605234546 2320",                   // Y
    "064645010040",                      // Z
    "36161030",                          // [
    "0640",                              // backslash
    "16363010",                          // ]
    "042644",                            // ^
    "0040",                              // _
    "1625",                              // `
    "14344340 421201103041",             // a
    "06003041433404",                    // b
    "4334140301103041",                  // c
    "46401001031444",                    // d
    "024243341403011040",                // e
    "46362520 1434",                     // f
    "4414031242 44413000",               // g
    "0006 04344340",                     // h
    "26 142420 1030",                    // i
    "36 3431201001",                     // j
    "0006 3401 1230",                    // k
    "162620 1030",                       // l
    "0004 04142320 23344340",            // m
    "0004 04344340",                     // n
    "103041433414030110",                // o
    "000434433202",                      // p
    "404414031242",                      // q
    "0004 03143443",                     // r
    "4414031232413000",                  // s
    "16112030 0434",                     // t
    "0401103041 4440",                   // u
    "0402204244",                        // v
    "04011021304144 2123",               // w
    "0044 0440",                         // x
    "04031242 44413000",                 // y
    "04440040",                          // z
    "36252413222130",                    // {
    "2620",                              // |
    "16252433222110",                    // }
    "03143243",                          // ~
};

constexpr const char* unknownGlyph = "0040460600";

const char* glyphOf(QChar character)
{
    return hasGlyph(character) ? glyphs[character.unicode() - firstGlyph] : unknownGlyph;
}

/// The grid points that lie nearest to the way from `a` to `b`.
QVector<QPoint> pointsBetween(const QPoint& a, const QPoint& b)
{
    const int steps = std::max(std::abs(b.x() - a.x()), std::abs(b.y() - a.y()));
    QVector<QPoint> points{a};
    for (int step = 1; step <= steps; ++step) {
        points.append(
            (QPointF(a) + QPointF(b - a) * (static_cast<double>(step) / steps)).toPoint());
    }
    return points;
}

}  // namespace

bool hasGlyph(QChar character)
{
    const int index = character.unicode() - firstGlyph;
    return index >= 0 && index < static_cast<int>(std::size(glyphs));
}

QVector<QVector<QPoint>> glyphStrokes(QChar character)
{
    const char* text = glyphOf(character);
    const size_t length = std::strlen(text);
    QVector<QVector<QPoint>> strokes;
    bool isNew = true;
    for (size_t i = 0; i < length; ++i) {
        if (text[i] == ' ') {
            isNew = true;
            continue;
        }
        if (isNew) {
            strokes.append(QVector<QPoint>());
            isNew = false;
        }
        const int x = text[i] - '0';
        const int y = text[++i] - '0';
        strokes.last().append({x, y});
    }
    return strokes;
}

QVector<QPoint> glyphDots(QChar character, int columns)
{
    QVector<QPoint> dots;
    const auto widened = [columns](const QPoint& point) {
        return QPoint(qRound(point.x() * (columns - 1.0) / (glyphColumns - 1)), point.y());
    };
    for (const QVector<QPoint>& stroke : glyphStrokes(character)) {
        for (int i = 0; i < stroke.size(); ++i) {
            const QPoint from = widened(stroke.at(qMax(0, i - 1)));
            for (const QPoint& dot : pointsBetween(from, widened(stroke.at(i)))) {
                if (!dots.contains(dot)) {
                    dots.append(dot);
                }
            }
        }
    }
    return dots;
}

}  // namespace Pcb
