#pragma once

#include "cabledoc_export.h"
#include "csvoptions.h"

#include <QtCore/QByteArray>

namespace cabledoc {

class JobSnapshot;

/// How test results are exported.
struct ResultsExportOptions
{
    /// How the CSV text is written.
    CsvStyle style;
    /// Whether lengths are in metres. Otherwise they are in feet.
    bool metric = false;
};

/// Returns the tests of all cables as a table that ResultsPlan reads: for each cable the earlier tests and then the
/// current one. A cable without a test is left out. The table has the columns that hold something.
///
/// A test whose measurements cannot be given as lengths and a wire map has the tester's block instead. Lengths have as
/// many digits as are needed to get the same readings again.
CABLEDOC_EXPORT QByteArray exportResults(const JobSnapshot &job, const ResultsExportOptions &options = {});
/// Returns the tests of all active ports as a table that ResultsPlan reads, in the order in which they were added.
CABLEDOC_EXPORT QByteArray exportActiveResults(const JobSnapshot &job, const CsvStyle &style = {});

} // namespace cabledoc
