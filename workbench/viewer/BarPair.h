#pragma once

#include <QWidget>

class QBoxLayout;
class QToolBar;

/// Two bars in one line, or one below the other where there is no room for both: a bar by itself
/// would hide what it has no room for.
class BarPair : public QWidget {
public:
    /// Takes both.
    BarPair(QToolBar* first, QToolBar* second, QWidget* parent);

protected:
    bool event(QEvent* event) override;

private:
    QToolBar* m_first;
    QToolBar* m_second;
    QBoxLayout* m_layout;
};
