#pragma once

#include "shared/Retranslated.h"
#include "viewer/TypedPlace.h"

#include <QPointF>
#include <QWidget>

#include <optional>

class QHBoxLayout;
class QLabel;
class QLineEdit;

/// A label of one line whose height does not depend on the text; a text that is too long ends in an
/// ellipsis, and is the tool tip.
QLabel* createSteadyLabel(const char* objectName, QWidget* parent);
void showSteadily(QLabel* label, const QString& text);
/// As high as a line of the label's font becomes with letters of any script.
void makeSteady(QHBoxLayout* line, const QLabel* label);

/// Above a view: the tool at work, what the user is to do next, and the position of the mouse, into
/// which another can be typed.
class ToolLine : public Retranslated<QWidget> {
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
    QWidget* positionField() const;
    /// What is being typed stays.
    void showPosition(const QPointF& point);
    /// The last one again, in the unit that the user has chosen.
    void showPosition();

Q_SIGNALS:
    void placeTyped(const TypedPlace::Place& place);
    void noPlaceTyped(const QString& text);
    /// Typing has ended: the keyboard is the board's again.
    void finished();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takePlace();
    void retranslate() override;

    QLabel* m_tool;
    QLabel* m_hint;
    QLineEdit* m_position;
    std::optional<QPointF> m_shown;
};
