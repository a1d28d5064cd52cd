#pragma once

#include "messages/MessageRecord.h"

#include <QObject>

#include <vector>

/// Every message that passes through the plug-in manager, in the order of sending. There is one
/// log at a time: it observes the manager as long as it lives.
class MessageLog : public QObject {
    Q_OBJECT

public:
    explicit MessageLog(QObject* parent = nullptr);
    ~MessageLog() override;

    const std::vector<MessageRecord>& messages() const { return m_messages; }
    /// The next feature record is still compared with the one before.
    void clear();
    /// Writes all messages as a trace. Throws a CanvasHost::FileError when it cannot be written.
    void save(const QString& file) const;

Q_SIGNALS:
    void appended(const MessageRecord& message);
    void cleared();

private:
    void append(MessageRecord message);

    std::vector<MessageRecord> m_messages;
    QMap<QString, QVariant> m_lastRecord;  ///< the feature record that was sent last
};
