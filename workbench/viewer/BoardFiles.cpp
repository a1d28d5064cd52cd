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

/// What went wrong in `work`; empty when nothing did.
template <class Work>
QString errorOf(Work work)
{
    try {
        work();
    } catch (const CanvasHost::FileError& error) {
        return error.text();
    }
    return {};
}

}  // namespace

QString BoardFiles::open(Document& document, const QString& file)
{
    return errorOf([&] { document.replace(Pcb::readBoardFile(file)); });
}

QString BoardFiles::save(const Document& document, const QString& file)
{
    return errorOf([&] { Pcb::writeBoardFile(document.board(), file); });
}

QString BoardFiles::exportTo(const Document& document, const QString& file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    for (const Kind& kind : kinds) {
        if (suffix == QLatin1String(kind.suffix)) {
            return errorOf([&] { kind.write(document.board(), file); });
        }
    }
    return QCoreApplication::translate("BoardFiles",
                                       "%1: the name must end in .json, .gbr, .png or .svg")
        .arg(file);
}
