#pragma once

#include <QApplication>
#include <QWidget>

/// A window that knows whether it has been painted.
class Panel : public QWidget {
public:
    bool isPainted() const { return m_painted; }

    /// Shows the window and returns when it and its children have been painted.
    void showPainted()
    {
        m_painted = false;
        show();
        while (!m_painted) {
            QApplication::processEvents();
        }
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override { m_painted = true; }

private:
    bool m_painted = false;
};
