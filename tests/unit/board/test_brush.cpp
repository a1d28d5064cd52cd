#include "Main.h"
#include "board/Brush.h"

#include <random>

using namespace Pcb;
using Record = QMap<QString, QVariant>;

namespace {

Brush read(const char* key, const QVariant& value)
{
    return readBrush({{QLatin1String(key), value}});
}

}  // namespace

class BrushTest : public QObject {
    Q_OBJECT

private slots:
    void nothingGivesTheDefaults() { QVERIFY(readBrush({}) == Brush()); }

    void frame()
    {
        const Brush brush =
            readBrush({{QStringLiteral("Features"), 2},
                       {QStringLiteral("Polarity"), QStringLiteral("0")},
                       {QStringLiteral("Mirror"), QStringLiteral("1")},
                       {QStringLiteral("MirrorRotate"), QStringLiteral("405")},
                       {QStringLiteral("SymbolText"), QStringLiteral("rect20x40_45")}});
        QCOMPARE(brush.kind, Kind::Pad);
        QVERIFY(!brush.positive);
        QVERIFY(brush.mirror);
        QCOMPARE(brush.rotation, 45.0);
        QCOMPARE(brush.symbol, QStringLiteral("rect20x40"));
        QCOMPARE(read("Features", QStringLiteral("5")).kind, Kind::Text);
        QVERIFY(!read("Mirror", QStringLiteral("2")).mirror);
    }

    void attributesCountWhereTheRecordSaysSo()
    {
        const Attributes attributes = {{QStringLiteral(".net"), QStringLiteral("A")}};
        QVERIFY(readBrush({}, attributes).attributes.isEmpty());
        QCOMPARE(
            readBrush({{QStringLiteral("Attributes"), QStringLiteral("1")}}, attributes).attributes,
            attributes);
    }

    void line()
    {
        const Brush brush = readBrush({{QStringLiteral("Line"), QStringLiteral("4")},
                                       {QStringLiteral("Closed"), QStringLiteral("1")},
                                       {QStringLiteral("AngleGroup"), 6},
                                       {QStringLiteral("Angel(deg)"), QStringLiteral("30.5")},
                                       {QStringLiteral("CornerType"), 3},
                                       {QStringLiteral("CornerRadius"), QStringLiteral("254")},
                                       {QStringLiteral("SlotPlated"), QStringLiteral("2")},
                                       {QStringLiteral("SlotLength"), QStringLiteral("2.54")},
                                       {QStringLiteral("SlotAngle"), QStringLiteral("-90")},
                                       {QStringLiteral("SlotDecode"), QStringLiteral("12")}});
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
        const Brush brush = readBrush({{QStringLiteral("PadNx"), QStringLiteral("5")},
                                       {QStringLiteral("PadNy"), QStringLiteral("50")},
                                       {QStringLiteral("PadDx"), QStringLiteral("-254")},
                                       {QStringLiteral("PadDy"), QStringLiteral("1.27e+06")},
                                       {QStringLiteral("PadXscl"), QStringLiteral("-2.5")},
                                       {QStringLiteral("PadYscl"), QStringLiteral("0.5")},
                                       {QStringLiteral("SurfaceShape"), QStringLiteral("3")},
                                       {QStringLiteral("Arc&Circle"), QStringLiteral("2")},
                                       {QStringLiteral("ArcMode"), QStringLiteral("7")},
                                       {QStringLiteral("CircleMode"), QStringLiteral("4")},
                                       {QStringLiteral("ClockWise"), QStringLiteral("2")}});
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
        const TextSpec text =
            readBrush({{QStringLiteral("TextFormat"), QStringLiteral("BarcodeMode")},
                       {QStringLiteral("TextContains"), QStringLiteral("ABC")},
                       {QStringLiteral("StringTextFont"), QStringLiteral("simplex")},
                       {QStringLiteral("StringXSize"), QStringLiteral("1000")},
                       {QStringLiteral("StringYSize"), QStringLiteral("2000")},
                       {QStringLiteral("StringLineWidth"), QStringLiteral("0")},
                       {QStringLiteral("BarcodeMode"), 5},
                       {QStringLiteral("AddString"), QStringLiteral("1")},
                       {QStringLiteral("AddBackground"), QStringLiteral("1")},
                       {QStringLiteral("AddMarkers"), QStringLiteral("1")},
                       {QStringLiteral("StringPosition"), QStringLiteral("1")},
                       {QStringLiteral("BarcodeHeight"), QStringLiteral("1.27e+06")},
                       {QStringLiteral("BarcodeMatrix"), QStringLiteral("16x16")},
                       {QStringLiteral("OrbotechType"), QStringLiteral("2")},
                       {QStringLiteral("OrbotechFontSize"), 4},
                       {QStringLiteral("OrbotechZoom"), 7},
                       {QStringLiteral("CannedHoleMode"), QStringLiteral("2")},
                       {QStringLiteral("CannedHoleSize"), QStringLiteral("508")}})
                .text;
        QCOMPARE(text.format, TextFormat::Barcode);
        QCOMPARE(text.content, QStringLiteral("ABC"));
        QCOMPARE(text.font, QStringLiteral("simplex"));
        QCOMPARE(text.xSize, 1000.0);
        QCOMPARE(text.ySize, 2000.0);
        QCOMPARE(text.lineWidth, 609.6);  // a width of nothing is none
        QCOMPARE(text.barcode, BarcodeType::Matrix);
        QVERIFY(text.addString && text.addBackground && text.addMarkers && !text.stringOnTop);
        QCOMPARE(text.barcodeHeight, 1.27e6);
        QCOMPARE(text.matrix, QStringLiteral("16x16"));
        QVERIFY(text.stampBarcode);
        QCOMPARE(text.stampFontSize, 4);
        QCOMPARE(text.stampZoom, 7);
        QCOMPARE(text.cannedColumns, 6);
        QCOMPARE(text.holeSize, 508.0);
        QCOMPARE(read("TextFormat", QStringLiteral("3")).text.format, TextFormat::PlotStamp);
        QCOMPARE(read("TextFormat", QStringLiteral("4")).text.format, TextFormat::Canned);
        QCOMPARE(read("TextFormat", QStringLiteral("2")).text.format, TextFormat::String);
    }

    void absurdValuesGiveTheDefaults_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char* key, const QVariant& value) {
            QTest::addRow("%s %s", key, qPrintable(value.toString()))
                << QString::fromLatin1(key) << value;
        };
        row("Features", 0);
        row("Features", 6);
        row("Features", QStringLiteral("pad"));
        row("Features", QVariantList{1, 2});
        row("PadNx", QStringLiteral("51"));
        row("PadNx", QStringLiteral("2147483648"));
        row("PadNy", QStringLiteral("-1"));
        row("PadNy", QStringLiteral("2.5"));
        row("PadNy", QStringLiteral(""));
        row("PadDx", QStringLiteral("1e300"));
        row("PadDx", QStringLiteral("nan"));
        row("PadDy", qInf());
        row("PadXscl", QStringLiteral("0"));
        row("PadYscl", QStringLiteral("101"));
        row("CornerRadius", QStringLiteral("-5"));
        row("SlotLength", QStringLiteral("1e9"));
        row("MirrorRotate", QStringLiteral("inf"));
        row("Angel(deg)", QStringLiteral("north"));
        row("StringXSize", QStringLiteral("0"));
        row("BarcodeHeight", QStringLiteral("-1"));
        row("CannedHoleSize", QByteArray("\xff\x00", 2));
        row("ArcMode", QStringLiteral("8"));
        row("SymbolText", QStringLiteral("  "));
        row("BarcodeMatrix", QVariant());
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

CTS_MAIN(BrushTest)
#include "test_brush.moc"
