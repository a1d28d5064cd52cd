#include "board/Unknowns.h"

#include <QSet>

#include <algorithm>

namespace Pcb {
namespace {

using Letters = QVector<uint>;

/// What cannot be printed is named by its number.
QString printed(const Letters& letters)
{
    QString text;
    for (const uint letter : letters) {
        text += QChar::isPrint(letter)
                    ? QString::fromUcs4(&letter, 1)
                    : QStringLiteral("U+%1").arg(letter, 4, 16, QLatin1Char('0')).toUpper();
    }
    return text;
}

QStringList sorted(const QSet<QString>& names)
{
    QStringList all = names.values();
    std::sort(all.begin(), all.end());
    return all;
}

}  // namespace

Unknowns unknownsOf(const Board& board)
{
    Unknowns found;
    QSet<QString> symbols;
    Letters letters;
    for (const Feature& feature : board.features) {
        if (feature.unknown().isEmpty()) {
            continue;
        }
        ++found.features;
        if (feature.kind() != Kind::Text) {
            symbols.insert(feature.symbol());
            continue;
        }
        for (const uint letter : drawText(feature.geometry().text).lacking.toUcs4()) {
            if (!letters.contains(letter)) {
                letters.append(letter);
            }
        }
    }
    found.symbols = sorted(symbols);
    found.letters = printed(letters);
    return found;
}

QString quoted(const QStringList& names)
{
    QStringList all;
    for (const QString& name : names) {
        all.append(QLatin1Char('"') + printed(name.toUcs4()) + QLatin1Char('"'));
    }
    return all.join(QStringLiteral(", "));
}

QStringList wordsInFile(const Unknowns& unknowns)
{
    QStringList lines;
    if (!unknowns.symbols.isEmpty()) {
        lines.append(QStringLiteral("Left out, symbols of unknown shape: ") +
                     quoted(unknowns.symbols));
    }
    if (!unknowns.letters.isEmpty()) {
        lines.append(QStringLiteral("Left out, letters that the font lacks: ") + unknowns.letters);
    }
    return lines;
}

}  // namespace Pcb
