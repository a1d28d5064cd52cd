#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <map>
#include <string>
#include <vector>

/// The board that the viewer shows: a few features of every kind. Lengths are in micrometres, y
/// points up.
namespace Board {

struct Feature {
    QPainterPath shape;  ///< the area that it covers
    std::string symbol;  ///< empty: none (a surface)
    std::map<std::string, std::string> attributes;
};

QRectF outline();
const std::vector<Feature>& features();

/// The index of the topmost feature at `point`, or no farther from it than `tolerance`; -1: none.
int featureAt(const QPointF& point, double tolerance);

}  // namespace Board
