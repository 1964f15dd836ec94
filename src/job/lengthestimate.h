#pragma once

#include "scalesettings.h"

#include <optional>
#include <vector>

namespace cabledoc {

/// Returns the length of a pixel in feet on a drawing with a scale. Returns 0 if the settings give no scale.
double feetInAPixel(const ScaleSettings &settings);

/// A floor, as far as the lengths of cables depend on it.
struct Storey
{
    Storey(const QString &floorTag, double ceilingHeightOfFloor);

    /// Returns whether the number of this floor lies between those of the two others.
    bool liesBetween(const Storey &a, const Storey &b) const;

    QString floor;        ///< tag
    int number;           ///< the number in the tag
    double ceilingHeight; ///< counts as feet
};

/// A place that a cable passes, as far as its length depends on it.
struct PassedPlace
{
    QString floor; ///< tag of the floor; empty if the job does not have the place
    double x = 0.0;
    double y = 0.0;
    double dropHeight = 0.0;
    bool isVerticalRun = false;

    bool exists() const { return !floor.isEmpty(); }
};

/// The places of a cable from end to end.
using PassedPlaces = std::vector<PassedPlace>;

/// The rules for the lengths of cables on the plan. All lengths are in feet. A length without a value is unknown.
/// JobEditor::estimateCableLength() describes them.
class LengthEstimate
{
public:
    /// Makes an estimate without a scale and without floors.
    LengthEstimate() = default;
    /// Makes an estimate for plans with the given scale. The floors may be missing if no cable leads to another floor.
    LengthEstimate(const ScaleSettings &scale, std::vector<Storey> storeys);

    /// Returns the way from the ceiling down to an end.
    std::optional<double> drop(const PassedPlace &end) const;
    /// Returns the straight way between two places on the plan.
    std::optional<double> straightWay(const PassedPlace &here, const PassedPlace &there) const;
    /// Returns the way between the floors of two places. It is 0 if they are on one floor.
    std::optional<double> wayBetweenFloors(const PassedPlace &here, const PassedPlace &there) const;
    /// Returns the length of a cable, which is the sum of these.
    std::optional<double> length(const PassedPlaces &places) const;

private:
    double heightBetween(const QString &floorA, const QString &floorB) const;
    /// Returns the floor with the given tag, or a floor of the default height if there is none.
    Storey storeyOf(const QString &floor) const;

    double m_feetInAPixel = 0.0;   ///< not positive if the plans have no scale
    std::vector<Storey> m_storeys; ///< in the string order of their tags
};

} // namespace cabledoc
