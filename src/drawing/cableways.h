#pragma once

#include "cablecolors.h"

namespace cabledoc {

/// A straight way on a floor plan that cables share.
struct CableWay
{
    QPointF from;   ///< in plan pixels
    QPointF to;     ///< in plan pixels
    int count = 0;  ///< number of cables
    int group = 0;  ///< group of the cables in the palette
    int cable = -1; ///< position of the cable, or -1 if there are several
};

/// Returns whether an element at this position, in plan pixels, has a place on the plan.
bool isPlaced(double x, double y);

/// Returns the ways of all cables on a floor. Ways that lie on each other are one way. It is divided where cables join
/// it or leave it.
QVector<CableWay> waysOnFloor(const JobSnapshot &job, int floor, const CablePalette &palette);

} // namespace cabledoc
