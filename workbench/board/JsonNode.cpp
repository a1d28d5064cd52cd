#include "board/JsonNode.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>
#include <utility>

namespace Pcb {

JsonNode::JsonNode(QJsonValue value, const CanvasHost::JsonPlace& place, QString label)
    : m_value(std::move(value)), m_place(&place), m_label(std::move(label))
{
}

void JsonNode::fail(const QString& reason) const
{
    throw JsonFault{m_place->line, m_label + QLatin1Char(' ') + reason};
}

void JsonNode::requireUniqueKeys() const
{
    if (!m_value.isObject()) {
        fail(QStringLiteral("must be an object"));
    }
    if (m_place->repeatedKey >= 0) {
        throw JsonFault{m_place->parts[static_cast<size_t>(m_place->repeatedKey)].line,
                        QStringLiteral("\"%1\" stands twice in one object")
                            .arg(m_place->keys.at(m_place->repeatedKey))};
    }
}

void JsonNode::requireObject(const QStringList& known) const
{
    requireUniqueKeys();
    for (int i = 0; i < m_place->keys.size(); ++i) {
        if (!known.contains(m_place->keys.at(i))) {
            throw JsonFault{
                m_place->parts[static_cast<size_t>(i)].line,
                QStringLiteral("\"%1\" does not belong to %2").arg(m_place->keys.at(i), m_label)};
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
        throw JsonFault{m_place->line, QStringLiteral("\"%1\" is missing").arg(key)};
    }
    return {m_value.toObject().value(key), m_place->parts[static_cast<size_t>(index)],
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
        fail(QStringLiteral("must be an array"));
    }
    const QJsonArray array = m_value.toArray();
    std::vector<JsonNode> nodes;
    nodes.reserve(static_cast<size_t>(array.size()));
    for (int i = 0; i < array.size(); ++i) {
        nodes.emplace_back(array.at(i), m_place->parts[static_cast<size_t>(i)],
                           QStringLiteral("an entry of %1").arg(m_label));
    }
    return nodes;
}

QString JsonNode::text() const
{
    if (!m_value.isString()) {
        fail(QStringLiteral("must be a string"));
    }
    return m_value.toString();
}

bool JsonNode::isTrue() const
{
    if (!m_value.isBool()) {
        fail(QStringLiteral("must be true or false"));
    }
    return m_value.toBool();
}

double JsonNode::number(double least, double most) const
{
    if (!m_value.isDouble()) {
        fail(QStringLiteral("must be a number"));
    }
    const double value = m_value.toDouble();
    if (!(value >= least && value <= most)) {
        fail(QStringLiteral("must be from %1 to %2").arg(least).arg(most));
    }
    return value;
}

int JsonNode::integer(int least, int most) const
{
    const double value = number(least, most);
    if (value != std::floor(value)) {
        fail(QStringLiteral("must be a whole number"));
    }
    return static_cast<int>(value);
}

int JsonNode::choice(const QStringList& choices) const
{
    const int index = choices.indexOf(text());
    if (index < 0) {
        fail(QStringLiteral("is not one of ") + choices.join(QStringLiteral(", ")));
    }
    return index;
}

}  // namespace Pcb
