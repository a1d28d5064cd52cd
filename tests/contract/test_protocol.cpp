// The texts and numbers of the protocol, each pinned to its name.

#include "ContractList.h"
#include "Main.h"
#include "ToolRows.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"
#include "plugin/RecordKeys.h"
#include "toolbar/ToolTable.h"

namespace {

QStringList codeLines(const QVector<int>& codes, const char* (*nameOf)(int))
{
    QStringList lines;
    for (const int code : codes) {
        lines.append(QStringLiteral("%1 %2").arg(code).arg(QLatin1String(nameOf(code))));
    }
    lines.sort();
    return lines;
}

/// What is listed below `heading`, and what the tools send.
QStringList listedMessages(const QString& heading)
{
    QStringList lines;
    bool inside = false;
    for (const QString& line : linesOf("messages.txt")) {
        if (!line.startsWith(' ')) {
            inside = line == heading;
        } else if (inside) {
            lines.append(line.simplified());
        }
    }
    for (const ToolRow& tool : toolRows()) {
        for (const auto& [code, name] :
             {std::pair(tool.code, tool.codeName), std::pair(tool.offCode, tool.offCodeName)}) {
            if (heading == "Sent" && !name.isEmpty()) {
                lines.append(QStringLiteral("%1 %2").arg(code).arg(name));
            }
        }
    }
    lines.sort();
    return lines;
}

struct Pin {
    const char* name;
    QString text;
    const char* expected;
};
#define PIN(name, expected)   \
    Pin                       \
    {                         \
#name, name, expected \
    }

// clang-format off
const Pin recordKeys[] = {
    PIN(RecordKeys::features, "Features"),
    PIN(RecordKeys::attributes, "Attributes"),
    PIN(RecordKeys::polarity, "Polarity"),
    PIN(RecordKeys::mirror, "Mirror"),
    PIN(RecordKeys::mirrorRotate, "MirrorRotate"),
    PIN(RecordKeys::symbolText, "SymbolText"),
    PIN(RecordKeys::line, "Line"),
    PIN(RecordKeys::closed, "Closed"),
    PIN(RecordKeys::angleGroup, "AngleGroup"),
    PIN(RecordKeys::angle, "Angel(deg)"),
    PIN(RecordKeys::cornerType, "CornerType"),
    PIN(RecordKeys::cornerRadius, "CornerRadius"),
    PIN(RecordKeys::slotPlated, "SlotPlated"),
    PIN(RecordKeys::slotLength, "SlotLength"),
    PIN(RecordKeys::slotAngle, "SlotAngle"),
    PIN(RecordKeys::slotDecode, "SlotDecode"),
    PIN(RecordKeys::padNx, "PadNx"),
    PIN(RecordKeys::padNy, "PadNy"),
    PIN(RecordKeys::padDx, "PadDx"),
    PIN(RecordKeys::padDy, "PadDy"),
    PIN(RecordKeys::padXscl, "PadXscl"),
    PIN(RecordKeys::padYscl, "PadYscl"),
    PIN(RecordKeys::surfaceShape, "SurfaceShape"),
    PIN(RecordKeys::arcAndCircle, "Arc&Circle"),
    PIN(RecordKeys::arcMode, "ArcMode"),
    PIN(RecordKeys::circleMode, "CircleMode"),
    PIN(RecordKeys::clockWise, "ClockWise"),
    PIN(RecordKeys::textFormat, "TextFormat"),
    PIN(RecordKeys::stringTextFont, "StringTextFont"),
    PIN(RecordKeys::textContains, "TextContains"),
    PIN(RecordKeys::stringXSize, "StringXSize"),
    PIN(RecordKeys::stringYSize, "StringYSize"),
    PIN(RecordKeys::stringLineWidth, "StringLineWidth"),
    PIN(RecordKeys::barcodeMode, "BarcodeMode"),
    PIN(RecordKeys::addString, "AddString"),
    PIN(RecordKeys::addBackground, "AddBackground"),
    PIN(RecordKeys::addMarkers, "AddMarkers"),
    PIN(RecordKeys::stringPosition, "StringPosition"),
    PIN(RecordKeys::barcodeHeight, "BarcodeHeight"),
    PIN(RecordKeys::barcodeMatrix, "BarcodeMatrix"),
    PIN(RecordKeys::orbotechType, "OrbotechType"),
    PIN(RecordKeys::orbotechFontSize, "OrbotechFontSize"),
    PIN(RecordKeys::orbotechZoom, "OrbotechZoom"),
    PIN(RecordKeys::cannedHoleMode, "CannedHoleMode"),
    PIN(RecordKeys::cannedHoleSize, "CannedHoleSize"),
};

const Pin otherTexts[] = {
    PIN(PayloadKeys::jobName, "JobName"),
    PIN(PayloadKeys::step, "Step"),
    PIN(PayloadKeys::stepName, "StepName"),
    PIN(ModuleNames::toolStrip, "Canvas_Tool_Strip.dll"),
    PIN(ModuleNames::viewer, "Canvas_Viewer.dll"),
    PIN(ModuleNames::jobTree, "Canvas_JobTree.dll"),
    PIN(ModuleNames::ruleMenu, "Canvas_RuleMenu.dll"),
    PIN(ModuleNames::bareToolStrip, "Canvas_Tool_Strip"),
    PIN(moduleVersion, "2.28.054"),
};

const Pin values[] = {
    PIN(RecordValues::zero, "0"),
    PIN(RecordValues::one, "1"),
    PIN(RecordValues::two, "2"),
    PIN(RecordValues::three, "3"),
    PIN(RecordValues::four, "4"),
    PIN(RecordValues::five, "5"),
    PIN(RecordValues::six, "6"),
    PIN(RecordValues::seven, "7"),
    PIN(RecordValues::degrees90, "90"),
    PIN(RecordValues::degrees180, "180"),
    PIN(RecordValues::degrees270, "270"),
    PIN(FeatureKind::line, "1"),
    PIN(FeatureKind::pad, "2"),
    PIN(FeatureKind::surface, "3"),
    PIN(FeatureKind::arc, "4"),
    PIN(FeatureKind::text, "5"),
    PIN(HasAttributes::yes, "1"),
    PIN(HasAttributes::no, "0"),
    PIN(Polarity::positive, "1"),
    PIN(Polarity::negative, "0"),
    PIN(Mirror::yes, "1"),
    PIN(Mirror::no, "2"),
    PIN(LineKind::single, "1"),
    PIN(LineKind::polyline, "2"),
    PIN(LineKind::rectangle, "3"),
    PIN(LineKind::slot, "4"),
    PIN(Closed::yes, "1"),
    PIN(Closed::no, "0"),
    PIN(LineDirection::free, "1"),
    PIN(LineDirection::vertical, "2"),
    PIN(LineDirection::horizontal, "3"),
    PIN(LineDirection::verticalThenHorizontal, "4"),
    PIN(LineDirection::eightDirections, "5"),
    PIN(LineDirection::fixed, "6"),
    PIN(CornerType::straight, "1"),
    PIN(CornerType::round, "2"),
    PIN(CornerType::chamfer, "3"),
    PIN(CornerType::oblong, "4"),
    PIN(SlotPlated::yes, "1"),
    PIN(SlotPlated::no, "2"),
    PIN(SurfaceKind::rectangle, "1"),
    PIN(SurfaceKind::polygon, "2"),
    PIN(SurfaceKind::circle, "3"),
    PIN(ArcOrCircle::arc, "1"),
    PIN(ArcOrCircle::circle, "2"),
    PIN(ArcMode::startCenterEnd, "1"),
    PIN(ArcMode::startEndEdge, "2"),
    PIN(ArcMode::startEndCenter, "3"),
    PIN(ArcMode::startCenterAngle, "4"),
    PIN(ArcMode::startCenterLength, "5"),
    PIN(ArcMode::startEndAngle, "6"),
    PIN(ArcMode::startEndRadius, "7"),
    PIN(CircleMode::centerRadius, "1"),
    PIN(CircleMode::centerPoint, "2"),
    PIN(CircleMode::pointCenter, "3"),
    PIN(CircleMode::threePoints, "4"),
    PIN(ClockWise::yes, "1"),
    PIN(ClockWise::no, "2"),
    PIN(TextKind::string, "1"),
    PIN(TextKind::barcode, "BarcodeMode"),
    PIN(TextKind::plotStamp, "3"),
    PIN(TextKind::cannedText, "4"),
    PIN(Symbology::upc39, "1"),
    PIN(Symbology::upc39Ascii, "2"),
    PIN(Symbology::code128B, "3"),
    PIN(Symbology::code128C, "4"),
    PIN(Symbology::ecc200, "5"),
    PIN(Added::yes, "1"),
    PIN(Added::no, "2"),
    PIN(StringPosition::top, "2"),
    PIN(StringPosition::bottom, "1"),
    PIN(PlotStampType::string, "1"),
    PIN(PlotStampType::barcode, "2"),
    PIN(CannedHoleMode::fiveBySeven, "1"),
    PIN(CannedHoleMode::sixBySeven, "2"),
};
// clang-format on

template <class Pins>
void addRows(const Pins& pins)
{
    for (const Pin& pin : pins) {
        QTest::newRow(pin.name) << pin.text << QString::fromLatin1(pin.expected);
    }
}

}  // namespace

class TestProtocol : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void codes()
    {
        using namespace MessageCodes;
        QCOMPARE(codeLines(Sent::all(), Sent::nameOf), listedMessages("Sent"));
        QCOMPARE(codeLines(Accepted::all(), Accepted::nameOf), listedMessages("Accepted"));
    }

    void unknownCodesHaveNoName()
    {
        QCOMPARE(MessageCodes::Sent::nameOf(0), nullptr);
        QCOMPARE(MessageCodes::Accepted::nameOf(MessageCodes::Sent::Record), nullptr);
    }

    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        addRows(recordKeys);
        addRows(otherTexts);
        addRows(values);
    }

    void texts()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(text, expected);
        // A literal would vanish with its library, while a receiver keeps it.
        QVERIFY(!text.data_ptr()->ref.isStatic());
    }

    void everyKeyOfTheRecordHasItsName()
    {
        QStringList named;
        for (const Pin& pin : recordKeys) {
            named.append(pin.text);
        }
        named.sort();
        QStringList listed;
        for (const QString& line : linesOf("record.txt")) {
            listed.append(line.section(' ', 0, 0));
        }
        QCOMPARE(named, listed);
        QCOMPARE(named.size(), 45);
    }

    void tools() { QCOMPARE(ToolTable::toolCount, toolRows().size()); }
};

CTS_TEST(TestProtocol);
#include "test_protocol.moc"
