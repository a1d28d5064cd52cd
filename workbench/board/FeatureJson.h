#pragma once

#include "board/Feature.h"

#include <Json.h>

#include <QJsonArray>
#include <QJsonObject>

namespace Pcb {

/// The format of board files.
constexpr int boardFormat = 1;

/// The farthest that a coordinate or size of a board file may be from 0, in micrometres.
constexpr double farthest = 1e7;

QJsonArray toJsonPoints(const QVector<QPointF>& points);
QVector<QPointF> pointsFromJson(const CanvasHost::JsonNode& node);

QJsonObject toJsonFeature(const Feature& feature);

/// Throws a FileError.
Feature featureFromJson(const CanvasHost::JsonNode& node);

}  // namespace Pcb
