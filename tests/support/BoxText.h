#pragma once

#include <QList>
#include <QString>

/// What a message box says, or is expected to say.
struct BoxText {
    enum class Match { Whole, Start, AnyWords };

    QString title;
    QString text;
    Match match = Match::Whole;  ///< how much of an expected text has to be there

    /// Whether the box that was seen is the one that this expects.
    bool matches(const BoxText& seen) const;
    QString words() const { return title + ": " + text; }
};
using BoxTextList = QList<BoxText>;

bool operator==(const BoxText& a, const BoxText& b);
/// What a failing comparison prints.
char* toString(const BoxText& box);

/// What the dialog's boxes say; the bounds are in the current unit.
namespace BoxTexts {

BoxText length(int bound);
/// Refuses a length, whatever the bound.
BoxText anyLength();
BoxText coordinate(int bound);
/// Refuses a coordinate, whatever the bound.
BoxText anyCoordinate();
/// The host's own.
BoxText number(int minimum, int maximum);
BoxText anyNumber();
/// A box of the host's, whatever it says.
BoxText hosts();
/// Refuses a symbol that was typed.
BoxText symbol();
/// Refuses a symbol that was picked on the board.
BoxText pickedSymbol(const QString& name);

}  // namespace BoxTexts
