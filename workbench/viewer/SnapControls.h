#pragma once

#include <QObject>

class CanvasController;
class QAction;
class QLabel;
class QLineEdit;
class QToolBar;

/// In the canvas's bar: whether points snap, and the step of the grid. Both are remembered.
class SnapControls : public QObject {
    Q_OBJECT

public:
    SnapControls(CanvasController& canvas, QToolBar* bar);

    QAction* snapAction() const { return m_snap; }
    void retranslate();
    /// In the unit that the user has chosen.
    void showStep();

Q_SIGNALS:
    /// A step was typed: the keyboard is the board's again.
    void finished();

private:
    /// As the user left them.
    void recall();
    void takeStep();

    CanvasController& m_canvas;
    QAction* m_snap;
    QLabel* m_label;
    QLineEdit* m_step;
};
