#include "viewer/BoardScene.h"

#include "viewer/CanvasColours.h"

#include <QGraphicsItem>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double fieldMargin = 10;  // times the board: how far a view can be moved away

QColor colourOf(const Pcb::Feature& feature)
{
    switch (feature.kind()) {
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

bool contains(const Pcb::Indexes& indexes, int index)
{
    return std::binary_search(indexes.begin(), indexes.end(), index);
}

}  // namespace

class FeatureItem : public QGraphicsItem {
public:
    explicit FeatureItem(Pcb::Feature feature) : m_feature(std::move(feature)) {}

    void setLook(const QColor& colour, const QColor& edge)
    {
        if (colour != m_colour || edge != m_edge) {
            m_colour = colour;
            m_edge = edge;
            update();
        }
    }
    QRectF boundingRect() const override { return m_feature.bounds(); }
    QPainterPath shape() const override { return m_feature.area(); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override
    {
        painter->setPen(m_edge.isValid() ? QPen(m_edge, 0) : QPen(Qt::NoPen));
        painter->setBrush(m_colour);
        painter->drawPath(m_feature.area());
    }

private:
    Pcb::Feature m_feature;
    QColor m_colour;
    QColor m_edge;
};

BoardScene::BoardScene(QObject* parent) : QGraphicsScene(parent)
{
    setItemIndexMethod(QGraphicsScene::BspTreeIndex);
}

void BoardScene::setDocument(Document* document)
{
    if (m_document) {
        disconnect(m_document, nullptr, this, nullptr);
    }
    m_document = document;
    m_hovered = -1;
    m_overlay = {};
    connect(document, &Document::changed, this, &BoardScene::rebuild);
    rebuild();
}

void BoardScene::rebuild()
{
    const Pcb::Board& board = m_document->board();
    if (!(m_shown == board.features)) {
        clear();
        m_items.clear();
        m_hovered = -1;
        m_shown = board.features;
        int order = 0;
        for (const Pcb::Feature& feature : m_shown) {
            auto* const item = new FeatureItem(feature);
            item->setZValue(order++);
            addItem(item);
            m_items.push_back(item);
        }
    }
    const QRectF bounds = Pcb::boundsOf(board);
    const double margin = fieldMargin * qMax(bounds.width(), bounds.height());
    setSceneRect(bounds.adjusted(-margin, -margin, margin, margin));
    recolour();
    update();
}

void BoardScene::recolour()
{
    const CanvasState& state = m_document->state();
    for (int index = 0; index < static_cast<int>(m_items.size()); ++index) {
        const Pcb::Feature& feature = m_shown[static_cast<size_t>(index)];
        // A negative feature cuts out what lies below it: the board's ground shows.
        QColor colour = feature.isPositive() ? colourOf(feature) : CanvasColours::boardGround;
        QColor edge;
        if (contains(state.highlighted, index)) {
            colour = CanvasColours::highlighted;
        }
        if (contains(state.selected, index)) {
            colour = CanvasColours::selected;
            edge = CanvasColours::rubber;
        }
        if (index == m_hovered) {
            edge = CanvasColours::hovered;
        }
        m_items[static_cast<size_t>(index)]->setLook(colour, edge);
    }
}

void BoardScene::setHovered(int feature)
{
    if (feature != m_hovered) {
        m_hovered = feature;
        recolour();
    }
}

void BoardScene::setOverlay(const Overlay& overlay)
{
    m_overlay = overlay;
    update();
}
