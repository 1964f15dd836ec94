#include "jobeditor.h"

#include "bkutilities.h"
#include "childelements.h"
#include "jobattributes.h"
#include "jobwords.h"
#include "units.h"

using namespace cabledoc;

namespace {

constexpr double noLength = -1.0;

/// What a pixel of the floor plans stands for; 0 when they have no scale.
double feetInAPixel(const ScaleSettings &settings)
{
    if (settings.style() != 1 && settings.style() != 2)
        return 0.0;
    // An English scale tells the feet in an inch of the drawing, a metric one the ratio.
    const double feetInAnInch = settings.isMetric() ? settings.scale() / inchesInAFoot : settings.scale();
    return feetInAnInch / pixelsInAnInch;
}

} // namespace

double JobEditor::estimateCableLength(const QString &tag, bool metric)
{
    return estimatedLength(cableElement(tag), feetInAPixel(getScaleSettings(words::FloorPlanSettings)), metric);
}

QMap<QString, double> JobEditor::estimateCableLengths(bool metric)
{
    const double scale = feetInAPixel(getScaleSettings(words::FloorPlanSettings));
    QMap<QString, double> lengths;
    for (const QDomElement &cable : ChildElements(getToCableList())) {
        // Of cables that share a tag the first counts.
        if (!lengths.contains(cable.tagName()))
            lengths.insert(cable.tagName(), estimatedLength(cable, scale, metric));
    }
    return lengths;
}

double JobEditor::estimatedLength(const QDomElement &cable, double feetPerPixel, bool metric) const
{
    const CableFields fields = cableAttributes().read(cable);
    QVector<Port> way{placeOf(fields.from)};
    for (const QString &passed : fields.path)
        way.append(pointExists(passed, true) ? placeOfPoint(passed) : placeOf(passed));
    way.append(placeOf(fields.to));

    double feet = way.constFirst().dropHeight() + way.constLast().dropHeight();
    for (int i = 0; i < way.size(); ++i) {
        if (way.at(i).floor().isEmpty())
            return noLength;
        if (i == 0)
            continue;
        const Port &here = way.at(i - 1);
        const Port &there = way.at(i);
        feet += BKUtilities::getDistance({here.x(), here.y()}, {there.x(), there.y()}) * feetPerPixel;
        if (here.floor() == there.floor())
            continue;
        // Nothing but a vertical run leads to another floor.
        if (!vertRunExists(here.element(), true) && !vertRunExists(there.element(), true))
            return noLength;
        feet += heightBetween(here.floor(), there.floor());
    }
    if (feetPerPixel <= 0.0)
        return noLength;
    return metric ? feet / feetInAMeter : feet;
}

/// Where a cable can end: a port or a vertical run. A record without a floor when there is none.
Port JobEditor::placeOf(const QString &tag) const
{
    const QDomElement port = portElement(tag);
    return Port(readPort(port.isNull() ? vertRunElement(tag) : port));
}

/// A point, which has no height of its own, as such a place.
Port JobEditor::placeOfPoint(const QString &tag) const
{
    const Point point = getPointByTag(tag);
    return {tag, point.id(), point.x(), point.y(), QString(), 1.0, 0.0, QString(), point.parent()};
}

/// The way from the ceiling of a floor to that of another one: through the storeys above the lower floor, up to and
/// including the upper one.
double JobEditor::heightBetween(const QString &tagA, const QString &tagB) const
{
    const int numberA = getFloorNumber(tagA).toInt();
    const int numberB = getFloorNumber(tagB).toInt();
    if (numberA == numberB)
        return 0.0;
    double height = 0.0;
    const QStringList floors = getFloorsInBetween(tagA, tagB) + QStringList(numberA < numberB ? tagB : tagA);
    for (const QString &floor : floors)
        height += floorAttributes().read(floorElement(floor)).ceilingHeight;
    return height;
}
