#include "addfeature/fields/RadioField.h"

#include "plugin/RecordValues.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QRadioButton>

namespace {

constexpr int iconSize = 24;

}  // namespace

RadioField::RadioField(DialogDoor& door, QWidget* page, const Details& details,
                       const std::vector<RadioChoice>& choices)
    : QButtonGroup(page), Field(door, this, details), m_choices(choices)
{
    for (const RadioChoice& choice : m_choices) {
        auto* const radio = new QRadioButton(page);
        radio->setObjectName(QLatin1String(choice.name));
        radio->setIcon(QIcon(
            QStringLiteral(":/Canvas_Tool_Strip/Resources/%1").arg(QLatin1String(choice.icon))));
        radio->setIconSize({iconSize, iconSize});
        addButton(radio, buttons().size());
    }
    button(0)->setChecked(true);
    store(RecordValues::one);
    RadioField::retranslate();
    connectSignal(SIGNAL(buttonClicked(QAbstractButton*)));
}

void RadioField::retranslate()
{
    for (int id = 0; id < buttons().size(); ++id) {
        const QString spoken =
            Caption::spoken(m_choices[static_cast<size_t>(id)].spoken).translated();
        button(id)->setAccessibleName(spoken);
        button(id)->setToolTip(spoken);
    }
}

QHBoxLayout* RadioField::createRow() const
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(0);  // six of them just fit
    for (QAbstractButton* const radio : buttons()) {
        row->addWidget(radio);
    }
    return row;
}

void RadioField::storeChoice()
{
    store(checkedId() + 1);
}

void RadioField::take()
{
    storeChoice();
    m_door.sendDirection();
}
