#pragma once

#include <QMap>
#include <QStringList>
#include <QVector>

/// What the module logs of the records that it sends, and what Qt complains about, while it lives.
/// There is one at a time.
class RecordLog {
public:
    /// Key to value, both as text.
    using Record = QMap<QString, QString>;

    RecordLog();
    ~RecordLog();
    RecordLog(const RecordLog&) = delete;
    RecordLog& operator=(const RecordLog&) = delete;

    /// Those since the last call.
    QVector<Record> takeRecords();
    QStringList takeWarnings();
    bool hasRecords() const { return !m_records.isEmpty(); }

    void take(QtMsgType type, const QMessageLogContext& context, const QString& text);

private:
    QVector<Record> m_records;
    QStringList m_warnings;
};
