#include "board/BoardFile.h"

#include "board/BoardText.h"
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

Board boardFromJson(const CanvasHost::JsonNode& root, const Progress& progress)
{
    root.requireObject({QStringLiteral("format"), QStringLiteral("job"), QStringLiteral("step"),
                        QStringLiteral("outline"), QStringLiteral("features")});
    root.member(QStringLiteral("format")).integer(boardFormat, boardFormat);
    Board board;
    board.job = root.member(QStringLiteral("job")).text();
    board.step = root.member(QStringLiteral("step")).text();
    board.outline = QPolygonF(pointsFromJson(root.member(QStringLiteral("outline"))));
    const auto nodes = root.member(QStringLiteral("features")).entries();
    for (const CanvasHost::JsonNode& node : nodes) {
        progress.at(board.features.size(), nodes.size());
        board.features.push_back(featureFromJson(node));
    }
    return board;
}

}  // namespace

QByteArray toJson(const Board& board, const Progress& progress)
{
    return BoardText().of(board, progress);
}

Board fromJson(const QByteArray& text, const QString& file, const Progress& progress)
{
    constexpr double parsed = 0.4;
    const Progress parsing = progress.part(0, parsed);
    const CanvasHost::JsonDocument document(text, file, [&](double share) { parsing.tell(share); });
    return boardFromJson(document.root(), progress.part(parsed, 1));
}

Board readBoardFile(const QString& file, const Progress& progress)
{
    const QByteArray text = CanvasHost::readWhole(file);
    return CanvasHost::readAs(CanvasHost::FileKind::Board, text,
                              [&] { return fromJson(text, file, progress); });
}

void writeBoardFile(const Board& board, const QString& file, const Progress& progress)
{
    CanvasHost::writeWhole(file, toJson(board, progress));
}

void exportBoard(const Board& board, const QString& file, const Progress& progress)
{
    constexpr int pictureSize = 2000;  // pixels
    const QString suffix = QFileInfo(file).suffix().toLower();
    if (suffix == QLatin1String("json")) {
        writeBoardFile(board, file, progress);
    } else if (suffix == QLatin1String("gbr")) {
        writeGerber(board, file, progress);
    } else if (suffix == QLatin1String("png")) {
        writePng(board, file, pictureSize, progress);
    } else if (suffix == QLatin1String("svg")) {
        writeSvg(board, file, progress);
    } else {
        throw CanvasHost::FileError{
            file, 0,
            QCoreApplication::translate("FileErrors", "the name must end in .gbr, .png or .svg")};
    }
}

}  // namespace Pcb
