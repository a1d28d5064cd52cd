#include "Snapshot.h"

#include "AgreementTable.h"
#include "DialogFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMetaProperty>

namespace {

QVector<QWidget*> controlsOf(const DialogFixture& fixture)
{
    QVector<QWidget*> controls;
    for (const AgreementTable::Field& field : AgreementTable::fields()) {
        for (const QString& name : field.names) {
            controls.append(&fixture.find(name));
        }
    }
    return controls;
}

/// What a user sets in it: text, number, item or state.
QVariant valueOf(const QWidget& control)
{
    return control.metaObject()->userProperty().read(&control);
}

QVariantList shownBy(const QVector<QWidget*>& controls)
{
    QVariantList values;
    for (const QWidget* const control : controls) {
        values.append(valueOf(*control));
    }
    return values;
}

void set(QWidget& control, const QVariant& value)
{
    if (valueOf(control) == value) {
        return;
    }
    if (auto* const button = qobject_cast<QAbstractButton*>(&control)) {
        if (value.toBool() || !button->group()) {
            button->click();  // another of the group is released by the one that is clicked
        }
        return;
    }
    control.metaObject()->userProperty().write(&control, value);
    if (control.metaObject()->indexOfSignal("editingFinished()") >= 0) {
        QMetaObject::invokeMethod(&control, "editingFinished");
    }
}

void closeOtherWindows(const DialogFixture& fixture)
{
    for (QWidget* const top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && top != &fixture.window && top != fixture.dialog) {
            top->close();
        }
    }
}

}  // namespace

Snapshot::Snapshot(DialogFixture& fixture)
    : m_controls(controlsOf(fixture)), m_shown(shownBy(m_controls)), m_record(fixture.record())
{
}

bool Snapshot::restore(DialogFixture& fixture) const
{
    closeOtherWindows(fixture);
    fixture.setUnit(Unit::Mil);
    for (int i = 0; i < m_controls.size(); ++i) {
        set(*m_controls[i], m_shown[i]);
    }
    fixture.strip->On_AddFeature_Clicked();
    fixture.open();
    fixture.agreement->startAgain();
    fixture.boxes.take();
    fixture.recorder.clear();
    return shownBy(m_controls) == m_shown && fixture.record() == m_record;
}
