#include "Invariants.h"

#include "AgreementTable.h"
#include "FieldBounds.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/RecordKeys.h"

#include <QRegularExpression>
#include <QSet>

namespace Sent = MessageCodes::Sent;

namespace {

/// Whether use can make the strip or the dialog send `code`: not that of a tool which is disabled
/// from the start, nor the second one of a tool with two.
bool isSent(int code)
{
    static const QSet<int> disabled = {Sent::RotateFeature, Sent::MirrorFeature,
                                       Sent::RoutDimension, Sent::ContourEditor,
                                       Sent::PullLine,      Sent::MoveJunction};
    const char* const name = Sent::nameOf(code);
    return name && !QByteArray(name).endsWith("Off") && !disabled.contains(code);
}

// The type of a plot stamp is an integer only for an index outside its list.
const QSet<QString> integerKeys = {RecordKeys::orbotechType, RecordKeys::features,
                                   RecordKeys::angleGroup,   RecordKeys::cornerType,
                                   RecordKeys::barcodeMode,  RecordKeys::orbotechFontSize,
                                   RecordKeys::orbotechZoom};

bool isPartOfNumber(const QString& text)
{
    static const QRegularExpression part("\\A[-+]?[0-9]*\\.?[0-9]*([eE][-+]?[0-9]*)?\\z");
    return part.match(text).hasMatch();
}

/// Lengths are stored in micrometres. A number that is typed is stored with each key: a part of one
/// ("-", "1e") counts as 0.
bool isWithin(const FieldBound& bound, const QString& stored)
{
    const bool isPlain = bound.kind == FieldBound::Kind::Number;
    const double scale = isPlain ? 1 : 25.4;
    bool isNumber = false;
    const double value = stored.toDouble(&isNumber);
    isNumber = isNumber || (isPlain && isPartOfNumber(stored));
    return isNumber && value >= bound.minimum * scale && value <= bound.maximum * scale;
}

}  // namespace

QString Invariants::faultOf(const QVariantMap& record)
{
    if (record.size() != 45) {
        return QStringLiteral("%1 keys").arg(record.size());
    }
    for (auto entry = record.begin(); entry != record.end(); ++entry) {
        const bool isText = entry->userType() == QMetaType::QString;
        const bool isInteger = entry->userType() == QMetaType::Int;
        if (!isText && !(isInteger && integerKeys.contains(entry.key()))) {
            return entry.key() + " is a " + entry->typeName();
        }
    }
    for (const AgreementTable::Field& field : AgreementTable::fields()) {
        const FieldBound* const bound = FieldBounds::find(field.names.first());
        const QString text = record.value(field.key).toString();
        if (bound && !isWithin(*bound, text)) {
            return QStringLiteral("%1 is \"%2\"").arg(field.key, text);
        }
    }
    return {};
}

QString Invariants::faultOf(const Recorder::Entry& entry)
{
    const PluginMetaData& message = entry.message;
    const int code = message.code;
    const QString sender = code == Sent::SelectFromEditor   ? ModuleNames::ruleMenu
                           : code == Sent::FeatureHighLight ? ModuleNames::bareToolStrip
                                                            : ModuleNames::toolStrip;
    const QString receiver =
        code == Sent::AddFeatureStarted ? ModuleNames::jobTree : ModuleNames::viewer;
    const bool isRecord = code == Sent::Record || code == Sent::DirectionRecord;
    if (!isSent(code)) {
        return QStringLiteral("code %1").arg(code);
    }
    if (message.sender != sender || message.receiver != receiver) {
        return QStringLiteral("%1 from %2 to %3").arg(code).arg(message.sender, message.receiver);
    }
    const bool hasMode = code == Sent::DeleteFeature || code == Sent::Mark;
    const bool isExtraGood = code == Sent::AttributeMap ? message.extra != 0
                             : hasMode                  ? message.extra == 0 || message.extra == 1
                                                        : message.extra == 0;
    if (!isExtraGood) {
        return QStringLiteral("%1 with extra %2").arg(code).arg(message.extra);
    }
    if (isRecord == message.payload.isEmpty()) {
        return QStringLiteral("%1 with %2 entries").arg(code).arg(message.payload.size());
    }
    return isRecord ? faultOf(message.payload) : QString();
}
