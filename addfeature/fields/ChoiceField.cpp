#include "addfeature/fields/ChoiceField.h"

#include <QCoreApplication>
#include <QIcon>

namespace {

// The role just below Qt::UserRole holds a standard item's flags: 0 clears them all.
constexpr int flagsRole = Qt::UserRole - 1;

}  // namespace

ChoiceField::ChoiceField(DialogDoor& door, QWidget* page, const Details& details,
                         const Choices& choices, Stores stores, const QString& initial)
    : QComboBox(page), Field(door, this, page, details), m_choices(choices), m_stores(stores)
{
    for (const Choice& choice : m_choices) {
        addItem(QIcon(), QString());
        if (!choice.isSelectable) {
            setItemData(count() - 1, 0, flagsRole);
        }
        if (choice.value == initial) {
            setCurrentIndex(count() - 1);
        }
    }
    if (m_stores == Stores::TextThenNumber) {
        store(chosen()->value);
    } else {
        storeChoice();
    }
    ChoiceField::retranslate();
    complete(SIGNAL(currentIndexChanged(QString)));
}

void ChoiceField::retranslate()
{
    Field::retranslate();
    // In place: no item is removed, so that neither index nor record changes.
    int index = 0;
    for (const Choice& choice : m_choices) {
        setItemText(index++, QCoreApplication::translate("AddFeature", choice.text));
    }
}

const Choice* ChoiceField::chosen() const
{
    const int index = currentIndex();
    const bool isKnown = index >= 0 && index < static_cast<int>(m_choices.size());
    return isKnown ? &m_choices[static_cast<size_t>(index)] : nullptr;
}

bool ChoiceField::is(const QString& value) const
{
    return chosen() && chosen()->value == value;
}

bool ChoiceField::storeChoice()
{
    const bool isText = m_stores == Stores::Text || m_stores == Stores::TextElseNumber;
    if (isText && chosen()) {
        store(chosen()->value);
        return true;
    }
    if (m_stores == Stores::Text) {
        return false;
    }
    store(currentIndex() + 1);
    return true;
}

void ChoiceField::take()
{
    if (storeChoice()) {
        enableOthers();
    }
    send();
}
