#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <map>
#include <string>
#include <variant>

/// A message that the host sends to the tool strip, with the object whose address it may carry.
struct HostMessage {
    using Symbols = std::map<int, std::string>;
    using Attributes = std::map<std::string, std::string>;

    using ExtraWord = std::variant<qint64, std::string, Symbols, Attributes>;

    int code = -1;
    QMap<QString, QVariant> payload;
    /// A number, or an object whose address goes into the extra word.
    ExtraWord extra = qint64(0);
    QString sender = {};  ///< empty: the host
};
