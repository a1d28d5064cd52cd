#include "viewer/BoardFiles.h"

#include "board/BoardFile.h"
#include "board/GerberExport.h"
#include "board/PictureExport.h"

#include <FileError.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr int pictureSize = 2000;  // pixels

using Write = void (*)(const Pcb::Board& board, const QString& file);

struct Kind {
    const char* suffix;
    Write write;
};

const Kind kinds[] = {
    {"json", Pcb::writeBoardFile},
    {"gbr", Pcb::writeGerber},
    {"png",
     [](const Pcb::Board& board, const QString& file) { Pcb::writePng(board, file, pictureSize); }},
    {"svg", Pcb::writeSvg},
};

}  // namespace

void BoardFiles::open(Document& document, const QString& file)
{
    document.replace(Pcb::readBoardFile(file));
}

void BoardFiles::save(const Document& document, const QString& file)
{
    Pcb::writeBoardFile(document.board(), file);
}

void BoardFiles::exportTo(const Document& document, const QString& file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    for (const Kind& kind : kinds) {
        if (suffix == QLatin1String(kind.suffix)) {
            kind.write(document.board(), file);
            return;
        }
    }
    throw CanvasHost::FileError{
        file, 0,
        QCoreApplication::translate("FileErrors",
                                    "the name must end in .json, .gbr, .png or .svg")};
}
