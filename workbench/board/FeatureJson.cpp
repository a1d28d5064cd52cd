#include "board/FeatureJson.h"

#include "board/TextJson.h"

#include <QCoreApplication>

namespace Pcb {

using CanvasHost::JsonNode;

namespace {

const QStringList kinds = {QStringLiteral("line"), QStringLiteral("pad"), QStringLiteral("surface"),
                           QStringLiteral("arc"), QStringLiteral("text")};
const QStringList polarities = {QStringLiteral("negative"), QStringLiteral("positive")};
const QStringList shapes = {QStringLiteral("polygon"), QStringLiteral("circle")};

constexpr double largestScale = 100;

/// The keys of each kind besides its kind, polarity, points and attributes.
struct KindKeys {
    Kind kind;
    bool symbol;
    bool shape;
    bool clockwise;
    bool place;  ///< rotation and mirror
    bool scale;
    bool text;
};

constexpr KindKeys keysOfKinds[] = {
    {Kind::Line, true, false, false, false, false, false},
    {Kind::Pad, true, false, false, true, true, false},
    {Kind::Surface, false, true, false, false, false, false},
    {Kind::Arc, true, false, true, false, false, false},
    {Kind::Text, false, false, false, true, false, true},
};

const KindKeys& keysOf(Kind kind)
{
    return keysOfKinds[static_cast<int>(kind)];
}

QStringList names(const KindKeys& keys)
{
    QStringList all = {QStringLiteral("kind"), QStringLiteral("polarity"), QStringLiteral("points"),
                       QStringLiteral("attributes")};
    const auto add = [&all](bool isWanted, const QStringList& more) {
        all += isWanted ? more : QStringList();
    };
    add(keys.symbol, {QStringLiteral("symbol")});
    add(keys.shape, {QStringLiteral("shape")});
    add(keys.clockwise, {QStringLiteral("clockwise")});
    add(keys.place, {QStringLiteral("rotation"), QStringLiteral("mirror")});
    add(keys.scale, {QStringLiteral("xScale"), QStringLiteral("yScale")});
    add(keys.text, {QStringLiteral("text")});
    return all;
}

double scaleFromJson(const JsonNode& node)
{
    const double scale = node.number(-largestScale, largestScale);
    if (scale == 0) {
        node.fail(QCoreApplication::translate("FileErrors", "must not be 0"));
    }
    return scale;
}

Attributes attributesFromJson(const JsonNode& node)
{
    Attributes attributes;
    for (const auto& [name, value] : node.members()) {
        attributes.insert(name, value.text());
    }
    return attributes;
}

void readPoints(const JsonNode& node, Geometry& geometry)
{
    geometry.points = pointsFromJson(node);
    const int least = leastPoints(geometry);
    const bool mayHaveMore = geometry.kind == Kind::Surface && !geometry.round;
    if (geometry.points.size() < least || (geometry.points.size() > least && !mayHaveMore)) {
        const char* const reason =
            mayHaveMore ? QT_TRANSLATE_NOOP("FileErrors", "must be at least %1 in number, not %2")
                        : QT_TRANSLATE_NOOP("FileErrors", "must be %1 in number, not %2");
        node.fail(QCoreApplication::translate("FileErrors", reason)
                      .arg(least)
                      .arg(geometry.points.size()));
    }
}

void readOfKind(const JsonNode& node, const KindKeys& keys, Geometry& geometry)
{
    if (keys.symbol) {
        geometry.symbol = node.member(QStringLiteral("symbol")).name();
    }
    if (keys.shape) {
        geometry.round = node.member(QStringLiteral("shape")).choice(shapes) == 1;
    }
    if (keys.clockwise) {
        geometry.clockwise = node.member(QStringLiteral("clockwise")).isTrue();
    }
    if (keys.place) {
        geometry.rotation = node.member(QStringLiteral("rotation")).number(-360, 360);
        geometry.mirror = node.member(QStringLiteral("mirror")).isTrue();
    }
    if (keys.scale) {
        geometry.xScale = scaleFromJson(node.member(QStringLiteral("xScale")));
        geometry.yScale = scaleFromJson(node.member(QStringLiteral("yScale")));
    }
    if (keys.text) {
        geometry.text = textFromJson(node.member(QStringLiteral("text")));
    }
}

}  // namespace

QJsonArray toJsonPoints(const QVector<QPointF>& points)
{
    QJsonArray array;
    for (const QPointF& point : points) {
        array.append(QJsonArray{point.x(), point.y()});
    }
    return array;
}

QVector<QPointF> pointsFromJson(const JsonNode& node)
{
    QVector<QPointF> points;
    for (const JsonNode& entry : node.entries()) {
        const std::vector<JsonNode> pair = entry.entries();
        if (pair.size() != 2) {
            entry.fail(QCoreApplication::translate("FileErrors", "must be a pair of numbers"));
        }
        points.append({pair[0].number(-farthest, farthest), pair[1].number(-farthest, farthest)});
    }
    return points;
}

QJsonObject toJsonFeature(const Feature& feature)
{
    const Geometry& geometry = feature.geometry();
    const KindKeys& keys = keysOf(geometry.kind);
    QJsonObject object;
    object.insert(QStringLiteral("kind"), kinds.at(static_cast<int>(geometry.kind)));
    object.insert(QStringLiteral("polarity"), polarities.at(geometry.positive ? 1 : 0));
    object.insert(QStringLiteral("points"), toJsonPoints(geometry.points));
    if (!geometry.attributes.isEmpty()) {
        QJsonObject attributes;
        for (auto entry = geometry.attributes.begin(); entry != geometry.attributes.end();
             ++entry) {
            attributes.insert(entry.key(), entry.value());
        }
        object.insert(QStringLiteral("attributes"), attributes);
    }
    const auto add = [&object](bool isWanted, const char* key, const QJsonValue& value) {
        if (isWanted) {
            object.insert(QLatin1String(key), value);
        }
    };
    add(keys.symbol, "symbol", geometry.symbol);
    add(keys.shape, "shape", shapes.at(geometry.round ? 1 : 0));
    add(keys.clockwise, "clockwise", geometry.clockwise);
    add(keys.place, "rotation", geometry.rotation);
    add(keys.place, "mirror", geometry.mirror);
    add(keys.scale, "xScale", geometry.xScale);
    add(keys.scale, "yScale", geometry.yScale);
    if (keys.text) {
        object.insert(QStringLiteral("text"), toJsonText(geometry.text));
    }
    return object;
}

Feature featureFromJson(const JsonNode& node)
{
    Geometry geometry;
    // The kind decides which keys there are; anything but an object has none.
    node.members();
    geometry.kind = static_cast<Kind>(node.member(QStringLiteral("kind")).choice(kinds));
    const KindKeys& keys = keysOf(geometry.kind);
    node.requireObject(names(keys));
    geometry.positive = node.member(QStringLiteral("polarity")).choice(polarities) == 1;
    if (node.has(QStringLiteral("attributes"))) {
        geometry.attributes = attributesFromJson(node.member(QStringLiteral("attributes")));
    }
    readOfKind(node, keys, geometry);
    readPoints(node.member(QStringLiteral("points")), geometry);
    return Feature(geometry);
}

}  // namespace Pcb
