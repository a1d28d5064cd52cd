#include "RecordLog.h"

#include <QLoggingCategory>
#include <QRegularExpression>

#include <utility>

namespace {

constexpr const char* category = "canvastoolstrip.record";

RecordLog* theLog = nullptr;
QtMessageHandler handlerBefore = nullptr;

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (theLog) {
        theLog->take(type, context, text);
    }
    if (type != QtDebugMsg && handlerBefore) {
        handlerBefore(type, context, text);
    }
}

/// About a connection, a layout, a style sheet; not about what a platform does not support, nor
/// from a category of its own, such as the window system's.
bool isComplaint(const QMessageLogContext& context, const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("\\bQ[A-Z][A-Za-z]*:|[Ss]tyle ?sheet"));
    return qstrcmp(context.category, "default") == 0 && pattern.match(text).hasMatch() &&
           !text.contains(QLatin1String("does not support"));
}

}  // namespace

RecordLog::RecordLog()
{
    theLog = this;
    handlerBefore = qInstallMessageHandler(handle);
    // A host may have switched it off.
    QLoggingCategory::setFilterRules(QStringLiteral("%1.debug=true").arg(category));
}

RecordLog::~RecordLog()
{
    qInstallMessageHandler(handlerBefore);
    theLog = nullptr;
}

void RecordLog::take(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    static const QRegularExpression entry(QStringLiteral("\\Aname: (.*?) value (.*)\\z"),
                                          QRegularExpression::DotMatchesEverythingOption);
    const bool isRecord = qstrcmp(context.category, category) == 0;
    const QRegularExpressionMatch match = entry.match(text);
    if (isRecord && match.hasMatch()) {
        const QString key = match.captured(1);
        // Entries come in the order of their keys.
        if (m_records.isEmpty() || key <= m_records.last().lastKey()) {
            m_records.append(Record());
        }
        m_records.last().insert(key, match.captured(2));
    } else if (type != QtDebugMsg && type != QtInfoMsg && isComplaint(context, text)) {
        m_warnings.append(text);
    }
}

QVector<RecordLog::Record> RecordLog::takeRecords()
{
    return std::exchange(m_records, {});
}

QStringList RecordLog::takeWarnings()
{
    return std::exchange(m_warnings, {});
}
