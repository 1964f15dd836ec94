#include "bkutilities.h"
#include "childelements.h"
#include "jobeditor_p.h"
#include "jobwords.h"
#include "units.h"

using namespace cabledoc;

namespace {

constexpr double noLength = -1.0;

/// Returns the length of a pixel of the floor plans in feet, or 0 if they have no scale.
double feetInAPixel(const ScaleSettings &settings)
{
    if (settings.style() != 1 && settings.style() != 2)
        return 0.0;
    // An English scale is the number of feet in an inch of the drawing. A metric one is a ratio.
    const double feetInAnInch = settings.isMetric() ? settings.scale() / inchesInAFoot : settings.scale();
    return feetInAnInch / pixelsInAnInch;
}

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

/// Returns the distance between the ceilings of two floors in feet. This is the height of the storeys above the lower
/// floor, up to and including the upper one.
double heightBetween(const JobEditorPrivate &d, const QString &tagA, const QString &tagB)
{
    const int numberA = JobEditor::getFloorNumber(tagA).toInt();
    const int numberB = JobEditor::getFloorNumber(tagB).toInt();
    if (numberA == numberB)
        return 0.0;
    double height = 0.0;
    const QStringList floors = d.floorsBetween(tagA, tagB) + QStringList(numberA < numberB ? tagB : tagA);
    // An estimate does not add attributes that floors of older files lack.
    for (const QString &floor : floors)
        height += floorAttributes().read(d.tree.element(ElementKind::Floors, floor)).ceilingHeight;
    return height;
}

double estimatedLength(JobEditorPrivate *d, const QDomElement &cable, double feetPerPixel, bool metric)
{
    JobTree &tree = d->tree;
    const CableFields fields = cableAttributes().read(cable);
    QVector<PortFields> way{placeOf(&tree, fields.from)};
    for (const QString &passed : fields.path)
        way.append(passedPlace(&tree, passed));
    way.append(placeOf(&tree, fields.to));

    double feet = way.constFirst().dropHeight + way.constLast().dropHeight;
    for (int i = 0; i < way.size(); ++i) {
        if (way.at(i).floor.isEmpty())
            return noLength;
        if (i == 0)
            continue;
        const PortFields &here = way.at(i - 1);
        const PortFields &there = way.at(i);
        feet += BKUtilities::getDistance({here.x, here.y}, {there.x, there.y}) * feetPerPixel;
        if (here.floor == there.floor)
            continue;
        // Only a vertical run leads to another floor.
        if (!tree.contains(ElementKind::VerticalRuns, here.element)
            && !tree.contains(ElementKind::VerticalRuns, there.element))
            return noLength;
        feet += heightBetween(*d, here.floor, there.floor);
    }
    if (feetPerPixel <= 0.0)
        return noLength;
    return metric ? feet / feetInAMeter : feet;
}

} // namespace

double JobEditor::estimateCableLength(const QString &tag, bool metric)
{
    const double scale = feetInAPixel(getScaleSettings(words::FloorPlanSettings));
    return estimatedLength(d.get(), d->tree.element(ElementKind::Cables, tag), scale, metric);
}

QMap<QString, double> JobEditor::estimateCableLengths(bool metric)
{
    const double scale = feetInAPixel(getScaleSettings(words::FloorPlanSettings));
    QMap<QString, double> lengths;
    for (const QDomElement &cable : ChildElements(getToCableList())) {
        // If several cables have the same tag, the first one counts.
        if (!lengths.contains(cable.tagName()))
            lengths.insert(cable.tagName(), estimatedLength(d.get(), cable, scale, metric));
    }
    return lengths;
}
