// Symbol names and entries in the two systems of units.

#include "Main.h"

#include <UiApiStandIn.h>
#include <ui_api.h>

#include <QDoubleValidator>
#include <QRandomGenerator>
#include <QSignalSpy>

using namespace ZENTRA::UIAPI;
using CanvasHost::DisplayUnit;
using CanvasHost::setDisplayUnit;

namespace {

/// Up to `mostDigits` digits with the point anywhere, as a user types them.
QString randomNumber(QRandomGenerator& random, int mostDigits)
{
    const int digits = random.bounded(1, mostDigits + 1);
    QString text;
    for (int i = 0; i < digits; ++i) {
        const int least = i == 0 || i == digits - 1 ? 1 : 0;
        text += QString::number(random.bounded(least, 10));
    }
    const int place = random.bounded(-4, digits + 5);
    if (place <= 0) {
        return "0." + QString(-place, '0') + text;
    }
    return place < digits ? text.insert(place, '.') : text.leftJustified(place, '0');
}

}  // namespace

class TestUnitFields : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { setDisplayUnit(DisplayUnit::Mil); }

    void symbolNames_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("metric");
        const char* const rows[][2] = {
            {"r10", "r254"},
            {"r0.5", "r12.7"},
            {"s39.3701", "s1000"},
            {"rect20x40", "rect508x1016"},
            {"oval60x30", "oval1524x762"},
            {"octagon20x40x5", "octagon508x1016x127"},
            {"ring_r60x30", "ring_r1524x762"},
            {"ring_s10x5", "ring_s254x127"},
            {"r10_45", "r254_45"},
            {"ring_r60x30_90", "ring_r1524x762_90"},
        };
        for (const auto& row : rows) {
            QTest::newRow(row[0]) << row[0] << row[1];
        }
    }

    void symbolNames()
    {
        QFETCH(QString, stored);
        QFETCH(QString, metric);
        QCOMPARE(setSymbolUIData(stored, 1), metric);
        QCOMPARE(setSymbolUIData(metric, 0), stored);
    }

    void otherNamesStay_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* const name : {"", "r", "s", "logo", "logo10", "fiducial_cross", "R10",
                                       "r10x20", "rect20", "r10_4x", "r-5", "r1e3", "_", "10"}) {
            QTest::newRow(name) << name;
        }
    }

    void otherNamesStay()
    {
        QFETCH(QString, name);
        QCOMPARE(setSymbolUIData(name, 0), name);
        QCOMPARE(setSymbolUIData(name, 1), name);
    }

    void randomSizesComeBack()
    {
        QRandomGenerator random(20261121);
        for (int i = 0; i < 2000; ++i) {
            const QString name = 'r' + randomNumber(random, 6);
            for (const int direction : {0, 1}) {
                const QString other = setSymbolUIData(name, direction);
                QCOMPARE(setSymbolUIData(other, 1 - direction), name);
                QVERIFY2(!other.contains('e'), qPrintable(other));
            }
        }
    }

    void typing_data()
    {
        QTest::addColumn<int>("pattern");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("signed length") << 1 << "-1.5x"
                                       << "-1.5";
        QTest::newRow("signed decimal") << 3 << "-a12.3.4"
                                        << "-12.34";
        QTest::newRow("no exponent") << 3 << "1e5"
                                     << "15";
        QTest::newRow("no comma") << 3 << "1,5"
                                  << "15";
        QTest::newRow("free text") << 6 << "a B-1"
                                   << "a B-1";
        QTest::newRow("unsigned") << 0 << "-2.5"
                                  << "2.5";
        QTest::newRow("integer") << 4 << "-2.5"
                                 << "-25";
        QTest::newRow("symbol name") << 5 << "r10 _4,5"
                                     << "r10_45";
    }

    void typing()
    {
        QFETCH(int, pattern);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QLocale::setDefault(QLocale(QLocale::German));  // must make no difference
        ZTLineEdit edit(static_cast<ZTERegExp>(pattern), nullptr);
        QTest::keyClicks(&edit, typed);
        QLocale::setDefault(QLocale::c());
        QCOMPARE(edit.text(), shown);
    }

    void aLaterValidatorWins()
    {
        ZTLineEdit edit(SignedDecimal, nullptr);
        edit.setValidator(new QIntValidator(&edit));
        QTest::keyClicks(&edit, "1.5");
        QCOMPARE(edit.text(), QString("15"));
    }

    void partOfANumberEndsEditing()
    {
        ZTLineEdit edit(SignedDecimal, nullptr);
        QSignalSpy finished(&edit, &QLineEdit::editingFinished);
        for (const char* const text : {"", "-", "."}) {
            edit.setText(text);
            QTest::keyClick(&edit, Qt::Key_Return);
        }
        QCOMPARE(finished.size(), 3);
    }

    void belongsToItsContext()
    {
        QWidget context;
        ZTLineEdit edit(SignedDecimal, &context);
        QCOMPARE(edit.parentWidget(), &context);
    }

    void changeUnit_data()
    {
        QTest::addColumn<int>("pattern");
        QTest::addColumn<QString>("mil");
        QTest::addColumn<QString>("metric");
        QTest::newRow("length") << 1 << "10"
                                << "254";
        QTest::newRow("decimal") << 3 << "-0.5"
                                 << "-12.7";
        QTest::newRow("no exponent") << 3 << "50000"
                                     << "1270000";
        QTest::newRow("small") << 3 << "0.00001"
                               << "0.000254";
        QTest::newRow("zero") << 3 << "0"
                              << "0";
        QTest::newRow("empty") << 3 << ""
                               << "";
        QTest::newRow("no number") << 3 << "-"
                                   << "-";
        QTest::newRow("free text") << 6 << "10"
                                   << "10";
    }

    void changeUnit()
    {
        QFETCH(int, pattern);
        QFETCH(QString, mil);
        QFETCH(QString, metric);
        ZTLineEdit edit(static_cast<ZTERegExp>(pattern), nullptr);
        QSignalSpy finished(&edit, &QLineEdit::editingFinished);
        edit.setText(mil);
        for (int round = 0; round < 10; ++round) {
            edit.changeunit(true);
            edit.changeunit(true);
            QCOMPARE(edit.text(), metric);
            edit.changeunit(false);
            edit.changeunit(false);
            QCOMPARE(edit.text(), mil);
        }
        QVERIFY(finished.isEmpty());
    }

    void startsInTheHostsUnit()
    {
        setDisplayUnit(DisplayUnit::Millimetre);
        ZTLineEdit edit(SignedLength, nullptr);
        edit.setText("254");
        edit.changeunit(true);
        QCOMPARE(edit.text(), QString("254"));
        edit.changeunit(false);
        QCOMPARE(edit.text(), QString("10"));
    }

    void randomTextsComeBack()
    {
        QRandomGenerator random(7);
        ZTLineEdit edit(SignedLength, nullptr);
        for (int i = 0; i < 2000; ++i) {
            const QString text = randomNumber(random, 9);
            edit.setText(text);
            edit.changeunit(true);
            QVERIFY(edit.hasAcceptableInput());
            edit.changeunit(false);
            QCOMPARE(edit.text(), text);
        }
    }

    void needlessZerosComeBack()
    {
        ZTLineEdit edit(SignedLength, nullptr);
        edit.setText("10.500");
        edit.changeunit(true);
        QCOMPARE(edit.text(), QString("266.7"));
        edit.changeunit(false);
        QCOMPARE(edit.text(), QString("10.500"));
    }

    void anEditedTextIsConvertedAnew()
    {
        ZTLineEdit edit(SignedLength, nullptr);
        edit.setText("10.50");
        edit.changeunit(true);
        edit.setText("508");
        edit.changeunit(false);
        QCOMPARE(edit.text(), QString("20"));
        edit.changeunit(true);
        QCOMPARE(edit.text(), QString("508"));
    }
};

CTS_TEST(TestUnitFields);
#include "test_unit_fields.moc"
