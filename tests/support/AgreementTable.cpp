#include "AgreementTable.h"

#include "FindChild.h"
#include "plugin/RecordKeys.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>

#include <ui_api.h>

#include <algorithm>
#include <cmath>

namespace AgreementTable {
namespace {

constexpr double factor = 25.4;
constexpr int typedToStored = 0;
constexpr int storedToMetric = 1;

bool agree(double a, double b)
{
    constexpr double sixDigits = 1e-5;
    return std::abs(a - b) <= sixDigits * std::max(std::abs(a), std::abs(b));
}

bool isNumberOf(const QString& text, double value)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && agree(number, value);
}

QString fieldText(const Shown& shown)
{
    return qobject_cast<const QLineEdit*>(shown.widget)->text();
}

/// The number in the field in the metric unit.
double metricLength(const Shown& shown)
{
    return fieldText(shown).toDouble() * (shown.isMetric ? 1 : factor);
}

/// The same letters, and numbers that agree to six digits.
bool isSameSymbol(const QString& a, const QString& b)
{
    static const QRegularExpression number(QStringLiteral("[0-9]+(\\.[0-9]*)?"));
    if (QString(a).remove(number) != QString(b).remove(number)) {
        return false;
    }
    auto left = number.globalMatch(a);
    auto right = number.globalMatch(b);
    while (left.hasNext() && right.hasNext()) {
        if (!agree(left.next().captured().toDouble(), right.next().captured().toDouble())) {
            return false;
        }
    }
    return !left.hasNext() && !right.hasNext();
}

/// What the record holds for an entered name.
bool isStoredSymbol(const QString& name, const Shown& shown)
{
    using ZENTRA::UIAPI::setSymbolUIData;
    return shown.record == name ||
           isSameSymbol(shown.record, shown.isMetric ? setSymbolUIData(name, typedToStored) : name);
}

QString withoutSuffix(const QString& name)
{
    static const QRegularExpression suffix(QStringLiteral("_[0-9]+\\z"));
    return QString(name).remove(suffix);
}

qint64 addedRotation(const Shown& shown)
{
    return shown.record.toLongLong() - qobject_cast<const QSpinBox*>(shown.widget)->value();
}

int checkedButton(const Field& field, const QWidget& dialog)
{
    for (int i = 0; i < field.names.size(); ++i) {
        if (findNamed<QAbstractButton>(dialog, field.names[i]).isChecked()) {
            return i;
        }
    }
    return -1;
}

int indexOf(const Shown& shown)
{
    return qobject_cast<const QComboBox*>(shown.widget)->currentIndex();
}

struct Exception {
    QStringList fields;  ///< empty: all
    const char* reason;
    bool (*applies)(const Shown& shown);
};

QStringList namesOf(Kind kind)
{
    QStringList names;
    for (const Field& field : fields()) {
        if (field.kind == kind) {
            names.append(field.names.first());
        }
    }
    return names;
}

const QVector<Exception>& exceptions()
{
    // clang-format off
    static const QVector<Exception> all = {
        {{"m_pDrilDxLE", "m_pDrilDyLE"}, "a refused pitch is \"0\" in the field alone",
         [](const Shown& shown) { return fieldText(shown) == "0"; }},
        {{"m_pFontLE"}, "a font that the job lacks is cleared in the field alone",
         [](const Shown& shown) { return fieldText(shown).isEmpty(); }},
        {{"m_pBackgroundCB"}, "the markers' box decides when the background's is ticked",
         [](const Shown& shown) { return shown.record == shown.background; }},
        {{"m_pSymbolTextLE"}, "a suffix of whole degrees goes to the rotation",
         [](const Shown& shown) { return isStoredSymbol(withoutSuffix(fieldText(shown)), shown); }},
        {{"m_pAngleValueSB"}, "a symbol's suffix adds to the rotation",
         [](const Shown& shown) { return shown.suffixes.contains(addedRotation(shown)); }},
        {{"m_pSymbolTextLE"}, "a symbol picked in metric units is stored as it is shown there",
         [](const Shown& shown) { return isSameSymbol(shown.record, ZENTRA::UIAPI::setSymbolUIData(fieldText(shown), storedToMetric)); }},
        {{"m_pSymbolTextLE"}, "emptied by a refusal at the send, or by an empty choice: the accepted one stays",
         [](const Shown& shown) { return fieldText(shown).isEmpty() && shown.isEmptiedByProgram; }},
        {{"m_pSymbolTextLE"}, "pending while the window closed",
         [](const Shown& shown) { return shown.isPendingSinceClose; }},
        {{"m_pHeightLE"}, "built in metric units: the first height is stored as if in mil",
         [](const Shown& shown) { return shown.record == "6350" && agree(metricLength(shown), 250); }},
        {{"m_pCannedHoleSizeLE"}, "built in metric units: the first size is stored as if in mil",
         [](const Shown& shown) { return shown.record == "508" && agree(metricLength(shown), 20); }},
        {namesOf(Kind::Choice), "no item is chosen: nothing is stored",
         [](const Shown& shown) { return indexOf(shown) < 0; }},
        {namesOf(Kind::Length), "left with a text that its validator refused, and a unit change, which stores nothing, made acceptable",
         [](const Shown& shown) { return shown.isLeftUnreported; }},
    };
    // clang-format on
    return all;
}

Field text(const char* name, const QString& key)
{
    return {{name}, key, Kind::Text, {}};
}

Field length(const char* name, const QString& key)
{
    return {{name}, key, Kind::Length, {}};
}

Field choice(const char* name, const QString& key, const QStringList& values)
{
    return {{name}, key, Kind::Choice, values};
}

Field box(const char* name, const QString& key, const QString& unchecked, const QString& checked)
{
    return {{name}, key, Kind::Box, {unchecked, checked}};
}

Field index(const char* name, const QString& key)
{
    return {{name}, key, Kind::Index, {}};
}

QVector<Field> allFields()
{
    const QStringList types = {"m_pLineTB", "m_pPadTB", "m_pSurfaceTB", "m_pArcTB", "m_pTextTB"};
    const QStringList directions = {"m_pFreeDirectionRB",   "m_pVerticalRB",
                                    "m_pHorizontalRB",      "m_pVerticalHorizontalRB",
                                    "m_pEightDirectionsRB", "m_pFixedAngleRB"};
    return {
        {types, RecordKeys::features, Kind::Buttons, {}},
        box("m_pAttributesCB", RecordKeys::attributes, HasAttributes::no, HasAttributes::yes),
        choice("m_pPolarityCMB", RecordKeys::polarity, {Polarity::positive, Polarity::negative}),
        choice("m_pMirrorCMB", RecordKeys::mirror, {Mirror::yes, Mirror::no}),
        {{"m_pAngleValueSB"}, RecordKeys::mirrorRotate, Kind::Rotation, {}},
        {{"m_pSymbolTextLE"}, RecordKeys::symbolText, Kind::Symbol, {}},
        choice("m_pLineCMB", RecordKeys::line,
               {LineKind::single, LineKind::polyline, LineKind::rectangle, LineKind::slot}),
        box("m_pClosedCB", RecordKeys::closed, Closed::no, Closed::yes),
        {directions, RecordKeys::angleGroup, Kind::Buttons, {}},
        text("m_pAngleLE", RecordKeys::angle),
        index("m_pCornerTypeCMB", RecordKeys::cornerType),
        length("m_pCornerRadiusLE", RecordKeys::cornerRadius),
        choice("m_pSlotPlatedCMB", RecordKeys::slotPlated, {SlotPlated::yes, SlotPlated::no}),
        length("m_pLengthLE", RecordKeys::slotLength),
        text("m_pSlotAngleLE", RecordKeys::slotAngle),
        text("m_pSlotDecodeLE", RecordKeys::slotDecode),
        text("m_pDrilNxLE", RecordKeys::padNx),
        text("m_pDrilNyLE", RecordKeys::padNy),
        length("m_pDrilDxLE", RecordKeys::padDx),
        length("m_pDrilDyLE", RecordKeys::padDy),
        text("m_pDrilXsclLE", RecordKeys::padXscl),
        text("m_pDrilYsclLE", RecordKeys::padYscl),
        choice("m_pSurfShapeCMB", RecordKeys::surfaceShape,
               {SurfaceKind::rectangle, SurfaceKind::polygon, SurfaceKind::circle}),
        choice("m_pArcAndCircleCMB", RecordKeys::arcAndCircle,
               {ArcOrCircle::arc, ArcOrCircle::circle}),
        choice("m_pArcCMB", RecordKeys::arcMode,
               {ArcMode::startCenterEnd, ArcMode::startEndEdge, ArcMode::startEndCenter,
                ArcMode::startCenterAngle, ArcMode::startCenterLength, ArcMode::startEndAngle,
                ArcMode::startEndRadius}),
        choice("m_pCircleCMB", RecordKeys::circleMode,
               {CircleMode::centerRadius, CircleMode::centerPoint, CircleMode::pointCenter,
                CircleMode::threePoints}),
        box("m_pClockWiseCB", RecordKeys::clockWise, ClockWise::no, ClockWise::yes),
        choice("m_pTextFormatCMB", RecordKeys::textFormat,
               {TextKind::string, TextKind::barcode, TextKind::plotStamp, TextKind::cannedText}),
        text("m_pFontLE", RecordKeys::stringTextFont),
        text("m_pTextLE", RecordKeys::textContains),
        length("m_pXSizeLE", RecordKeys::stringXSize),
        length("m_pYSizeLE", RecordKeys::stringYSize),
        length("m_pLineWidthLE", RecordKeys::stringLineWidth),
        index("m_pUPCCMB", RecordKeys::barcodeMode),
        box("m_pAddStringCB", RecordKeys::addString, Added::no, Added::yes),
        choice("m_pPositionCMB", RecordKeys::stringPosition,
               {StringPosition::top, StringPosition::bottom}),
        box("m_pBackgroundCB", RecordKeys::addBackground, Added::no, Added::yes),
        box("m_pAddMarkersCB", RecordKeys::addMarkers, Added::no, Added::yes),
        length("m_pHeightLE", RecordKeys::barcodeHeight),
        text("m_pMatrixLE", RecordKeys::barcodeMatrix),
        index("m_pOrbotechTypeCMB", RecordKeys::orbotechType),
        index("m_pOrbotechFontSizeCMB", RecordKeys::orbotechFontSize),
        index("m_pOrbotechZoomCMB", RecordKeys::orbotechZoom),
        choice("m_pCannedHoleSizeCMB", RecordKeys::cannedHoleMode,
               {CannedHoleMode::fiveBySeven, CannedHoleMode::sixBySeven}),
        length("m_pCannedHoleSizeLE", RecordKeys::cannedHoleSize),
    };
}

}  // namespace

const QVector<Field>& fields()
{
    static const QVector<Field> all = allFields();
    return all;
}

QString textOf(const Field& field, const QWidget& widget)
{
    if (const auto* const edit = qobject_cast<const QLineEdit*>(&widget)) {
        return edit->text();
    }
    if (const auto* const spin = qobject_cast<const QSpinBox*>(&widget)) {
        return QString::number(spin->value());
    }
    if (const auto* const combo = qobject_cast<const QComboBox*>(&widget)) {
        return QStringLiteral("item %1").arg(combo->currentIndex());
    }
    if (field.kind == Kind::Buttons) {
        return QStringLiteral("button %1").arg(checkedButton(field, *widget.window()));
    }
    return qobject_cast<const QAbstractButton*>(&widget)->isChecked() ? "checked" : "unchecked";
}

bool isStored(const Field& field, const Shown& shown)
{
    switch (field.kind) {
        case Kind::Text:
            return shown.record == fieldText(shown);
        case Kind::Length:
            return isNumberOf(shown.record, metricLength(shown));
        case Kind::Symbol:
            return isStoredSymbol(fieldText(shown), shown);
        case Kind::Rotation:
            return addedRotation(shown) == 0;
        case Kind::Index:
            return shown.record == QString::number(indexOf(shown) + 1);
        case Kind::Choice:
            return shown.record == field.values.value(indexOf(shown), QStringLiteral("no item"));
        case Kind::Box: {
            const auto* const button = qobject_cast<const QAbstractButton*>(shown.widget);
            return shown.record == field.values[button->isChecked() ? 1 : 0];
        }
        case Kind::Buttons:
            return shown.record ==
                   QString::number(checkedButton(field, *shown.widget->window()) + 1);
    }
    return false;
}

QString exceptionOf(const Field& field, const Shown& shown)
{
    for (const Exception& exception : exceptions()) {
        const bool isMeant =
            exception.fields.isEmpty() || exception.fields.contains(field.names.first());
        if (isMeant && exception.applies(shown)) {
            return QLatin1String(exception.reason);
        }
    }
    return {};
}

}  // namespace AgreementTable
