// The page of pads: counts, steps and factors of an array.

#include "DialogFixture.h"
#include "Main.h"
#include "PageCases.h"
#include "PageFixture.h"
#include "plugin/MessageCodes.h"
#include "plugin/RecordKeys.h"

#include <UiApiStandIn.h>

#include <QFrame>
#include <QLabel>
#include <QLineEdit>

namespace Sent = MessageCodes::Sent;

using PageCases::Case;

namespace {

const QStringList pad = {"m_pPadTB"};

QString text(const QString& value)
{
    return value;
}

/// A count or factor: checked at each change of its text.
QList<Case> numbers(const QString& field, const QString& key, const QStringList& legal,
                    const QStringList& illegal)
{
    QList<Case> rows;
    for (const QString& value : legal) {
        rows.append({QStringLiteral("%1 \"%2\"").arg(field, value),
                     pad + QStringList(field + "~7"),
                     field + "~" + value,
                     {{key, text(value)}},
                     {Sent::Record},
                     {},
                     value});
    }
    for (const QString& value : illegal) {
        rows.append({QStringLiteral("%1 \"%2\"").arg(field, value),
                     pad + QStringList(field + "~7"),
                     field + "~" + value,
                     {{key, text("7")}},
                     {},
                     {},
                     "7",
                     {"*"}});
    }
    return rows;
}

struct Step {
    bool metric;
    const char* typed;
    const char* stored;  // null: refused
};
const Step steps[] = {
    {false, "10", "254"},
    {false, "1.5", "38.1"},
    {false, "-10", "-254"},
    {false, "0", "0"},
    {false, "", "0"},
    {false, "100000", "2.54e+06"},
    {false, "-100000", "-2.54e+06"},
    {false, "100000.5", nullptr},
    {false, "100001", nullptr},
    {false, "-100001", nullptr},
    {false, "inf", nullptr},
    {false, "-inf", nullptr},
    {false, "nan", nullptr},
    {false, "1e6", nullptr},
    {true, "254", "254"},
    {true, "1.50", "1.50"},
    {true, "2540000", "2540000"},
    {true, "-2540000", "-2540000"},
    {true, "2540001", nullptr},
    {true, "-2540000.5", nullptr},
    {true, "", "0"},
};

QList<Case> stepRows(const QString& field, const QString& key)
{
    QList<Case> rows;
    for (const Step& step : steps) {
        Case row;
        row.name = QStringLiteral("%1 \"%2\"").arg(field, QLatin1String(step.typed));
        row.before = pad + QStringList(field + "<127");
        row.action = field + "<" + step.typed;
        row.metric = step.metric;
        if (step.stored) {
            row.entries = {{key, QString::fromLatin1(step.stored)}};
            row.codes = {Sent::Record};
            row.shown = *step.typed ? QString::fromLatin1(step.typed) : QString("0");
        } else {
            // The field falls back to "0" while the record keeps the last accepted step.
            row.entries = {{key, step.metric ? QString("127") : QString("3225.8")}};
            row.shown = "0";
            row.boxes = QStringList(PageCases::coordinateBox(step.metric ? 2540000 : 100000));
        }
        rows.append(row);
    }
    return rows;
}

}  // namespace

class TestPadPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void counts_data()
    {
        const QStringList legal = {"0", "1", "50", "50.0", "", "abc", "-0"};
        const QStringList illegal = {"51", "50.01", "-1", "1e9", "inf", "nan"};
        PageCases::addRows(numbers("m_pDrilNxLE", RecordKeys::padNx, legal, illegal) +
                           numbers("m_pDrilNyLE", RecordKeys::padNy, legal, illegal));
    }
    void counts() { PageCases::run(); }

    void factors_data()
    {
        const QStringList legal = {"0", "-100", "100", "-0.5", "", "abc", "1e2"};
        const QStringList illegal = {"100.1", "-100.1", "1e3", "inf", "-inf", "nan"};
        PageCases::addRows(numbers("m_pDrilXsclLE", RecordKeys::padXscl, legal, illegal) +
                           numbers("m_pDrilYsclLE", RecordKeys::padYscl, legal, illegal));
    }
    void factors() { PageCases::run(); }

    void steps_data()
    {
        PageCases::addRows(stepRows("m_pDrilDxLE", RecordKeys::padDx) +
                           stepRows("m_pDrilDyLE", RecordKeys::padDy));
    }
    void steps() { PageCases::run(); }

    void keyByKey()
    {
        PageFixture fixture;
        fixture.perform(pad);
        QCOMPARE(fixture.text("m_pDrilNxLE"), QString("1"));
        fixture.forget();
        auto& nx = fixture.find<QLineEdit>("m_pDrilNxLE");
        nx.setFocus();
        nx.selectAll();
        QTest::keyClick(&nx, '5');
        QCOMPARE(fixture.codes(), QList<int>{Sent::Record});
        QCOMPARE(fixture.record().value(RecordKeys::padNx), QVariant(QString("5")));
        QTest::keyClick(&nx, '1');
        QCOMPARE(fixture.text("m_pDrilNxLE"), QString("5"));
        QCOMPARE(fixture.boxes().size(), 1);
        QCOMPARE(fixture.codes(), QList<int>{Sent::Record});
        QCOMPARE(fixture.record().value(RecordKeys::padNx), QVariant(QString("5")));
    }

    void typing_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("step, leading zero") << "m_pDrilDxLE"
                                            << "01"
                                            << "0";
        QTest::newRow("step, five decimals") << "m_pDrilDxLE"
                                             << "1.123456"
                                             << "1.12345";
        QTest::newRow("step, below one") << "m_pDrilDyLE"
                                         << "-0.5"
                                         << "-0.5";
        QTest::newRow("step, letters") << "m_pDrilDyLE"
                                       << "1x2"
                                       << "12";
        QTest::newRow("count, decimals") << "m_pDrilNxLE"
                                         << "1.5"
                                         << "15";
        QTest::newRow("count, comma") << "m_pDrilNyLE"
                                      << "1,5"
                                      << "15";
        QTest::newRow("factor, comma") << "m_pDrilXsclLE"
                                       << "1,5"
                                       << "15";
        QTest::newRow("factor, decimals") << "m_pDrilYsclLE"
                                          << "-1.5"
                                          << "-1.5";
    }
    void typing()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QLocale::setDefault(QLocale(QLocale::German));  // reads a comma; the fields do not
        PageFixture fixture;
        fixture.perform(pad);
        fixture.type(field, typed);
        QLocale::setDefault(QLocale::c());
        QCOMPARE(fixture.text(field), shown);
    }

    void theStepsOwnZeroIsNoEntry()
    {
        PageFixture fixture;
        fixture.perform(pad);
        fixture.forget();
        fixture.type("m_pDrilDxLE", "0");
        fixture.leave("m_pDrilDxLE", "Tab", {});
        QCOMPARE(fixture.codes(), QList<int>());
        fixture.type("m_pDrilDxLE", "");
        fixture.leave("m_pDrilDxLE", "Tab", {});
        QCOMPARE(fixture.text("m_pDrilDxLE"), QString("0"));
        QCOMPARE(fixture.codes(), QList<int>{Sent::Record});
        QCOMPARE(fixture.record().value(RecordKeys::padDx), QVariant(QString("0")));
    }

    void refusals_data()
    {
        PageCases::addRefusalRows({{"m_pDrilDxLE", pad, "100001", "0", "m_pMirrorCMB"},
                                   {"m_pDrilDyLE", pad, "-100001", "0", "m_pMirrorCMB"}});
    }
    void refusals() { PageCases::refuseOnce(); }

    void coordinateBoxIsAWarning()
    {
        DialogFixture fixture;
        fixture.choose("m_pPadTB");
        fixture.find<QLineEdit>("m_pDrilDxLE").setText("100001");
        fixture.dialog->on_m_pDrilDxLE_editingFinished();
        const auto boxes = fixture.boxes.take();
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].icon, QMessageBox::Warning);
        QCOMPARE(boxes[0].buttons.size(), 1);
    }

    void units()
    {
        PageCases::switchUnitTenTimes(pad, {"m_pDrilDxLE~10", "m_pDrilDyLE~-0.5"},
                                      {"m_pDrilDxUnitLB=mil|my", "m_pDrilDyUnitLB=mil|my"});
    }

    void unitsLeaveCountsAndFactorsAlone()
    {
        PageFixture fixture;
        fixture.changeUnit(true);
        for (const char* const field :
             {"m_pDrilNxLE", "m_pDrilNyLE", "m_pDrilXsclLE", "m_pDrilYsclLE"}) {
            QCOMPARE(fixture.text(field), QString("1"));
        }
    }

    void unitLabelAtBuild()
    {
        QVERIFY(PageFixture(false).labelText("m_pDrilDxUnitLB") == "mil");
        // Before the first notice of the unit, the label follows what the host shows.
        CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Micrometre);
        QWidget window;
        const AddFeature dialog(&window, "job", "step", &window);
        QCOMPARE(findNamed<QLabel>(dialog, "m_pDrilDyUnitLB").text(), QString("my"));
    }

    void texts()
    {
        PageFixture fixture;
        const char* const labels[][2] = {
            {"m_pDrilNxLB", "Nx   : "}, {"m_pDrilDxLB", "Dx   : "}, {"m_pDrilXsclLB", "Xscl : "},
            {"m_pDrilNyLB", "Ny   : "}, {"m_pDrilDyLB", "Dy   : "}, {"m_pDrilYsclLB", "Yscl : "}};
        for (const auto& [name, label] : labels) {
            QCOMPARE(fixture.labelText(name), QString(label));
        }
        const auto& line = fixture.find<QFrame>("m_pPadColumnsFrame");
        QCOMPARE(line.frameShape(), QFrame::VLine);
        QCOMPARE(line.frameShadow(), QFrame::Sunken);
    }

    void columns()
    {
        PageFixture fixture;
        fixture.perform(pad);
        const auto place = [&](const char* name) {
            return fixture.find<QWidget>(name).mapTo(&fixture.dialog(), QPoint());
        };
        const char* const rows[][2] = {{"m_pDrilNxLE", "m_pDrilNyLE"},
                                       {"m_pDrilDxLE", "m_pDrilDyLE"},
                                       {"m_pDrilXsclLE", "m_pDrilYsclLE"}};
        int y = -1;
        for (const auto& [left, right] : rows) {
            QVERIFY(place(left).x() < place("m_pPadColumnsFrame").x());
            QVERIFY(place(right).x() > place("m_pPadColumnsFrame").x());
            QCOMPARE(place(left).y(), place(right).y());
            QVERIFY(place(left).y() > y);
            y = place(left).y();
        }
    }

    void language() { PageCases::retranslate("m_pPadPage", pad); }
};

CTS_TEST(TestPadPage);
#include "test_pad_page.moc"
