#include "addfeature/fields/RadioField.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QRadioButton>
#include <QToolButton>

namespace {

constexpr int radioIconSize = 24;
constexpr int toolIconSize = 32;

QAbstractButton* createButton(RadioField::Look look, QWidget* page)
{
    if (look == RadioField::Look::Radio) {
        auto* const radio = new QRadioButton(page);
        radio->setIconSize({radioIconSize, radioIconSize});
        return radio;
    }
    auto* const tool = new QToolButton(page);
    tool->setCheckable(true);
    tool->setAutoRaise(true);  // only the chosen one has a frame
    tool->setIconSize({toolIconSize, toolIconSize});
    return tool;
}

}  // namespace

RadioField::RadioField(DialogDoor& door, QWidget* page, const Details& details, Look look,
                       const std::vector<RadioChoice>& choices)
    : QButtonGroup(page), Field(door, this, page, details), m_choices(choices)
{
    for (const RadioChoice& choice : m_choices) {
        QAbstractButton* const button = createButton(look, page);
        button->setObjectName(QLatin1String(choice.name));
        button->setIcon(QIcon(
            QStringLiteral(":/Canvas_Tool_Strip/Resources/%1").arg(QLatin1String(choice.icon))));
        addButton(button, buttons().size());
    }
    button(0)->setChecked(true);
    store(m_choices.front().value);
    RadioField::retranslate();
    complete(SIGNAL(buttonClicked(QAbstractButton*)));
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

bool RadioField::is(const QString& value) const
{
    return checkedId() >= 0 && m_choices[static_cast<size_t>(checkedId())].value == value;
}

QHBoxLayout* RadioField::createRow() const
{
    auto* const row = new QHBoxLayout;
    for (QAbstractButton* const button : buttons()) {
        row->addWidget(button);
    }
    return row;
}

void RadioField::storeChoice()
{
    store(checkedId() < 0 ? 0 : m_choices[static_cast<size_t>(checkedId())].value.toInt());
}

void RadioField::take()
{
    storeChoice();
    enableOthers();
    send();
}
