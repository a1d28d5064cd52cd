#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

/// The envelope of every message between modules: a plain value, copied freely.
///
/// Modules address each other by file name ("Canvas_Viewer.dll"); the host's plug-in manager routes
/// by `receiver` only. The header is shared by all modules and is installed with the host package.
struct PluginMetaData {
    QString sender;                   ///< file name of the sending module
    QString receiver;                 ///< file name of the receiving module
    int code = -1;                    ///< what the message says; -1 until a code is set
    QMap<QString, QVariant> payload;  ///< named values, implicitly shared between copies
    /// A small integer, or the address of an object that the sender owns and that is valid only
    /// during the call.
    qint64 extra = 0;

    /// `from` and `to` are module file names.
    PluginMetaData(const QString& from, const QString& to) : sender(from), receiver(to) {}
};
