#pragma once

#include "cabledoc_export.h"
#include "jobsnapshot.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace cabledoc {

/// What orderOf() adds to the lengths of cables, and the coils from which they are cut.
struct OrderOptions
{
    /// Fraction that is added to each length: 0.1 adds ten percent.
    double spare = 0.0;
    /// Length of a coil, or 0 if nothing is known about coils.
    double coilLength = 0.0;
    /// Lengths of the coils of single types and bundles, by their names.
    QMap<QString, double> coilLengths;
};

/// What has to be ordered of a cable type or of a bundle.
struct OrderItem
{
    /// Name of the type or bundle.
    QString name;
    /// Whether this is a bundle.
    bool isBundle = false;
    /// Number of runs of known length.
    int runs = 0;
    /// Sum of their lengths, with the spare length.
    double length = 0.0;
    /// Length of the longest run, with the spare length.
    double longest = 0.0;
    /// Length of a coil, or 0 if it is not known.
    double coilLength = 0.0;
    /// Number of coils from which all runs can be cut that are not longer than a coil.
    int coils = 0;
    /// What is left of these coils.
    double left = 0.0;
    /// Positions of the cables of unknown length. They are not in the sums.
    QVector<int> unknown;
    /// Positions of the cables that are longer than a coil. They are in the length, but not cut from the coils.
    QVector<int> tooLong;
};

/// Returns what has to be ordered for the cables of a job: the cable types in the string order of their names, then the
/// bundles. Lengths, also those of the options, are in metres (metric is true) or in feet.
///
/// The lengths are those of JobSnapshot::estimatedLength(). Each cable that is not in a bundle is a run of its type. A
/// bundle is ordered as such, because its cables are pulled together: the cables with the same bundle and the same
/// bundle group number are one run of the bundle, as long as the longest of them. Those of unknown length do not count
/// if another cable of the run has a length. A cable in a bundle without a group number is a run of its own.
CABLEDOC_EXPORT QVector<OrderItem> orderOf(const JobSnapshot &job, const OrderOptions &options, bool metric);

/// Returns the number of coils from which pieces can be cut without splices. It is not always the smallest possible
/// number: the longest pieces are cut first, each from the first coil that has enough left (first-fit decreasing).
/// Lengths are in metres (metric is true) or in feet, and count in whole millimetres. Pieces that are longer than a
/// coil do not count.
CABLEDOC_EXPORT int coilsFor(const QVector<double> &pieces, double coilLength, bool metric);

} // namespace cabledoc
