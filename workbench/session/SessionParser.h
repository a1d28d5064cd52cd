#pragma once

#include "session/Step.h"

#include <QStringList>

/// Reads session files: one step a line, words quoted as in a shell, '#' begins a comment. What is
/// wrong is thrown as a CanvasHost::FileError.
namespace SessionParser {

/// The whole file is read and checked.
Session readFile(const QString& file);
/// The same from what a file holds; `file` names it.
Session read(const QByteArray& bytes, const QString& file);

/// Splits one line into words; a comment is left out. An open quote is an error without a place.
QStringList split(const QString& line);

}  // namespace SessionParser
