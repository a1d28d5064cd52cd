#include "SymbolNames.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace CanvasHost {
namespace {

struct Row {
    const char* prefix;
    SymbolShape shape;
    int leastSizes;
    int mostSizes;
};

constexpr Row rows[] = {
    {"r", SymbolShape::Round, 1, 1},           {"s", SymbolShape::Square, 1, 1},
    {"rect", SymbolShape::Rectangle, 2, 2},    {"oval", SymbolShape::Oval, 2, 2},
    {"diamond", SymbolShape::Diamond, 2, 2},   {"octagon", SymbolShape::Octagon, 2, 3},
    {"hexagon", SymbolShape::Hexagon, 2, 3},   {"triangle", SymbolShape::Triangle, 2, 2},
    {"ellipse", SymbolShape::Ellipse, 2, 2},   {"ring_r", SymbolShape::RoundRing, 2, 2},
    {"ring_s", SymbolShape::SquareRing, 2, 2},
};

}  // namespace

std::optional<SymbolName> parseSymbolName(const QString& name)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("([a-z_]+)([0-9]+(?:\\.[0-9]+)?(?:x[0-9]+(?:\\.[0-9]+)?)*)(_[0-9]+)?")));
    const QRegularExpressionMatch match = pattern.match(name);
    const QString prefix = match.captured(1);
    const QStringList sizes = match.captured(2).split(QLatin1Char('x'));
    const auto row = std::find_if(std::begin(rows), std::end(rows), [&](const Row& candidate) {
        return prefix == QLatin1String(candidate.prefix);
    });
    if (row == std::end(rows) || sizes.size() < row->leastSizes || sizes.size() > row->mostSizes) {
        return std::nullopt;
    }
    return SymbolName{row->shape, prefix, sizes, match.captured(3)};
}

}  // namespace CanvasHost
