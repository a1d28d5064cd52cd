#include "viewer/BoardFiles.h"

#include "board/BoardFile.h"
#include "board/GerberExport.h"
#include "board/PictureExport.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr int pictureSize = 2000;  // pixels

using Write = bool (*)(const Pcb::Board& board, const QString& file, QString* error);

struct Kind {
    const char* suffix;
    Write write;
};

const Kind kinds[] = {
    {"json", Pcb::writeBoardFile},
    {"gbr", Pcb::writeGerber},
    {"png", [](const Pcb::Board& board, const QString& file,
               QString* error) { return Pcb::writePng(board, file, pictureSize, error); }},
    {"svg", Pcb::writeSvg},
};

}  // namespace

QString BoardFiles::open(Document& document, const QString& file)
{
    QString error;
    std::optional<Pcb::Board> board = Pcb::readBoardFile(file, &error);
    if (!board) {
        return error;
    }
    // The step stays what it is, whatever the file was saved from.
    board->job = document.board().job;
    board->step = document.board().step;
    document.replace(*board);
    return {};
}

QString BoardFiles::save(const Document& document, const QString& file)
{
    QString error;
    Pcb::writeBoardFile(document.board(), file, &error);
    return error;
}

QString BoardFiles::exportTo(const Document& document, const QString& file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    for (const Kind& kind : kinds) {
        if (suffix == QLatin1String(kind.suffix)) {
            QString error;
            kind.write(document.board(), file, &error);
            return error;
        }
    }
    return QCoreApplication::translate("BoardFiles",
                                       "%1: the name must end in .json, .gbr, .png or .svg")
        .arg(file);
}
