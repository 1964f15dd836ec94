#include "lengthestimate.h"

#include "bkutilities.h"
#include "jobeditor.h"
#include "units.h"

#include <algorithm>

namespace cabledoc {

namespace {

std::optional<double> sum(const std::optional<double> &a, const std::optional<double> &b)
{
    return a && b ? std::optional<double>(*a + *b) : std::nullopt;
}

} // namespace

double feetInAPixel(const ScaleSettings &settings)
{
    if (settings.style() != 1 && settings.style() != 2)
        return 0.0;
    // An English scale is the number of feet in an inch of the drawing. A metric one is a ratio.
    const double feetInAnInch = settings.isMetric() ? settings.scale() / inchesInAFoot : settings.scale();
    return feetInAnInch / pixelsInAnInch;
}

Storey::Storey(const QString &floorTag, double ceilingHeightOfFloor)
    : floor(floorTag)
    , number(JobEditor::getFloorNumber(floorTag).toInt())
    , ceilingHeight(ceilingHeightOfFloor)
{
}

bool Storey::liesBetween(const Storey &a, const Storey &b) const
{
    const auto [low, high] = std::minmax(a.number, b.number);
    return low < number && number < high;
}

LengthEstimate::LengthEstimate(const ScaleSettings &scale, std::vector<Storey> storeys)
    : m_feetInAPixel(feetInAPixel(scale))
    , m_storeys(std::move(storeys))
{
    // All estimates add the heights in the same order, so that their sums are the same to the last bit.
    std::sort(m_storeys.begin(), m_storeys.end(), [](const Storey &a, const Storey &b) { return a.floor < b.floor; });
}

std::optional<double> LengthEstimate::drop(const PassedPlace &end) const
{
    return end.exists() ? std::optional<double>(end.dropHeight) : std::nullopt;
}

std::optional<double> LengthEstimate::straightWay(const PassedPlace &here, const PassedPlace &there) const
{
    if (!here.exists() || !there.exists() || m_feetInAPixel <= 0.0)
        return std::nullopt;
    return BKUtilities::getDistance({here.x, here.y}, {there.x, there.y}) * m_feetInAPixel;
}

std::optional<double> LengthEstimate::wayBetweenFloors(const PassedPlace &here, const PassedPlace &there) const
{
    if (!here.exists() || !there.exists())
        return std::nullopt;
    if (here.floor == there.floor)
        return 0.0;
    // Only a vertical run leads to another floor.
    if (!here.isVerticalRun && !there.isVerticalRun)
        return std::nullopt;
    return heightBetween(here.floor, there.floor);
}

std::optional<double> LengthEstimate::length(const PassedPlaces &places) const
{
    std::optional<double> feet = sum(drop(places.front()), drop(places.back()));
    for (std::size_t i = 1; i < places.size() && feet; ++i) {
        feet = sum(feet, straightWay(places[i - 1], places[i]));
        feet = sum(feet, wayBetweenFloors(places[i - 1], places[i]));
    }
    return feet;
}

/// Returns the distance between the ceilings of two floors. This is the height of the storeys above the lower floor, up
/// to and including the upper one.
double LengthEstimate::heightBetween(const QString &floorA, const QString &floorB) const
{
    const Storey a = storeyOf(floorA);
    const Storey b = storeyOf(floorB);
    if (a.number == b.number)
        return 0.0;
    double height = 0.0;
    for (const Storey &storey : m_storeys) {
        if (storey.liesBetween(a, b))
            height += storey.ceilingHeight;
    }
    return height + (a.number < b.number ? b : a).ceilingHeight;
}

Storey LengthEstimate::storeyOf(const QString &floor) const
{
    const auto found = std::lower_bound(m_storeys.begin(), m_storeys.end(), floor,
                                        [](const Storey &storey, const QString &tag) { return storey.floor < tag; });
    return found != m_storeys.end() && found->floor == floor ? *found : Storey(floor, FloorFields().ceilingHeight);
}

} // namespace cabledoc
