#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

#include <functional>

class DialogFixture;

/// Something that is done with the dialog, with a description. A table of cases lists them.
struct Step {
    QString words;
    QString control;
    std::function<void(const DialogFixture&)> act;
};
using Steps = QList<Step>;
Q_DECLARE_METATYPE(Step)

Steps operator+(Steps steps, const Step& next);

/// Clicks a button or check box.
struct Click : Step {
    explicit Click(const QString& button);
};

/// Chooses the item with that text.
struct Choose : Step {
    Choose(const QString& combo, const QString& item);
};

/// Leaves a combo box without an item, as a program can.
struct ChooseNothing : Step {
    explicit ChooseNothing(const QString& combo);
};

/// Replaces the field's text by typing, then presses Enter.
struct Type : Step {
    Type(const QString& field, const QString& text);
};

/// A program sets the field's text.
struct SetText : Step {
    SetText(const QString& field, const QString& text);
};

/// A program sets the field's text, which the field's validator may not take, and calls the slot
/// that finishes an entry.
struct Enter : Step {
    Enter(const QString& field, const QString& text);
};
