#include "Entries.h"

#include "FocusFixture.h"
#include "plugin/RecordKeys.h"

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
        {"m_pSymbolTextLE", line, {}, "r10", RecordKeys::symbolText, "r10"},
        {"m_pSymbolTextLE", pad, {}, "s20", RecordKeys::symbolText, "s20"},
        {"m_pSymbolTextLE", arc, {}, "r30", RecordKeys::symbolText, "r30"},
        {"m_pAngleValueSB", pad, {}, "45", RecordKeys::mirrorRotate, "45"},
        {"m_pAngleValueSB", text, {}, "30", RecordKeys::mirrorRotate, "30"},
        {"m_pAngleLE", line, {"m_pFixedAngleRB"}, "45", RecordKeys::angle, "45"},
        {"m_pCornerRadiusLE", line, rectangle, "10", RecordKeys::cornerRadius, "254"},
        {"m_pLengthLE", line, slot, "10", RecordKeys::slotLength, "254"},
        {"m_pSlotAngleLE", line, slot, "30", RecordKeys::slotAngle, "30"},
        {"m_pSlotDecodeLE", line, slot, "7", RecordKeys::slotDecode, "7"},
        {"m_pDrilNxLE", pad, {}, "5", RecordKeys::padNx, "5"},
        {"m_pDrilNyLE", pad, {}, "6", RecordKeys::padNy, "6"},
        {"m_pDrilDxLE", pad, {}, "10", RecordKeys::padDx, "254"},
        {"m_pDrilDyLE", pad, {}, "20", RecordKeys::padDy, "508"},
        {"m_pDrilXsclLE", pad, {}, "2", RecordKeys::padXscl, "2"},
        {"m_pDrilYsclLE", pad, {}, "3", RecordKeys::padYscl, "3"},
        {"m_pTextLE", text, {}, "abc", RecordKeys::textContains, "abc"},
        {"m_pXSizeLE", text, {}, "100", RecordKeys::stringXSize, "2540"},
        {"m_pYSizeLE", text, {}, "50", RecordKeys::stringYSize, "1270"},
        {"m_pLineWidthLE", text, {}, "10", RecordKeys::stringLineWidth, "254"},
        {"m_pHeightLE", text, barcode, "10", RecordKeys::barcodeHeight, "254"},
        {"m_pMatrixLE", text, barcode, "12", RecordKeys::barcodeMatrix, "12"},
        {"m_pCannedHoleSizeLE", text, canned, "10", RecordKeys::cannedHoleSize, "254"},
    };
}

QVector<Entry> refusedEntries()
{
    // Each is a whole number of micrometres, which every validator takes.
    return {
        {"m_pSymbolTextLE", pad, {}, "r10_4x", RecordKeys::symbolText, "", symbolBox},
        {"m_pAngleLE", line, {"m_pFixedAngleRB"}, "400", RecordKeys::angle, "", numberBox},
        {"m_pCornerRadiusLE", line, rectangle, "50005", RecordKeys::cornerRadius, "0", lengthBox},
        {"m_pLengthLE", line, slot, "50005", RecordKeys::slotLength, "0", lengthBox},
        {"m_pDrilNxLE", pad, {}, "51", RecordKeys::padNx, "5", numberBox},
        {"m_pDrilNyLE", pad, {}, "51", RecordKeys::padNy, "5", numberBox},
        {"m_pDrilDxLE", pad, {}, "100005", RecordKeys::padDx, "0", pitchBox},
        {"m_pDrilDyLE", pad, {}, "-100005", RecordKeys::padDy, "0", pitchBox},
        {"m_pDrilXsclLE", pad, {}, "101", RecordKeys::padXscl, "10", numberBox},
        {"m_pDrilYsclLE", pad, {}, "-101", RecordKeys::padYscl, "-10", numberBox},
        {"m_pXSizeLE", text, {}, "10005", RecordKeys::stringXSize, "0", lengthBox},
        {"m_pYSizeLE", text, {}, "10005", RecordKeys::stringYSize, "0", lengthBox},
        {"m_pLineWidthLE", text, {}, "10005", RecordKeys::stringLineWidth, "0", lengthBox},
        {"m_pHeightLE", text, barcode, "50005", RecordKeys::barcodeHeight, "0", lengthBox},
        {"m_pCannedHoleSizeLE", text, canned, "50005", RecordKeys::cannedHoleSize, "0", lengthBox},
    };
}

QVector<Entry> chosenEntries()
{
    return {
        {"m_pPolarityCMB", line, {}, "<Down>", "Polarity", "0"},
        {"m_pMirrorCMB", pad, {}, "<Up>", "Mirror", "1"},
        {"m_pLineCMB", line, {}, "<Down>", "Line", "2"},
        {"m_pCornerTypeCMB", line, {"m_pLineCMB=2"}, "<Down>", RecordKeys::cornerType, "2"},
        {"m_pSlotPlatedCMB", line, slot, "<Down>", RecordKeys::slotPlated, "2"},
        {"m_pSurfShapeCMB", surface, {}, "<Down>", RecordKeys::surfaceShape, "2"},
        {"m_pArcAndCircleCMB", arc, {}, "<Down>", RecordKeys::arcAndCircle, "2"},
        {"m_pArcCMB", arc, {}, "<Down>", RecordKeys::arcMode, "2"},
        {"m_pCircleCMB", arc, {"m_pArcAndCircleCMB=1"}, "<Down>", RecordKeys::circleMode, "2"},
        {"m_pTextFormatCMB", text, {}, "<Item>", RecordKeys::textFormat, RecordKeys::barcodeMode},
        {"m_pUPCCMB", text, {"m_pTextFormatCMB=1"}, "<Down>", RecordKeys::barcodeMode, "2"},
        {"m_pPositionCMB", text, barcode + QStringList{"m_pAddStringCB"}, "<Down>",
         RecordKeys::stringPosition, "1"},
        {"m_pOrbotechTypeCMB", text, stamp, "<Down>", RecordKeys::orbotechType, "2"},
        {"m_pOrbotechFontSizeCMB", text, stamp, "<Down>", RecordKeys::orbotechFontSize, "2"},
        {"m_pOrbotechZoomCMB", text, stamp, "<Down>", RecordKeys::orbotechZoom, "2"},
        {"m_pCannedHoleSizeCMB", text, canned, "<Down>", RecordKeys::cannedHoleMode, "2"},
        {"m_pAttributesCB", line, {}, "<Space>", "Attributes", "1"},
        {"m_pClosedCB", line, {"m_pLineCMB=1"}, "<Space>", "Closed", "1"},
        {"m_pClockWiseCB", arc, {}, "<Space>", "ClockWise", "2"},
        {"m_pAddStringCB", text, barcode, "<Space>", RecordKeys::addString, "1"},
        {"m_pBackgroundCB", text, barcode, "<Space>", RecordKeys::addBackground, "2"},
        {"m_pAddMarkersCB", text, barcode, "<Space>", RecordKeys::addMarkers, "1"},
        {"m_pFreeDirectionRB", line, {}, "<Space>", RecordKeys::angleGroup, "1"},
        {"m_pVerticalRB", line, {}, "<Space>", RecordKeys::angleGroup, "2"},
        {"m_pHorizontalRB", line, {}, "<Space>", RecordKeys::angleGroup, "3"},
        {"m_pVerticalHorizontalRB", line, {}, "<Space>", RecordKeys::angleGroup, "4"},
        {"m_pEightDirectionsRB", line, {}, "<Space>", RecordKeys::angleGroup, "5"},
        {"m_pFixedAngleRB", line, {}, "<Space>", RecordKeys::angleGroup, "6"},
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
