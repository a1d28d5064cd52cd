#include "UiApiStandIn.h"

#include <LengthUnits.h>

#include <QCoreApplication>
#include <QPointF>

#include <algorithm>

namespace CanvasHost {
namespace {

const LengthUnit& current()
{
    const auto& units = lengthUnits();
    return *std::find_if(units.begin(), units.end(), [](const LengthUnit& candidate) {
        return candidate.unit == displayUnit();
    });
}

QString number(double micrometres)
{
    return QString::number(micrometres / current().micrometres, 'f', current().decimals);
}

QString translated(const char* text)
{
    return QCoreApplication::translate("Lengths", text);
}

}  // namespace

const std::vector<LengthUnit>& lengthUnits()
{
    static const std::vector<LengthUnit> units{
        {DisplayUnit::Mil, "mil", micrometresOfMil, 2, QT_TRANSLATE_NOOP("Lengths", "mil"),
         QT_TRANSLATE_NOOP("Lengths", "%1 mil"), QT_TRANSLATE_NOOP("Lengths", "%1, %2 mil")},
        {DisplayUnit::Inch, "inch", 1000 * micrometresOfMil, 5,
         QT_TRANSLATE_NOOP("Lengths", "inch"), QT_TRANSLATE_NOOP("Lengths", "%1 inch"),
         QT_TRANSLATE_NOOP("Lengths", "%1, %2 inch")},
        {DisplayUnit::Micrometre, "um", 1, 1, QT_TRANSLATE_NOOP("Lengths", "micrometre"),
         QT_TRANSLATE_NOOP("Lengths", "%1 um"), QT_TRANSLATE_NOOP("Lengths", "%1, %2 um")},
        {DisplayUnit::Millimetre, "mm", 1000, 4, QT_TRANSLATE_NOOP("Lengths", "millimetre"),
         QT_TRANSLATE_NOOP("Lengths", "%1 mm"), QT_TRANSLATE_NOOP("Lengths", "%1, %2 mm")},
    };
    return units;
}

QString unitText(const LengthUnit& unit)
{
    return translated(unit.title);
}

QString lengthText(double micrometres)
{
    return translated(current().length).arg(number(micrometres));
}

QString lengthText(const QPointF& point)
{
    return translated(current().point).arg(number(point.x()), number(point.y()));
}

}  // namespace CanvasHost
