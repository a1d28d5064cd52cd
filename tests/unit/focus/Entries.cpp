#include "Entries.h"

#include "PageSteps.h"
#include "plugin/RecordKeys.h"

using namespace PageSteps;

namespace {

Entry onLine(const QString& field)
{
    return {field, "m_pLineTB"};
}

Entry onPad(const QString& field)
{
    return {field, "m_pPadTB"};
}

Entry onSurface(const QString& field)
{
    return {field, "m_pSurfaceTB"};
}

Entry onArc(const QString& field)
{
    return {field, "m_pArcTB"};
}

Entry onText(const QString& field)
{
    return {field, "m_pTextTB"};
}

QVector<Entry> typedEntries()
{
    return {
        onLine("m_pSymbolTextLE").typed("r10").stores(RecordKeys::symbolText, "r10"),
        onPad("m_pSymbolTextLE").typed("s20").stores(RecordKeys::symbolText, "s20"),
        onArc("m_pSymbolTextLE").typed("r30").stores(RecordKeys::symbolText, "r30"),
        onPad("m_pAngleValueSB").typed("45").stores(RecordKeys::mirrorRotate, "45"),
        onText("m_pAngleValueSB").typed("30").stores(RecordKeys::mirrorRotate, "30"),
        onLine("m_pAngleLE").reachedBy(fixedAngle).typed("45").stores(RecordKeys::angle, "45"),
        onLine("m_pCornerRadiusLE")
            .reachedBy(roundCorner)
            .typed("10")
            .stores(RecordKeys::cornerRadius, "254"),
        onLine("m_pLengthLE").reachedBy(slot).typed("10").stores(RecordKeys::slotLength, "254"),
        onLine("m_pSlotAngleLE").reachedBy(slot).typed("30").stores(RecordKeys::slotAngle, "30"),
        onLine("m_pSlotDecodeLE").reachedBy(slot).typed("7").stores(RecordKeys::slotDecode, "7"),
        onPad("m_pDrilNxLE").typed("5").stores(RecordKeys::padNx, "5"),
        onPad("m_pDrilNyLE").typed("6").stores(RecordKeys::padNy, "6"),
        onPad("m_pDrilDxLE").typed("10").stores(RecordKeys::padDx, "254"),
        onPad("m_pDrilDyLE").typed("20").stores(RecordKeys::padDy, "508"),
        onPad("m_pDrilXsclLE").typed("2").stores(RecordKeys::padXscl, "2"),
        onPad("m_pDrilYsclLE").typed("3").stores(RecordKeys::padYscl, "3"),
        onText("m_pTextLE").typed("abc").stores(RecordKeys::textContains, "abc"),
        onText("m_pXSizeLE").typed("100").stores(RecordKeys::stringXSize, "2540"),
        onText("m_pYSizeLE").typed("50").stores(RecordKeys::stringYSize, "1270"),
        onText("m_pLineWidthLE").typed("10").stores(RecordKeys::stringLineWidth, "254"),
        onText("m_pHeightLE")
            .reachedBy(matrixCode)
            .typed("10")
            .stores(RecordKeys::barcodeHeight, "254"),
        onText("m_pMatrixLE")
            .reachedBy(matrixCode)
            .typed("12")
            .stores(RecordKeys::barcodeMatrix, "12"),
        onText("m_pCannedHoleSizeLE")
            .reachedBy(cannedText)
            .typed("10")
            .stores(RecordKeys::cannedHoleSize, "254"),
    };
}

QVector<Entry> refusedEntries()
{
    // Each is a whole number of micrometres, which every validator takes.
    return {
        onPad("m_pSymbolTextLE")
            .typed("r10_4x")
            .stores(RecordKeys::symbolText, "")
            .refusedBy(BoxTexts::symbol()),
        onLine("m_pAngleLE")
            .reachedBy(fixedAngle)
            .typed("400")
            .stores(RecordKeys::angle, "")
            .refusedBy(BoxTexts::anyNumber()),
        onLine("m_pCornerRadiusLE")
            .reachedBy(roundCorner)
            .typed("50005")
            .stores(RecordKeys::cornerRadius, "0")
            .refusedBy(BoxTexts::anyLength()),
        onLine("m_pLengthLE")
            .reachedBy(slot)
            .typed("50005")
            .stores(RecordKeys::slotLength, "0")
            .refusedBy(BoxTexts::anyLength()),
        onPad("m_pDrilNxLE")
            .typed("51")
            .stores(RecordKeys::padNx, "5")
            .refusedBy(BoxTexts::anyNumber()),
        onPad("m_pDrilNyLE")
            .typed("51")
            .stores(RecordKeys::padNy, "5")
            .refusedBy(BoxTexts::anyNumber()),
        onPad("m_pDrilDxLE")
            .typed("100005")
            .stores(RecordKeys::padDx, "0")
            .refusedBy(BoxTexts::anyCoordinate()),
        onPad("m_pDrilDyLE")
            .typed("-100005")
            .stores(RecordKeys::padDy, "0")
            .refusedBy(BoxTexts::anyCoordinate()),
        onPad("m_pDrilXsclLE")
            .typed("101")
            .stores(RecordKeys::padXscl, "10")
            .refusedBy(BoxTexts::anyNumber()),
        onPad("m_pDrilYsclLE")
            .typed("-101")
            .stores(RecordKeys::padYscl, "-10")
            .refusedBy(BoxTexts::anyNumber()),
        onText("m_pXSizeLE")
            .typed("10005")
            .stores(RecordKeys::stringXSize, "0")
            .refusedBy(BoxTexts::anyLength()),
        onText("m_pYSizeLE")
            .typed("10005")
            .stores(RecordKeys::stringYSize, "0")
            .refusedBy(BoxTexts::anyLength()),
        onText("m_pLineWidthLE")
            .typed("10005")
            .stores(RecordKeys::stringLineWidth, "0")
            .refusedBy(BoxTexts::anyLength()),
        onText("m_pHeightLE")
            .reachedBy(matrixCode)
            .typed("50005")
            .stores(RecordKeys::barcodeHeight, "0")
            .refusedBy(BoxTexts::anyLength()),
        onText("m_pCannedHoleSizeLE")
            .reachedBy(cannedText)
            .typed("50005")
            .stores(RecordKeys::cannedHoleSize, "0")
            .refusedBy(BoxTexts::anyLength()),
    };
}

QVector<Entry> chosenEntries()
{
    return {
        onLine("m_pPolarityCMB")
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::polarity, Polarity::negative),
        onPad("m_pMirrorCMB").pressed(Qt::Key_Up).stores(RecordKeys::mirror, Mirror::yes),
        onLine("m_pLineCMB").pressed(Qt::Key_Down).stores(RecordKeys::line, LineKind::polyline),
        onLine("m_pCornerTypeCMB")
            .reachedBy(rectangle)
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::cornerType, CornerType::round),
        onLine("m_pSlotPlatedCMB")
            .reachedBy(slot)
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::slotPlated, SlotPlated::no),
        onSurface("m_pSurfShapeCMB")
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::surfaceShape, SurfaceKind::polygon),
        onArc("m_pArcAndCircleCMB")
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::arcAndCircle, ArcOrCircle::circle),
        onArc("m_pArcCMB").pressed(Qt::Key_Down).stores(RecordKeys::arcMode, ArcMode::startEndEdge),
        onArc("m_pCircleCMB")
            .reachedBy(circle)
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::circleMode, CircleMode::centerPoint),
        onText("m_pTextFormatCMB")
            .chosen("Barcode")
            .stores(RecordKeys::textFormat, TextKind::barcode),
        onText("m_pUPCCMB")
            .reachedBy(barcode)
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::barcodeMode, Symbology::upc39Ascii),
        onText("m_pPositionCMB")
            .reachedBy(matrixCode + Click("m_pAddStringCB"))
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::stringPosition, StringPosition::bottom),
        onText("m_pOrbotechTypeCMB")
            .reachedBy(plotStamp)
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::orbotechType, PlotStampType::barcode),
        onText("m_pOrbotechFontSizeCMB")
            .reachedBy(plotStamp)
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::orbotechFontSize, "2"),
        onText("m_pOrbotechZoomCMB")
            .reachedBy(plotStamp)
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::orbotechZoom, "2"),
        onText("m_pCannedHoleSizeCMB")
            .reachedBy(cannedText)
            .pressed(Qt::Key_Down)
            .stores(RecordKeys::cannedHoleMode, CannedHoleMode::sixBySeven),
        onLine("m_pAttributesCB")
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::attributes, HasAttributes::yes),
        onLine("m_pClosedCB")
            .reachedBy(polyline)
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::closed, Closed::yes),
        onArc("m_pClockWiseCB").pressed(Qt::Key_Space).stores(RecordKeys::clockWise, ClockWise::no),
        onText("m_pAddStringCB")
            .reachedBy(matrixCode)
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::addString, Added::yes),
        onText("m_pBackgroundCB")
            .reachedBy(matrixCode)
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::addBackground, Added::no),
        onText("m_pAddMarkersCB")
            .reachedBy(matrixCode)
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::addMarkers, Added::yes),
        onLine("m_pFreeDirectionRB")
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::angleGroup, LineDirection::free),
        onLine("m_pVerticalRB")
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::angleGroup, LineDirection::vertical),
        onLine("m_pHorizontalRB")
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::angleGroup, LineDirection::horizontal),
        onLine("m_pVerticalHorizontalRB")
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::angleGroup, LineDirection::verticalThenHorizontal),
        onLine("m_pEightDirectionsRB")
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::angleGroup, LineDirection::eightDirections),
        onLine("m_pFixedAngleRB")
            .pressed(Qt::Key_Space)
            .stores(RecordKeys::angleGroup, LineDirection::fixed),
    };
}

}  // namespace

QString Entry::words() const
{
    const QString entered = isTyped()           ? m_typed
                            : !m_item.isEmpty() ? m_item
                                                : QKeySequence(m_key).toString();
    return QStringLiteral("%1 %2 (%3)").arg(m_field, entered, m_type);
}

void Entry::reachField(const DialogFixture& fixture) const
{
    fixture.perform(m_reach);
}

void Entry::enter(const DialogFixture& fixture) const
{
    if (isTyped()) {
        fixture.type(m_field, m_typed);
        return;
    }
    fixture.focus(m_field);
    if (!m_item.isEmpty()) {
        fixture.choose(m_field, m_item);
    } else {
        fixture.press(m_key);
    }
}

const QVector<Entry>& allEntries()
{
    static const QVector<Entry> all = typedEntries() + refusedEntries() + chosenEntries();
    return all;
}
