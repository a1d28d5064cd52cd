#include "viewer/TypedPlace.h"

#include <UiApiStandIn.h>

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

#include <cmath>

namespace {

constexpr double farthest = 1e7;  // micrometres: no board is larger

const QString number = QStringLiteral("([-+]?(?:\\d+\\.?\\d*|\\.\\d+))\\s*([^-+.,;\uff0c\\d\\s]*)");

/// In micrometres; an empty name means the user's unit.
std::optional<double> factorOf(const QString& name)
{
    static const QHash<QString, QString> others{{QStringLiteral("in"), QStringLiteral("inch")},
                                                {QStringLiteral("\""), QStringLiteral("inch")},
                                                {QStringLiteral("\u00b5m"), QStringLiteral("um")}};
    const QString wanted = others.value(name.toLower(), name.toLower());
    for (const CanvasHost::LengthUnit& unit : CanvasHost::lengthUnits()) {
        const QString shown =
            QCoreApplication::translate("Lengths", unit.length).remove(QStringLiteral("%1"));
        if (wanted.isEmpty() ? unit.unit == CanvasHost::displayUnit()
                             : wanted == QLatin1String(unit.name) || wanted == shown.trimmed()) {
            return unit.micrometres;
        }
    }
    return {};
}

std::optional<double> lengthOf(const QString& digits, const QString& unit)
{
    const std::optional<double> factor = factorOf(unit);
    const double length = factor ? digits.toDouble() * *factor : farthest;
    return std::abs(length) < farthest ? std::optional<double>(length) : std::nullopt;
}

}  // namespace

std::optional<double> TypedPlace::readLength(const QString& text)
{
    static const QRegularExpression pattern('^' + number + '$');
    const auto match = pattern.match(text.trimmed());
    return match.hasMatch() ? lengthOf(match.captured(1), match.captured(2)) : std::nullopt;
}

std::optional<TypedPlace::Place> TypedPlace::readPlace(const QString& text)
{
    static const QRegularExpression pattern("^(@?)\\s*" + number + "(?:\\s*[,;\uff0c]\\s*|\\s+)" +
                                            number + '$');
    const auto match = pattern.match(text.trimmed());
    const bool isRelative = !match.captured(1).isEmpty();
    if (!match.hasMatch() || (!isRelative && text.contains(QLatin1Char('+')))) {
        return {};
    }
    const QString xUnit = match.captured(3);
    const QString yUnit = match.captured(5);
    const auto x = lengthOf(match.captured(2), xUnit.isEmpty() ? yUnit : xUnit);
    const auto y = lengthOf(match.captured(4), yUnit.isEmpty() ? xUnit : yUnit);
    return x && y ? std::optional<Place>({{*x, *y}, isRelative}) : std::nullopt;
}

bool TypedPlace::isOnBoard(const QPointF& point)
{
    return std::abs(point.x()) < farthest && std::abs(point.y()) < farthest;
}
