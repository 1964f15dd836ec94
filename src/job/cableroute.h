#pragma once

#include "cabledoc_export.h"
#include "jobsnapshot.h"

#include <QtCore/QPointF>

#include <optional>

namespace cabledoc {

/// A place on the route of a cable: one of its ends, or a point, port or vertical run that it passes.
struct RouteStation
{
    /// Tag by which the cable names the place.
    QString tag;
    /// The place, which does not exist if the job does not have it.
    snapshot::Target place;
    /// Id of the place.
    QString id;
    /// Position of the room, or -1 for a point.
    int room = -1;
    /// Position of the floor.
    int floor = -1;
    /// Place on the floor plan, in plan pixels.
    QPointF position;
};

/// A part of the length of a cable.
struct RoutePart
{
    /// What the part is.
    enum Kind {
        Drop,          ///< from the ceiling down to an end of the cable
        Straight,      ///< the straight way between two stations on the plan
        BetweenFloors, ///< the way between the floors of two stations
    };

    /// What the part is.
    Kind kind = Straight;
    /// Number of the station at which the part begins.
    int from = 0;
    /// Number of the station at which the part ends. A drop begins and ends at the same station.
    int to = 0;
    /// Length in feet. It has no value if the length is unknown.
    std::optional<double> feet;
};

/// The route of a cable on the plan.
///
/// The length of a drop is unknown if the job does not have the end. That of a straight way is unknown if the floor
/// plan has no scale, or the job does not have one of the stations. That of a way between floors is unknown if neither
/// station is a vertical run. Lengths that are not finite numbers are unknown too.
struct CableRoute
{
    /// Position of the cable.
    int cable = -1;
    /// The stations from end to end. The first and the last one are the ends of the cable.
    QVector<RouteStation> stations;
    /// The parts of the length from end to end. There is a straight way from each station to the next one. A way
    /// between floors follows if they are on different floors.
    QVector<RoutePart> parts;
    /// Sum of the known parts in feet. This is the estimated length of the cable if the route is complete. Otherwise
    /// the cable has at least this length.
    double feet = 0.0;
    /// Whether the lengths of all parts are known.
    bool isComplete = false;
};

/// The direction in which a cable is followed.
enum class RouteDirection {
    Forward,  ///< from the end "from" of the cable to its end "to"
    Backward, ///< from the end "to" of the cable to its end "from"
};

/// Returns the route of the cable at the given position. Returns a route without stations if there is no such cable.
CABLEDOC_EXPORT CableRoute routeOf(const JobSnapshot &job, int cable,
                                   RouteDirection direction = RouteDirection::Forward);

/// Cables that are joined at their ends, one after the other.
///
/// Two cables are joined at a port or vertical run if no other cable ends there. If more cables end at a place, the
/// plan does not tell which of them belong together, so a chain ends there. A vertical run also ends a chain if one of
/// the two cables is not connected to it.
struct CableChain
{
    /// The routes of the cables. Each one begins where the one before ends.
    QVector<CableRoute> routes;
    /// Sum of the known parts of all routes in feet.
    double feet = 0.0;
    /// Whether the lengths of all parts of all routes are known.
    bool isComplete = false;
    /// Whether the last cable is joined to the first one.
    bool isRing = false;
    /// Number of other cables that end at the first station.
    int othersAtBegin = 0;
    /// Number of other cables that end at the last station.
    int othersAtEnd = 0;
};

/// Returns the chain to which the cable at the given position belongs. The direction is that of this cable. A ring
/// begins with this cable. Returns a chain without routes if there is no such cable.
CABLEDOC_EXPORT CableChain chainOf(const JobSnapshot &job, int cable,
                                   RouteDirection direction = RouteDirection::Forward);

} // namespace cabledoc
