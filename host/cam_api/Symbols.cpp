#include "CamApiStandIn.h"
#include "cam_api.h"

#include <SymbolNames.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace CanvasHost {
namespace {

using ZENTRA::API::symbol_type;

/// The host's types for the shapes, in the order of SymbolShape.
constexpr symbol_type types[] = {
    symbol_type::round,   symbol_type::square,     symbol_type::rectangle,   symbol_type::oval,
    symbol_type::diamond, symbol_type::octagon,    symbol_type::hexagon,     symbol_type::triangle,
    symbol_type::ellipse, symbol_type::round_ring, symbol_type::square_ring, symbol_type::user,
};

int hundredths(double mil)
{
    constexpr double maximum = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(std::round(mil * 100), maximum));
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
    if (isRing(name->shape) && !(sizes[1] < sizes[0])) {
        return false;
    }
    type = types[static_cast<int>(name->shape)];
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
