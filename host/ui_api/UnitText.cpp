#include "UnitText.h"

#include "UiApiStandIn.h"
#include "ui_api.h"

#include <SymbolNames.h>

#include <algorithm>
#include <cmath>

namespace CanvasHost {
namespace {

constexpr int minimumDigits = 6;
constexpr int maximumDigits = 15;

/// `value` rounded to that many significant digits, without exponent or trailing zeros.
QString plainText(double value, int digits)
{
    const QString scientific = QString::number(std::abs(value), 'e', digits - 1);
    const int e = scientific.indexOf(QLatin1Char('e'));
    QString text = scientific.left(e).remove(QLatin1Char('.'));
    while (text.size() > 1 && text.endsWith(QLatin1Char('0'))) {
        text.chop(1);
    }
    if (text == QLatin1String("0")) {
        return text;
    }
    const int pointAt = scientific.mid(e + 1).toInt() + 1;
    if (pointAt <= 0) {
        text = QLatin1String("0.") + QString(-pointAt, QLatin1Char('0')) + text;
    } else if (pointAt < text.size()) {
        text.insert(pointAt, QLatin1Char('.'));
    } else {
        text = text.leftJustified(pointAt, QLatin1Char('0'));
    }
    return value < 0 ? QLatin1Char('-') + text : text;
}

/// The number of significant digits of a text of plainText(), or the number that every text may
/// have if that is more.
int precision(QString text)
{
    text.remove(QLatin1Char('-')).remove(QLatin1Char('.'));
    const auto isZero = [](QChar c) { return c == QLatin1Char('0'); };
    const auto first = std::find_if_not(text.cbegin(), text.cend(), isZero);
    const auto last = std::find_if_not(text.crbegin(), text.crend(), isZero).base();
    return std::max(static_cast<int>(last - first), minimumDigits);
}

QString rounded(const QString& text, bool toMetric, int digits)
{
    const double value = text.toDouble();
    return plainText(toMetric ? value * metricFactor : value / metricFactor, digits);
}

/// The text in the other unit that corresponds to `text`, with at most that many digits; null if
/// there is none.
///
/// Two texts correspond if each is the other one, converted and rounded to its own number of
/// digits, and if neither has such a counterpart with fewer digits. The second condition makes the
/// relation one to one, so that converting there and back gives the same text. It is decided by the
/// same search with fewer digits, which therefore terminates.
QString counterpart(const QString& text, bool toMetric, int digitLimit)
{
    const int ownDigits = precision(text);
    for (int digits = minimumDigits; digits <= digitLimit; ++digits) {
        QString candidate = rounded(text, toMetric, digits);
        if (rounded(candidate, !toMetric, ownDigits) == text &&
            counterpart(candidate, !toMetric, ownDigits - 1).isNull()) {
            return candidate;
        }
    }
    return QString();
}

}  // namespace

QString convertNumber(const QString& text, bool toMetric)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value * metricFactor)) {
        return QString();
    }
    const QString source = plainText(value, maximumDigits);
    const QString result = counterpart(source, toMetric, maximumDigits);
    return result.isNull() ? rounded(source, toMetric, maximumDigits) : result;
}

}  // namespace CanvasHost

namespace ZENTRA {
namespace UIAPI {

QString setSymbolUIData(const QString& name, int direction)
{
    if (const auto& replacement = CanvasHost::uiApiOverrides().setSymbolUIData) {
        return replacement(name, direction);
    }
    std::optional<CanvasHost::SymbolName> parts = CanvasHost::parseSymbolName(name);
    if (!parts || (direction != 0 && direction != 1)) {
        return name;
    }
    for (QString& size : parts->sizes) {
        const QString converted = CanvasHost::convertNumber(size, direction == 1);
        if (converted.isNull()) {
            return name;
        }
        size = converted;
    }
    return parts->prefix + parts->sizes.join(QLatin1Char('x')) + parts->rotation;
}

}  // namespace UIAPI
}  // namespace ZENTRA
