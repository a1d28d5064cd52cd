#pragma once

#include <JsonPlaces.h>

#include <QJsonValue>
#include <QString>

#include <vector>

namespace Pcb {

struct JsonFault {
    int line;
    QString reason;
};

/// A JSON value that knows its line. Every operation throws a JsonFault for a value that is not
/// what it asks for. The tree of places must outlive it.
class JsonNode {
public:
    JsonNode(QJsonValue value, const CanvasHost::JsonPlace& place, QString label);

    [[noreturn]] void fail(const QString& reason) const;

    /// An object without a key that is not among `known`, and without one that stands twice.
    void requireObject(const QStringList& known) const;
    bool has(const QString& key) const;
    JsonNode member(const QString& key) const;
    /// The members of an object with any keys, each once.
    std::vector<std::pair<QString, JsonNode>> members() const;
    std::vector<JsonNode> entries() const;

    QString text() const;
    bool isTrue() const;
    double number(double least, double most) const;
    int integer(int least, int most) const;
    /// The index of the text among the choices.
    int choice(const QStringList& choices) const;

private:
    void requireUniqueKeys() const;

    QJsonValue m_value;
    const CanvasHost::JsonPlace* m_place;
    QString m_label;
};

}  // namespace Pcb
