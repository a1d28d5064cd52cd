// The stand-ins of the host's widgets, as a user works with them.

#include "FindChild.h"
#include "Main.h"

#include <CamApiStandIn.h>
#include <CommonWidgetsStandIn.h>
#include <UiApiStandIn.h>
#include <common_widgets.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTableWidget>

using CanvasHost::AttributeKind;
using CanvasHost::DisplayUnit;
using List = std::vector<std::pair<std::string, std::string>>;
using Map = std::map<std::string, std::string>;

Q_DECLARE_METATYPE(List)

namespace {

Map dataOf(Widget_Attributes& window)
{
    Map data{{"old", "entry"}};
    window.getAttributeData(data);
    return data;
}

QStringList shownNames(const QListWidget& list)
{
    QStringList names;
    for (int row = 0; row < list.count(); ++row) {
        if (!list.item(row)->isHidden()) {
            names.append(list.item(row)->text());
        }
    }
    return names;
}

void clickOn(QTableWidget& table, int row, int column)
{
    const QRect place = table.visualItemRect(table.item(row, column));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      QPoint(place.left() + 12, place.center().y()));
}

}  // namespace

class TestCommonWidgets : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qRegisterMetaType<List>("std::vector<std::pair<std::string,std::string>>");
        CanvasHost::clearJobs();
        CanvasHost::setDisplayUnit(DisplayUnit::Mil);
        CanvasHost::Job job;
        job.name = "job";
        job.fonts = {"simplex", "standard"};
        job.specialSymbols = {"target"};
        job.userSymbols = {"logo"};
        job.specialTexts = {"DATE", "TIME"};
        job.attributes = {{".smd", AttributeKind::Flag, {}},
                          {".net", AttributeKind::Text, {}},
                          {".drill", AttributeKind::Choice, {"via", "plated"}},
                          {".bit", AttributeKind::Integer, {}}};
        CanvasHost::addJob(job);
    }

    void attributesByHand()
    {
        QWidget owner;
        Widget_Attributes window(&owner);
        window.show();
        QVERIFY(window.isWindow());
        QSignalSpy colour(&window, &Widget_Attributes::change_button_color);
        QSignalSpy plain(&window, &Widget_Attributes::remove_button_color);
        QSignalSpy applied(&window, &Widget_Attributes::send_attribute_list);
        auto& table = findNamed<QTableWidget>(window, "m_pAttributesTable");
        QCOMPARE(table.rowCount(), 4);
        QVERIFY(dataOf(window).empty());

        clickOn(table, 0, 0);
        QCOMPARE(dataOf(window), (Map{{".smd", ""}}));
        QTest::keyClicks(table.cellWidget(1, 1), "gnd");
        QTest::keyClicks(table.cellWidget(3, 1), "1x2");
        QCOMPARE(dataOf(window), (Map{{".smd", ""}, {".net", "gnd"}, {".bit", "12"}}));
        QCOMPARE(colour.size(), 1);
        QVERIFY(applied.isEmpty());
        QTest::mouseClick(&findNamed(window, "m_pApplyPB"), Qt::LeftButton);
        QCOMPARE(applied.size(), 1);
        QCOMPARE(applied[0][0].value<List>(),
                 (List{{".smd", ""}, {".net", "gnd"}, {".bit", "12"}}));

        QTest::mouseClick(&findNamed(window, "m_pClearPB"), Qt::LeftButton);
        QVERIFY(dataOf(window).empty());
        QCOMPARE(plain.size(), 1);
    }

    void attributesFromTheBoard()
    {
        QWidget owner;
        Widget_Attributes window(&owner);
        QSignalSpy asked(&window, &Widget_Attributes::send_attribute_signal);
        QTest::mouseClick(&findNamed(window, "m_pFromEditorPB"), Qt::LeftButton);
        QCOMPARE(asked.size(), 1);
        window.get_attributeinfo_list({{".drill", "plated"}, {".own", "7"}, {".net", "vcc"}});
        QCOMPARE(dataOf(window), (Map{{".drill", "plated"}, {".own", "7"}, {".net", "vcc"}}));
        window.get_attributeinfo_list({{".drill", "odd"}});
        QCOMPARE(dataOf(window), (Map{{".drill", "odd"}}));
        window.get_attributeinfo_list({});
        QVERIFY(dataOf(window).empty());
    }

    void attributesWithoutAJob()
    {
        CanvasHost::clearJobs();
        QWidget owner;
        Widget_Attributes window(&owner);
        window.get_attributeinfo_list({{"a", "b"}});
        QCOMPARE(dataOf(window), (Map{{"a", "b"}}));
    }

    void faults()
    {
        QWidget owner;
        Widget_Attributes window(&owner);
        CanvasHost::commonWidgetsOverrides().getAttributeData = [](Map& out) {
            out = {{"replaced", ""}};
        };
        const Map data = dataOf(window);
        CanvasHost::commonWidgetsOverrides() = {};
        QCOMPARE(data, (Map{{"replaced", ""}}));
    }

    void symbols()
    {
        QWidget context;
        Widget_SymbolSelection window("job", &context, &context);
        QVERIFY(window.isWindow());
        auto& list = findNamed<QListWidget>(window, "m_pSymbolLW");
        for (const QString& name : shownNames(list)) {
            QVERIFY2(QRegularExpression("^[rs][0-9]+$").match(name).hasMatch(), qPrintable(name));
        }
        window.changeAvailableItemView(1);
        QVERIFY(shownNames(list).contains("logo"));
        QVERIFY(shownNames(list).contains("target"));
        QVERIFY(shownNames(list).contains("rect20x40"));
        CanvasHost::setDisplayUnit(DisplayUnit::Millimetre);
        window.change_unit();
        QVERIFY(shownNames(list).contains("rect508x1016"));
        QVERIFY(shownNames(list).contains("logo"));
        window.setJob("nowhere");
        QVERIFY(!shownNames(list).contains("logo"));
    }

    void choosing()
    {
        QWidget context;
        Widget_SymbolSelection window("job", &context, &context);
        window.show();
        QSignalSpy sent(&window, &Widget_SymbolSelection::sendText);
        auto& list = findNamed<QListWidget>(window, "m_pSymbolLW");
        auto& filter = findNamed<QLineEdit>(window, "m_pFilterLE");
        auto& ok = findNamed<QPushButton>(window, "m_pOkPB");
        QVERIFY(!ok.isEnabled());
        QTest::keyClicks(&filter, "R12");
        QCOMPARE(shownNames(list), (QStringList{"r12", "r120"}));
        QTest::keyClick(&filter, Qt::Key_Return);
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent[0][0].toString(), QString("r12"));
        QVERIFY(!window.isVisible());

        window.show();
        const QRect place = list.visualItemRect(list.findItems("r120", Qt::MatchExactly)[0]);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
        QTest::mouseClick(&ok, Qt::LeftButton);
        QCOMPARE(sent[1][0].toString(), QString("r120"));
        window.show();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(sent.size(), 3);
    }

    void lists_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("job");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("fonts") << 17 << "job"
                               << "m_pFontLW" << QStringList{"simplex", "standard"};
        QTest::newRow("texts") << 16 << "job"
                               << "m_pTextLW" << QStringList{"DATE", "TIME"};
        QTest::newRow("no such job") << 16 << "nowhere"
                                     << "m_pTextLW" << QStringList();
    }

    void lists()
    {
        QFETCH(int, type);
        QFETCH(QString, job);
        QFETCH(QString, list);
        QFETCH(QStringList, names);
        Widget_listpopup popup(type, job.toStdString(), "step", nullptr);
        auto& entries = findNamed<QListWidget>(popup, list);
        QCOMPARE(shownNames(entries), names);
        QSignalSpy font(&popup, &Widget_listpopup::on_send_Font);
        QSignalSpy text(&popup, &Widget_listpopup::on_send_changeText);
        if (!names.isEmpty()) {
            entries.setCurrentRow(1);
            QTest::keyClick(&entries, Qt::Key_Return);
            QSignalSpy& expected = type == 17 ? font : text;
            QCOMPARE(expected.size(), 1);
            QCOMPARE(expected[0][0].toString(), names[1]);
            QCOMPARE(font.size() + text.size(), 1);
        }
    }

    void windowsAreSeparateAndStay()
    {
        auto parent = std::make_unique<QWidget>();
        const std::vector<QPointer<QWidget>> windows = {
            new Widget_Attributes(parent.get()),
            new Widget_SymbolSelection("one", parent.get(), parent.get()),
            new Widget_listpopup(17, "one", parent.get()),
            new Widget_listpopup(16, "one", "pcb", parent.get()),
            new Grc_Tbe_measurepopup(nullptr, parent.get())};
        for (const QPointer<QWidget>& window : windows) {
            QCOMPARE(window->parentWidget(), parent.get());
            QVERIFY(window->isWindow());
            window->show();
            window->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(window);
            QVERIFY(!window->isVisible());
        }
        parent.reset();
        for (const QPointer<QWidget>& window : windows) {
            QVERIFY(!window);
        }
    }

    void measuring()
    {
        QWidget parent;
        Grc_Tbe_measurepopup popup(nullptr, &parent);
        QVERIFY(popup.isWindow());
        auto& distance = findNamed<QLabel>(popup, "m_pDistanceLB");
        const QString nothing = distance.text();
        int started = 0;
        CanvasHost::setMeasureStarted([&] { ++started; });
        popup.onMeasureButtonClicked();
        QCOMPARE(started, 1);
        CanvasHost::reportMeasurement({0, 0}, {3 * 25.4, 4 * 25.4});
        QCOMPARE(distance.text(), QString("5.00 mil"));
        QVERIFY(findNamed<QLabel>(popup, "m_pOffsetsLB").text().contains("3.00 mil"));
        CanvasHost::setDisplayUnit(DisplayUnit::Millimetre);
        popup.change_language();
        QCOMPARE(distance.text(), QString("0.1270 mm"));
        popup.onMeasureButtonClicked();
        QCOMPARE(distance.text(), nothing);
        CanvasHost::setMeasureStarted({});
    }
};

CTS_TEST(TestCommonWidgets);
#include "test_common_widgets.moc"
