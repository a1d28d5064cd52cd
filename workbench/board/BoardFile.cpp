#include "board/BoardFile.h"

#include "board/FeatureJson.h"
#include "board/GerberExport.h"
#include "board/PictureExport.h"

#include <FileKind.h>
#include <Files.h>
#include <Json.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace Pcb {
namespace {

constexpr int supportedFormat = 1;

Board boardFromJson(const CanvasHost::JsonNode& root)
{
    root.requireObject({QStringLiteral("format"), QStringLiteral("job"), QStringLiteral("step"),
                        QStringLiteral("outline"), QStringLiteral("features")});
    root.member(QStringLiteral("format")).integer(supportedFormat, supportedFormat);
    Board board;
    board.job = root.member(QStringLiteral("job")).text();
    board.step = root.member(QStringLiteral("step")).text();
    board.outline = QPolygonF(pointsFromJson(root.member(QStringLiteral("outline"))));
    for (const CanvasHost::JsonNode& node : root.member(QStringLiteral("features")).entries()) {
        board.features.push_back(featureFromJson(node));
    }
    return board;
}

}  // namespace

QByteArray toJson(const Board& board)
{
    // One line per feature, so that errors have a useful line number and diffs are readable.
    QByteArray text = "{\n  \"format\": " + QByteArray::number(supportedFormat);
    text += ",\n  \"job\": " + CanvasHost::compactJson(board.job);
    text += ",\n  \"step\": " + CanvasHost::compactJson(board.step);
    text += ",\n  \"outline\": " + CanvasHost::compactJson(toJsonPoints(board.outline));
    text += ",\n  \"features\": [";
    const char* separator = "\n    ";
    for (const Feature& feature : board.features) {
        text += separator + CanvasHost::compactJson(toJsonFeature(feature));
        separator = ",\n    ";
    }
    return text + (board.features.empty() ? "]\n}\n" : "\n  ]\n}\n");
}

Board fromJson(const QByteArray& text, const QString& file)
{
    const CanvasHost::JsonDocument document(text, file);
    return boardFromJson(document.root());
}

Board readBoardFile(const QString& file)
{
    const QByteArray text = CanvasHost::readWhole(file);
    return CanvasHost::readAs(CanvasHost::FileKind::Board, text,
                              [&] { return fromJson(text, file); });
}

void writeBoardFile(const Board& board, const QString& file)
{
    CanvasHost::writeWhole(file, toJson(board));
}

void exportBoard(const Board& board, const QString& file)
{
    constexpr int pictureSize = 2000;  // pixels
    const QString suffix = QFileInfo(file).suffix().toLower();
    if (suffix == QLatin1String("json")) {
        writeBoardFile(board, file);
    } else if (suffix == QLatin1String("gbr")) {
        writeGerber(board, file);
    } else if (suffix == QLatin1String("png")) {
        writePng(board, file, pictureSize);
    } else if (suffix == QLatin1String("svg")) {
        writeSvg(board, file);
    } else {
        throw CanvasHost::FileError{
            file, 0,
            QCoreApplication::translate("FileErrors",
                                        "the name must end in .json, .gbr, .png or .svg")};
    }
}

}  // namespace Pcb
