// What the stand-in's line edit does beyond what the module relies on: what each pattern lets the
// user type, and texts that are no lengths.

#include "Main.h"

#include <UiApiStandIn.h>
#include <ui_api.h>

#include <QLocale>
#include <QRandomGenerator>
#include <QSignalSpy>

using namespace ZENTRA::UIAPI;
using CanvasHost::DisplayUnit;

namespace {

struct Typing {
    ZTERegExp pattern;
    const char* typed;
    const char* shown;
};

constexpr Typing typings[] = {
    {UnsignedDecimal, "-2.5", "2.5"}, {UnsignedDecimal, "1,5", "15"},
    {SignedLength, "-1.5x", "-1.5"},  {SignedLength, "1e5", "15"},
    {UnsignedInteger, "-2.5", "25"},  {SignedDecimal, "-a12.3.4", "-12.34"},
    {SignedDecimal, "1e5", "15"},     {SignedDecimal, "1,5", "15"},
    {SignedInteger, "-2.5", "-25"},   {SymbolName, "r10 _4,5", "r10_45"},
    {SymbolName, "R1.5+-", "R1.5+-"}, {FreeText, "a B-1,5", "a B-1,5"},
};

struct Finished {
    ZTERegExp pattern;
    const char* text;
};

// Incomplete numbers are accepted, as far as the pattern has their signs.
constexpr Finished finishedTexts[] = {
    {UnsignedDecimal, ""},  {UnsignedDecimal, "."}, {UnsignedDecimal, "1.5"},
    {SignedLength, ""},     {SignedLength, "-"},    {SignedLength, "."},
    {SignedLength, "1.5"},  {UnsignedInteger, ""},  {UnsignedInteger, "15"},
    {SignedDecimal, ""},    {SignedDecimal, "-"},   {SignedDecimal, "."},
    {SignedDecimal, "1.5"}, {SignedInteger, ""},    {SignedInteger, "-"},
    {SignedInteger, "-15"},
};

struct InBothUnits {
    ZTERegExp pattern;
    const char* mil;
    const char* metric;
};

constexpr InBothUnits unitTexts[] = {
    {UnsignedDecimal, "10.5", "266.7"},
    {UnsignedInteger, "10", "254"},
    {SignedInteger, "-10", "-254"},
    {SymbolName, "r10", "r10"},
    {SignedLength, "10", "254"},
    {SignedDecimal, "-0.5", "-12.7"},
    {SignedDecimal, "0.00001", "0.000254"},
    {SignedDecimal, "", ""},
    {SignedDecimal, "-", "-"},
    {SignedLength, ".", "."},
    {FreeText, "10", "10"},
    {FreeText, "r10", "r10"},
};

}  // namespace

class TestLineEdit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        CanvasHost::setDisplayUnit(DisplayUnit::Mil);
        QLocale::setDefault(QLocale::c());
    }

    void patternsTakeTheirCharacters()
    {
        QLocale::setDefault(QLocale(QLocale::German));
        for (const Typing& row : typings) {
            ZTLineEdit edit(row.pattern, nullptr);
            QTest::keyClicks(&edit, row.typed);
            QCOMPARE(edit.text(), QString(row.shown));
        }
    }

    void incompleteNumbersAreReported()
    {
        for (const Finished& row : finishedTexts) {
            ZTLineEdit edit(row.pattern, nullptr);
            edit.setText(row.text);
            const QSignalSpy finished(&edit, &QLineEdit::editingFinished);
            QTest::keyClick(&edit, Qt::Key_Return);
            QVERIFY2(finished.size() == 1, row.text);
        }
    }

    void contextIsTheParent()
    {
        QWidget context;
        auto* const edit = new ZTLineEdit(SignedLength, &context);
        QCOMPARE(edit->parentWidget(), &context);
    }

    void textsInBothUnits_data()
    {
        QTest::addColumn<bool>("isMetric");
        QTest::newRow("from mil") << false;
        QTest::newRow("from metric") << true;
    }

    /// Three rounds, and each time the same unit twice.
    void textsInBothUnits()
    {
        QFETCH(bool, isMetric);
        CanvasHost::setDisplayUnit(isMetric ? DisplayUnit::Millimetre : DisplayUnit::Inch);
        for (const InBothUnits& row : unitTexts) {
            ZTLineEdit edit(row.pattern, nullptr);
            edit.setText(isMetric ? row.metric : row.mil);
            const QSignalSpy finished(&edit, &QLineEdit::editingFinished);
            for (int i = 0; i < 12; ++i) {
                const bool shownMetric = isMetric != (i % 4 < 2);
                edit.changeunit(shownMetric);
                QCOMPARE(edit.text(), QString(shownMetric ? row.metric : row.mil));
                QVERIFY(edit.hasAcceptableInput());
            }
            QCOMPARE(finished.size(), 0);
        }
    }

    void previousTextComesBackUnlessItWasEdited()
    {
        ZTLineEdit edit(SignedLength, nullptr);
        edit.setText("10.500");
        edit.changeunit(true);
        edit.changeunit(false);
        QCOMPARE(edit.text(), QString("10.500"));

        edit.setText("10.50");
        edit.changeunit(true);
        edit.setText("508");
        edit.changeunit(false);
        QCOMPARE(edit.text(), QString("20"));
        edit.changeunit(true);
        QCOMPARE(edit.text(), QString("508"));
    }

    void numbersOfNineDigitsComeBack()
    {
        QRandomGenerator random(20261121);
        for (int i = 0; i < 2000; ++i) {
            const QString text = QString::number(random.bounded(100000000, 1000000000))
                                     .insert(random.bounded(1, 9), '.');
            ZTLineEdit edit(SignedLength, nullptr);
            edit.setText(text);
            edit.changeunit(true);
            QVERIFY2(edit.hasAcceptableInput(), qPrintable(edit.text()));
            edit.changeunit(false);
            QCOMPARE(edit.text(), text);
        }
    }
};

CTS_TEST(TestLineEdit);
#include "test_line_edit.moc"
