#pragma once

#include <QObject>

class QWidget;

/// Opens the windows of the modules beside the host's window, where a click on the canvas does not
/// hide them. A window that has been placed already, and one that waits for an answer, is left
/// alone.
class WindowPlacer : public QObject {
public:
    /// `host` becomes the parent.
    explicit WindowPlacer(QWidget* host);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOurs(const QWidget* window) const;
    void place(QWidget* window);

    QWidget* m_host;
    int m_placed = 0;
};
