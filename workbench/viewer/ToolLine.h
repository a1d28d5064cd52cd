#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;

/// A label in a line whose height no text changes; a text that is too long for it is cut, and is
/// its tool tip.
QLabel* createSteadyLabel(const char* objectName, QWidget* parent);
void showSteadily(QLabel* label, const QString& text);
/// As high as a line of the label's font becomes with letters of any script.
void makeSteady(QHBoxLayout* line, const QLabel* label);

/// Above a view: the tool at work, what the user is to do next, and the position of the mouse.
class ToolLine : public QWidget {
    Q_OBJECT

public:
    struct Names {
        const char* tool;
        const char* hint;
        const char* position;
    };
    ToolLine(const Names& names, QWidget* parent);

    void showTool(const QString& text);
    void showHint(const QString& text);
    void showPosition(const QPointF& point);

private:
    QLabel* m_tool;
    QLabel* m_hint;
    QLabel* m_position;
};
