#include "JobFile.h"

#include "JsonPlaces.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace CanvasHost {
namespace {

constexpr int supportedFormat = 1;

struct Fault {
    int line;
    QString reason;
};

/// A JSON value with the line on which it stands. Every operation throws a Fault for a value that
/// is not what it asks for.
class Node {
public:
    Node(QJsonValue value, const JsonPlace& place, QString label)
        : m_value(std::move(value)), m_place(&place), m_label(std::move(label))
    {
    }

    [[noreturn]] void fail(const QString& reason) const
    {
        throw Fault{m_place->line, reason.arg(m_label)};
    }

    void requireObject() const
    {
        if (!m_value.isObject()) {
            fail(QStringLiteral("%1 must be an object"));
        }
        if (m_place->repeatedKey >= 0) {
            const size_t repeated = static_cast<size_t>(m_place->repeatedKey);
            throw Fault{m_place->parts[repeated].line,
                        QStringLiteral("\"%1\" stands twice in one object")
                            .arg(m_place->keys.at(m_place->repeatedKey))};
        }
    }

    bool has(const QString& key) const { return m_place->keys.contains(key); }

    Node member(const QString& key) const
    {
        const int index = m_place->keys.indexOf(key);
        if (index < 0) {
            throw Fault{m_place->line, QStringLiteral("\"%1\" is missing").arg(key)};
        }
        return Node(m_value.toObject().value(key), m_place->parts[static_cast<size_t>(index)],
                    QStringLiteral("\"%1\"").arg(key));
    }

    std::vector<Node> entries() const
    {
        if (!m_value.isArray()) {
            fail(QStringLiteral("%1 must be an array"));
        }
        const QJsonArray array = m_value.toArray();
        std::vector<Node> nodes;
        nodes.reserve(static_cast<size_t>(array.size()));
        for (int i = 0; i < array.size(); ++i) {
            nodes.emplace_back(array.at(i), m_place->parts[static_cast<size_t>(i)],
                               QStringLiteral("an entry of %1").arg(m_label));
        }
        return nodes;
    }

    std::string text() const
    {
        if (!m_value.isString()) {
            fail(QStringLiteral("%1 must be a string"));
        }
        if (m_value.toString().isEmpty()) {
            fail(QStringLiteral("%1 must not be empty"));
        }
        return m_value.toString().toStdString();
    }

    std::vector<std::string> names() const
    {
        std::vector<std::string> read;
        for (const Node& entry : entries()) {
            const std::string name = entry.text();
            entry.requireNew(read, name);
            read.push_back(name);
        }
        return read;
    }

    void requireNew(const std::vector<std::string>& known, const std::string& name) const
    {
        if (std::find(known.begin(), known.end(), name) != known.end()) {
            throw Fault{m_place->line,
                        QStringLiteral("\"%1\" stands twice").arg(QString::fromStdString(name))};
        }
    }

    void requireFormat() const
    {
        if (!m_value.isDouble()) {
            fail(QStringLiteral("%1 must be a number"));
        }
        if (m_value.toDouble() != supportedFormat) {
            fail(QStringLiteral("%1 must be ") + QString::number(supportedFormat));
        }
    }

private:
    QJsonValue m_value;
    const JsonPlace* m_place;
    QString m_label;
};

AttributeKind readKind(const Node& node)
{
    static const std::vector<std::pair<std::string, AttributeKind>> kinds = {
        {"flag", AttributeKind::Flag},       {"integer", AttributeKind::Integer},
        {"decimal", AttributeKind::Decimal}, {"text", AttributeKind::Text},
        {"choice", AttributeKind::Choice},
    };
    const std::string text = node.text();
    for (const auto& [name, kind] : kinds) {
        if (name == text) {
            return kind;
        }
    }
    node.fail(QStringLiteral("%1 is not one of flag, integer, decimal, text, choice"));
}

std::vector<std::string> readChoices(const Node& attribute, AttributeKind kind)
{
    const QString key = QStringLiteral("choices");
    const bool isChoice = kind == AttributeKind::Choice;
    if (!isChoice && !attribute.has(key)) {
        return {};
    }
    const Node node = attribute.member(key);
    std::vector<std::string> choices = node.names();
    if (choices.empty() == isChoice) {
        node.fail(isChoice ? QStringLiteral("%1 must not be empty")
                           : QStringLiteral("%1 belongs to the kind \"choice\" only"));
    }
    return choices;
}

/// Reads the objects of a list whose "name" tells them apart.
template <typename Read>
auto readNamed(const Node& list, Read read)
{
    std::vector<decltype(read(list))> all;
    std::vector<std::string> names;
    for (const Node& entry : list.entries()) {
        entry.requireObject();
        const Node name = entry.member(QStringLiteral("name"));
        name.requireNew(names, name.text());
        names.push_back(name.text());
        all.push_back(read(entry));
        all.back().name = names.back();
    }
    return all;
}

AttributeDefinition readAttribute(const Node& node)
{
    AttributeDefinition attribute;
    attribute.kind = readKind(node.member(QStringLiteral("kind")));
    attribute.choices = readChoices(node, attribute.kind);
    return attribute;
}

Job readJob(const Node& node)
{
    Job job;
    job.steps = node.member(QStringLiteral("steps")).names();
    job.fonts = node.member(QStringLiteral("fonts")).names();
    job.specialSymbols = node.member(QStringLiteral("specialSymbols")).names();
    job.userSymbols = node.member(QStringLiteral("userSymbols")).names();
    job.specialTexts = node.member(QStringLiteral("specialTexts")).names();
    job.attributes = readNamed(node.member(QStringLiteral("attributes")), readAttribute);
    return job;
}

std::vector<Job> readDocument(QFile& file)
{
    if (!file.open(QIODevice::ReadOnly)) {
        throw Fault{0, file.errorString()};
    }
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        throw Fault{0, file.errorString()};
    }
    QJsonParseError parsed;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parsed);
    if (parsed.error != QJsonParseError::NoError) {
        throw Fault{lineOfOffset(text, parsed.offset), parsed.errorString()};
    }
    const JsonPlace places = findJsonPlaces(text);
    const QJsonValue value =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    const Node root(value, places, QStringLiteral("the document"));
    root.requireObject();
    root.member(QStringLiteral("format")).requireFormat();
    return readNamed(root.member(QStringLiteral("jobs")), readJob);
}

}  // namespace

std::optional<std::vector<Job>> readJobFile(const QString& file, QString* error)
{
    try {
        QFile device(file);
        return readDocument(device);
    } catch (const Fault& fault) {
        if (error) {
            *error = QStringLiteral("%1:%2: ").arg(file).arg(fault.line) + fault.reason;
        }
        return std::nullopt;
    }
}

}  // namespace CanvasHost
