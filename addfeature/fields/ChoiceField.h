#pragma once

#include "addfeature/fields/Field.h"

#include <QComboBox>

#include <vector>

/// One item of a combo box.
struct Choice {
    const char* text;  ///< marked for translation in the context "AddFeature"
    QString value;     ///< its name in the code; for some choices also what the record holds
    bool isSelectable = true;
};
using Choices = std::vector<Choice>;

/// A choice among several items.
class ChoiceField final : public QComboBox, public Field {
public:
    /// What is stored for the chosen item, and for an index outside the list.
    enum class Stores {
        Text,            ///< the item's value; nothing
        Number,          ///< the item's number from 1; 0
        TextThenNumber,  ///< initially the item's value, after a choice like Number
        TextElseNumber,  ///< the item's value; 0
    };

    /// The item with the value `initial` is chosen; without one the first. Items that are not
    /// selectable are listed but greyed out; only code can choose them.
    ChoiceField(DialogDoor& door, QWidget* page, const Details& details, const Choices& choices,
                Stores stores, const QString& initial = {});

    void retranslate() override;
    bool is(const QString& value) const override;

    /// Stores the choice and sends nothing. False where nothing is stored.
    bool storeChoice();

protected:
    void take() override;

private:
    const Choice* chosen() const;

    const Choices m_choices;
    const Stores m_stores;
};
