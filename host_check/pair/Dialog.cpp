#include "Dialog.h"

#include "Numbers.h"
#include "plugin/RecordKeys.h"

#include <QLineEdit>
#include <QTest>

namespace {

/// What differs, entry by entry.
QString difference(const RecordLog::Record& record, const RecordLog::Record& from)
{
    QStringList all;
    for (auto entry = record.cbegin(); entry != record.cend(); ++entry) {
        if (!from.contains(entry.key()) || from.value(entry.key()) != entry.value()) {
            all.append(QStringLiteral("%1 \"%2\"").arg(entry.key(), entry.value()));
        }
    }
    return all.isEmpty() ? QStringLiteral("nothing else") : all.join(QStringLiteral(", "));
}

}  // namespace

/// A control of the dialog; null, and judged, if there is none.
QWidget* Dialog::find(const QString& name)
{
    auto* const widget = m_dialog.findChild<QWidget*>(name);
    if (!widget) {
        m_driver.report().expect(Row::PairStarts, name + QStringLiteral(" is there"), true, false);
    }
    return widget;
}

/// A click on the type button sends the record, also when nothing has changed.
void Dialog::sendRecord()
{
    if (QWidget* const button = find(m_typeButton)) {
        Driver::click(*button);
    }
}

/// The last of `records` is as it must be. If it is not, the next one is judged from there.
void Dialog::expectRecord(Row row, const QString& what, const QVector<RecordLog::Record>& records)
{
    m_driver.report().expect(row, what + QStringLiteral(": a record is sent"), true,
                             !records.isEmpty());
    if (!records.isEmpty()) {
        const RecordLog::Record& last = records.last();
        m_driver.report().judge(row, what, last == m_expected, difference(m_expected, last),
                                difference(last, m_expected));
        m_expected = last;
    }
}

void Dialog::start()
{
    m_driver.log().takeRecords();
    const QString what = QStringLiteral("the first record is sent");
    m_driver.step(what, [this] { sendRecord(); });
    const QVector<RecordLog::Record> records = m_driver.log().takeRecords();
    if (!m_driver.report().expect(Row::PairRecords, what, true, !records.isEmpty())) {
        return;
    }
    m_expected = records.last();
    const RecordLog::Record sizes = firstSizes();
    for (auto size = sizes.cbegin(); size != sizes.cend(); ++size) {
        m_driver.report().expect(Row::PairRecords, what + QStringLiteral(": ") + size.key(),
                                 size.value(), m_expected.value(size.key()));
    }
}

/// Not every window system makes a window active again when a box is closed.
void Dialog::activate()
{
    if (!m_dialog.isActiveWindow()) {
        m_dialog.activateWindow();
        m_driver.report().expect(Row::PairWindows, QStringLiteral("the dialog becomes active"),
                                 true, QTest::qWaitForWindowActive(&m_dialog));
    }
}

void Dialog::enter(const Entry& entry, bool byReturn)
{
    QWidget* const field = find(entry.field);
    if (!field) {
        return;
    }
    activate();
    switch (entry.kind) {
        case Entry::Kind::Typed:
            Driver::type(*field, entry.text, byReturn);
            break;
        case Entry::Kind::Chosen:
            Driver::choose(*field, entry.index);
            break;
        case Entry::Kind::Clicked:
            Driver::click(*field);
            break;
    }
}

void Dialog::enterAll(bool isMetric, Row row)
{
    bool byReturn = false;
    for (const FeatureEntries& feature : dialogEntries(isMetric)) {
        m_typeButton = feature.typeButton;
        m_expected[RecordKeys::features] = feature.kind;
        const QString what = m_typeButton + QStringLiteral(" is clicked");
        m_driver.step(what, [this] { sendRecord(); });
        expectRecord(row, what, m_driver.log().takeRecords());
        for (const Entry& entry : feature.entries) {
            byReturn = !byReturn;  // each way of finishing an entry
            tryEntry(entry, byReturn, row);
        }
    }
}

void Dialog::tryEntry(const Entry& entry, bool byReturn, Row row)
{
    const RecordLog::Record before = m_expected;
    for (auto change = entry.changes.cbegin(); change != entry.changes.cend(); ++change) {
        m_expected[change.key()] = change.value();
    }
    const QString what = entry.words(byReturn);
    m_driver.step(
        what, [&] { enter(entry, byReturn); }, entry.boxes);
    const QVector<RecordLog::Record> records = m_driver.log().takeRecords();
    for (const RecordLog::Record& record : records) {
        // While it is being typed, each character may change what the entry is about.
        RecordLog::Record rest = record;
        for (const QString& key : entry.changes.keys()) {
            rest[key] = before.value(key);
        }
        m_driver.report().judge(row, what + QStringLiteral(": nothing else changes"),
                                rest == before, difference(before, rest), difference(rest, before));
    }
    // What is hidden on the way may send the record as it was.
    if (!records.isEmpty() && records.last() != before) {
        expectRecord(row, what, records);
    }
    // Not every entry sends it.
    m_driver.step(what + QStringLiteral("; then the record is sent"), [this] { sendRecord(); });
    expectRecord(row, what, m_driver.log().takeRecords());
}

/// Opens the window, chooses its first name, and finds it in the record after `before`.
void Dialog::tryList(const QString& button, const char* className, const QString& key,
                     const QString& before)
{
    QWidget* const opener = find(button);
    QWidget* const window = opener ? m_driver.open(*opener, className) : nullptr;
    if (!window) {
        return;
    }
    const QPointer<QWidget> self(window);
    const QString name = m_driver.chooseFrom(*window, 0);
    if (name.isNull()) {
        m_driver.report().untried(
            Row::PairRecords,
            QLatin1String(className) + QStringLiteral(" has no list with an entry"));
    } else {
        m_expected[key] = before + name;
        expectRecord(Row::PairRecords, QStringLiteral("\"%1\" is chosen").arg(name),
                     m_driver.log().takeRecords());
    }
    if (self && self->isVisible()) {
        m_driver.close(*self);
    }
}

void Dialog::tryWindows()
{
    m_driver.step(QStringLiteral("a text is to be placed"), [this] {
        m_typeButton = QStringLiteral("m_pTextTB");
        m_expected[RecordKeys::features] = FeatureKind::text;
        sendRecord();
    });
    tryList(QStringLiteral("m_pFontPB"), "Widget_listpopup", RecordKeys::stringTextFont, QString());
    tryList(QStringLiteral("m_pFontPB"), "Widget_listpopup", RecordKeys::stringTextFont, QString());
    tryList(QStringLiteral("m_pTextPB"), "Widget_listpopup", RecordKeys::textContains,
            QStringLiteral("$$"));
    m_driver.step(QStringLiteral("a surface is to be placed"), [this] {
        m_typeButton = QStringLiteral("m_pSurfaceTB");
        m_expected[RecordKeys::features] = FeatureKind::surface;
        sendRecord();
    });
    tryAttributes();
    m_driver.step(QStringLiteral("Fill is clicked, then the record is sent"), [this] {
        if (QWidget* const fill = find(QStringLiteral("m_pFillPB"))) {
            Driver::click(*fill);
        }
        m_driver.log().takeRecords();
        sendRecord();
    });
    expectRecord(Row::PairRecords, QStringLiteral("Fill is clicked"), m_driver.log().takeRecords());
}

/// Their button is there while the box is checked.
void Dialog::tryAttributes()
{
    QWidget* const box = find(QStringLiteral("m_pAttributesCB"));
    QWidget* const values = find(QStringLiteral("m_pValuesPB"));
    if (!box || !values) {
        return;
    }
    m_driver.step(QStringLiteral("it has attributes"), [box] { Driver::click(*box); });
    if (QWidget* const window = m_driver.open(*values, "Widget_Attributes")) {
        m_driver.close(*window);
    }
    m_driver.step(QStringLiteral("it has no attributes"), [box] { Driver::click(*box); });
}

QString Dialog::firstSymbol()
{
    m_driver.step(QStringLiteral("a line is to be placed"), [this] {
        m_typeButton = QStringLiteral("m_pLineTB");
        m_expected[RecordKeys::features] = FeatureKind::line;
        sendRecord();
    });
    QWidget* const opener = find(QStringLiteral("m_pSymbolPB"));
    QWidget* const window = opener ? m_driver.open(*opener, "Widget_SymbolSelection") : nullptr;
    const QPointer<QWidget> self(window);
    const QString name = window ? m_driver.chooseFrom(*window, 0) : QString();
    if (self && self->isVisible()) {
        m_driver.close(*self);
    }
    const QVector<RecordLog::Record> records = m_driver.log().takeRecords();
    if (name.isNull() || records.isEmpty()) {
        return QString();
    }
    m_expected = records.last();
    return m_expected.value(RecordKeys::symbolText);
}

QString Dialog::lengthShown()
{
    QWidget* const field = find(QStringLiteral("m_pXSizeLE"));
    return field ? static_cast<QLineEdit*>(field)->text() : QString();
}

void Dialog::tryUnitSwitch(bool isMetric, const std::function<void()>& change)
{
    const QString before = lengthShown();
    const QString what = QStringLiteral("the unit becomes %1").arg(isMetric ? "metric" : "mil");
    m_driver.step(what, change);
    const double expected = isMetric ? before.toDouble() * factor : before.toDouble() / factor;
    const QString after = lengthShown();
    m_driver.report().judge(Row::PairUnitSwitch, what + QStringLiteral(": a length is shown"),
                            isSameToSixDigits(after.toDouble(), expected),
                            QString::number(expected, 'g', 12), after);
    m_driver.log().takeRecords();
    m_driver.step(what + QStringLiteral("; then the record is sent"), [this] { sendRecord(); });
    expectRecord(Row::PairUnitSwitch, what, m_driver.log().takeRecords());
}
