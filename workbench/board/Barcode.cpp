#include "board/Barcode.h"

namespace Pcb {
namespace {

struct Code39 {
    char character;
    const char* widths;  ///< bar, gap, bar, ... in narrow bars
};

constexpr Code39 code39[] = {
    {'0', "111331311"}, {'1', "311311113"}, {'2', "113311113"}, {'3', "313311111"},
    {'4', "111331113"}, {'5', "311331111"}, {'6', "113331111"}, {'7', "111311313"},
    {'8', "311311311"}, {'9', "113311311"}, {'A', "311113113"}, {'B', "113113113"},
    {'C', "313113111"}, {'D', "111133113"}, {'E', "311133111"}, {'F', "113133111"},
    {'G', "111113313"}, {'H', "311113311"}, {'I', "113113311"}, {'J', "111133311"},
    {'K', "311111133"}, {'L', "113111133"}, {'M', "313111131"}, {'N', "111131133"},
    {'O', "311131131"}, {'P', "113131131"}, {'Q', "111111333"}, {'R', "311111331"},
    {'S', "113111331"}, {'T', "111131331"}, {'U', "331111113"}, {'V', "133111113"},
    {'W', "333111111"}, {'X', "131131113"}, {'Y', "331131111"}, {'Z', "133131111"},
    {'-', "131111313"}, {'.', "331111311"}, {' ', "133111311"}, {'$', "131313111"},
    {'/', "131311131"}, {'+', "131113131"}, {'%', "111313131"}, {'*', "131131311"},
};

struct Pair {
    char character;
    const char* pair;  ///< what stands for it in plain Code 39
};

constexpr Pair asciiPairs[] = {
    {'!', "/A"},  {'"', "/B"}, {'#', "/C"}, {'$', "/D"},  {'%', "/E"}, {'&', "/F"},
    {'\'', "/G"}, {'(', "/H"}, {')', "/I"}, {'*', "/J"},  {'+', "/K"}, {',', "/L"},
    {'/', "/O"},  {':', "/Z"}, {';', "%F"}, {'<', "%G"},  {'=', "%H"}, {'>', "%I"},
    {'?', "%J"},  {'@', "%V"}, {'[', "%K"}, {'\\', "%L"}, {']', "%M"}, {'^', "%N"},
    {'_', "%O"},  {'`', "%W"}, {'{', "%P"}, {'|', "%Q"},  {'}', "%R"}, {'~', "%S"},
};

/// Widths of the 103 values of Code 128 and its three start signs.
constexpr const char* code128[] = {
    "212222", "222122", "222221", "121223", "121322", "131222", "122213", "122312", "132212",
    "221213", "221312", "231212", "112232", "122132", "122231", "113222", "123122", "123221",
    "223211", "221132", "221231", "213212", "223112", "312131", "311222", "321122", "321221",
    "312212", "322112", "322211", "212123", "212321", "232121", "111323", "131123", "131321",
    "112313", "132113", "132311", "211313", "231113", "231311", "112133", "112331", "132131",
    "113123", "113321", "133121", "313121", "211331", "231131", "213113", "213311", "213131",
    "311123", "311321", "331121", "312113", "312311", "332111", "314111", "221411", "431111",
    "111224", "111422", "121124", "121421", "141122", "141221", "112214", "112412", "122114",
    "122411", "142112", "142211", "241211", "221114", "413111", "241112", "134111", "111242",
    "121142", "121241", "114212", "124112", "124211", "411212", "421112", "421211", "212141",
    "214121", "412121", "111143", "111341", "131141", "114113", "114311", "411113", "411311",
    "113141", "114131", "311141", "411131", "211412", "211214", "211232",
};

constexpr const char* stop128 = "2331112";
constexpr int startB = 104;
constexpr int startC = 105;
constexpr int modulus128 = 103;

void appendWidths(QVector<int>& widths, const char* digits)
{
    for (const char* digit = digits; *digit; ++digit) {
        widths.append(*digit - '0');
    }
}

const char* widthsOf39(QChar character)
{
    for (const Code39& row : code39) {
        if (QLatin1Char(row.character) == character) {
            return row.widths;
        }
    }
    return nullptr;
}

QString asciiIn39(const QString& text)
{
    QString spelled;
    for (const QChar character : text) {
        if (character >= QLatin1Char('a') && character <= QLatin1Char('z')) {
            spelled += QLatin1Char('+') + character.toUpper();
            continue;
        }
        const Pair* found = nullptr;
        for (const Pair& row : asciiPairs) {
            found = QLatin1Char(row.character) == character ? &row : found;
        }
        spelled += found ? QString::fromLatin1(found->pair) : QString(character);
    }
    return spelled;
}

QVector<int> in39(const QString& text)
{
    QVector<int> widths;
    for (const QChar character : QLatin1Char('*') + text + QLatin1Char('*')) {
        if (const char* const digits = widthsOf39(character)) {
            if (!widths.isEmpty()) {
                widths.append(1);
            }
            appendWidths(widths, digits);
        }
    }
    return widths;
}

QVector<int> in128(int start, const QVector<int>& values)
{
    QVector<int> widths;
    appendWidths(widths, code128[start]);
    int sum = start;
    for (int i = 0; i < values.size(); ++i) {
        appendWidths(widths, code128[values.at(i)]);
        sum = (sum + (i + 1) * values.at(i)) % modulus128;
    }
    appendWidths(widths, code128[sum % modulus128]);
    appendWidths(widths, stop128);
    return widths;
}

bool isKnown(BarcodeType type, QChar character)
{
    switch (type) {
        case BarcodeType::Code39:
            return character != QLatin1Char('*') && widthsOf39(character);
        case BarcodeType::Code128C:
            return character >= QLatin1Char('0') && character <= QLatin1Char('9');
        default:
            return character >= QLatin1Char(' ') && character <= QLatin1Char('~');
    }
}

}  // namespace

QString encodable(BarcodeType type, const QString& text)
{
    QString known;
    for (const QChar character : text) {
        const QChar wanted = type == BarcodeType::Code39 ? character.toUpper() : character;
        if (isKnown(type, wanted)) {
            known += wanted;
        }
    }
    if (type == BarcodeType::Code128C && known.size() % 2 == 1) {
        known.prepend(QLatin1Char('0'));
    }
    return known;
}

QVector<int> linearBarcode(BarcodeType type, const QString& text)
{
    const QString known = encodable(type, text);
    if (type == BarcodeType::Code39) {
        return in39(known);
    }
    if (type == BarcodeType::Code39Ascii) {
        return in39(asciiIn39(known));
    }
    QVector<int> values;
    const bool isPairs = type == BarcodeType::Code128C;
    for (int i = 0; i < known.size(); i += isPairs ? 2 : 1) {
        values.append(isPairs ? known.midRef(i, 2).toInt() : known.at(i).unicode() - u' ');
    }
    return in128(isPairs ? startC : startB, values);
}

}  // namespace Pcb
