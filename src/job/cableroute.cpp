#include "cableroute.h"

#include "jobsnapshot_p.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace cabledoc {

namespace {

using snapshot::Target;

RouteStation stationAt(const JobSnapshot &job, const Target &place, const QString &tag)
{
    RouteStation station;
    station.tag = tag;
    station.place = place;
    const auto take = [&station](const auto &element) {
        station.id = element.id;
        station.position = {element.x, element.y};
    };
    if (place.kind == ElementKind::Points) {
        const snapshot::Point &point = job.points().at(place.position);
        take(point);
        station.floor = point.holder;
    } else if (place.exists()) {
        const bool isPort = place.kind == ElementKind::Ports;
        isPort ? take(job.ports().at(place.position)) : take(job.verticalRuns().at(place.position));
        station.room = isPort ? job.ports().at(place.position).holder : job.verticalRuns().at(place.position).holder;
        station.floor = job.rooms().at(station.room).holder;
    }
    return station;
}

QVector<RouteStation> stationsOf(const JobSnapshot &job, const snapshot::Cable &cable)
{
    QVector<RouteStation> stations{stationAt(job, cable.fromTarget, cable.from)};
    for (int i = 0; i < cable.path.size(); ++i)
        stations.append(stationAt(job, cable.pathTargets.at(i), cable.path.at(i)));
    stations.append(stationAt(job, cable.toTarget, cable.to));
    return stations;
}

RoutePart part(RoutePart::Kind kind, int from, int to, const std::optional<double> &feet)
{
    return {kind, from, to, feet && std::isfinite(*feet) ? feet : std::nullopt};
}

QVector<RoutePart> partsOf(const LengthEstimate &estimate, const PassedPlaces &places)
{
    QVector<RoutePart> parts{part(RoutePart::Drop, 0, 0, estimate.drop(places.front()))};
    const int last = int(places.size()) - 1;
    for (int i = 0; i < last; ++i) {
        const PassedPlace &here = places[std::size_t(i)];
        const PassedPlace &there = places[std::size_t(i) + 1];
        parts.append(part(RoutePart::Straight, i, i + 1, estimate.straightWay(here, there)));
        if (here.exists() && there.exists() && here.floor != there.floor)
            parts.append(part(RoutePart::BetweenFloors, i, i + 1, estimate.wayBetweenFloors(here, there)));
    }
    parts.append(part(RoutePart::Drop, last, last, estimate.drop(places.back())));
    return parts;
}

bool isSame(const Target &a, const Target &b)
{
    return a.kind == b.kind && a.position == b.position;
}

RouteDirection opposite(RouteDirection direction)
{
    return direction == RouteDirection::Forward ? RouteDirection::Backward : RouteDirection::Forward;
}

/// A cable on the way through a chain.
struct Step
{
    int cable;
    RouteDirection direction;
};

Target endOf(const JobSnapshot &job, const Step &step)
{
    const snapshot::Cable &cable = job.cables().at(step.cable);
    return step.direction == RouteDirection::Forward ? cable.toTarget : cable.fromTarget;
}

Step reversed(const Step &step)
{
    return {step.cable, opposite(step.direction)};
}

bool endsAtOnePlace(const JobSnapshot &job, int cable)
{
    return isSame(job.cables().at(cable).fromTarget, job.cables().at(cable).toTarget);
}

bool isConnected(const JobSnapshot &job, int cable, const Target &place)
{
    return place.kind != ElementKind::VerticalRuns
           || !job.verticalRuns().at(place.position).disconnectedCables.contains(cable);
}

/// Returns the step with the cable that is joined to the end of a step, or nothing if there is none.
std::optional<Step> next(const JobSnapshot &job, const Step &step)
{
    const Target place = endOf(job, step);
    if (job.cableCountAt(place) != 2)
        return std::nullopt;
    const QVector<int> cables = job.cablesAt(place);
    const int other = cables.at(0) == step.cable ? cables.at(1) : cables.at(0);
    const auto canBeJoined = [&](int cable) {
        // Two ends of one cable and an end of another one are three.
        return !endsAtOnePlace(job, cable) && isConnected(job, cable, place);
    };
    if (!canBeJoined(step.cable) || !canBeJoined(other))
        return std::nullopt;
    const bool beginsThere = isSame(job.cables().at(other).fromTarget, place);
    return Step{other, beginsThere ? RouteDirection::Forward : RouteDirection::Backward};
}

/// Returns the steps from the given one to the end of the chain, or once around a ring.
std::vector<Step> stepsFrom(const JobSnapshot &job, const Step &first)
{
    std::vector<Step> steps{first};
    for (auto step = next(job, first); step && step->cable != first.cable; step = next(job, *step))
        steps.push_back(*step);
    return steps;
}

int otherCablesAt(const JobSnapshot &job, const Target &place)
{
    return std::max(0, job.cableCountAt(place) - 1);
}

} // namespace

CableRoute routeOf(const JobSnapshot &job, int cable, RouteDirection direction)
{
    CableRoute route;
    if (cable < 0 || cable >= job.cables().size())
        return route;
    const snapshot::Cable &fields = job.cables().at(cable);
    PassedPlaces places = job.d->placesOf(fields);
    route.cable = cable;
    route.stations = stationsOf(job, fields);
    if (direction == RouteDirection::Backward) {
        std::reverse(places.begin(), places.end());
        std::reverse(route.stations.begin(), route.stations.end());
    }
    route.parts = partsOf(job.d->estimate, places);
    route.isComplete = true;
    for (const RoutePart &part : std::as_const(route.parts)) {
        route.feet += part.feet.value_or(0.0);
        route.isComplete = route.isComplete && part.feet;
    }
    return route;
}

CableChain chainOf(const JobSnapshot &job, int cable, RouteDirection direction)
{
    CableChain chain;
    if (cable < 0 || cable >= job.cables().size())
        return chain;
    const Step start{cable, direction};
    const Step first = reversed(stepsFrom(job, reversed(start)).back());
    chain.isRing = next(job, reversed(first)).has_value();
    const std::vector<Step> steps = stepsFrom(job, chain.isRing ? start : first);
    chain.isComplete = true;
    for (const Step &step : steps) {
        chain.routes.append(routeOf(job, step.cable, step.direction));
        chain.feet += chain.routes.constLast().feet;
        chain.isComplete = chain.isComplete && chain.routes.constLast().isComplete;
    }
    if (!chain.isRing) {
        chain.othersAtBegin = otherCablesAt(job, endOf(job, reversed(steps.front())));
        chain.othersAtEnd = otherCablesAt(job, endOf(job, steps.back()));
    }
    return chain;
}

} // namespace cabledoc
