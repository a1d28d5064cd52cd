#include "addfeature/pages/Choices.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QIcon>

namespace {

QString translated(const Choice& choice)
{
    return QCoreApplication::translate("AddFeature", choice.text);
}

}  // namespace

void fillChoices(QComboBox* combo, const Choices& choices)
{
    for (const Choice& choice : choices) {
        combo->addItem(QIcon(), translated(choice));
        if (!choice.selectable) {
            greyItem(combo, combo->count() - 1);
        }
    }
}

void retranslateChoices(QComboBox* combo, const Choices& choices)
{
    for (int index = 0; index < static_cast<int>(choices.size()); ++index) {
        combo->setItemText(index, translated(choices[static_cast<size_t>(index)]));
    }
}

void greyItem(QComboBox* combo, int index)
{
    // The role just below Qt::UserRole holds a standard item's flags: none are left.
    combo->setItemData(index, 0, Qt::UserRole - 1);
}

const Choice* currentChoice(const QComboBox* combo, const Choices& choices)
{
    const int index = combo->currentIndex();
    const bool known = index >= 0 && index < static_cast<int>(choices.size());
    return known ? &choices[static_cast<size_t>(index)] : nullptr;
}
