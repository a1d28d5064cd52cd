#include "session/BoardPlaces.h"

#include <UiApiStandIn.h>

#include <QMetaObject>
#include <QWidget>

#include <cmath>

namespace BoardPlaces {
namespace {

bool offers(const QWidget* canvas, const char* signature)
{
    return canvas->metaObject()->indexOfMethod(signature) >= 0;
}

QString number(double value)
{
    // A nanometre is finer than any board's tolerance.
    QString digits = QString::number(value, 'f', 3);
    while (digits.endsWith(QLatin1Char('0'))) {
        digits.chop(1);
    }
    if (digits.endsWith(QLatin1Char('.'))) {
        digits.chop(1);
    }
    return digits == QLatin1String("-0") ? QStringLiteral("0") : digits;
}

}  // namespace

const QString canvasName = QStringLiteral("m_pBoardView");

std::optional<QPoint> toWidget(const QWidget* canvas, const QPointF& place)
{
    QPoint position;
    const bool known =
        offers(canvas, "viewPoint(double,double)") &&
        QMetaObject::invokeMethod(const_cast<QWidget*>(canvas), "viewPoint", Qt::DirectConnection,
                                  Q_RETURN_ARG(QPoint, position), Q_ARG(double, place.x()),
                                  Q_ARG(double, place.y()));
    return known ? std::optional<QPoint>(position) : std::nullopt;
}

bool toBoard(const QWidget* canvas, const QPoint& position, QPointF* place)
{
    return offers(canvas, "boardPoint(QPoint)") && offers(canvas, "viewPoint(double,double)") &&
           QMetaObject::invokeMethod(const_cast<QWidget*>(canvas), "boardPoint",
                                     Qt::DirectConnection, Q_RETURN_ARG(QPointF, *place),
                                     Q_ARG(QPoint, position));
}

bool readLength(const QString& text, double* micrometres)
{
    double factor = 1.0;
    QString digits = text;
    for (const CanvasHost::LengthUnit& unit : CanvasHost::lengthUnits()) {
        const QLatin1String suffix(unit.name);
        if (text.endsWith(suffix)) {
            factor = unit.micrometres;
            digits = text.chopped(suffix.size());
            break;
        }
    }
    bool ok = false;
    *micrometres = digits.toDouble(&ok) * factor;
    return ok && std::isfinite(*micrometres);
}

QString text(const QPointF& place)
{
    return number(place.x()) + QLatin1Char(' ') + number(place.y());
}

}  // namespace BoardPlaces
