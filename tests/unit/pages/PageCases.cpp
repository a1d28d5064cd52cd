#include "PageCases.h"

#include "ByHand.h"
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

}  // namespace

Case LengthField::accepted(const QString& text, const QString& stored) const
{
    Case row(QStringLiteral("%1 \"%2\"").arg(m_field, text));
    row.given(m_reach).when(Enter(m_field, text));
    row.then(Expect::record(m_key, stored), Expect::text(m_field, text));
    if (m_sends != Sends::Never) {
        row.then(Expect::sent(Sent::Record));
    }
    return row;
}

Case LengthField::refused(const QString& text, Unit unit) const
{
    const int bound = FieldBounds::of(m_field).maximum;
    Case row(QStringLiteral("%1 \"%2\"").arg(m_field, text));
    row.given(m_reach).when(Enter(m_field, text));
    row.then(Expect::record(m_key, "0"), Expect::text(m_field, "0"),
             Expect::box(BoxTexts::length(unit == Unit::Metric ? bound / 10 * 254 : bound)));
    if (m_sends == Sends::Always) {
        row.then(Expect::sent(Sent::Record));
    }
    return row;
}

Cases LengthField::cases() const
{
    Cases cases;
    const auto add = [&](const auto& acceptedTexts, const auto& refusedTexts) {
        for (const Accepted& text : acceptedTexts) {
            cases.append(accepted(text.typed, text.stored).in(text.unit));
        }
        for (const Refused& text : refusedTexts) {
            cases.append(refused(text.typed, text.unit).in(text.unit));
        }
    };
    for (const BoundTexts& texts : boundTexts) {
        if (texts.bound == FieldBounds::of(m_field).maximum) {
            add(texts.accepted, texts.refused);
        }
    }
    add(acceptedByAll, refusedByAll);
    return cases;
}

void addGreyedRows(const QList<GreyedItems>& rows)
{
    QTest::addColumn<GreyedItems>("row");
    for (const GreyedItems& row : rows) {
        QTest::newRow(qPrintable(row.combo())) << row;
    }
}

void tryToReachGreyedItem()
{
    QFETCH(GreyedItems, row);
    row.tryToReach();
}

void GreyedItems::tryToReach() const
{
    const DialogFixture fixture;
    fixture.perform(m_reach);
    auto& combo = fixture.find<QComboBox>(m_combo);
    QCOMPARE(itemTexts(combo), m_free + m_greyed);
    reachTheLastFreeOne(combo);
    for (const QString& item : m_greyed) {
        tryToReach(combo, item);
    }
    QCOMPARE(itemTexts(combo), m_free + m_greyed);
}

/// The ways lead to the last free item: they work, and they end there.
void GreyedItems::reachTheLastFreeOne(QComboBox& combo) const
{
    const QString last = m_free.last();
    const auto start = [&] { combo.setCurrentText(m_free.first()); };
    ByHand::press(combo, Qt::Key_Down, 10);
    QCOMPARE(combo.currentText(), last);
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Right}) {
        start();
        ByHand::press(combo, key, 10);
        QVERIFY2(m_free.contains(combo.currentText()), qPrintable(combo.currentText()));
    }
    start();
    ByHand::turnWheel(combo, 10);
    QCOMPARE(combo.currentText(), last);
    start();
    ByHand::click(combo, last);
    QCOMPARE(combo.currentText(), last);
}

void GreyedItems::tryToReach(QComboBox& combo, const QString& item) const
{
    combo.setCurrentText(m_free.first());
    ByHand::click(combo, item);
    QCOMPARE(combo.currentText(), m_free.first());
    ByHand::goDown(combo, item);
    QVERIFY2(m_free.contains(combo.currentText()), qPrintable(item));
    ByHand::typeAhead(combo, item);
    QVERIFY2(m_free.contains(combo.currentText()), qPrintable(item));
    combo.setCurrentText(item);  // a program may do it
    QCOMPARE(combo.currentText(), item);
}

void addRefusalRows(const QList<Refusal>& rows)
{
    QTest::addColumn<Refusal>("row");
    QTest::addColumn<By>("way");
    for (const Refusal& row : rows) {
        for (const auto& [name, way] : {std::pair("Enter", By::Enter), std::pair("Tab", By::Tab),
                                        std::pair("mouse", By::Mouse)}) {
            QTest::addRow("%s, %s", qPrintable(row.field()), name) << row << way;
        }
    }
}

void refuseOnce()
{
    QFETCH(Refusal, row);
    QFETCH(By, way);
    row.happensOnce(way);
}

void Refusal::happensOnce(By way) const
{
    DialogFixture fixture;
    fixture.perform(m_reach);
    fixture.boxes.take();

    fixture.type(m_field, m_typed);
    if (way == By::Mouse) {
        fixture.click(m_neighbour);
        fixture.find(m_neighbour).setFocus(Qt::MouseFocusReason);
    } else {
        fixture.leave(way);
    }
    QCOMPARE(fixture.boxes.take().size(), 1);
    QCOMPARE(fixture.text(m_field), m_shown);
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
