#pragma once

#include <QPoint>
#include <QPointF>
#include <QString>

#include <optional>

class QWidget;

/// Places on the board that a canvas shows, in micrometres, y up. A canvas offers them by two
/// methods that can be invoked: "QPoint viewPoint(double x, double y)" from the board to its
/// pixels, and "QPointF boardPoint(QPoint)" back.
namespace BoardPlaces {

/// The object name of the canvas.
extern const QString canvasName;

/// Nothing, or false, for a widget that does not offer it.
std::optional<QPoint> toWidget(const QWidget* canvas, const QPointF& place);
bool toBoard(const QWidget* canvas, const QPoint& position, QPointF* place);

/// A length with a unit (um, mm, mil, inch; um when absent) in micrometres; false for other text.
bool readLength(const QString& text, double* micrometres);
/// "1000 -250.5", without a unit, as the steps of a session take it.
QString text(const QPointF& place);

}  // namespace BoardPlaces
