#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <map>
#include <string>

/// The dialog's messages to the canvas.
class CanvasLink {
public:
    /// `sender` is the host widget that holds the toolbar: the sender pointer of every message.
    explicit CanvasLink(void* sender) : m_sender(sender) {}

    /// The whole record (code 50), with one debug line per entry, in the logging category
    /// "canvastoolstrip.record".
    void sendRecord(const QMap<QString, QVariant>& record) const;

    /// The whole record as a change of direction (code 52).
    void sendDirection(const QMap<QString, QVariant>& record) const;

    /// The attributes by address (code 51); the canvas reads them during the call.
    void sendAttributes(const std::map<std::string, std::string>& attributes) const;

    /// Fill the surface that is being drawn (code 53).
    void sendFill() const;

    /// Send the attributes of a feature that is picked on the board (code 20002838).
    void sendSelectFromEditor() const;

private:
    void* m_sender;
};
