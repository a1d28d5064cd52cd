#pragma once

#include <FileError.h>

#include <QByteArray>
#include <QJsonValue>
#include <QStringList>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace CanvasHost {

/// A value on its own, on one line; QJsonDocument writes only objects and arrays.
QByteArray compactJson(const QJsonValue& value);

struct JsonPlace;

/// A JSON value that knows its line. Every operation throws a FileError with that line if the value
/// is not what it asks for.
class JsonNode {
public:
    [[noreturn]] void fail(const QString& reason) const;  ///< "<what it is> <reason>"

    /// An object whose keys are all among `known`, each once.
    void requireObject(const QStringList& known) const;
    bool has(const QString& key) const;
    JsonNode member(const QString& key) const;
    /// The members of an object with any keys, each once.
    std::vector<std::pair<QString, JsonNode>> members() const;
    std::vector<JsonNode> entries() const;

    QString text() const;
    QString name() const;       ///< a text that is not empty
    QStringList names() const;  ///< a list of names, each once
    bool isTrue() const;
    double number(double least, double most) const;
    int integer(int least, int most) const;
    /// The index of the text among the choices.
    int choice(const QStringList& choices) const;
    /// Refuses a name that is among `before`.
    void requireNew(const QStringList& before) const;

private:
    friend class JsonDocument;

    struct Source;

    JsonNode(const Source& source, QJsonValue value, const JsonPlace& place, QString label);

    [[noreturn]] void failAt(const JsonPlace& place, const QString& reason) const;
    void requireUniqueKeys() const;

    const Source* m_source;
    QJsonValue m_value;
    const JsonPlace* m_place;
    QString m_label;
};

/// A parsed JSON text; its nodes must not outlive it.
class JsonDocument {
public:
    /// Throws a FileError for a text that is not JSON. `file` is what errors name. `progress` is
    /// told from time to time how much has been read, from 0 to 1.
    explicit JsonDocument(const QByteArray& text, const QString& file = {},
                          const std::function<void(double)>& progress = {});
    ~JsonDocument();
    JsonDocument(const JsonDocument&) = delete;
    JsonDocument& operator=(const JsonDocument&) = delete;

    JsonNode root() const;

private:
    std::unique_ptr<const JsonNode::Source> m_source;
};

}  // namespace CanvasHost
