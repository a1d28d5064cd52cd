#include "viewer/BoardScene.h"

namespace {

constexpr double fieldMargin = 10;  // times the board: how far a view can be moved away

}  // namespace

void BoardScene::setDocument(Document* document)
{
    if (m_document) {
        disconnect(m_document, nullptr, this, nullptr);
    }
    m_document = document;
    m_hovered = -1;
    m_overlay = {};
    connect(document, &Document::repainted, this, &BoardScene::repainted);
    connect(document, &Document::replaced, this, &BoardScene::replaced);
    connect(document, &Document::changed, this, &BoardScene::fitField);
    fitField();
    Q_EMIT replaced();
}

void BoardScene::fitField()
{
    // The hovered feature may be another one now, or gone.
    m_hovered = -1;
    const QRectF bounds = m_document->bounds();
    const double margin = fieldMargin * qMax(bounds.width(), bounds.height());
    setSceneRect(bounds.adjusted(-margin, -margin, margin, margin));
    update();
}

void BoardScene::setHovered(int feature)
{
    if (feature != m_hovered) {
        m_hovered = feature;
        update();
    }
}

void BoardScene::setOverlay(const Overlay& overlay)
{
    m_overlay = overlay;
    update();
}
