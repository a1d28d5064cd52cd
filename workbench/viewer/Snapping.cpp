#include "viewer/Snapping.h"

#include "board/Paths.h"

#include <cmath>

using Pcb::Geometry;

namespace {

using Places = std::vector<Snapping::Place>;
using Snapping::Kind;

Places ofArc(const Geometry& geometry)
{
    const Pcb::ArcPlace arc = Pcb::arcPlace(geometry);
    return {{geometry.points[0], Kind::End},
            {Pcb::polar(arc.centre, arc.radius, arc.start + arc.sweep), Kind::End},
            {arc.centre, Kind::Centre}};
}

Places ofSurface(const Pcb::Feature& feature)
{
    const Geometry& geometry = feature.geometry();
    if (geometry.round) {
        return {{geometry.points[0], Kind::Centre}};
    }
    Places places;
    for (const QPointF& corner : geometry.points) {
        places.push_back({corner, Kind::End});
    }
    places.push_back({feature.bounds().center(), Kind::Centre});
    return places;
}

}  // namespace

std::vector<Snapping::Place> Snapping::placesOf(const Pcb::Feature& feature)
{
    const Geometry& geometry = feature.geometry();
    const QVector<QPointF>& points = geometry.points;
    if (points.size() < Pcb::leastPoints(geometry)) {
        return {};
    }
    switch (geometry.kind) {
        case Pcb::Kind::Line:
            return {{points[0], Kind::End},
                    {points[1], Kind::End},
                    {(points[0] + points[1]) / 2, Kind::Centre}};
        case Pcb::Kind::Pad:
            return {{points[0], Kind::Centre}};
        case Pcb::Kind::Arc:
            return ofArc(geometry);
        case Pcb::Kind::Surface:
            return ofSurface(feature);
        case Pcb::Kind::Text:
            return {{points[0], Kind::End}, {feature.bounds().center(), Kind::Centre}};
    }
    return {};
}

Snapping::Place Snapping::nearest(const Pcb::Board& board, const QPointF& point, double reach,
                                  double gridStep)
{
    Place best{
        {std::round(point.x() / gridStep) * gridStep, std::round(point.y() / gridStep) * gridStep},
        Kind::Grid};
    double least = reach;
    for (const Pcb::Feature& feature : board.features) {
        if (!feature.bounds().adjusted(-reach, -reach, reach, reach).contains(point)) {
            continue;
        }
        for (const Place& place : placesOf(feature)) {
            const double distance = Pcb::distance(place.point, point);
            if (distance <= least) {
                least = distance;
                best = place;
            }
        }
    }
    return best;
}
