#pragma once

#include <QString>

#include <vector>

class QComboBox;

/// One item of a combo box.
struct Choice {
    const char* text;  ///< marked with QT_TRANSLATE_NOOP("AddFeature", …)
    QString value;     ///< what is stored while it is chosen
    bool selectable = true;
};
using Choices = std::vector<Choice>;

/// Fills `combo` with the translated items; those that must not be chosen are greyed. Fills before
/// it is connected, since every insertion may change the current index.
void fillChoices(QComboBox* combo, const Choices& choices);

/// Sets the items' texts in the current language. Index and item states stay, no signal is sent.
void retranslateChoices(QComboBox* combo, const Choices& choices);

/// Greys an item: listed, but not to be chosen by hand. A program can still set its index.
void greyItem(QComboBox* combo, int index);

/// The choice at the combo box's current index; null for an index outside the table.
const Choice* currentChoice(const QComboBox* combo, const Choices& choices);
