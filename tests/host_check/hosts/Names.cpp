#include "Host.h"

#include <cam_api.h>
#include <ui_api.h>

#include <QRegularExpression>

Name parsed(const QString& name)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A([a-z_]+)([0-9.]+(?:x[0-9.]+)*)(_[0-9]+)?\\z"));
    const QRegularExpressionMatch match = pattern.match(name);
    const QStringList sizes = match.captured(2).split('x');
    for (const Habits::Shape& shape : habits.shapes) {
        if (match.captured(1) == shape.prefix && sizes.size() == shape.sizes) {
            return {match.captured(1), sizes, match.captured(3)};
        }
    }
    return {};
}

std::vector<std::string> fontsOf(const std::string& job)
{
    if (habits.hasFontsForAnyJob) {
        return {"standard", "italic"};
    }
    return job == "demo" ? std::vector<std::string>{"standard"} : std::vector<std::string>{};
}

const std::vector<std::string>& specialSymbols()
{
    static const std::vector<std::string> names = {"cross.1", "target"};
    return names;
}

namespace ZENTRA {
namespace API {

bool identify_symbol(const std::string& name, symbol_type& type, int& a, int& b, bool /*arc*/)
{
    const Name parts = parsed(QString::fromStdString(name));
    if (parts.sizes.isEmpty() || !parts.rest.isEmpty()) {
        return false;
    }
    type = symbol_type(parts.sizes.size());
    a = int(parts.sizes.first().toDouble() * habits.sizeOfMil);
    b = int(parts.sizes.last().toDouble() * habits.sizeOfMil);
    return true;
}

void get_special_symbol_names(const std::string& /*job*/, std::vector<std::string>& names)
{
    names.insert(names.end(), specialSymbols().begin(), specialSymbols().end());
}

void get_fonts(const std::string& job, std::vector<std::string>& names)
{
    for (const std::string& font : fontsOf(job)) {
        names.push_back(font);
    }
}

}  // namespace API

namespace UIAPI {

QString setSymbolUIData(const QString& name, int direction)
{
    static const QRegularExpression decimals(QStringLiteral("\\.[0-9]+"));
    Name parts = parsed(name);
    if (parts.sizes.isEmpty() || isWrong("identity")) {
        return name;
    }
    for (QString& size : parts.sizes) {
        size = converted(size, direction == 1);
    }
    const QString other = parts.prefix + parts.sizes.join('x') + parts.rest;
    return isWrong("symbol names") ? QString(other).remove(decimals) : other;
}

}  // namespace UIAPI
}  // namespace ZENTRA
