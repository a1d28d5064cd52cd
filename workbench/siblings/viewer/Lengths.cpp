#include "viewer/Lengths.h"

#include <UiApiStandIn.h>

#include <QCoreApplication>

namespace {

struct Unit {
    CanvasHost::DisplayUnit unit;
    double micrometres;
    int decimals;
    const char* one;
    const char* two;
};
const Unit units[] = {
    {CanvasHost::DisplayUnit::Mil, 25.4, 1, QT_TRANSLATE_NOOP("Lengths", "%1 mil"),
     QT_TRANSLATE_NOOP("Lengths", "%1, %2 mil")},
    {CanvasHost::DisplayUnit::Inch, 25400, 4, QT_TRANSLATE_NOOP("Lengths", "%1 inch"),
     QT_TRANSLATE_NOOP("Lengths", "%1, %2 inch")},
    {CanvasHost::DisplayUnit::Micrometre, 1, 0, QT_TRANSLATE_NOOP("Lengths", "%1 um"),
     QT_TRANSLATE_NOOP("Lengths", "%1, %2 um")},
    {CanvasHost::DisplayUnit::Millimetre, 1000, 3, QT_TRANSLATE_NOOP("Lengths", "%1 mm"),
     QT_TRANSLATE_NOOP("Lengths", "%1, %2 mm")},
};

const Unit& current()
{
    for (const Unit& unit : units) {
        if (unit.unit == CanvasHost::displayUnit()) {
            return unit;
        }
    }
    return units[0];
}

QString number(double micrometres)
{
    return QString::number(micrometres / current().micrometres, 'f', current().decimals);
}

}  // namespace

QString Lengths::text(double micrometres)
{
    return QCoreApplication::translate("Lengths", current().one).arg(number(micrometres));
}

QString Lengths::text(const QPointF& point)
{
    return QCoreApplication::translate("Lengths", current().two)
        .arg(number(point.x()), number(point.y()));
}
