#pragma once

#include "cabledoc_export.h"
#include "jobsnapshot.h"

#include <QtCore/QDate>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace cabledoc {

/// Something that the test results of a cable show.
struct ResultsFinding
{
    /// What a finding is about. Unless a kind says otherwise, it is about the current test of the cable.
    enum Kind {
        Untested,       ///< the status is "UNTESTED"
        Failed,         ///< the status is "FAIL"
        UnknownVerdict, ///< the status is not "PASS", "PASS*", "FAIL" or "UNTESTED"
        Retested,       ///< the cable has earlier tests
        Old,            ///< the test is older than ResultsStatusOptions::olderThan
        UnreadableTime, ///< it is not known whether the test is older
        TooLong,        ///< a pair in use is longer than the maximum length of the test definition
        TooMuchSkew,    ///< the delay skew is above that of the test definition
        WrongWiring,    ///< a pair in use is not wired as in the test definition, or is open, short or split
    };

    /// Position of the cable in JobSnapshot::cables().
    int cable = -1;
    /// What the finding is about.
    Kind kind = Untested;
    /// Translated description with the measurement, the limit and their units.
    QString message;
};

/// Options of resultsStatusOf().
struct ResultsStatusOptions
{
    /// Tests before the beginning of this day are reported. The age of tests is not checked if the date is not valid.
    QDate olderThan;
    /// Whether messages have lengths in metres and not in feet.
    bool metric = false;
};

/// What the test results of a job show.
struct ResultsStatus
{
    /// Number of cables.
    int cables = 0;
    /// Number of cables with the status "PASS".
    int passed = 0;
    /// Number of cables with the status "PASS*". They have passed within the accuracy of the tester.
    int passedWithinAccuracy = 0;
    /// The findings in the order of the cables. A cable has at most one finding of each kind.
    QVector<ResultsFinding> findings;

    /// Returns the number of findings of a kind, which is also the number of cables with such a finding.
    CABLEDOC_EXPORT int count(ResultsFinding::Kind kind) const;
};

/// Finds what is untested, failed, tested more than once, old, or outside the limits of the test definitions.
///
/// A status that is not known is reported as it stands. It does not count as passed or failed. Earlier tests are
/// counted, and so are those of them with the status "FAIL". Nothing else of them is checked.
///
/// The time of a test is read as ISO 8601. A time without a zone is compared as it stands, and one with a zone in UTC.
/// A cable with the status "UNTESTED" has no time.
///
/// A limit is only checked if the job has both the limit and the measurement:
///
/// - The maximum length is checked if the definition has one, and a length constant from 1000 to 6500. It is compared
///   with the longest reading of the pairs in use, in tenths of a foot.
/// - The skew is checked if the definition has one. It is compared with the greatest value of the parameters of
///   TestDetails whose name is "Skew" or "Delay skew" in upper or lower case. The value must be a number of
///   nanoseconds.
/// - The wiring is checked if the results have an entry for one of the pairs in use that is not 0xFF. It is compared
///   with TestDef::getPairTo(). TestDetails::wireMap() is always reported if it is not empty.
CABLEDOC_EXPORT ResultsStatus resultsStatusOf(const JobSnapshot &job,
                                              const ResultsStatusOptions &options = ResultsStatusOptions());

} // namespace cabledoc
