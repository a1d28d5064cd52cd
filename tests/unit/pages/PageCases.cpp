#include "PageCases.h"

#include "plugin/MessageCodes.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace Sent = MessageCodes::Sent;

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

namespace {

struct Accepted {
    Unit unit;
    const char* typed;
    const char* stored;
};
struct Refused {
    Unit unit;
    const char* typed;
};

struct BoundTexts {
    int bound;
    QList<Accepted> accepted;
    QList<Refused> refused;
};

const BoundTexts boundTexts[] = {
    {50000,
     {{Unit::Mil, "50000", "1.27e+06"},
      {Unit::Mil, "49999", "1.26997e+06"},
      {Unit::Metric, "1270000", "1270000"},
      {Unit::Metric, "1269999", "1269999"}},
     {{Unit::Mil, "50000.1"},
      {Unit::Mil, "50001"},
      {Unit::Metric, "1270000.1"},
      {Unit::Metric, "1270001"}}},
    {10000,
     {{Unit::Mil, "10000", "254000"},
      {Unit::Mil, "9999.5", "253987"},
      {Unit::Metric, "254000", "254000"},
      {Unit::Metric, "253999.5", "253999.5"}},
     {{Unit::Mil, "10000.5"}, {Unit::Metric, "254001"}}},
};

const Accepted acceptedByAll[] = {
    {Unit::Mil, "0", "0"},        {Unit::Mil, "10", "254"},         {Unit::Mil, "12.5", "317.5"},
    {Unit::Mil, "1e3", "25400"},  {Unit::Mil, " 10 ", "254"},       {Unit::Metric, "0", "0"},
    {Unit::Metric, "254", "254"}, {Unit::Metric, "12.50", "12.50"}, {Unit::Metric, "1e3", "1e3"},
};

const Refused refusedByAll[] = {
    {Unit::Mil, "-0.001"}, {Unit::Mil, "-1"},     {Unit::Mil, ""},       {Unit::Mil, "   "},
    {Unit::Mil, "abc"},    {Unit::Mil, "1 0"},    {Unit::Mil, "1,5"},    {Unit::Mil, "nan"},
    {Unit::Mil, "inf"},    {Unit::Mil, "-inf"},   {Unit::Mil, "1e400"},  {Unit::Metric, "-0.001"},
    {Unit::Metric, ""},    {Unit::Metric, "   "}, {Unit::Metric, "abc"}, {Unit::Metric, "nan"},
    {Unit::Metric, "inf"},
};

Case accepted(const LengthField& field, const Accepted& entry)
{
    Case row(QStringLiteral("%1 \"%2\"").arg(field.name, entry.typed));
    row.in(entry.unit).given(field.reach).when(Enter(field.name, entry.typed));
    row.then(Expect::record(field.key, entry.stored), Expect::text(field.name, entry.typed));
    if (field.sends != Sends::Never) {
        row.then(Expect::sent(Sent::Record));
    }
    return row;
}

Case refused(const LengthField& field, const Refused& entry)
{
    const int bound = FieldBounds::of(field.name).maximum;
    Case row(QStringLiteral("%1 \"%2\"").arg(field.name, entry.typed));
    row.in(entry.unit).given(field.reach).when(Enter(field.name, entry.typed));
    row.then(Expect::record(field.key, "0"), Expect::text(field.name, "0"),
             Expect::box(BoxTexts::length(entry.unit == Unit::Metric ? bound / 10 * 254 : bound)));
    if (field.sends == Sends::Always) {
        row.then(Expect::sent(Sent::Record));
    }
    return row;
}

}  // namespace

Cases lengths(const LengthField& field)
{
    Cases cases;
    const auto add = [&](const auto& acceptedEntries, const auto& refusedEntries) {
        for (const Accepted& entry : acceptedEntries) {
            cases.append(accepted(field, entry));
        }
        for (const Refused& entry : refusedEntries) {
            cases.append(refused(field, entry));
        }
    };
    for (const BoundTexts& texts : boundTexts) {
        if (texts.bound == FieldBounds::of(field.name).maximum) {
            add(texts.accepted, texts.refused);
        }
    }
    add(acceptedByAll, refusedByAll);
    return cases;
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

}  // namespace

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
