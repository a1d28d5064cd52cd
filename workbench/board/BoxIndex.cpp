#include "board/BoxIndex.h"

#include <algorithm>
#include <cmath>

namespace Pcb {
namespace {

constexpr int leastExponent = 12;  // cells of some four millimetres hold a few dozen features

int exponentOf(const QRectF& box)
{
    int exponent = 0;
    std::frexp(std::max(box.width(), box.height()), &exponent);
    return std::max(exponent, leastExponent);
}

qint64 cellOf(double place, int exponent)
{
    constexpr double farthest = 1e15;
    return static_cast<qint64>(
        std::floor(qBound(-farthest, std::ldexp(place, -exponent), farthest)));
}

bool meet(const QRectF& a, const QRectF& b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() &&
           b.top() <= a.bottom();
}

}  // namespace

void BoxIndex::insert(int number, const QRectF& box)
{
    const int exponent = exponentOf(box);
    m_grids[exponent][{cellOf(box.left(), exponent), cellOf(box.top(), exponent)}].push_back(
        {number, box});
}

void BoxIndex::remove(int number, const QRectF& box)
{
    const int exponent = exponentOf(box);
    Grid& grid = m_grids[exponent];
    const auto cell = grid.find({cellOf(box.left(), exponent), cellOf(box.top(), exponent)});
    if (cell != grid.end()) {
        cell->erase(std::remove_if(cell->begin(), cell->end(),
                                   [=](const Entry& entry) { return entry.number == number; }),
                    cell->end());
        if (cell->empty()) {
            grid.erase(cell);
        }
    }
}

std::vector<int> BoxIndex::meeting(const QRectF& area) const
{
    std::vector<int> found;
    const auto gather = [&](const std::vector<Entry>& cell) {
        for (const Entry& entry : cell) {
            if (meet(entry.box, area)) {
                found.push_back(entry.number);
            }
        }
    };
    for (const auto& [exponent, grid] : m_grids) {
        const qint64 left = cellOf(area.left(), exponent) - 1;
        const qint64 right = cellOf(area.right(), exponent);
        const qint64 top = cellOf(area.top(), exponent) - 1;
        const qint64 bottom = cellOf(area.bottom(), exponent);
        if (double(right - left + 1) * double(bottom - top + 1) > grid.size()) {
            std::for_each(grid.begin(), grid.end(), gather);
            continue;
        }
        for (qint64 x = left; x <= right; ++x) {
            for (qint64 y = top; y <= bottom; ++y) {
                const auto cell = grid.find({x, y});
                if (cell != grid.end()) {
                    gather(*cell);
                }
            }
        }
    }
    return found;
}

}  // namespace Pcb
