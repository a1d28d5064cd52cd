#pragma once

#include "viewer/CanvasTool.h"
#include "viewer/Document.h"

#include <QGraphicsScene>

#include <vector>

/// What the views show, in board coordinates (micrometres; the views let y point up): a document,
/// the feature under the mouse, and what the tool at work draws.
class BoardScene : public QGraphicsScene {
    Q_OBJECT

public:
    using QGraphicsScene::QGraphicsScene;

    /// Shows another document; the caller owns it, and it must outlive this or be replaced.
    void setDocument(Document* document);
    const Document* document() const { return m_document; }

    /// The feature under the mouse, -1 for none, is drawn as one that a click takes.
    void setHovered(int feature);
    int hovered() const { return m_hovered; }

    void setOverlay(const Overlay& overlay);
    const Overlay& overlay() const { return m_overlay; }

Q_SIGNALS:
    /// Features in these areas look different now.
    void repainted(const std::vector<QRectF>& areas);
    /// The whole board is another one.
    void replaced();

private:
    void fitField();

    Document* m_document = nullptr;
    int m_hovered = -1;
    Overlay m_overlay;
};
