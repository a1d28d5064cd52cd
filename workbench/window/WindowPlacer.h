#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QWidget;

/// Opens the windows of the modules beside the host's window, where a click on the canvas does not
/// hide them, and keeps them wholly on the screen. A window that has been placed already, and one
/// that waits for an answer, is left alone.
class WindowPlacer : public QObject {
public:
    /// `host` becomes the parent.
    explicit WindowPlacer(QWidget* host);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOurs(const QWidget* window) const;
    void place(QWidget* window);
    QPoint inside(const QPoint& position, const QSize& size) const;

    QWidget* m_host;
    QList<QPointer<QWidget>> m_placed;
};
