#include "Entry.h"
#include "plugin/RecordKeys.h"

namespace {

using Entries = QVector<Entry>;

/// A length in mil or micrometres, as it is typed.
struct Length {
    const char* mil;
    const char* metric;

    QString in(bool isMetric) const { return QLatin1String(isMetric ? metric : mil); }
};

constexpr Length ten = {"10", "254"};
const QString tenStored = QStringLiteral("254");  // micrometres
constexpr Length beyond10000 = {"10001", "254001"};
constexpr Length beyond50000 = {"50001", "1270001"};
constexpr Length beyond100000 = {"100001", "2540001"};

Entry typed(const QString& field, const QString& text, const RecordLog::Record& changes)
{
    return {field, Entry::Kind::Typed, text, 0, changes, 0};
}

Entry refused(const QString& field, const QString& text, const RecordLog::Record& changes)
{
    return {field, Entry::Kind::Typed, text, 0, changes, 1};
}

Entry chosen(const QString& field, int index, const QString& key, const QString& value)
{
    return {field, Entry::Kind::Chosen, QString(), index, {{key, value}}, 0};
}

Entry clicked(const QString& field, const QString& key, const QString& value)
{
    return {field, Entry::Kind::Clicked, QString(), 0, {{key, value}}, 0};
}

/// Each item, from the last one to the first.
Entries eachItem(const QString& field, const QString& key, const QStringList& values)
{
    Entries all;
    for (int i = values.size() - 1; i >= 0; --i) {
        all.append(chosen(field, i, key, values[i]));
    }
    return all;
}

/// Two clicks on a check box.
Entries bothStates(const QString& field, const QString& key, const QString& first,
                   const QString& second)
{
    return {clicked(field, key, first), clicked(field, key, second)};
}

/// The refused length leaves "0".
Entries length(bool isMetric, const QString& field, const QString& key, const Length& tooLarge)
{
    return {typed(field, ten.in(isMetric), {{key, tenStored}}),
            refused(field, tooLarge.in(isMetric), {{key, RecordValues::zero}})};
}

/// The refused pitch leaves the old one.
Entries pitch(bool isMetric, const QString& field, const QString& key)
{
    return {typed(field, ten.in(isMetric), {{key, tenStored}}),
            refused(field, beyond100000.in(isMetric), {})};
}

/// The host refuses the text as soon as it is too large; what is left is accepted.
Entries number(const QString& field, const QString& key, const QString& text,
               const QString& tooLarge, const QString& left)
{
    return {typed(field, text, {{key, text}}), refused(field, tooLarge, {{key, left}})};
}

Entry anyText(const QString& field, const QString& key, const QString& text)
{
    return typed(field, text, {{key, text}});
}

/// A symbol, and what is left of it and of the rotation.
RecordLog::Record symbol(const QString& name, const QString& rotation = RecordValues::zero)
{
    return {{RecordKeys::symbolText, name}, {RecordKeys::mirrorRotate, rotation}};
}

QStringList upTo(int count)
{
    QStringList all;
    for (int i = 1; i <= count; ++i) {
        all.append(QString::number(i));
    }
    return all;
}

Entries lineEntries(bool isMetric)
{
    const QString field = QStringLiteral("m_pSymbolTextLE");
    const QString round = isMetric ? QStringLiteral("r254") : QStringLiteral("r10");
    const QString huge = isMetric ? QStringLiteral("r1524000") : QStringLiteral("r60000");
    const QString kind = QStringLiteral("m_pLineCMB");
    const QString fixed = QStringLiteral("m_pFixedAngleRB");
    using namespace RecordKeys;
    Entries all = {typed(field, round, symbol("r10")), refused(field, "r", symbol("")),
                   refused(field, huge, symbol("")), typed(field, round, symbol("r10"))};
    all += eachItem("m_pPolarityCMB", polarity, {Polarity::positive, Polarity::negative});
    all += chosen(kind, 1, line, LineKind::polyline);
    all += bothStates("m_pClosedCB", closed, Closed::yes, Closed::no);
    const QStringList directions = {"m_pVerticalRB", "m_pHorizontalRB", "m_pVerticalHorizontalRB",
                                    "m_pEightDirectionsRB", fixed};
    for (int i = 0; i < directions.size(); ++i) {
        all += clicked(directions[i], angleGroup, QString::number(i + 2));
    }
    all += number("m_pAngleLE", angle, "45", "400", "45");
    all += clicked("m_pFreeDirectionRB", angleGroup, LineDirection::free);
    all += chosen(kind, 2, line, LineKind::rectangle);
    all += eachItem("m_pCornerTypeCMB", cornerType, upTo(4));
    all += chosen("m_pCornerTypeCMB", 1, cornerType, CornerType::round);
    all += length(isMetric, "m_pCornerRadiusLE", cornerRadius, beyond50000);
    all += chosen(kind, 3, line, LineKind::slot);
    all += length(isMetric, "m_pLengthLE", slotLength, beyond50000);
    all += anyText("m_pSlotAngleLE", slotAngle, "30");
    all += anyText("m_pSlotDecodeLE", slotDecode, "7");
    all += eachItem("m_pSlotPlatedCMB", slotPlated, {SlotPlated::yes, SlotPlated::no});
    all += chosen(kind, 0, line, LineKind::single);
    return all;
}

Entries padEntries(bool isMetric)
{
    const QString field = QStringLiteral("m_pSymbolTextLE");
    const QString square = isMetric ? QStringLiteral("s508") : QStringLiteral("s20");
    const QString turned = isMetric ? QStringLiteral("r254_45") : QStringLiteral("r10_45");
    using namespace RecordKeys;
    Entries all = {typed(field, turned, symbol("r10", "45")), refused(field, "r10_4x", symbol("")),
                   typed(field, square, symbol("s20"))};
    all += eachItem("m_pMirrorCMB", mirror, {Mirror::yes, Mirror::no});
    all += anyText("m_pAngleValueSB", mirrorRotate, "45");
    all += anyText("m_pAngleValueSB", mirrorRotate, "0");
    all += number("m_pDrilNxLE", padNx, "4", "51", "5");
    all += number("m_pDrilNyLE", padNy, "6", "51", "5");
    all += pitch(isMetric, "m_pDrilDxLE", padDx);
    all += pitch(isMetric, "m_pDrilDyLE", padDy);
    all += number("m_pDrilXsclLE", padXscl, "2", "101", "10");
    all += number("m_pDrilYsclLE", padYscl, "3", "-101", "-10");
    return all;
}

Entries surfaceEntries()
{
    using namespace RecordKeys;
    return eachItem("m_pSurfShapeCMB", surfaceShape, upTo(3)) +
           bothStates("m_pAttributesCB", attributes, HasAttributes::yes, HasAttributes::no);
}

Entries arcEntries(bool isMetric)
{
    using namespace RecordKeys;
    Entries all = {typed("m_pSymbolTextLE", isMetric ? "r762" : "r30", symbol("r30"))};
    all += eachItem("m_pArcCMB", arcMode, upTo(7));
    all += bothStates("m_pClockWiseCB", clockWise, ClockWise::no, ClockWise::yes);
    all += chosen("m_pArcAndCircleCMB", 1, arcAndCircle, ArcOrCircle::circle);
    all += eachItem("m_pCircleCMB", circleMode, upTo(4));
    all += chosen("m_pArcAndCircleCMB", 0, arcAndCircle, ArcOrCircle::arc);
    return all;
}

Entries barcodeEntries(bool isMetric)
{
    using namespace RecordKeys;
    Entries all = {chosen("m_pTextFormatCMB", 1, textFormat, TextKind::barcode)};
    all += chosen("m_pUPCCMB", 4, barcodeMode, Symbology::ecc200);
    all += anyText("m_pMatrixLE", barcodeMatrix, "12");
    all += clicked("m_pAddMarkersCB", addMarkers, Added::yes);
    // Deliberately as the markers are, at each click.
    all += clicked("m_pBackgroundCB", addBackground, Added::yes);
    all += clicked("m_pAddMarkersCB", addMarkers, Added::no);
    all += clicked("m_pBackgroundCB", addBackground, Added::no);
    all += clicked("m_pAddStringCB", addString, Added::yes);
    all +=
        eachItem("m_pPositionCMB", stringPosition, {StringPosition::top, StringPosition::bottom});
    all += clicked("m_pAddStringCB", addString, Added::no);
    all += length(isMetric, "m_pHeightLE", barcodeHeight, beyond50000);
    all += eachItem("m_pUPCCMB", barcodeMode, upTo(5));
    return all;
}

Entries textEntries(bool isMetric)
{
    using namespace RecordKeys;
    Entries all = {anyText("m_pTextLE", textContains, "abc")};
    all += length(isMetric, "m_pXSizeLE", stringXSize, beyond10000);
    all += length(isMetric, "m_pYSizeLE", stringYSize, beyond10000);
    all += length(isMetric, "m_pLineWidthLE", stringLineWidth, beyond10000);
    all += barcodeEntries(isMetric);
    all += chosen("m_pTextFormatCMB", 2, textFormat, TextKind::plotStamp);
    all += eachItem("m_pOrbotechTypeCMB", orbotechType, upTo(2));
    all += eachItem("m_pOrbotechFontSizeCMB", orbotechFontSize, upTo(4));
    all += eachItem("m_pOrbotechZoomCMB", orbotechZoom, upTo(7));
    all += chosen("m_pTextFormatCMB", 3, textFormat, TextKind::cannedText);
    all += eachItem("m_pCannedHoleSizeCMB", cannedHoleMode, upTo(2));
    all += length(isMetric, "m_pCannedHoleSizeLE", cannedHoleSize, beyond50000);
    all += chosen("m_pTextFormatCMB", 0, textFormat, TextKind::string);
    return all;
}

}  // namespace

QVector<FeatureEntries> dialogEntries(bool isMetric)
{
    return {{QStringLiteral("m_pLineTB"), FeatureKind::line, lineEntries(isMetric)},
            {QStringLiteral("m_pPadTB"), FeatureKind::pad, padEntries(isMetric)},
            {QStringLiteral("m_pSurfaceTB"), FeatureKind::surface, surfaceEntries()},
            {QStringLiteral("m_pArcTB"), FeatureKind::arc, arcEntries(isMetric)},
            {QStringLiteral("m_pTextTB"), FeatureKind::text, textEntries(isMetric)}};
}

RecordLog::Record firstSizes()
{
    using namespace RecordKeys;
    return {{stringXSize, "5080"},
            {stringYSize, "5080"},
            {stringLineWidth, "609.6"},
            {barcodeHeight, "6350"},
            {cannedHoleSize, "508"},
            {padDx, "0"},
            {padDy, "0"},
            {cornerRadius, "0"},
            {slotLength, "0"}};
}
