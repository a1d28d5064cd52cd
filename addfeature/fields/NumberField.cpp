#include "addfeature/fields/NumberField.h"

#include "addfeature/record/FeatureRecord.h"
#include "addfeature/record/ValueChecks.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLocale>
#include <QSignalBlocker>

NumberField::NumberField(DialogDoor& door, QWidget* page, const Details& details,
                         const QString& text, Checked checked, Typed typed)
    : LineField(door, page, Pattern::Decimal, details)
{
    if (typed == Typed::Whole) {
        restrictTo(new QIntValidator(this));
    } else if (typed == Typed::Decimal) {
        restrictTo(new QDoubleValidator(this));
    }
    setText(text);
    store(text);
    retranslate();
    complete(checked == Checked::AtEachChange ? SIGNAL(textChanged(const QString&))
                                              : SIGNAL(editingFinished()));
}

void NumberField::restrictTo(QValidator* validator)
{
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    validator->setLocale(plain);
    setValidator(validator);
}

void NumberField::takeText(const QString& text)
{
    const Bounds& bounds = m_details.m_bounds;
    if (!m_door.checks().number(text.toDouble(), bounds.minimum, bounds.maximum)) {
        // This may run inside its own textChanged: restoring the text must not start over.
        const QSignalBlocker blocker(this);
        setText(m_door.record().text(m_details.key));
        return;
    }
    store(text);
    send();
}
