#include "Json.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace CanvasHost {

QByteArray compactJson(const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

/// The lines of a value and of its parts: a tree with the shape of the document. Written by hand
/// because none of the available libraries, including Qt's, gives the lines of values.
struct JsonPlace {
    int line = 0;
    QStringList keys;              ///< of an object; in the order of `parts`
    std::vector<JsonPlace> parts;  ///< the members of an object or the entries of an array
    int repeatedKey = -1;          ///< index of the first key that occurred before, or -1
};

struct JsonNode::Source {
    QString file;
    QJsonValue value;
    JsonPlace place;
};

namespace {

/// Walks a text that Qt has parsed without an error.
class Scanner {
public:
    Scanner(const QByteArray& text, const std::function<void(double)>& progress)
        : m_text(text), m_progress(progress)
    {
    }

    JsonPlace value()
    {
        skipTo("{[\"-0123456789tfn");
        constexpr int interval = 1024;
        if (m_progress && ++m_values % interval == 0) {
            m_progress(double(m_position) / m_text.size());
        }
        JsonPlace place;
        place.line = m_line;
        switch (current()) {
            case '{':
                object(place);
                break;
            case '[':
                array(place);
                break;
            case '"':
                string();
                break;
            default:
                skipTo(",]} \t\r\n");
        }
        return place;
    }

private:
    char current() const { return m_position < m_text.size() ? m_text.at(m_position) : '\0'; }

    void advance()
    {
        if (current() == '\n') {
            ++m_line;
        }
        ++m_position;
    }

    void skipTo(const char* wanted)
    {
        while (m_position < m_text.size() && !std::strchr(wanted, current())) {
            advance();
        }
    }

    QByteArray string()
    {
        const int start = m_position;
        do {
            if (current() == '\\') {
                advance();
            }
            advance();
        } while (m_position < m_text.size() && current() != '"');
        advance();
        return m_text.mid(start, m_position - start);
    }

    void object(JsonPlace& place)
    {
        for (advance(), skipTo("\"}"); current() == '"'; skipTo("\"}")) {
            const QString key =
                QJsonDocument::fromJson('[' + string() + ']').array().at(0).toString();
            skipTo(":");
            if (place.repeatedKey < 0 && place.keys.contains(key)) {
                place.repeatedKey = place.keys.size();
            }
            place.keys.append(key);
            place.parts.push_back(value());
        }
        advance();
    }

    void array(JsonPlace& place)
    {
        for (advance(), skipTo(beginOfEntry); m_position < m_text.size() && current() != ']';
             skipTo(beginOfEntry)) {
            place.parts.push_back(value());
        }
        advance();
    }

    static constexpr const char* beginOfEntry = "]{[\"-0123456789tfn";

    const QByteArray& m_text;
    const std::function<void(double)>& m_progress;
    int m_values = 0;
    int m_position = 0;
    int m_line = 1;
};

int lineOfOffset(const QByteArray& text, int offset)
{
    return 1 + static_cast<int>(
                   std::count(text.begin(), text.begin() + qBound(0, offset, text.size()), '\n'));
}

}  // namespace

JsonDocument::JsonDocument(const QByteArray& text, const QString& file,
                           const std::function<void(double)>& progress)
{
    QJsonParseError parsed;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parsed);
    if (parsed.error != QJsonParseError::NoError) {
        throw FileError{file, lineOfOffset(text, parsed.offset), parsed.errorString()};
    }
    const QJsonValue value =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    m_source.reset(new JsonNode::Source{file, value, Scanner(text, progress).value()});
}

JsonDocument::~JsonDocument() = default;

JsonNode JsonDocument::root() const
{
    return {*m_source, m_source->value, m_source->place,
            QCoreApplication::translate("FileErrors", "the document")};
}

JsonNode::JsonNode(const Source& source, QJsonValue value, const JsonPlace& place, QString label)
    : m_source(&source), m_value(std::move(value)), m_place(&place), m_label(std::move(label))
{
}

void JsonNode::failAt(const JsonPlace& place, const QString& reason) const
{
    throw FileError{m_source->file, place.line, reason};
}

void JsonNode::fail(const QString& reason) const
{
    failAt(*m_place, m_label + QLatin1Char(' ') + reason);
}

void JsonNode::requireUniqueKeys() const
{
    if (!m_value.isObject()) {
        fail(QCoreApplication::translate("FileErrors", "must be an object"));
    }
    if (m_place->repeatedKey >= 0) {
        failAt(m_place->parts[static_cast<size_t>(m_place->repeatedKey)],
               QCoreApplication::translate("FileErrors", "\"%1\" appears twice in one object")
                   .arg(m_place->keys.at(m_place->repeatedKey)));
    }
}

void JsonNode::requireObject(const QStringList& known) const
{
    requireUniqueKeys();
    for (int i = 0; i < m_place->keys.size(); ++i) {
        if (!known.contains(m_place->keys.at(i))) {
            failAt(m_place->parts[static_cast<size_t>(i)],
                   QCoreApplication::translate("FileErrors", "\"%1\" does not belong to %2")
                       .arg(m_place->keys.at(i), m_label));
        }
    }
}

bool JsonNode::has(const QString& key) const
{
    return m_place->keys.contains(key);
}

JsonNode JsonNode::member(const QString& key) const
{
    const int index = m_place->keys.indexOf(key);
    if (index < 0) {
        failAt(*m_place, QCoreApplication::translate("FileErrors", "\"%1\" is missing").arg(key));
    }
    return {*m_source, m_value.toObject().value(key), m_place->parts[static_cast<size_t>(index)],
            QStringLiteral("\"%1\"").arg(key)};
}

std::vector<std::pair<QString, JsonNode>> JsonNode::members() const
{
    requireUniqueKeys();
    std::vector<std::pair<QString, JsonNode>> all;
    for (const QString& key : m_place->keys) {
        all.emplace_back(key, member(key));
    }
    return all;
}

std::vector<JsonNode> JsonNode::entries() const
{
    if (!m_value.isArray()) {
        fail(QCoreApplication::translate("FileErrors", "must be an array"));
    }
    const QJsonArray array = m_value.toArray();
    const QString label = QCoreApplication::translate("FileErrors", "an entry of %1").arg(m_label);
    std::vector<JsonNode> nodes;
    nodes.reserve(static_cast<size_t>(array.size()));
    for (int i = 0; i < array.size(); ++i) {
        nodes.push_back({*m_source, array.at(i), m_place->parts[static_cast<size_t>(i)], label});
    }
    return nodes;
}

QString JsonNode::text() const
{
    if (!m_value.isString()) {
        fail(QCoreApplication::translate("FileErrors", "must be a string"));
    }
    return m_value.toString();
}

QString JsonNode::name() const
{
    if (text().isEmpty()) {
        fail(QCoreApplication::translate("FileErrors", "must not be empty"));
    }
    return text();
}

QStringList JsonNode::names() const
{
    QStringList read;
    for (const JsonNode& entry : entries()) {
        entry.requireNew(read);
        read.append(entry.name());
    }
    return read;
}

void JsonNode::requireNew(const QStringList& before) const
{
    if (before.contains(name())) {
        failAt(*m_place,
               QCoreApplication::translate("FileErrors", "\"%1\" appears twice").arg(name()));
    }
}

bool JsonNode::isTrue() const
{
    if (!m_value.isBool()) {
        fail(QCoreApplication::translate("FileErrors", "must be true or false"));
    }
    return m_value.toBool();
}

double JsonNode::number(double least, double most) const
{
    if (!m_value.isDouble()) {
        fail(QCoreApplication::translate("FileErrors", "must be a number"));
    }
    const double value = m_value.toDouble();
    if (!(value >= least && value <= most)) {
        fail(least == most ? QCoreApplication::translate("FileErrors", "must be %1").arg(least)
                           : QCoreApplication::translate("FileErrors", "must be from %1 to %2")
                                 .arg(least)
                                 .arg(most));
    }
    return value;
}

int JsonNode::integer(int least, int most) const
{
    const double value = number(least, most);
    if (value != std::floor(value)) {
        fail(QCoreApplication::translate("FileErrors", "must be a whole number"));
    }
    return static_cast<int>(value);
}

int JsonNode::choice(const QStringList& choices) const
{
    const int index = choices.indexOf(text());
    if (index < 0) {
        fail(QCoreApplication::translate("FileErrors", "is not one of ") +
             choices.join(QStringLiteral(", ")));
    }
    return index;
}

}  // namespace CanvasHost
