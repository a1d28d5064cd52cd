#pragma once

#include <QMainWindow>
#include <QVector>

class QAction;
class Receiver;

/// The usual way to build a tool bar: one action per tool in an exclusive group. Triggering one
/// sends its code.
class PlainActions : public QMainWindow {
public:
    explicit PlainActions(Receiver& receiver);
    QAction* action(int index) const { return m_actions[index]; }

private:
    QVector<QAction*> m_actions;
};
