#include "FileKind.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace CanvasHost {
namespace {

/// Whether an object has the key with a value that begins with `first`. Quotes within texts are
/// escaped, so that no text looks like a key.
bool hasKey(const QByteArray& json, const QByteArray& key, char first)
{
    const QByteArray quoted = '"' + key + '"';
    for (int at = json.indexOf(quoted); at >= 0; at = json.indexOf(quoted, at + 1)) {
        const QByteArray after = json.mid(at + quoted.size(), 20).simplified().replace(' ', "");
        if (after.startsWith(':') && after.mid(1, 1) == QByteArray(1, first)) {
            return true;
        }
    }
    return false;
}

FileKind kindOfJson(const QByteArray& text)
{
    if (hasKey(text, "jobs", '[')) {
        return FileKind::Job;
    }
    if (hasKey(text, "features", '[')) {
        return FileKind::Board;
    }
    return hasKey(text.left(text.indexOf('\n')), "receiver", '"') ? FileKind::Trace
                                                                  : FileKind::Other;
}

/// Whether the first line with words is a step of a session.
bool isSession(const QByteArray& text)
{
    static const QRegularExpression step(
        QStringLiteral(
            "\\A([ \\t]*(#.*)?\\r?\\n)*(canvas|send|expect|wait|box|[a-z]+ m_p\\w+)( .*)?$"),
        QRegularExpression::MultilineOption);
    return step.match(QString::fromUtf8(text)).hasMatch();
}

QString nameOf(FileKind kind)
{
    switch (kind) {
        case FileKind::Board:
            return QCoreApplication::translate("FileErrors", "a board");
        case FileKind::Job:
            return QCoreApplication::translate("FileErrors", "a job file");
        case FileKind::Trace:
            return QCoreApplication::translate("FileErrors", "a message trace");
        case FileKind::Session:
            return QCoreApplication::translate("FileErrors", "a session");
        case FileKind::Gerber:
            return QCoreApplication::translate("FileErrors", "a Gerber file");
        case FileKind::Picture:
            return QCoreApplication::translate("FileErrors", "a picture");
        case FileKind::Other:
            break;
    }
    return {};
}

}  // namespace

FileKind kindOf(const QByteArray& content)
{
    constexpr int head = 4096;
    const QByteArray begin = content.left(head).trimmed();
    if (begin.startsWith("\x89PNG") || begin.startsWith("\xff\xd8\xff") ||
        (begin.startsWith('<') && begin.contains("<svg"))) {
        return FileKind::Picture;
    }
    if (begin.startsWith("G04") || begin.startsWith("%FS") || begin.startsWith("%MO")) {
        return FileKind::Gerber;
    }
    if (begin.startsWith('{')) {
        return kindOfJson(content);
    }
    return isSession(begin) ? FileKind::Session : FileKind::Other;
}

FileError wrongKind(const QByteArray& content, FileKind wanted, const FileError& error)
{
    const FileKind kind = kindOf(content);
    if (kind == FileKind::Other || kind == wanted) {
        return error;
    }
    return {error.file, 0,
            QCoreApplication::translate("FileErrors", "this is %1, not %2")
                .arg(nameOf(kind), nameOf(wanted))};
}

}  // namespace CanvasHost
