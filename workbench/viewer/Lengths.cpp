#include "viewer/Lengths.h"

#include <UiApiStandIn.h>

#include <QCoreApplication>

namespace {

struct Unit {
    double micrometres;
    const char* one;
    const char* two;
    CanvasHost::DisplayUnit unit;
    int decimals;
};
const Unit units[] = {
    {25.4, QT_TRANSLATE_NOOP("Lengths", "%1 mil"), QT_TRANSLATE_NOOP("Lengths", "%1, %2 mil"),
     CanvasHost::DisplayUnit::Mil, 1},
    {25400, QT_TRANSLATE_NOOP("Lengths", "%1 inch"), QT_TRANSLATE_NOOP("Lengths", "%1, %2 inch"),
     CanvasHost::DisplayUnit::Inch, 4},
    {1, QT_TRANSLATE_NOOP("Lengths", "%1 um"), QT_TRANSLATE_NOOP("Lengths", "%1, %2 um"),
     CanvasHost::DisplayUnit::Micrometre, 0},
    {1000, QT_TRANSLATE_NOOP("Lengths", "%1 mm"), QT_TRANSLATE_NOOP("Lengths", "%1, %2 mm"),
     CanvasHost::DisplayUnit::Millimetre, 3},
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
