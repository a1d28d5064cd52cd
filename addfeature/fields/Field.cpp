#include "addfeature/fields/Field.h"

#include "addfeature/record/FeatureRecord.h"
#include "addfeature/record/RefusalGuard.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

QString Caption::translated() const
{
    return QCoreApplication::translate("AddFeature", text);
}

Field::Field(DialogDoor& door, QObject* control, QWidget* page, const Details& details)
    : m_door(door), m_details(details), m_control(control), m_page(page)
{
    m_control->setObjectName(QLatin1String(m_details.name));
    if (m_details.caption.kind == Caption::Kind::Label) {
        m_label = createLabel("LB");
        m_label->setBuddy(widget());
    }
}

void Field::change()
{
    m_door.refusals().run(m_control, [this] { take(); });
}

void Field::send(bool isAccepted)
{
    if (m_details.sends == Sends::Never ||
        (m_details.sends == Sends::WhenAccepted && !isAccepted)) {
        return;
    }
    if (m_details.m_message == Message::Direction) {
        m_door.sendDirection();
    } else {
        m_door.sendRecord();
    }
}

void Field::retranslate()
{
    const Caption& caption = m_details.caption;
    if (m_label) {
        m_label->setText(caption.translated());
    } else if (caption.kind == Caption::Kind::Own) {
        qobject_cast<QAbstractButton*>(m_control)->setText(caption.translated());
    } else if (caption.kind == Caption::Kind::Spoken) {
        widget()->setAccessibleName(caption.translated());
        widget()->setToolTip(caption.translated());
    }
}

void Field::enable(Field* other, const QStringList& values)
{
    m_others.push_back({other, values});
    other->setRowEnabled(isOneOf(values));
}

void Field::enableOthers()
{
    for (const Enabled& other : m_others) {
        other.field->setRowEnabled(isOneOf(other.values));
    }
}

bool Field::isOneOf(const QStringList& values) const
{
    return std::any_of(values.begin(), values.end(),
                       [this](const QString& value) { return is(value); });
}

void Field::setRowEnabled(bool enabled)
{
    for (QWidget* const part : parts()) {
        if (part) {
            part->setEnabled(enabled);
        }
    }
}

void Field::addRow(QGridLayout* grid)
{
    const int row = grid->count() == 0 ? 0 : grid->rowCount();
    int column = 0;
    for (QWidget* const part : parts()) {
        if (part) {
            grid->addWidget(part, row, column);
        }
        ++column;
    }
}

void Field::complete(const char* signal)
{
    m_door.connectToSlot(m_control, signal, m_details.slot);
    if (m_details.m_choice) {
        m_details.m_choice->enable(this, m_details.m_enabling);
    }
}

void Field::addUnitLabel()
{
    m_unitLabel = createLabel("UnitLB");
}

QWidget* Field::widget() const
{
    return qobject_cast<QWidget*>(m_control);
}

/// In layout order; null for a label that the field does not have.
std::array<QWidget*, 3> Field::parts() const
{
    return {m_label, widget(), m_unitLabel};
}

/// The control's name with another ending: "m_pLengthLE" has "m_pLengthLB" beside it.
QLabel* Field::createLabel(const char* suffix) const
{
    QString name = m_control->objectName();
    while (name.back().isUpper()) {
        name.chop(1);
    }
    auto* const label = new QLabel(m_page);
    label->setObjectName(name + QLatin1String(suffix));
    return label;
}

void Field::store(const QString& value)
{
    m_door.record().set(m_details.key, value);
}

void Field::store(int value)
{
    m_door.record().set(m_details.key, value);
}
