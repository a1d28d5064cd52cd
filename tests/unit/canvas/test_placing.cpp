// What the feature record describes is drawn by clicks on the canvas.

#include "CanvasFixture.h"
#include "Main.h"

#include <map>

using Record = QMap<QString, QVariant>;

class TestPlacing : public QObject {
    Q_OBJECT

    static Record lineRecord(const QString& kind)
    {
        return {{"Features", 1}, {"Line", kind}, {"SymbolText", "r20"}, {"Polarity", "1"}};
    }

private Q_SLOTS:
    void line()
    {
        const CanvasFixture fixture;
        fixture.receive(20000241);
        fixture.receive(50, 0, lineRecord("1"));
        fixture.click(2000, 2000);
        fixture.move(6000, 5000);
        const Overlay& overlay = fixture.pane->canvas().scene().overlay();
        QCOMPARE(overlay.preview.size(), size_t(1));
        fixture.click(6000, 5000);
        QCOMPARE(fixture.features().size(), size_t(1));
        QCOMPARE(fixture.features()[0].symbol(), QString("r20"));
        QVERIFY(isNear(fixture.features()[0].geometry().points[1], {6000, 5000}));
        QCOMPARE(fixture.document().history().undoText(), QString("Add feature"));
        fixture.document().history().undo();
        QVERIFY(fixture.features().empty());
    }

    void polyline()
    {
        const CanvasFixture fixture;
        fixture.receive(50, 0, lineRecord("2"));
        for (const QPointF& corner :
             {QPointF(2000, 2000), QPointF(6000, 2000), QPointF(6000, 6000)}) {
            fixture.click(corner.x(), corner.y());
        }
        fixture.rightClick(9000, 9000);
        QCOMPARE(fixture.features().size(), size_t(2));
    }

    void directionOfTheLastMessage()
    {
        const CanvasFixture fixture;
        Record record = lineRecord("1");
        fixture.receive(50, 0, record);
        record["AngleGroup"] = 3;  // horizontal
        fixture.receive(52, 0, record);
        fixture.click(2000, 2000);
        fixture.click(8000, 4000);
        QCOMPARE(fixture.features().size(), size_t(1));
        const QVector<QPointF> points = fixture.features()[0].geometry().points;
        QCOMPARE(points[0].y(), points[1].y());
    }

    void padArrayWithAttributes()
    {
        const CanvasFixture fixture;
        const std::map<std::string, std::string> attributes{{".smd", ""}, {".net", "gnd"}};
        const Record record{{"Features", 2},   {"SymbolText", "rect20x40"}, {"PadNx", "3"},
                            {"PadDx", "2000"}, {"Attributes", "1"},         {"Polarity", "0"}};
        fixture.receive(50, 0, record);
        fixture.receive(51, qint64(reinterpret_cast<quintptr>(&attributes)));
        fixture.click(4000, 5000);
        QCOMPARE(fixture.features().size(), size_t(3));
        for (const Pcb::Feature& pad : fixture.features()) {
            QVERIFY(!pad.isPositive());
            QCOMPARE(pad.attributes(), (Pcb::Attributes{{".smd", ""}, {".net", "gnd"}}));
        }
        fixture.receive(20000202);
        fixture.move(6000, 5000);
        QCOMPARE(fixture.text("m_pHoveredLB"), QString("rect20x40  negative  .net=gnd  .smd"));
    }

    void fillEndsASurface()
    {
        const CanvasFixture fixture;
        fixture.receive(50, 0, {{"Features", 3}, {"SurfaceShape", "2"}});
        fixture.click(2000, 2000);
        fixture.click(8000, 2000);
        fixture.click(5000, 7000);
        QVERIFY(fixture.features().empty());
        fixture.receive(53);
        QCOMPARE(fixture.features().size(), size_t(1));
        QVERIFY(fixture.features()[0].area().contains(QPointF(5000, 4000)));
        fixture.receive(53);  // nothing is being drawn
        QCOMPARE(fixture.features().size(), size_t(1));
    }

    void textOfTheStep()
    {
        const CanvasFixture fixture;
        fixture.receive(50, 0,
                        {{"Features", 5},
                         {"TextFormat", "1"},
                         {"TextContains", "$$JOB"},
                         {"StringXSize", "2000"},
                         {"StringYSize", "2000"}});
        fixture.click(4000, 5000);
        QCOMPARE(fixture.features().size(), size_t(1));
        QVERIFY(!fixture.features()[0].area().isEmpty());
        QCOMPARE(fixture.features()[0].geometry().text.content, QString("job"));
    }

    void whatACodeCannotCarryIsSaid()
    {
        const CanvasFixture fixture;
        const auto receive = [&fixture](const char* content) {
            fixture.receive(50, 0,
                            {{"Features", 5},
                             {"TextFormat", "BarcodeMode"},
                             {"BarcodeMode", 3},
                             {"TextContains", content}});
        };
        receive("8 \u00b5m");
        QCOMPARE(fixture.text("m_pPickHintLB"),
                 QString("Click where the feature begins; its code cannot carry \"\u00b5\"."));
        fixture.click(4000, 5000);
        QCOMPARE(fixture.features().size(), size_t(1));
        receive("\u00b5");
        fixture.click(14000, 5000);
        QCOMPARE(fixture.features().size(), size_t(1));
        receive("8 um");
        QCOMPARE(fixture.text("m_pPickHintLB"), QString("Click where the feature begins."));
    }

    void pickingLetsTheDrawingGoOn()
    {
        const CanvasFixture fixture({Pcb::Feature(Pcb::padGeometry("r60", {16000, 10000}))});
        fixture.receive(50, 0, lineRecord("1"));
        fixture.receive(20001405);
        QVERIFY(!fixture.text("m_pPickHintLB").isEmpty());
        fixture.click(16000, 10000);
        fixture.click(2000, 2000);
        fixture.click(6000, 5000);
        QCOMPARE(fixture.features().size(), size_t(2));
    }

    void absurdRecordsAreSurvived_data()
    {
        QTest::addColumn<Record>("record");
        QTest::newRow("empty") << Record();
        QTest::newRow("types") << Record{
            {"Features", QVariantList{1}}, {"SymbolText", 7}, {"PadNx", QVariantMap()}};
        QTest::newRow("huge") << Record{{"Features", 2},        {"SymbolText", "r9999999999999"},
                                        {"PadNx", "999999999"}, {"PadNy", "999999999"},
                                        {"PadDx", "1e300"},     {"MirrorRotate", "1e99"}};
        QTest::newRow("no numbers") << Record{{"Features", 5},
                                              {"TextContains", QString(9999, 'W')},
                                              {"StringXSize", "nan"},
                                              {"StringYSize", "-1"}};
        QTest::newRow("odd barcode") << Record{{"Features", 5},
                                               {"TextFormat", "BarcodeMode"},
                                               {"BarcodeMode", 99},
                                               {"TextContains", "\u00e9"}};
    }
    void absurdRecordsAreSurvived()
    {
        QFETCH(Record, record);
        const CanvasFixture fixture;
        fixture.receive(50, 0, record);
        for (int i = 0; i < 4; ++i) {
            fixture.click(3000 + 1500 * i, 3000 + 1000 * (i % 2));
        }
        fixture.rightClick(3000, 3000);
        QVERIFY(fixture.features().size() <= 2500);
        for (const Pcb::Feature& feature : fixture.features()) {
            QVERIFY(std::isfinite(feature.bounds().width()));
        }
    }

    void eachStepHasItsBoard()
    {
        const CanvasFixture fixture;
        const auto open = [&](const char* job, const char* step) {
            fixture.receive(20002400, 0, {{"JobName", job}, {"StepName", step}});
        };
        open("demo", "pcb");
        fixture.document().replace({});
        open("demo", "panel");
        QVERIFY(!fixture.features().empty());
        QCOMPARE(fixture.document().board().step, QString("panel"));
        open("demo", "pcb");
        QVERIFY(fixture.features().empty());
    }
};

CTS_MAIN(TestPlacing)
#include "test_placing.moc"
