#pragma once

#include <PluginManagerStandIn.h>

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

/// One message as it was sent: everything is copied, including what its extra word pointed at.
struct MessageRecord {
    QDateTime time;
    QString sender;
    QString receiver;
    QString module;  ///< that sent it, whatever name it gave; empty if none is known
    int code = -1;
    QMap<QString, QVariant> payload;
    qint64 extra = 0;
    bool delivered = false;
    /// What the extra word pointed at: names and values (the number of a symbol is its name), or a
    /// single value under the empty name.
    QMap<QString, QString> pointedAt;
    /// Of a feature record: the keys that changed since the previous one, in key order.
    QStringList changed;

    /// Reads a transfer during its delivery.
    static MessageRecord of(const CanvasHost::Transfer& transfer);

    /// As in MessageCodes.h; empty for a code that is not known.
    QString name() const;
    /// Whether the extra word is an address.
    bool hasAddress() const;
    /// Whether the payload is the whole feature parameter record.
    bool isFeatureRecord() const;
    /// The payload on one line, what changed first.
    QString summary() const;
    /// The extra word as shown to users: a number, or the value at the address.
    QString extraText() const;
    /// One JSON object on one line, without the newline.
    QByteArray toJson() const;
};
Q_DECLARE_METATYPE(MessageRecord)
