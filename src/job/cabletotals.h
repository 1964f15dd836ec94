#pragma once

#include "cabledoc_export.h"
#include "jobsnapshot.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace cabledoc {

/// Cables that have something in common, and the sums of their lengths.
struct CableGroup
{
    /// What the cables have in common, such as the name of their type. It is empty for cables that do not have it.
    QString name;
    /// Number of cables.
    int cables = 0;
    /// Number of cables with a measured length.
    int measured = 0;
    /// Sum of the measured lengths.
    double measuredLength = 0.0;
    /// Number of cables with an estimated length.
    int estimated = 0;
    /// Sum of the estimated lengths.
    double estimatedLength = 0.0;
    /// Number of cables with a measured and an estimated length.
    int compared = 0;
    /// Sum of the measured lengths minus that of the estimated ones, of the cables that have both.
    double difference = 0.0;
};

/// Cables by the floors of their ends. The name of the group is the id of the floor.
struct FloorGroup : CableGroup
{
    /// Id of the other floor. It is empty if the cables stay on one floor, or if the job has only one of their ends.
    QString otherFloor;
};

/// What the cables and ports of a job add up to.
struct CableTotals
{
    /// All cables. The name is empty.
    CableGroup all;
    /// The cables by their types, in the string order of the names.
    QVector<CableGroup> byType;
    /// The cables by their uses, in the string order of the names.
    QVector<CableGroup> byUse;
    /// The cables by the floors of their ends, in the order of the floors. Cables without an end come first.
    QVector<FloorGroup> byFloor;
    /// The cables by the names of their bundles, in the string order of the names.
    QVector<CableGroup> byBundle;
    /// The cables by the status of their tests, in the string order of the names.
    QVector<CableGroup> byStatus;
    /// Number of ports by their uses.
    QMap<QString, int> portsByUse;
};

/// Adds up the cables and ports of a job. Lengths are in metres (metric is true) or in feet. Measured lengths are those
/// of JobSnapshot::measuredLength(), estimated ones those of JobSnapshot::estimatedLength(). Lengths that are not
/// finite numbers do not count.
CABLEDOC_EXPORT CableTotals totalsOf(const JobSnapshot &job, bool metric);

} // namespace cabledoc
