#include "Entries.h"

#include "FocusFixture.h"

#include <QComboBox>

namespace {

const char line[] = "m_pLineTB";
const char pad[] = "m_pPadTB";
const char surface[] = "m_pSurfaceTB";
const char arc[] = "m_pArcTB";
const char text[] = "m_pTextTB";

const QStringList rectangle = {"m_pLineCMB=2", "m_pCornerTypeCMB=1"};
const QStringList slot = {"m_pLineCMB=3"};
const QStringList barcode = {"m_pTextFormatCMB=1", "m_pUPCCMB=4"};
const QStringList stamp = {"m_pTextFormatCMB=2"};
const QStringList canned = {"m_pTextFormatCMB=3"};

const QString lengthBox = "Information|The current text box can only enter a value from 0 to";
const QString pitchBox = "Information|The current value out of range:";
const QString numberBox = "Information|The value must lie between ";
const QString symbolBox = "Illegal Input|Unable to create special symbol!";

QVector<Entry> typedEntries()
{
    return {
        {"m_pSymbolTextLE", line, {}, "r10", "SymbolText", "r10"},
        {"m_pSymbolTextLE", pad, {}, "s20", "SymbolText", "s20"},
        {"m_pSymbolTextLE", arc, {}, "r30", "SymbolText", "r30"},
        {"m_pAngleValueSB", pad, {}, "45", "MirrorRotate", "45"},
        {"m_pAngleValueSB", text, {}, "30", "MirrorRotate", "30"},
        {"m_pAngleLE", line, {"m_pFixedAngleRB"}, "45", "Angel(deg)", "45"},
        {"m_pCornerRadiusLE", line, rectangle, "10", "CornerRadius", "254"},
        {"m_pLengthLE", line, slot, "10", "SlotLength", "254"},
        {"m_pSlotAngleLE", line, slot, "30", "SlotAngle", "30"},
        {"m_pSlotDecodeLE", line, slot, "7", "SlotDecode", "7"},
        {"m_pDrilNxLE", pad, {}, "5", "PadNx", "5"},
        {"m_pDrilNyLE", pad, {}, "6", "PadNy", "6"},
        {"m_pDrilDxLE", pad, {}, "10", "PadDx", "254"},
        {"m_pDrilDyLE", pad, {}, "20", "PadDy", "508"},
        {"m_pDrilXsclLE", pad, {}, "2", "PadXscl", "2"},
        {"m_pDrilYsclLE", pad, {}, "3", "PadYscl", "3"},
        {"m_pTextLE", text, {}, "abc", "TextContains", "abc"},
        {"m_pXSizeLE", text, {}, "100", "StringXSize", "2540"},
        {"m_pYSizeLE", text, {}, "50", "StringYSize", "1270"},
        {"m_pLineWidthLE", text, {}, "10", "StringLineWidth", "254"},
        {"m_pHeightLE", text, barcode, "10", "BarcodeHeight", "254"},
        {"m_pMatrixLE", text, barcode, "12", "BarcodeMatrix", "12"},
        {"m_pCannedHoleSizeLE", text, canned, "10", "CannedHoleSize", "254"},
    };
}

QVector<Entry> refusedEntries()
{
    // Each is a whole number of micrometres, which every validator takes.
    return {
        {"m_pSymbolTextLE", pad, {}, "r10_4x", "SymbolText", "", symbolBox},
        {"m_pAngleLE", line, {"m_pFixedAngleRB"}, "400", "Angel(deg)", "", numberBox},
        {"m_pCornerRadiusLE", line, rectangle, "50005", "CornerRadius", "0", lengthBox},
        {"m_pLengthLE", line, slot, "50005", "SlotLength", "0", lengthBox},
        {"m_pDrilNxLE", pad, {}, "51", "PadNx", "5", numberBox},
        {"m_pDrilNyLE", pad, {}, "51", "PadNy", "5", numberBox},
        {"m_pDrilDxLE", pad, {}, "100005", "PadDx", "0", pitchBox},
        {"m_pDrilDyLE", pad, {}, "-100005", "PadDy", "0", pitchBox},
        {"m_pDrilXsclLE", pad, {}, "101", "PadXscl", "10", numberBox},
        {"m_pDrilYsclLE", pad, {}, "-101", "PadYscl", "-10", numberBox},
        {"m_pXSizeLE", text, {}, "10005", "StringXSize", "0", lengthBox},
        {"m_pYSizeLE", text, {}, "10005", "StringYSize", "0", lengthBox},
        {"m_pLineWidthLE", text, {}, "10005", "StringLineWidth", "0", lengthBox},
        {"m_pHeightLE", text, barcode, "50005", "BarcodeHeight", "0", lengthBox},
        {"m_pCannedHoleSizeLE", text, canned, "50005", "CannedHoleSize", "0", lengthBox},
    };
}

QVector<Entry> chosenEntries()
{
    return {
        {"m_pPolarityCMB", line, {}, "<Down>", "Polarity", "0"},
        {"m_pMirrorCMB", pad, {}, "<Up>", "Mirror", "1"},
        {"m_pLineCMB", line, {}, "<Down>", "Line", "2"},
        {"m_pCornerTypeCMB", line, {"m_pLineCMB=2"}, "<Down>", "CornerType", "2"},
        {"m_pSlotPlatedCMB", line, slot, "<Down>", "SlotPlated", "2"},
        {"m_pSurfShapeCMB", surface, {}, "<Down>", "SurfaceShape", "2"},
        {"m_pArcAndCircleCMB", arc, {}, "<Down>", "Arc&Circle", "2"},
        {"m_pArcCMB", arc, {}, "<Down>", "ArcMode", "2"},
        {"m_pCircleCMB", arc, {"m_pArcAndCircleCMB=1"}, "<Down>", "CircleMode", "2"},
        {"m_pTextFormatCMB", text, {}, "<Item>", "TextFormat", "BarcodeMode"},
        {"m_pUPCCMB", text, {"m_pTextFormatCMB=1"}, "<Down>", "BarcodeMode", "2"},
        {"m_pPositionCMB", text, barcode + QStringList{"m_pAddStringCB"}, "<Down>",
         "StringPosition", "1"},
        {"m_pOrbotechTypeCMB", text, stamp, "<Down>", "OrbotechType", "2"},
        {"m_pOrbotechFontSizeCMB", text, stamp, "<Down>", "OrbotechFontSize", "2"},
        {"m_pOrbotechZoomCMB", text, stamp, "<Down>", "OrbotechZoom", "2"},
        {"m_pCannedHoleSizeCMB", text, canned, "<Down>", "CannedHoleMode", "2"},
        {"m_pAttributesCB", line, {}, "<Space>", "Attributes", "1"},
        {"m_pClosedCB", line, {"m_pLineCMB=1"}, "<Space>", "Closed", "1"},
        {"m_pClockWiseCB", arc, {}, "<Space>", "ClockWise", "2"},
        {"m_pAddStringCB", text, barcode, "<Space>", "AddString", "1"},
        {"m_pBackgroundCB", text, barcode, "<Space>", "AddBackground", "2"},
        {"m_pAddMarkersCB", text, barcode, "<Space>", "AddMarkers", "1"},
        {"m_pFreeDirectionRB", line, {}, "<Space>", "AngleGroup", "1"},
        {"m_pVerticalRB", line, {}, "<Space>", "AngleGroup", "2"},
        {"m_pHorizontalRB", line, {}, "<Space>", "AngleGroup", "3"},
        {"m_pVerticalHorizontalRB", line, {}, "<Space>", "AngleGroup", "4"},
        {"m_pEightDirectionsRB", line, {}, "<Space>", "AngleGroup", "5"},
        {"m_pFixedAngleRB", line, {}, "<Space>", "AngleGroup", "6"},
    };
}

}  // namespace

void Entry::reachField(const FocusFixture& fixture) const
{
    fixture.click(type);
    for (const QString& step : reach) {
        if (step.contains('=')) {
            fixture.choose(step.section('=', 0, 0), step.section('=', 1).toInt());
        } else {
            fixture.click(step);
        }
    }
}

void Entry::enter(const FocusFixture& fixture) const
{
    if (isTyped()) {
        fixture.type(field, typed);
        return;
    }
    fixture.focus(field);
    if (typed == "<Item>") {
        fixture.choose(field, 1);
    } else {
        fixture.key(typed == "<Space>" ? Qt::Key_Space
                                       : (typed == "<Up>" ? Qt::Key_Up : Qt::Key_Down));
    }
}

const QVector<Entry>& allEntries()
{
    static const QVector<Entry> all = typedEntries() + refusedEntries() + chosenEntries();
    return all;
}
