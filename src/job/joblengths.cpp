#include "childelements.h"
#include "jobeditor_p.h"
#include "jobwords.h"
#include "lengthestimate.h"
#include "units.h"

#include <algorithm>

using namespace cabledoc;

namespace {

constexpr double noLength = -1.0;

/// Returns the place of the port or vertical run with the given tag. Its floor is empty if there is none.
PortFields placeOf(JobTree *tree, const QString &tag)
{
    const QDomElement port = tree->element(ElementKind::Ports, tag);
    return port.isNull() ? tree->read(vertRunKind(), tag) : tree->read(portKind(), port);
}

/// Returns the place of the point, port or vertical run with the given tag. Its floor is empty if there is none.
PortFields passedPlace(JobTree *tree, const QString &tag)
{
    if (!tree->contains(ElementKind::Points, tag))
        return placeOf(tree, tag);
    const PointFields point = tree->read(pointKind(), tag);
    PortFields place;
    place.element = tag;
    place.x = point.x;
    place.y = point.y;
    place.floor = point.parent;
    return place;
}

/// Returns the places that a cable passes, from end to end.
PassedPlaces placesOf(JobTree *tree, const QDomElement &cable)
{
    const CableFields fields = cableAttributes().read(cable);
    PassedPlaces places;
    const auto append = [&](const PortFields &place) {
        // The tag counts: a port or point with the tag of a vertical run leads to other floors too.
        places.push_back({place.floor, place.x, place.y, place.dropHeight,
                          tree->contains(ElementKind::VerticalRuns, place.element)});
    };
    append(placeOf(tree, fields.from));
    for (const QString &passed : fields.path)
        append(passedPlace(tree, passed));
    append(placeOf(tree, fields.to));
    return places;
}

bool areOnOneFloor(const PassedPlaces &places)
{
    return std::all_of(places.begin(), places.end(),
                       [&places](const PassedPlace &place) { return place.floor == places.front().floor; });
}

std::vector<Storey> storeysOf(const JobTree &tree)
{
    std::vector<Storey> storeys;
    const QStringList floors = tree.index().of(ElementKind::Floors).tags();
    // An estimate does not add attributes that floors of older files lack.
    for (const QString &floor : floors)
        storeys.emplace_back(floor, floorAttributes().read(tree.element(ElementKind::Floors, floor)).ceilingHeight);
    return storeys;
}

double lengthIn(const LengthEstimate &estimate, const PassedPlaces &places, bool metric)
{
    const std::optional<double> feet = estimate.length(places);
    if (!feet)
        return noLength;
    return metric ? *feet / feetInAMeter : *feet;
}

} // namespace

double JobEditor::estimateCableLength(const QString &tag, bool metric)
{
    const ScaleSettings scale = getScaleSettings(words::FloorPlanSettings);
    const PassedPlaces places = placesOf(&d->tree, d->tree.element(ElementKind::Cables, tag));
    const LengthEstimate estimate(scale, areOnOneFloor(places) ? std::vector<Storey>() : storeysOf(d->tree));
    return lengthIn(estimate, places, metric);
}

QMap<QString, double> JobEditor::estimateCableLengths(bool metric)
{
    const LengthEstimate estimate(getScaleSettings(words::FloorPlanSettings), storeysOf(d->tree));
    QMap<QString, double> lengths;
    for (const QDomElement &cable : ChildElements(getToCableList())) {
        // If several cables have the same tag, the first one counts.
        if (!lengths.contains(cable.tagName()))
            lengths.insert(cable.tagName(), lengthIn(estimate, placesOf(&d->tree, cable), metric));
    }
    return lengths;
}
