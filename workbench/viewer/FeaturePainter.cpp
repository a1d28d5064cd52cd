#include "viewer/FeaturePainter.h"

#include "viewer/CanvasColours.h"
#include "viewer/Document.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr size_t many = 10000;  // features of a board: fewer are always drawn as they are
// With rectangles and hairlines a notch of the wheel on 100,000 features takes 22 ms; without
// hairlines 57, without rectangles 73.
constexpr double dot = 3;     // pixels: anything no larger is drawn as a rectangle
constexpr double dash = 6;    // pixels: a hairline no longer than this is drawn as one
constexpr double hair = 1.5;  // pixels

const QColor& colourOf(Pcb::Kind kind)
{
    switch (kind) {
        case Pcb::Kind::Line:
        case Pcb::Kind::Arc:
            return CanvasColours::line;
        case Pcb::Kind::Pad:
            return CanvasColours::pad;
        case Pcb::Kind::Surface:
            return CanvasColours::plane;
        case Pcb::Kind::Text:
            return CanvasColours::text;
    }
    return CanvasColours::line;
}

struct Colours {
    const QColor& area;
    const QColor& unknown;  ///< of the outlines of what is not known
};

Colours coloursOf(const Pcb::Sketch& sketch, const CanvasState& state, int index)
{
    if (Pcb::contains(state.selected, index)) {
        return {CanvasColours::selected, CanvasColours::selected};
    }
    if (Pcb::contains(state.highlighted, index)) {
        return {CanvasColours::highlighted, CanvasColours::highlighted};
    }
    // A negative feature cuts holes into those below it: the background shows.
    return {sketch.positive ? colourOf(sketch.kind) : CanvasColours::boardGround,
            CanvasColours::unknown};
}

/// Draws features by a painter whose state it changes only where necessary.
class FeatureBrush {
public:
    explicit FeatureBrush(QPainter& painter)
        : m_painter(painter), m_pixel(1 / painter.worldTransform().m11())
    {
        painter.setRenderHint(QPainter::Antialiasing, false);
    }

    /// Draws it simplified; false if it is too large for that.
    bool draw(const Pcb::Sketch& sketch, const Colours& colours)
    {
        const double size = std::max(sketch.bounds.width(), sketch.bounds.height()) / m_pixel;
        if (size <= dot && sketch.isKnown) {
            drawDot(sketch.bounds, colours.area);
        } else if (size <= dot) {
            QPainterPath box;
            box.addRect(sketch.bounds);
            drawOutline(box, colours.unknown);
        } else if (size <= dash && sketch.isKnown && isHair(sketch)) {
            drawDash(sketch.line, colours.area);
        } else {
            return false;
        }
        return true;
    }

    void draw(const Pcb::Feature& feature, const Colours& colours, bool hasEdge)
    {
        drawArea(feature.area(), colours.area, hasEdge);
        if (!feature.unknown().isEmpty()) {
            drawOutline(feature.unknown(), colours.unknown);
        }
    }

private:
    void drawArea(const QPainterPath& area, const QColor& colour, bool hasEdge)
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(hasEdge ? QPen(CanvasColours::rubber, 0) : QPen(Qt::NoPen));
        m_painter.setBrush(colour);
        m_painter.drawPath(area);
        m_painter.setRenderHint(QPainter::Antialiasing, false);
        m_dashColour = nullptr;
    }

    void drawOutline(const QPainterPath& path, const QColor& colour)
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(QPen(colour, 0));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPath(path);
        m_painter.setRenderHint(QPainter::Antialiasing, false);
        m_dashColour = nullptr;
    }

    bool isHair(const Pcb::Sketch& sketch) const
    {
        const double width = sketch.bounds.width() - std::abs(sketch.line.dx());
        return sketch.kind == Pcb::Kind::Line && width <= hair * m_pixel;
    }

    void drawDot(const QRectF& bounds, const QColor& colour)
    {
        // Less than a pixel would not be visible.
        const double dx = std::max(0.0, m_pixel - bounds.width()) / 2;
        const double dy = std::max(0.0, m_pixel - bounds.height()) / 2;
        m_painter.fillRect(bounds.adjusted(-dx, -dy, dx, dy), colour);
    }

    void drawDash(const QLineF& line, const QColor& colour)
    {
        if (m_dashColour != &colour) {
            m_painter.setPen(QPen(colour, 0));
            m_dashColour = &colour;
        }
        m_painter.drawLine(line);
    }

    QPainter& m_painter;
    double m_pixel;                        ///< micrometres
    const QColor* m_dashColour = nullptr;  ///< of the painter's pen, where it is a dash's
};

}  // namespace

void paintFeatures(QPainter& painter, const Document& document, const QRectF& area)
{
    const CanvasState& state = document.state();
    FeatureBrush brush(painter);
    const bool isLarge = state.board.features.size() > many;
    for (const int index : document.featuresIn(area)) {
        const Pcb::Sketch& sketch = document.sketch(index);
        const Colours colours = coloursOf(sketch, state, index);
        if (!isLarge || !brush.draw(sketch, colours)) {
            brush.draw(state.board.features[static_cast<size_t>(index)], colours,
                       Pcb::contains(state.selected, index));
        }
    }
}
