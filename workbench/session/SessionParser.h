#pragma once

#include "session/Step.h"

#include <QStringList>

/// Reads session files: one step per line, words quoted as in a shell, '#' starts a comment. Errors
/// are thrown as a CanvasHost::FileError.
namespace SessionParser {

/// The whole file is read and checked.
Session readFile(const QString& file);
/// The same from what a file holds; `file` names it.
Session read(const QByteArray& bytes, const QString& file);

/// Splits one line into words; a comment is left out. An open quote is a WordError.
QStringList split(const QString& line);

}  // namespace SessionParser
