#pragma once

#include <QString>
#include <QVector>

/// The messages by name, for people to read.
namespace MessageNames {

/// What the extra word of a message points at.
enum class Extra { Number, String, Symbols, Attributes };
Extra extraOf(const QString& receiver, int code);

/// As in MessageCodes.h; empty for a code that is not known to `receiver`.
QString name(const QString& receiver, int code);
/// In the user's language: the name in words, unless there is a better text. Empty for a code that
/// is not known.
QString text(const QString& receiver, int code);

/// The codes that the tool strip accepts, as a menu offers them: in groups.
const QVector<QVector<int>>& accepted();

}  // namespace MessageNames
