#pragma once

#include "viewer/CanvasTool.h"
#include "viewer/Document.h"

#include <QGraphicsScene>

#include <vector>

class FeatureItem;

/// The features of a document as items in board coordinates (micrometres; the views let y point
/// up), and what the tool at work draws over them.
class BoardScene : public QGraphicsScene {
    Q_OBJECT

public:
    explicit BoardScene(QObject* parent = nullptr);

    /// Shows another document; the caller owns it, and it must outlive this or be replaced.
    void setDocument(Document* document);
    const Document* document() const { return m_document; }

    /// The feature under the mouse, -1 for none, is drawn as one that a click takes.
    void setHovered(int feature);
    int hovered() const { return m_hovered; }

    void setOverlay(const Overlay& overlay);
    const Overlay& overlay() const { return m_overlay; }

private:
    void rebuild();
    void recolour();

    Document* m_document = nullptr;
    std::vector<FeatureItem*> m_items;
    Pcb::Features m_shown;
    int m_hovered = -1;
    Overlay m_overlay;
};
