#include "board/DataMatrix.h"

#include <array>
#include <iterator>

namespace Pcb {
namespace {

using Bytes = QVector<int>;

struct Size {
    int modules;   ///< of one side, finder patterns included
    int regions;   ///< of one side
    int data;      ///< bytes
    int checking;  ///< bytes
};

constexpr Size sizes[] = {
    {10, 1, 3, 5},   {12, 1, 5, 7},    {14, 1, 8, 10},   {16, 1, 12, 12},  {18, 1, 18, 14},
    {20, 1, 22, 18}, {22, 1, 30, 20},  {24, 1, 36, 24},  {26, 1, 44, 28},  {32, 2, 62, 36},
    {36, 2, 86, 42}, {40, 2, 114, 48}, {44, 2, 144, 56}, {48, 2, 174, 68},
};

constexpr int padding = 129;
constexpr int firstPair = 130;
constexpr int fieldPolynomial = 301;

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

Bytes encoded(const QString& text)
{
    Bytes bytes;
    for (int i = 0; i < text.size(); ++i) {
        if (i + 1 < text.size() && isDigit(text.at(i)) && isDigit(text.at(i + 1))) {
            bytes.append(firstPair + text.midRef(i++, 2).toInt());
        } else if (text.at(i).unicode() < 128) {
            bytes.append(text.at(i).unicode() + 1);
        }
    }
    return bytes;
}

const Size& sizeFor(int bytes, const QString& wanted)
{
    const int modules = wanted.section(QLatin1Char('x'), 0, 0, QString::SectionCaseInsensitiveSeps)
                            .trimmed()
                            .toInt();
    for (const Size& size : sizes) {
        if (size.modules == modules && size.data >= bytes) {
            return size;
        }
    }
    for (const Size& size : sizes) {
        if (size.data >= bytes) {
            return size;
        }
    }
    return sizes[std::size(sizes) - 1];
}

/// Fills up to the capacity: one plain padding byte, the others disguised by their places.
void pad(Bytes& bytes, int capacity)
{
    bytes.resize(qMin(bytes.size(), capacity));
    bool isFirst = true;
    while (bytes.size() < capacity) {
        const int disguise = (149 * (bytes.size() + 1)) % 253 + 1;
        const int value = isFirst ? padding : padding + disguise;
        bytes.append(value > 254 ? value - 254 : value);
        isFirst = false;
    }
}

int product(int a, int b)
{
    int result = 0;
    for (; b; b >>= 1) {
        result ^= b & 1 ? a : 0;
        a <<= 1;
        a ^= a & 256 ? fieldPolynomial : 0;
    }
    return result;
}

Bytes checkingBytes(const Bytes& data, int count)
{
    Bytes generator{1};  // highest power first
    int root = 2;
    for (int i = 0; i < count; ++i) {
        generator.append(0);
        for (int k = generator.size() - 1; k > 0; --k) {
            generator[k] ^= product(generator.at(k - 1), root);
        }
        root = product(root, 2);
    }
    Bytes rest(count, 0);
    for (const int byte : data) {
        const int factor = byte ^ rest.first();
        rest.removeFirst();
        rest.append(0);
        for (int k = 0; k < count; ++k) {
            rest[k] ^= product(generator.at(k + 1), factor);
        }
    }
    return rest;
}

/// Lays bytes out on the square of data modules, eight modules a byte along diagonals.
class Layout {
public:
    Layout(const Bytes& bytes, int side) : m_bytes(bytes), m_side(side)
    {
        m_modules.fill(QVector<int>(side, -1), side);
        fillDiagonals();
        if (m_modules.at(side - 1).at(side - 1) < 0) {
            // The corner that no byte reaches.
            set(side - 1, side - 1, 1);
            set(side - 2, side - 2, 1);
            set(side - 1, side - 2, 0);
            set(side - 2, side - 1, 0);
        }
    }

    bool isDark(int row, int column) const { return m_modules.at(row).at(column) > 0; }

private:
    struct Place {
        int row;
        int column;
    };
    using Shape = std::array<Place, 8>;

    void set(int row, int column, int value) { m_modules[row][column] = value; }

    void setBit(int row, int column, int bit)
    {
        if (row < 0) {
            row += m_side;
            column += 4 - (m_side + 4) % 8;
        }
        if (column < 0) {
            column += m_side;
            row += 4 - (m_side + 4) % 8;
        }
        set(row, column, m_bytes.at(m_next) >> (7 - bit) & 1);
    }

    /// A byte's usual shape, its lower right corner at the place.
    void standard(int row, int column)
    {
        static constexpr Shape shape = {
            {{-2, -2}, {-2, -1}, {-1, -2}, {-1, -1}, {-1, 0}, {0, -2}, {0, -1}, {0, 0}}};
        for (size_t bit = 0; bit < shape.size(); ++bit) {
            setBit(row + shape[bit].row, column + shape[bit].column, static_cast<int>(bit));
        }
        ++m_next;
    }

    /// A byte split over corners; negative places count from the far side.
    void corner(const Shape& shape)
    {
        for (size_t bit = 0; bit < shape.size(); ++bit) {
            const auto [row, column] = shape[bit];
            set(row < 0 ? m_side + row : row, column < 0 ? m_side + column : column,
                m_bytes.at(m_next) >> (7 - static_cast<int>(bit)) & 1);
        }
        ++m_next;
    }

    void corners(int row, int column)
    {
        static constexpr Shape first = {
            {{-1, 0}, {-1, 1}, {-1, 2}, {0, -2}, {0, -1}, {1, -1}, {2, -1}, {3, -1}}};
        static constexpr Shape second = {
            {{-3, 0}, {-2, 0}, {-1, 0}, {0, -4}, {0, -3}, {0, -2}, {0, -1}, {1, -1}}};
        static constexpr Shape third = {
            {{-3, 0}, {-2, 0}, {-1, 0}, {0, -2}, {0, -1}, {1, -1}, {2, -1}, {3, -1}}};
        static constexpr Shape fourth = {
            {{-1, 0}, {-1, -1}, {0, -3}, {0, -2}, {0, -1}, {1, -3}, {1, -2}, {1, -1}}};
        if (row == m_side && column == 0) {
            corner(first);
        } else if (row == m_side - 2 && column == 0 && m_side % 4 != 0) {
            corner(second);
        } else if (row == m_side - 2 && column == 0 && m_side % 8 == 4) {
            corner(third);
        } else if (row == m_side + 4 && column == 2 && m_side % 8 == 0) {
            corner(fourth);
        }
    }

    bool isFree(int row, int column) const
    {
        return row >= 0 && row < m_side && column >= 0 && column < m_side &&
               m_modules.at(row).at(column) < 0;
    }

    void fillDiagonals()
    {
        int row = 4;
        int column = 0;
        do {
            corners(row, column);
            do {
                if (isFree(row, column)) {
                    standard(row, column);
                }
                row -= 2;
                column += 2;
            } while (row >= 0 && column < m_side);
            row += 1;
            column += 3;
            do {
                if (isFree(row, column)) {
                    standard(row, column);
                }
                row += 2;
                column -= 2;
            } while (row < m_side && column >= 0);
            row += 3;
            column += 1;
        } while (row < m_side || column < m_side);
    }

    const Bytes& m_bytes;
    int m_side;
    int m_next = 0;
    QVector<QVector<int>> m_modules;
};

/// Each region has a solid edge at its left and bottom, a dotted one at its top and right.
Modules withFinder(const Layout& layout, const Size& size)
{
    const int region = size.modules / size.regions;
    Modules all(size.modules, QVector<bool>(size.modules, false));
    for (int row = 0; row < size.modules; ++row) {
        for (int column = 0; column < size.modules; ++column) {
            const int y = row % region;
            const int x = column % region;
            if (x == 0 || y == region - 1) {
                all[row][column] = true;
            } else if (y == 0) {
                all[row][column] = x % 2 == 0;
            } else if (x == region - 1) {
                all[row][column] = y % 2 == 1;
            } else {
                all[row][column] =
                    layout.isDark(row - 1 - 2 * (row / region), column - 1 - 2 * (column / region));
            }
        }
    }
    return all;
}

}  // namespace

Modules dataMatrix(const QString& text, const QString& wanted)
{
    Bytes bytes = encoded(text);
    const Size& size = sizeFor(bytes.size(), wanted);
    pad(bytes, size.data);
    bytes += checkingBytes(bytes, size.checking);
    return withFinder(Layout(bytes, size.modules - 2 * size.regions), size);
}

}  // namespace Pcb
