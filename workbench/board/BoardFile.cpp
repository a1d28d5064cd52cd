#include "board/BoardFile.h"

#include "board/FeatureJson.h"
#include "board/FileOutput.h"

#include <QFile>
#include <QJsonDocument>

namespace Pcb {
namespace {

constexpr int supportedFormat = 1;

QByteArray compact(const QJsonValue& value)
{
    const QByteArray listed = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return listed.mid(1, listed.size() - 2);
}

Board boardFromJson(const JsonNode& root)
{
    root.requireObject({QStringLiteral("format"), QStringLiteral("job"), QStringLiteral("step"),
                        QStringLiteral("outline"), QStringLiteral("features")});
    root.member(QStringLiteral("format")).integer(supportedFormat, supportedFormat);
    Board board;
    board.job = root.member(QStringLiteral("job")).text();
    board.step = root.member(QStringLiteral("step")).text();
    board.outline = QPolygonF(pointsFromJson(root.member(QStringLiteral("outline"))));
    for (const JsonNode& node : root.member(QStringLiteral("features")).entries()) {
        board.features.push_back(featureFromJson(node));
    }
    return board;
}

}  // namespace

QByteArray toJson(const Board& board)
{
    // A line for each feature: what is wrong in one is found, and what changed in one is seen.
    QByteArray text = "{\n  \"format\": " + QByteArray::number(supportedFormat);
    text += ",\n  \"job\": " + compact(board.job);
    text += ",\n  \"step\": " + compact(board.step);
    text += ",\n  \"outline\": " + compact(toJsonPoints(board.outline));
    text += ",\n  \"features\": [";
    const char* separator = "\n    ";
    for (const Feature& feature : board.features) {
        text += separator + compact(toJsonFeature(feature));
        separator = ",\n    ";
    }
    return text + (board.features.empty() ? "]\n}\n" : "\n  ]\n}\n");
}

std::optional<Board> fromJson(const QByteArray& text, QString* error)
{
    const auto fail = [error](int line, const QString& reason) {
        if (error) {
            *error = QStringLiteral("%1: %2").arg(line).arg(reason);
        }
        return std::nullopt;
    };
    QJsonParseError parsed;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parsed);
    if (parsed.error != QJsonParseError::NoError) {
        return fail(CanvasHost::lineOfOffset(text, parsed.offset), parsed.errorString());
    }
    const CanvasHost::JsonPlace places = CanvasHost::findJsonPlaces(text);
    const QJsonValue value =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    try {
        return boardFromJson(JsonNode(value, places, QStringLiteral("the document")));
    } catch (const JsonFault& fault) {
        return fail(fault.line, fault.reason);
    }
}

std::optional<Board> readBoardFile(const QString& file, QString* error)
{
    QFile device(file);
    QByteArray text;
    if (device.open(QIODevice::ReadOnly)) {
        text = device.readAll();
    }
    if (device.error() != QFileDevice::NoError) {
        if (error) {
            *error = QStringLiteral("%1:0: %2").arg(file, device.errorString());
        }
        return std::nullopt;
    }
    QString reason;
    std::optional<Board> board = fromJson(text, &reason);
    if (!board && error) {
        *error = QStringLiteral("%1:%2").arg(file, reason);
    }
    return board;
}

bool writeBoardFile(const Board& board, const QString& file, QString* error)
{
    return writeWhole(file, toJson(board), error);
}

}  // namespace Pcb
