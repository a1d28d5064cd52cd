#include "addfeature/fields/Field.h"

#include "addfeature/record/FeatureRecord.h"
#include "addfeature/record/RefusalGuard.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>

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
    if (m_details.message == Message::Direction) {
        m_door.sendDirection();
    } else {
        m_door.sendRecord();
    }
}

void Field::retranslate()
{
    if (m_label) {
        m_label->setText(m_details.caption.translated());
    } else if (m_details.caption.kind == Caption::Kind::Spoken) {
        widget()->setAccessibleName(m_details.caption.translated());
        widget()->setToolTip(m_details.caption.translated());
    }
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

void Field::connectSignal(const char* signal)
{
    m_door.connectToSlot(m_control, signal, m_details.slot);
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
