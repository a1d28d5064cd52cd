#include "addfeature/pages/Entries.h"

#include "addfeature/FeatureRecord.h"
#include "addfeature/PageHost.h"
#include "addfeature/Units.h"
#include "plugin/RecordKeys.h"

#include <QLineEdit>
#include <QSignalBlocker>

void finishLength(PageHost& host, const LengthEntry& entry)
{
    const bool accepted = host.checkLength(entry.field->text(), entry.boundInMil);
    if (!accepted) {
        entry.field->setText(RecordValues::zero);
    }
    host.record().set(entry.key, accepted ? Units::toStored(entry.field->text(), host.isMetric())
                                          : RecordValues::zero);
    if (accepted ? entry.sendsWhenAccepted : entry.sendsWhenRefused) {
        host.sendRecord();
    }
}

void changeNumber(PageHost& host, const NumberEntry& entry, const QString& text)
{
    if (!host.checkNumber(text.toDouble(), entry.minimum, entry.maximum)) {
        // The field's own textChanged leads here: putting a text back must not start over.
        const QSignalBlocker blocker(entry.field);
        entry.field->setText(host.record().text(entry.key));
        return;
    }
    host.record().set(entry.key, text);
    host.sendRecord();
}

void finishPitch(PageHost& host, QLineEdit* field, const QString& key)
{
    if (field->text().isEmpty()) {
        field->setText(RecordValues::zero);
    }
    if (!host.checkCoordinate(field->text().toDouble())) {
        field->setText(RecordValues::zero);
        return;
    }
    host.record().set(key, Units::toStored(field->text(), host.isMetric()));
    host.sendRecord();
}
