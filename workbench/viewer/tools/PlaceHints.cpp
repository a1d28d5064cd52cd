#include "viewer/tools/PlaceHints.h"

#include "board/Paths.h"
#include "board/Symbol.h"

#include <UiApiStandIn.h>

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace {

using Pcb::Brush;
using Pcb::Kind;

struct PlaceWords {
    Q_DECLARE_TR_FUNCTIONS(PlaceHints)
};

/// What each click gives, in turn; the last of them again and again where there may be more.
using Clicks = QVector<const char*>;

namespace Ask {

const char* const centre = QT_TRANSLATE_NOOP("PlaceHints", "Click the centre");
const char* const start = QT_TRANSLATE_NOOP("PlaceHints", "Click the start");
const char* const end = QT_TRANSLATE_NOOP("PlaceHints", "Click the end");
const char* const corner = QT_TRANSLATE_NOOP("PlaceHints", "Click a corner");
const char* const opposite = QT_TRANSLATE_NOOP("PlaceHints", "Click the opposite corner");
const char* const nextCorner = QT_TRANSLATE_NOOP("PlaceHints", "Click the next corner");
const char* const onCircle = QT_TRANSLATE_NOOP("PlaceHints", "Click a point of the circle");

}  // namespace Ask

Clicks ofLine(const Brush& brush)
{
    switch (brush.line) {
        case Pcb::LineMode::Polyline:
            return {Ask::start, Ask::nextCorner};
        case Pcb::LineMode::Rectangle:
            return {Ask::corner, Ask::opposite};
        case Pcb::LineMode::Slot:
            return {QT_TRANSLATE_NOOP("PlaceHints", "Click the centre of the slot")};
        case Pcb::LineMode::Single:
            break;
    }
    return {Ask::start, Ask::end};
}

Clicks ofPad(const Brush& brush)
{
    return {brush.padNx > 1 || brush.padNy > 1
                ? QT_TRANSLATE_NOOP("PlaceHints", "Click the first pad's centre")
                : QT_TRANSLATE_NOOP("PlaceHints", "Click the centre of the pad")};
}

Clicks ofSurface(const Brush& brush)
{
    switch (brush.surface) {
        case Pcb::SurfaceShape::Polygon:
            return {Ask::corner, Ask::nextCorner};
        case Pcb::SurfaceShape::Circle:
            return {Ask::centre, Ask::onCircle};
        case Pcb::SurfaceShape::Rectangle:
            break;
    }
    return {Ask::corner, Ask::opposite};
}

Clicks ofCircle(const Brush& brush)
{
    switch (brush.circleMethod) {
        case Pcb::CircleMethod::PointCenter:
            return {Ask::onCircle, Ask::centre};
        case Pcb::CircleMethod::ThreePoints:
            return {Ask::onCircle,
                    QT_TRANSLATE_NOOP("PlaceHints", "Click the circle's second point"),
                    QT_TRANSLATE_NOOP("PlaceHints", "Click the circle's third point")};
        case Pcb::CircleMethod::CenterRadius:
        case Pcb::CircleMethod::CenterPoint:
            break;
    }
    return {Ask::centre, Ask::onCircle};
}

Clicks ofArc(const Brush& brush)
{
    switch (brush.arcMethod) {
        case Pcb::ArcMethod::StartCenterEnd:
            return {Ask::start, Ask::centre,
                    QT_TRANSLATE_NOOP("PlaceHints", "Click the direction of the end")};
        case Pcb::ArcMethod::StartEndEdge:
            return {Ask::start, Ask::end,
                    QT_TRANSLATE_NOOP("PlaceHints", "Click a point of the arc between")};
        case Pcb::ArcMethod::StartEndCenter:
            return {Ask::start, Ask::end, Ask::centre};
        case Pcb::ArcMethod::StartCenterAngle:
            return {Ask::start, Ask::centre,
                    QT_TRANSLATE_NOOP("PlaceHints", "Click where the angle ends")};
        case Pcb::ArcMethod::StartCenterLength:
            return {
                Ask::start, Ask::centre,
                QT_TRANSLATE_NOOP("PlaceHints", "Click as far from the start as the arc is long")};
        case Pcb::ArcMethod::StartEndAngle:
            return {Ask::start, Ask::end,
                    QT_TRANSLATE_NOOP("PlaceHints",
                                      "Click where the angle at the start is half the arc's")};
        case Pcb::ArcMethod::StartEndRadius:
            return {
                Ask::start, Ask::end,
                QT_TRANSLATE_NOOP("PlaceHints", "Click as far from the end as the radius is long")};
    }
    return {Ask::start};
}

Clicks clicksOf(const Brush& brush)
{
    switch (brush.kind) {
        case Kind::Line:
            return ofLine(brush);
        case Kind::Pad:
            return ofPad(brush);
        case Kind::Surface:
            return ofSurface(brush);
        case Kind::Arc:
            return brush.circle ? ofCircle(brush) : ofArc(brush);
        case Kind::Text:
            break;
    }
    return {QT_TRANSLATE_NOOP("PlaceHints", "Click the lower left corner")};
}

QString angleText(double degrees)
{
    const double tenths = std::fmod(std::round(degrees * 10), 3600);
    return QString::number(tenths / 10, 'f', 1) + QChar(0xb0);
}

/// What is drawn is perhaps not what is meant.
QStringList doubts(const Pcb::Placement& placement)
{
    const Brush& brush = placement.brush();
    QStringList all;
    if (!placement.leftOut().isEmpty()) {
        all.append(PlaceWords::tr("its code cannot carry \"%1\"").arg(placement.leftOut()));
    }
    if (!placement.lacking().isEmpty()) {
        all.append(PlaceWords::tr("the font lacks \"%1\"").arg(placement.lacking()));
    }
    const bool hasSymbol = brush.kind != Kind::Surface && brush.kind != Kind::Text;
    if (hasSymbol && !brush.symbolNamed) {
        all.append(PlaceWords::tr("no symbol, %1 is drawn").arg(brush.symbol));
    } else if (hasSymbol && Pcb::parseSymbol(brush.symbol).shape == Pcb::SymbolShape::Special) {
        all.append(PlaceWords::tr("\"%1\" is drawn in outline").arg(brush.symbol));
    }
    return all;
}

/// What a right click does to what is begun.
QString rightClick(const Brush& brush)
{
    const bool goesOn =
        (brush.kind == Kind::Line && brush.line == Pcb::LineMode::Polyline) ||
        (brush.kind == Kind::Surface && brush.surface == Pcb::SurfaceShape::Polygon);
    return goesOn ? PlaceWords::tr("a right click ends it")
                  : PlaceWords::tr("a right click cancels");
}

QString sentence(const QStringList& clauses)
{
    return clauses.join(PlaceWords::tr("; ")) + PlaceWords::tr(".");
}

}  // namespace

QString PlaceHints::of(const Pcb::Placement& placement)
{
    if (placement.isNothing()) {
        return PlaceWords::tr("There is no text that could be drawn: clicks do nothing.");
    }
    const Clicks clicks = clicksOf(placement.brush());
    const QStringList click{PlaceWords::tr(clicks.at(qMin(placement.clicks(), clicks.size() - 1)))};
    if (!placement.isActive()) {
        return sentence(click + doubts(placement));
    }
    constexpr int mostLetters = 57;  // seen in a window of 960 pixels
    const QString whole = sentence(click + QStringList(rightClick(placement.brush())));
    return whole.size() > mostLetters ? sentence(click) : whole;
}

QString PlaceHints::measured(const QLineF& line)
{
    const QPointF way = line.p2() - line.p1();
    return PlaceWords::tr("%1, %2\ndx %3\ndy %4")
        .arg(CanvasHost::lengthText(line.length()), angleText(Pcb::angleOf(line.p1(), line.p2())),
             CanvasHost::lengthText(way.x()), CanvasHost::lengthText(way.y()));
}
