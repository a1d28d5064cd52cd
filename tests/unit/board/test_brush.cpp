#include "Main.h"
#include "board/Brush.h"
#include "plugin/RecordKeys.h"

#include <random>

using namespace Pcb;
using Record = QMap<QString, QVariant>;

namespace {

Brush read(const QString& key, const QVariant& value)
{
    return readBrush({{key, value}});
}

}  // namespace

class TestBrush : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingGivesTheDefaults() { QVERIFY(readBrush({}) == Brush()); }

    void frame()
    {
        const Brush brush = readBrush({{RecordKeys::features, FeatureKind::pad.toInt()},
                                       {RecordKeys::polarity, Polarity::negative},
                                       {RecordKeys::mirror, Mirror::yes},
                                       {RecordKeys::mirrorRotate, QStringLiteral("405")},
                                       {RecordKeys::symbolText, QStringLiteral("rect20x40_45")}});
        QCOMPARE(brush.kind, Kind::Pad);
        QVERIFY(!brush.positive);
        QVERIFY(brush.mirror);
        QCOMPARE(brush.rotation, 45.0);
        QCOMPARE(brush.symbol, QStringLiteral("rect20x40"));
        QCOMPARE(read(RecordKeys::features, FeatureKind::text).kind, Kind::Text);
        QVERIFY(!read(RecordKeys::mirror, Mirror::no).mirror);
    }

    void attributesCountWhereTheRecordSaysSo()
    {
        const Attributes attributes = {{QStringLiteral(".net"), QStringLiteral("A")}};
        QVERIFY(readBrush({}, attributes).attributes.isEmpty());
        QCOMPARE(readBrush({{RecordKeys::attributes, HasAttributes::yes}}, attributes).attributes,
                 attributes);
    }

    void line()
    {
        const Brush brush = readBrush({{RecordKeys::line, LineKind::slot},
                                       {RecordKeys::closed, Closed::yes},
                                       {RecordKeys::angleGroup, LineDirection::fixed.toInt()},
                                       {RecordKeys::angle, QStringLiteral("30.5")},
                                       {RecordKeys::cornerType, CornerType::chamfer.toInt()},
                                       {RecordKeys::cornerRadius, QStringLiteral("254")},
                                       {RecordKeys::slotPlated, SlotPlated::no},
                                       {RecordKeys::slotLength, QStringLiteral("2.54")},
                                       {RecordKeys::slotAngle, QStringLiteral("-90")},
                                       {RecordKeys::slotDecode, QStringLiteral("12")}});
        QCOMPARE(brush.line, LineMode::Slot);
        QVERIFY(brush.closed);
        QCOMPARE(brush.direction, Direction::Fixed);
        QCOMPARE(brush.fixedAngle, 30.5);
        QCOMPARE(brush.corner, Corner::Chamfer);
        QCOMPARE(brush.cornerRadius, 254.0);
        QVERIFY(!brush.slotPlated);
        QCOMPARE(brush.slotLength, 2540.0);
        QCOMPARE(brush.slotAngle, -90.0);
        QCOMPARE(brush.slotDecode, QStringLiteral("12"));
    }

    void padSurfaceArc()
    {
        const Brush brush = readBrush({{RecordKeys::padNx, QStringLiteral("5")},
                                       {RecordKeys::padNy, QStringLiteral("50")},
                                       {RecordKeys::padDx, QStringLiteral("-254")},
                                       {RecordKeys::padDy, QStringLiteral("1.27e+06")},
                                       {RecordKeys::padXscl, QStringLiteral("-2.5")},
                                       {RecordKeys::padYscl, QStringLiteral("0.5")},
                                       {RecordKeys::surfaceShape, SurfaceKind::circle},
                                       {RecordKeys::arcAndCircle, ArcOrCircle::circle},
                                       {RecordKeys::arcMode, ArcMode::startEndRadius},
                                       {RecordKeys::circleMode, CircleMode::threePoints},
                                       {RecordKeys::clockWise, ClockWise::no}});
        QCOMPARE(brush.padNx, 5);
        QCOMPARE(brush.padNy, 50);
        QCOMPARE(brush.padDx, -254.0);
        QCOMPARE(brush.padDy, 1.27e6);
        QCOMPARE(brush.padXScale, -2.5);
        QCOMPARE(brush.padYScale, 0.5);
        QCOMPARE(brush.surface, SurfaceShape::Circle);
        QVERIFY(brush.circle);
        QCOMPARE(brush.arcMethod, ArcMethod::StartEndRadius);
        QCOMPARE(brush.circleMethod, CircleMethod::ThreePoints);
        QVERIFY(!brush.clockwise);
    }

    void text()
    {
        const TextSpec text = readBrush({{RecordKeys::textFormat, TextKind::barcode},
                                         {RecordKeys::textContains, QStringLiteral("ABC")},
                                         {RecordKeys::stringTextFont, QStringLiteral("simplex")},
                                         {RecordKeys::stringXSize, QStringLiteral("1000")},
                                         {RecordKeys::stringYSize, QStringLiteral("2000")},
                                         {RecordKeys::stringLineWidth, QStringLiteral("0")},
                                         {RecordKeys::barcodeMode, Symbology::ecc200.toInt()},
                                         {RecordKeys::addString, Added::yes},
                                         {RecordKeys::addBackground, Added::yes},
                                         {RecordKeys::addMarkers, Added::yes},
                                         {RecordKeys::stringPosition, StringPosition::bottom},
                                         {RecordKeys::barcodeHeight, QStringLiteral("1.27e+06")},
                                         {RecordKeys::barcodeMatrix, QStringLiteral("16x16")},
                                         {RecordKeys::orbotechType, PlotStampType::barcode},
                                         {RecordKeys::orbotechFontSize, 4},
                                         {RecordKeys::orbotechZoom, 7},
                                         {RecordKeys::cannedHoleMode, CannedHoleMode::sixBySeven},
                                         {RecordKeys::cannedHoleSize, QStringLiteral("508")}})
                                  .text;
        QCOMPARE(text.format, TextFormat::Barcode);
        QCOMPARE(text.content, QStringLiteral("ABC"));
        QCOMPARE(text.font, QStringLiteral("simplex"));
        QCOMPARE(text.xSize, 1000.0);
        QCOMPARE(text.ySize, 2000.0);
        QCOMPARE(text.lineWidth, 609.6);  // a width of 0 is ignored
        QCOMPARE(text.barcode, BarcodeType::Matrix);
        QVERIFY(text.addString && text.addBackground && text.addMarkers && !text.stringOnTop);
        QCOMPARE(text.barcodeHeight, 1.27e6);
        QCOMPARE(text.matrix, QStringLiteral("16x16"));
        QVERIFY(text.stampBarcode);
        QCOMPARE(text.stampFontSize, 4);
        QCOMPARE(text.stampZoom, 7);
        QCOMPARE(text.cannedColumns, 6);
        QCOMPARE(text.holeSize, 508.0);
        QCOMPARE(read(RecordKeys::textFormat, TextKind::plotStamp).text.format,
                 TextFormat::PlotStamp);
        QCOMPARE(read(RecordKeys::textFormat, TextKind::cannedText).text.format,
                 TextFormat::Canned);
        QCOMPARE(read(RecordKeys::textFormat, QStringLiteral("2")).text.format, TextFormat::String);
    }

    void absurdValuesGiveTheDefaults_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const QString& key, const QVariant& value) {
            QTest::addRow("%s %s", qPrintable(key), qPrintable(value.toString())) << key << value;
        };
        row(RecordKeys::features, 0);
        row(RecordKeys::features, 6);
        row(RecordKeys::features, QStringLiteral("pad"));
        row(RecordKeys::features, QVariantList{1, 2});
        row(RecordKeys::padNx, QStringLiteral("51"));
        row(RecordKeys::padNx, QStringLiteral("2147483648"));
        row(RecordKeys::padNy, QStringLiteral("-1"));
        row(RecordKeys::padNy, QStringLiteral("2.5"));
        row(RecordKeys::padNy, QStringLiteral(""));
        row(RecordKeys::padDx, QStringLiteral("1e300"));
        row(RecordKeys::padDx, QStringLiteral("nan"));
        row(RecordKeys::padDy, qInf());
        row(RecordKeys::padXscl, QStringLiteral("0"));
        row(RecordKeys::padYscl, QStringLiteral("101"));
        row(RecordKeys::cornerRadius, QStringLiteral("-5"));
        row(RecordKeys::slotLength, QStringLiteral("1e9"));
        row(RecordKeys::mirrorRotate, QStringLiteral("inf"));
        row(RecordKeys::angle, QStringLiteral("north"));
        row(RecordKeys::stringXSize, QStringLiteral("0"));
        row(RecordKeys::barcodeHeight, QStringLiteral("-1"));
        row(RecordKeys::cannedHoleSize, QByteArray("\xff\x00", 2));
        row(RecordKeys::arcMode, QStringLiteral("8"));
        row(RecordKeys::symbolText, QStringLiteral("  "));
        row(RecordKeys::barcodeMatrix, QVariant());
    }

    void absurdValuesGiveTheDefaults()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QVERIFY(readBrush({{key, value}}) == Brush());
    }

    void anyValueOfAnyKeyIsTaken()
    {
        const QStringList keys =
            QStringLiteral(
                "Features Attributes Polarity Mirror MirrorRotate SymbolText Line "
                "Closed AngleGroup Angel(deg) CornerType CornerRadius PadNx PadNy "
                "PadDx PadDy PadXscl PadYscl SurfaceShape Arc&Circle ArcMode "
                "CircleMode ClockWise TextFormat TextContains StringXSize")
                .split(QLatin1Char(' '));
        const QVariantList values = {QVariant(),
                                     -1,
                                     0,
                                     3,
                                     QStringLiteral("2"),
                                     QStringLiteral("-0"),
                                     1e308,
                                     qQNaN(),
                                     QString(5000, QLatin1Char('9')),
                                     QVariantMap(),
                                     QPointF(1, 2),
                                     true};
        std::mt19937 random(8);
        for (int round = 0; round < 500; ++round) {
            Record record;
            for (const QString& key : keys) {
                record.insert(key, values.at(static_cast<int>(random() % values.size())));
            }
            const Brush brush = readBrush(record);
            QVERIFY(brush.padNx >= 1 && brush.padNx <= mostPads);
            QVERIFY(std::isfinite(brush.padDx) && std::isfinite(brush.rotation));
            QVERIFY(brush.padXScale != 0 && brush.text.xSize > 0);
            QVERIFY(brush.text.content.size() <= longestText);
        }
    }
};

CTS_TEST(TestBrush);
#include "test_brush.moc"
