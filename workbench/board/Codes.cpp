#include "board/Codes.h"

#include <zint.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace Pcb {
namespace {

using ZintSymbol = std::unique_ptr<zint_symbol, void (*)(zint_symbol*)>;

/// Without the largest, whose byte order readers disagree on.
constexpr int matrixSides[] = {10, 12, 14, 16, 18, 20, 22, 24, 26,  32,  36, 40,
                               44, 48, 52, 64, 72, 80, 88, 96, 104, 120, 132};

int symbologyOf(BarcodeType type)
{
    switch (type) {
        case BarcodeType::Code39:
            return BARCODE_CODE39;
        case BarcodeType::Code39Ascii:
            return BARCODE_EXCODE39;
        case BarcodeType::Code128B:
            return BARCODE_CODE128B;
        case BarcodeType::Code128C:
            return BARCODE_CODE128;  // an even number of digits becomes pairs
        case BarcodeType::Matrix:
            break;
    }
    return BARCODE_DATAMATRIX;
}

bool isKnown(BarcodeType type, QChar character)
{
    const char code = character.toLatin1();
    switch (type) {
        case BarcodeType::Code39:
            return QByteArray("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%").contains(code);
        case BarcodeType::Code128C:
            return code >= '0' && code <= '9';
        case BarcodeType::Matrix:
            return character.unicode() < 128;
        default:
            return code >= ' ' && code <= '~';
    }
}

/// The library's option for that matrix size; 0: the smallest that holds the text.
int matrixOption(const QString& size)
{
    const int side =
        size.section(QLatin1Char('x'), 0, 0, QString::SectionCaseInsensitiveSeps).trimmed().toInt();
    const auto found = std::find(std::begin(matrixSides), std::end(matrixSides), side);
    return found == std::end(matrixSides)
               ? 0
               : static_cast<int>(std::distance(std::begin(matrixSides), found)) + 1;
}

/// Null where the text is too long for the code, or for that size of it.
ZintSymbol tryToEncode(BarcodeType type, const QString& text, int matrix)
{
    ZintSymbol symbol(ZBarcode_Create(), ZBarcode_Delete);
    symbol->symbology = symbologyOf(type);
    if (type == BarcodeType::Matrix) {
        symbol->option_2 = matrix;
        symbol->option_3 = DM_SQUARE;
    }
    const bool isOdd = type == BarcodeType::Code128C && text.size() % 2 == 1;
    const QByteArray bytes = (isOdd ? "0" : "") + text.toLatin1();
    const auto* const source = reinterpret_cast<const unsigned char*>(bytes.constData());
    if (ZBarcode_Encode(symbol.get(), source, bytes.size()) >= ZINT_ERROR) {
        symbol.reset();
    }
    return symbol;
}

QVector<QVector<bool>> modulesOf(const zint_symbol& symbol)
{
    QVector<QVector<bool>> rows(symbol.rows, QVector<bool>(symbol.width));
    for (int row = 0; row < symbol.rows; ++row) {
        for (int column = 0; column < symbol.width; ++column) {
            rows[row][column] = (symbol.encoded_data[row][column / 8] >> (column % 8)) & 1;
        }
    }
    return rows;
}

}  // namespace

Code encode(BarcodeType type, const QString& text, const QString& size)
{
    Code code;
    QString carried;
    for (const QChar character : text) {
        const QChar wanted = type == BarcodeType::Code39 ? character.toUpper() : character;
        if (isKnown(type, wanted)) {
            carried += wanted;
        } else {
            code.leftOut += character;
        }
    }
    // How long a text may be depends on its characters.
    for (; !carried.isEmpty(); carried.chop(1)) {
        ZintSymbol symbol = tryToEncode(type, carried, matrixOption(size));
        if (!symbol) {
            symbol = tryToEncode(type, carried, 0);
        }
        if (symbol) {
            code.rows = modulesOf(*symbol);
            break;
        }
        code.leftOut.prepend(carried.right(1));
    }
    return code;
}

}  // namespace Pcb
