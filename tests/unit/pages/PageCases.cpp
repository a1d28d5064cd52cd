#include "PageCases.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTest>

namespace PageCases {

void connected(const QList<Connection>& connections)
{
    const DialogFixture fixture;
    for (const Connection& connection : connections) {
        // There is nothing to undo if it was never made.
        QVERIFY2(QObject::disconnect(&fixture.find(connection.sender), connection.signal,
                                     fixture.dialog, connection.slot),
                 connection.slot);
    }
}

void switchUnitTenTimes(const Steps& before, const QList<FieldText>& fields,
                        const QList<UnitLabel>& labels)
{
    DialogFixture fixture;
    fixture.perform(before);
    for (const FieldText& field : fields) {
        fixture.perform(SetText(field.field, field.text));
    }
    const QVariantMap record = fixture.record();
    fixture.recorder.clear();
    fixture.boxes.take();
    const auto shown = [&] {
        QStringList texts;
        for (const FieldText& field : fields) {
            texts.append(fixture.text(field.field));
        }
        return texts;
    };

    for (int i = 0; i < 10; ++i) {
        const Unit unit = i % 2 == 0 ? Unit::Metric : Unit::Mil;
        fixture.setUnit(unit);
        const QStringList once = shown();
        // A notice that repeats the unit converts nothing.
        fixture.setUnit(unit);
        QCOMPARE(shown(), once);
        for (int field = 0; field < fields.size(); ++field) {
            const bool isFirst = once[field] == fields[field].text;
            QVERIFY2(isFirst == (unit == Unit::Mil), qPrintable(fields[field].field));
        }
        for (const UnitLabel& label : labels) {
            QCOMPARE(fixture.find<QLabel>(label.label).text(),
                     unit == Unit::Metric ? label.metric : label.mil);
        }
    }
    QCOMPARE(fixture.recorder.codes(), QVector<int>());
    Expect::sameRecord(fixture.record(), record);
    QCOMPARE(fixture.boxes.takeTexts(), BoxTextList());
}

namespace {

QList<int> indices(const DialogFixture& fixture, const QString& page)
{
    QList<int> indices;
    for (const QComboBox* const combo : fixture.find(page).findChildren<QComboBox*>()) {
        indices.append(combo->currentIndex());
    }
    return indices;
}

/// Each greyed item below the page, as "combo: item".
QStringList greyedItems(const DialogFixture& fixture, const QString& page)
{
    constexpr int greyRole = Qt::UserRole - 1;
    QStringList greyed;
    for (const QComboBox* const combo : fixture.find(page).findChildren<QComboBox*>()) {
        for (int item = 0; item < combo->count(); ++item) {
            if (combo->itemData(item, greyRole) == QVariant(0)) {
                greyed.append(combo->objectName() + ": " + combo->itemText(item));
            }
        }
    }
    return greyed;
}

}  // namespace

QStringList visibleTexts(const DialogFixture& fixture, const QString& page)
{
    QStringList texts;
    for (const QWidget* const child : fixture.find(page).findChildren<QWidget*>()) {
        if (const auto* const label = qobject_cast<const QLabel*>(child)) {
            texts.append(label->text());
        } else if (const auto* const button = qobject_cast<const QAbstractButton*>(child)) {
            texts.append(button->text());
        } else if (const auto* const combo = qobject_cast<const QComboBox*>(child)) {
            texts.append(itemTexts(*combo));
        }
    }
    texts.removeAll(QString());
    return texts;
}

void retranslate(const QString& page, const Steps& before)
{
    DialogFixture fixture;
    fixture.perform(before);
    const QVariantMap record = fixture.record();
    const QList<int> chosen = indices(fixture, page);
    const QStringList greyed = greyedItems(fixture, page);
    const QStringList texts = visibleTexts(fixture, page);
    QVERIFY(!texts.isEmpty());
    fixture.recorder.clear();

    const QuotingTranslator language("AddFeature");
    fixture.dialog->change_language();
    QCOMPARE(fixture.recorder.codes(), QVector<int>());
    Expect::sameRecord(fixture.record(), record);
    QCOMPARE(indices(fixture, page), chosen);
    QCOMPARE(greyedItems(fixture, page), QStringList(greyed)
                                             .replaceInStrings(": ", ": <")
                                             .replaceInStrings(QRegularExpression("$"), ">"));
    QCOMPARE(visibleTexts(fixture, page),
             QStringList(texts).replaceInStrings(QRegularExpression("\\A(.*)\\z"), "<\\1>"));
}

}  // namespace PageCases
