// What the feature record describes is drawn by clicks on the canvas.

#include "CanvasFixture.h"
#include "Main.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"
#include "plugin/RecordKeys.h"
#include "viewer/DemoBoard.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

using Record = QMap<QString, QVariant>;

class TestPlacing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void line()
    {
        const CanvasFixture fixture;
        fixture.receive(Sent::AddFeature);
        fixture.receive(Sent::Record, 0, lineRecord(LineKind::single));
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
        fixture.receive(Sent::Record, 0, lineRecord(LineKind::polyline));
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
        Record record = lineRecord(LineKind::single);
        fixture.receive(Sent::Record, 0, record);
        record[RecordKeys::angleGroup] = LineDirection::horizontal.toInt();
        fixture.receive(Sent::DirectionRecord, 0, record);
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
        const Record record{{RecordKeys::features, FeatureKind::pad.toInt()},
                            {RecordKeys::symbolText, "rect20x40"},
                            {RecordKeys::padNx, "3"},
                            {RecordKeys::padDx, "2000"},
                            {RecordKeys::attributes, HasAttributes::yes},
                            {RecordKeys::polarity, Polarity::negative}};
        fixture.receive(Sent::Record, 0, record);
        fixture.receive(Sent::AttributeMap, ExtraWord::pointingAt(attributes));
        fixture.click(4000, 5000);
        QCOMPARE(fixture.features().size(), size_t(3));
        for (const Pcb::Feature& pad : fixture.features()) {
            QVERIFY(!pad.isPositive());
            QCOMPARE(pad.attributes(), (Pcb::Attributes{{".smd", ""}, {".net", "gnd"}}));
        }
        fixture.receive(Sent::FeatureSelection);
        fixture.move(6000, 5000);
        QCOMPARE(fixture.text("m_pHoveredLB"), QString("rect20x40  negative  .net=gnd  .smd"));
    }

    void fillEndsASurface()
    {
        const CanvasFixture fixture;
        fixture.receive(Sent::Record, 0,
                        {{RecordKeys::features, FeatureKind::surface.toInt()},
                         {RecordKeys::surfaceShape, SurfaceKind::polygon}});
        fixture.click(2000, 2000);
        fixture.click(8000, 2000);
        fixture.click(5000, 7000);
        QVERIFY(fixture.features().empty());
        fixture.receive(Sent::Fill);
        QCOMPARE(fixture.features().size(), size_t(1));
        QVERIFY(fixture.features()[0].area().contains(QPointF(5000, 4000)));
        fixture.receive(Sent::Fill);  // nothing is being drawn
        QCOMPARE(fixture.features().size(), size_t(1));
    }

    void textOfTheStep()
    {
        const CanvasFixture fixture;
        fixture.receive(Sent::Record, 0,
                        {{RecordKeys::features, FeatureKind::text.toInt()},
                         {RecordKeys::textFormat, TextKind::string},
                         {RecordKeys::textContains, "$$JOB"},
                         {RecordKeys::stringXSize, "2000"},
                         {RecordKeys::stringYSize, "2000"}});
        fixture.click(4000, 5000);
        QCOMPARE(fixture.features().size(), size_t(1));
        QVERIFY(!fixture.features()[0].area().isEmpty());
        QCOMPARE(fixture.features()[0].geometry().text.content, QString("job"));
    }

    void dateOfTheTextCanBeGiven()
    {
        qputenv("SOURCE_DATE_EPOCH", "86400");
        const CanvasFixture fixture;
        fixture.receive(Sent::Record, 0,
                        {{RecordKeys::features, FeatureKind::text.toInt()},
                         {RecordKeys::textFormat, TextKind::string},
                         {RecordKeys::textContains, "$$DATE"},
                         {RecordKeys::stringXSize, "2000"},
                         {RecordKeys::stringYSize, "2000"}});
        qunsetenv("SOURCE_DATE_EPOCH");
        fixture.click(4000, 5000);
        QCOMPARE(fixture.features()[0].geometry().text.content, QString("1970-01-02"));
    }

    void whatACodeCannotCarryIsSaid()
    {
        const CanvasFixture fixture;
        const auto receive = [&fixture](const char* content) {
            fixture.receive(MessageCodes::Sent::Record, 0,
                            {{RecordKeys::features, 5},
                             {RecordKeys::textFormat, TextKind::barcode},
                             {RecordKeys::barcodeMode, Symbology::code128B.toInt()},
                             {RecordKeys::textContains, content}});
        };
        receive("8 \u00b5m");
        QCOMPARE(fixture.text("m_pPickHintLB"),
                 QString("Click the lower left corner; its code cannot carry \"\u00b5\"."));
        fixture.click(4000, 5000);
        QCOMPARE(fixture.features().size(), size_t(1));
        receive("\u00b5");
        fixture.click(14000, 5000);
        QCOMPARE(fixture.features().size(), size_t(1));
        QCOMPARE(fixture.text("m_pPickHintLB"),
                 QString("There is no text that could be drawn: clicks do nothing."));
        receive("8 um");
        QCOMPARE(fixture.text("m_pPickHintLB"), QString("Click the lower left corner."));
    }

    void pickingLetsTheDrawingGoOn()
    {
        const CanvasFixture fixture({Pcb::Feature(Pcb::padGeometry("r60", {16000, 10000}))});
        fixture.receive(Sent::Record, 0, lineRecord(LineKind::single));
        fixture.receive(Sent::SelectSymbol);
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
        QTest::newRow("types") << Record{{RecordKeys::features, QVariantList{1}},
                                         {RecordKeys::symbolText, 7},
                                         {RecordKeys::padNx, QVariantMap()}};
        QTest::newRow("huge") << Record{{RecordKeys::features, FeatureKind::pad.toInt()},
                                        {RecordKeys::symbolText, "r9999999999999"},
                                        {RecordKeys::padNx, "999999999"},
                                        {RecordKeys::padNy, "999999999"},
                                        {RecordKeys::padDx, "1e300"},
                                        {RecordKeys::mirrorRotate, "1e99"}};
        QTest::newRow("no numbers") << Record{{RecordKeys::features, FeatureKind::text.toInt()},
                                              {RecordKeys::textContains, QString(9999, 'W')},
                                              {RecordKeys::stringXSize, "nan"},
                                              {RecordKeys::stringYSize, "-1"}};
        QTest::newRow("odd barcode") << Record{{RecordKeys::features, FeatureKind::text.toInt()},
                                               {RecordKeys::textFormat, TextKind::barcode},
                                               {RecordKeys::barcodeMode, 99},
                                               {RecordKeys::textContains, "\u00e9"}};
    }
    void absurdRecordsAreSurvived()
    {
        QFETCH(Record, record);
        const CanvasFixture fixture;
        fixture.receive(Sent::Record, 0, record);
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
            fixture.receive(Accepted::JobOpened, 0,
                            {{PayloadKeys::jobName, job}, {PayloadKeys::stepName, step}});
        };
        open("demo", "pcb");
        fixture.document().replace({});
        open("demo", "panel");
        QVERIFY(!fixture.features().empty());
        QCOMPARE(fixture.document().board().step, QString("panel"));
        open("demo", "pcb");
        QVERIFY(fixture.features().empty());
    }

    void aPanelIsAPanelAndAnArrayAnArray_data()
    {
        QTest::addColumn<QString>("job");
        QTest::addColumn<QString>("step");
        QTest::addColumn<QString>("repeated");
        QTest::addColumn<int>("times");
        QTest::newRow("array") << "demo"
                               << "array"
                               << "pcb" << 6;
        QTest::newRow("panel of arrays") << "demo"
                                         << "panel"
                                         << "array" << 6;
        QTest::newRow("panel of boards") << "sensor_board"
                                         << "panel"
                                         << "pcb" << 12;
    }

    void aPanelIsAPanelAndAnArrayAnArray()
    {
        QFETCH(QString, job);
        QFETCH(QString, step);
        QFETCH(QString, repeated);
        QFETCH(int, times);
        const Pcb::Board one = demoBoard(job, repeated);
        const Pcb::Board all = demoBoard(job, step);
        QCOMPARE(all.step, step);
        const auto countOf = [](const Pcb::Board& board, const QString& symbol) {
            return int(std::count_if(
                board.features.begin(), board.features.end(),
                [&](const Pcb::Feature& feature) { return feature.symbol() == symbol; }));
        };
        const QString symbol = job == "demo" ? "oval80x40" : "diamond50x60";
        QVERIFY(countOf(one, symbol) > 0);
        QCOMPARE(countOf(all, symbol), times * countOf(one, symbol));
        const QRectF board = all.outline.boundingRect();
        QVERIFY(board.width() > 2 * one.outline.boundingRect().width());
        for (const Pcb::Feature& feature : all.features) {
            QVERIFY2(board.contains(feature.bounds()), qPrintable(feature.symbol()));
        }
    }

    void oneStepHasEveryKindOfFeature()
    {
        const Pcb::Board board = demoBoard("sensor_board", "pcb");
        QVERIFY(!(demoBoard("demo", "pcb").features == board.features));
        std::set<Pcb::Kind> kinds;
        std::set<Pcb::TextFormat> texts;
        std::set<Pcb::BarcodeType> codes;
        bool cuts = false;
        for (const Pcb::Feature& feature : board.features) {
            QVERIFY(!feature.area().isEmpty());
            QVERIFY(board.outline.boundingRect().contains(feature.bounds()));
            kinds.insert(feature.kind());
            cuts = cuts || !feature.isPositive();
            const Pcb::TextSpec& text = feature.geometry().text;
            if (feature.kind() == Pcb::Kind::Text) {
                QCOMPARE(Pcb::leftOut(text), QString());
                texts.insert(text.format);
                if (text.format == Pcb::TextFormat::Barcode) {
                    codes.insert(text.barcode);
                }
            }
        }
        QCOMPARE(int(kinds.size()), 5);
        QCOMPARE(int(texts.size()), 4);
        QCOMPARE(int(codes.size()), 5);
        QVERIFY(cuts);
    }

    void whatIsSaidIsDrawn()
    {
        const CanvasFixture fixture;
        Record record = lineRecord(LineKind::single);
        record[RecordKeys::symbolText] = "";
        fixture.receive(Sent::Record, 0, record);
        fixture.click(2000, 2000);
        fixture.click(8000, 4000);
        QCOMPARE(fixture.features().size(), size_t(1));
        QCOMPARE(fixture.features()[0].symbol(), QString("r10"));
    }
};

CTS_TEST(TestPlacing);
#include "test_placing.moc"
