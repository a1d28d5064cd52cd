#include "addfeature/fields/NumberField.h"

#include "addfeature/record/FeatureRecord.h"
#include "addfeature/record/RefusalGuard.h"

#include <QSignalBlocker>

NumberField::NumberField(DialogDoor& door, QWidget* page, const Details& details,
                         const QString& text, Bounds bounds, Checked checked)
    : LineField(door, page, Pattern::Decimal, details), m_bounds(bounds)
{
    setText(text);
    store(text);
    retranslate();
    connectSignal(checked == Checked::AtEachChange ? SIGNAL(textChanged(const QString&))
                                                   : SIGNAL(editingFinished()));
}

void NumberField::change(const QString& text)
{
    m_door.refusals().run(this, [&] { takeText(text); });
}

void NumberField::take()
{
    takeText(text());
}

void NumberField::takeText(const QString& text)
{
    setModified(false);
    if (!m_door.checkNumber(text.toDouble(), m_bounds.least, m_bounds.most)) {
        // This may run inside its own textChanged: restoring the text must not start over.
        const QSignalBlocker blocker(this);
        setText(m_door.record().text(m_details.key));
        return;
    }
    store(text);
    send();
}
