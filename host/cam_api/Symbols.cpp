#include "CamApiStandIn.h"
#include "SymbolNameStandIn.h"
#include "cam_api.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace CanvasHost {
namespace {

using ZENTRA::API::symbol_type;

struct Shape {
    const char* prefix;
    symbol_type type;
    int leastSizes;
    int mostSizes;
    bool isRing;
};

constexpr Shape shapes[] = {
    {"r", symbol_type::round, 1, 1, false},
    {"s", symbol_type::square, 1, 1, false},
    {"rect", symbol_type::rectangle, 2, 2, false},
    {"oval", symbol_type::oval, 2, 2, false},
    {"diamond", symbol_type::diamond, 2, 2, false},
    {"octagon", symbol_type::octagon, 2, 3, false},
    {"hexagon", symbol_type::hexagon, 2, 3, false},
    {"triangle", symbol_type::triangle, 2, 2, false},
    {"ellipse", symbol_type::ellipse, 2, 2, false},
    {"ring_r", symbol_type::round_ring, 2, 2, true},
    {"ring_s", symbol_type::square_ring, 2, 2, true},
};

const Shape* findShape(const QString& prefix)
{
    const auto found = std::find_if(std::begin(shapes), std::end(shapes), [&](const Shape& shape) {
        return prefix == QLatin1String(shape.prefix);
    });
    return found == std::end(shapes) ? nullptr : found;
}

int hundredths(double mil)
{
    constexpr double largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(std::round(mil * 100), largest));
}

bool identifyStandard(const QString& text, symbol_type& type, int& a, int& b)
{
    const std::optional<SymbolName> name = parseSymbolName(text);
    if (!name || !name->rotation.isEmpty()) {
        return false;
    }
    std::vector<double> sizes;
    for (const QString& size : name->sizes) {
        bool isNumber = false;
        sizes.push_back(size.toDouble(&isNumber));
        if (!isNumber || !(sizes.back() > 0)) {
            return false;
        }
    }
    if (findShape(name->prefix)->isRing && !(sizes[1] < sizes[0])) {
        return false;
    }
    type = name->type;
    a = hundredths(sizes[0]);
    b = sizes.size() > 1 ? hundredths(sizes[1]) : a;
    return true;
}

bool isUserSymbol(const std::string& name)
{
    const Job* const job = currentJob();
    return job && std::count(job->userSymbols.begin(), job->userSymbols.end(), name) > 0;
}

}  // namespace

std::optional<SymbolName> parseSymbolName(const QString& name)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("([a-z_]+)([0-9]+(?:\\.[0-9]+)?(?:x[0-9]+(?:\\.[0-9]+)?)*)(_[0-9]+)?")));
    const QRegularExpressionMatch match = pattern.match(name);
    const Shape* const shape = match.hasMatch() ? findShape(match.captured(1)) : nullptr;
    if (!shape) {
        return std::nullopt;
    }
    const QStringList sizes = match.captured(2).split(QLatin1Char('x'));
    if (sizes.size() < shape->leastSizes || sizes.size() > shape->mostSizes) {
        return std::nullopt;
    }
    return SymbolName{shape->type, match.captured(1), sizes, match.captured(3)};
}

}  // namespace CanvasHost

namespace ZENTRA {
namespace API {

bool identify_symbol(const std::string& name, symbol_type& type, int& a, int& b, bool arc)
{
    if (const auto& replacement = CanvasHost::camApiOverrides().identify_symbol) {
        return replacement(name, type, a, b, arc);
    }
    type = symbol_type::unknown;
    a = b = 0;
    symbol_type found = symbol_type::unknown;
    int first = 0;
    int second = 0;
    if (!CanvasHost::identifyStandard(QString::fromStdString(name), found, first, second)) {
        if (!CanvasHost::isUserSymbol(name)) {
            return false;
        }
        found = symbol_type::user;
    }
    if (arc && found != symbol_type::round) {
        return false;
    }
    type = found;
    a = first;
    b = second;
    return true;
}

}  // namespace API
}  // namespace ZENTRA
