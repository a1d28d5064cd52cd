#include "BoxText.h"

#include <QTest>

namespace {

// Tables of tests use these before main() starts.
constexpr char information[] = "Information";
constexpr char lengthStart[] = "The current text box can only enter a value from 0 to";
constexpr char coordinateStart[] = "The current value out of range:";
constexpr char numberStart[] = "The value must lie between ";

}  // namespace

bool BoxText::matches(const BoxText& seen) const
{
    switch (match) {
        case Match::Whole:
            return *this == seen;
        case Match::Start:
            return title == seen.title && seen.text.startsWith(text);
        case Match::AnyWords:
            return true;
    }
    Q_UNREACHABLE();
}

bool operator==(const BoxText& a, const BoxText& b)
{
    return a.title == b.title && a.text == b.text && a.match == b.match;
}

char* toString(const BoxText& box)
{
    return QTest::toString(box.words());
}

namespace BoxTexts {

BoxText length(int bound)
{
    return {information, lengthStart + QString::number(bound)};
}

BoxText anyLength()
{
    return {information, lengthStart, BoxText::Match::Start};
}

BoxText coordinate(int bound)
{
    return {
        information,
        QStringLiteral("%1%2 to %3").arg(QLatin1String(coordinateStart)).arg(-bound).arg(bound)};
}

BoxText anyCoordinate()
{
    return {information, coordinateStart, BoxText::Match::Start};
}

BoxText number(int minimum, int maximum)
{
    return {
        information,
        QStringLiteral("%1%2 and %3.").arg(QLatin1String(numberStart)).arg(minimum).arg(maximum)};
}

BoxText anyNumber()
{
    return {information, numberStart, BoxText::Match::Start};
}

BoxText hosts()
{
    return {{}, {}, BoxText::Match::AnyWords};
}

BoxText symbol()
{
    return {QStringLiteral("Illegal Input"), QStringLiteral("Unable to create special symbol!")};
}

BoxText pickedSymbol(const QString& name)
{
    return {QStringLiteral("Dialog Box"), "Illegal symbol name: " + name};
}

}  // namespace BoxTexts
