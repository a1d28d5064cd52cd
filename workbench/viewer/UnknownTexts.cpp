#include "viewer/UnknownTexts.h"

#include <QCoreApplication>

namespace {

QString text(const char* source)
{
    return QCoreApplication::translate("UnknownTexts", source);
}

QString with(const QString& first, const Pcb::Unknowns& unknowns)
{
    constexpr int mostNames = 10;
    if (unknowns.isEmpty()) {
        return {};
    }
    QStringList sentences{first.arg(unknowns.features)};
    if (!unknowns.symbols.isEmpty()) {
        const QString names = Pcb::quoted(unknowns.symbols.mid(0, mostNames));
        sentences.append(text(QT_TRANSLATE_NOOP("UnknownTexts", "Symbols: %1."))
                             .arg(unknowns.symbols.size() > mostNames ? names + ", ..." : names));
    }
    if (!unknowns.letters.isEmpty()) {
        sentences.append(
            text(QT_TRANSLATE_NOOP("UnknownTexts", "Letters: %1.")).arg(unknowns.letters));
    }
    return sentences.join(QLatin1Char(' '));
}

}  // namespace

QString UnknownTexts::drawn(const Pcb::Unknowns& unknowns)
{
    return with(
        text(QT_TRANSLATE_NOOP("UnknownTexts", "Features of unknown shape, as outlines: %1.")),
        unknowns);
}

QString UnknownTexts::leftOut(const Pcb::Unknowns& unknowns)
{
    return with(text(QT_TRANSLATE_NOOP("UnknownTexts",
                                       "Features of unknown shape, left out of the file: %1.")),
                unknowns);
}
