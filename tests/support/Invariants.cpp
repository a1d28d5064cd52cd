#include "Invariants.h"

#include <QRegularExpression>
#include <QSet>

namespace {

const QSet<int> sentCodes = {-1,       20000201, 20000202, 20000203, 20000206, 20000207, 20000208,
                             20000211, 20000212, 20000215, 20000216, 20000221, 20000222, 20000223,
                             20000225, 20000227, 20000241, 20000242, 20000244, 20000245, 20000246,
                             20000266, 20000268, 20001405, 20003950, 20004801, 50,       51,
                             52,       53,       20002838};
// "OrbotechType" is an integer for an index outside its list only.
const QSet<QString> integerKeys = {"OrbotechType", "Features",         "AngleGroup",  "CornerType",
                                   "BarcodeMode",  "OrbotechFontSize", "OrbotechZoom"};

struct Bound {
    const char* key;
    double least;
    double most;
    bool isAsTyped = false;  ///< stored with each key: a part of a number ("-", "1e") counts as 0
};
const Bound bounds[] = {
    {"CornerRadius", 0, 1270000},  {"SlotLength", 0, 1270000},     {"PadDx", -2540000, 2540000},
    {"PadDy", -2540000, 2540000},  {"PadNx", 0, 50, true},         {"PadNy", 0, 50, true},
    {"PadXscl", -100, 100, true},  {"PadYscl", -100, 100, true},   {"Angel(deg)", 0, 360, true},
    {"StringXSize", 0, 254000},    {"StringYSize", 0, 254000},     {"StringLineWidth", 0, 254000},
    {"BarcodeHeight", 0, 1270000}, {"CannedHoleSize", 0, 1270000},
};

bool isPartOfNumber(const QString& text)
{
    static const QRegularExpression part("\\A[-+]?[0-9]*\\.?[0-9]*([eE][-+]?[0-9]*)?\\z");
    return part.match(text).hasMatch();
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
    for (const Bound& bound : bounds) {
        bool isNumber = false;
        const QString text = record.value(bound.key).toString();
        const double value = text.toDouble(&isNumber);
        isNumber = isNumber || (bound.isAsTyped && isPartOfNumber(text));
        if (!(isNumber && value >= bound.least && value <= bound.most)) {
            return QStringLiteral("%1 is \"%2\"").arg(bound.key, text);
        }
    }
    return {};
}

QString Invariants::faultOf(const Recorder::Entry& entry)
{
    const PluginMetaData& message = entry.message;
    const int code = message.code;
    const QString sender = code == 20002838   ? "Canvas_RuleMenu.dll"
                           : code == 20000227 ? "Canvas_Tool_Strip"
                                              : "Canvas_Tool_Strip.dll";
    const QString receiver = code == 20000246 ? "Canvas_JobTree.dll" : "Canvas_Viewer.dll";
    const bool isRecord = code == 50 || code == 52;
    if (!sentCodes.contains(code)) {
        return QStringLiteral("code %1").arg(code);
    }
    if (message.sender != sender || message.receiver != receiver) {
        return QStringLiteral("%1 from %2 to %3").arg(code).arg(message.sender, message.receiver);
    }
    const bool hasMode = code == 20000206 || code == 20000266;
    const bool isExtraGood = code == 51 ? message.extra != 0
                             : hasMode  ? message.extra == 0 || message.extra == 1
                                        : message.extra == 0;
    if (!isExtraGood) {
        return QStringLiteral("%1 with extra %2").arg(code).arg(message.extra);
    }
    if (isRecord == message.payload.isEmpty()) {
        return QStringLiteral("%1 with %2 entries").arg(code).arg(message.payload.size());
    }
    return isRecord ? faultOf(message.payload) : QString();
}
