#pragma once

#include <QObject>

class QWidget;

/// Lets the canvas's shortcuts reach it from the other windows that belong to its own: a second
/// view, the Add Feature dialog. A field that is typed into keeps the keys that it uses, and so
/// does a list.
class CanvasKeys : public QObject {
    Q_OBJECT

public:
    /// All actions of `pane` with a shortcut; it becomes the parent.
    explicit CanvasKeys(QWidget* pane);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Except for keys that the window's own actions use.
    void addTo(QWidget* window) const;
    bool isOfOurWindow(const QWidget* window) const;

    QWidget* m_pane;
};
