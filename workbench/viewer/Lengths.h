#pragma once

#include <QPointF>
#include <QString>

/// Board lengths (micrometres) in the user's unit, for people to read.
namespace Lengths {

QString text(double micrometres);
QString text(const QPointF& point);

}  // namespace Lengths
