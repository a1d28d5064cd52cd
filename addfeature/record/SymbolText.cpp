#include "addfeature/record/SymbolText.h"

#include "addfeature/record/HostUnits.h"

#include <cam_api.h>

#include <QRegularExpression>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

int suffixMark(const QString& name)
{
    return name.lastIndexOf(QLatin1Char('_'));
}

}  // namespace

const char* SymbolText::patternFor(FeatureType type)
{
    switch (type) {
        case FeatureType::Line:
            return "^[rs]?|[rs][0-9]+(\\.[0-9]+)?$";
        case FeatureType::Pad:
            return "^[a-z0-9_.+-]*$";
        case FeatureType::Arc:
            return "[r]?|[r][0-9]+(\\.[0-9]+)?$";
        case FeatureType::Surface:
        case FeatureType::Text:
            break;
    }
    return nullptr;
}

bool SymbolText::lacksSize(const QString& name)
{
    return name == QLatin1String("r") || name == QLatin1String("s");
}

bool SymbolText::isRound(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("\\Ar[0-9.]+\\z"));
    return pattern.match(name).hasMatch();
}

bool SymbolText::isStandard(const QString& name, bool forArc)
{
    ZENTRA::API::symbol_type type{};
    int a = 0;
    int b = 0;
    return ZENTRA::API::identify_symbol(name.toStdString(), type, a, b, forArc);
}

bool SymbolText::isSpecial(const QString& name, const std::string& job)
{
    std::vector<std::string> names;
    ZENTRA::API::get_special_symbol_names(job, names);
    return std::find(names.begin(), names.end(), name.toStdString()) != names.end();
}

std::optional<int> SymbolText::suffixOf(const QString& name)
{
    static const QRegularExpression digits(QStringLiteral("\\A[0-9]+\\z"));
    const QString suffix = name.mid(suffixMark(name) + 1);
    bool fits = false;
    const int degrees = suffix.toInt(&fits);
    return fits && digits.match(suffix).hasMatch() ? std::optional<int>(degrees) : std::nullopt;
}

QString SymbolText::withoutSuffix(const QString& name)
{
    return name.left(suffixMark(name));
}

int SymbolText::addedDegrees(const QString& name) const
{
    return m_isSuffixed ? name.section(QLatin1Char('_'), 1, 1).toInt() : 0;
}

QString SymbolText::stored(const QString& name) const
{
    return m_units.isMetricNow() ? HostUnits::storedSymbol(name) : name;
}

QString SymbolText::shown(const QString& name) const
{
    return m_units.isMetricNow() ? HostUnits::metricSymbol(name) : name;
}

bool SymbolText::isStoredForm(const QString& symbol, const QString& name) const
{
    return symbol == name || symbol == stored(name) ||
           (m_isSuffixed && symbol == stored(withoutSuffix(name)));
}

void SymbolText::keep(const QString& typed)
{
    m_metric.clear();
    m_other.clear();
    (m_units.isMetricNow() ? m_metric : m_other) = typed;
}

QString SymbolText::inUnit(bool isMetric, const QString& current)
{
    QString& kept = isMetric ? m_metric : m_other;
    if (kept.isEmpty()) {
        const QString& other = isMetric ? m_other : m_metric;
        kept = converted(other.isEmpty() ? current : other, isMetric);
    }
    return kept;
}

/// Sizes only: the degrees of a suffix are none.
QString SymbolText::converted(const QString& name, bool toMetric) const
{
    const auto convert = toMetric ? HostUnits::metricSymbol : HostUnits::storedSymbol;
    if (!m_isSuffixed || !suffixOf(name)) {
        return convert(name);
    }
    return QStringLiteral("%1_%2").arg(convert(withoutSuffix(name)),
                                       name.mid(suffixMark(name) + 1));
}
