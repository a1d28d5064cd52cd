#include "viewer/UnknownTexts.h"

#include "board/Unknowns.h"

#include <QCoreApplication>

namespace {

struct UnknownWords {
    Q_DECLARE_TR_FUNCTIONS(UnknownTexts)
};

QString sentencesOn(const Pcb::Unknowns& unknowns, const QString& first)
{
    constexpr int mostNames = 10;
    if (unknowns.isEmpty()) {
        return {};
    }
    QStringList sentences{first};
    if (!unknowns.symbols.isEmpty()) {
        const QString names = Pcb::quoted(unknowns.symbols.mid(0, mostNames));
        sentences.append(UnknownWords::tr("Symbols: %1.")
                             .arg(unknowns.symbols.size() > mostNames ? names + ", ..." : names));
    }
    if (!unknowns.letters.isEmpty()) {
        sentences.append(UnknownWords::tr("Letters: %1.").arg(unknowns.letters));
    }
    return sentences.join(QLatin1Char(' '));
}

}  // namespace

QString UnknownTexts::drawn(const Pcb::Board& board)
{
    const Pcb::Unknowns unknowns = Pcb::unknownsOf(board);
    return sentencesOn(unknowns,
                       UnknownWords::tr("%n feature(s) of unknown shape drawn as outlines.", "",
                                        unknowns.features));
}

QString UnknownTexts::leftOut(const Pcb::Board& board)
{
    const Pcb::Unknowns unknowns = Pcb::unknownsOf(board);
    return sentencesOn(unknowns,
                       UnknownWords::tr("%n feature(s) of unknown shape left out of the file.", "",
                                        unknowns.features));
}
