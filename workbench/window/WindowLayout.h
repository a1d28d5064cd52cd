#pragma once

#include <QByteArray>

#include <memory>

class QDockWidget;
class QLockFile;
class QMainWindow;

/// Where the window is, how large it is and how it is divided. It fits the screen at the first
/// start, and is remembered in the settings from then on. A second program that runs at the same
/// time is offset.
class WindowLayout {
public:
    struct Docks {
        QDockWidget* strip;
        QDockWidget* jobTree;
        QDockWidget* monitor;
    };

    /// Places the docks in the window. Neither is owned.
    WindowLayout(QMainWindow* window, const Docks& docks);
    ~WindowLayout();

    /// As it was left, or the default.
    void restore();
    void restoreFirst();
    /// The first program that runs is the one that is remembered.
    bool isRemembered() const { return m_instance == 0; }
    void save() const;

private:
    void place();
    int findInstance();

    QMainWindow* m_window;
    Docks m_docks;
    QByteArray m_first;                 ///< the docks by default
    int m_instance = 0;                 ///< how many others run already
    std::unique_ptr<QLockFile> m_lock;  ///< held by each program that runs
};
