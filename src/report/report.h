#pragma once

#include "cabledoc_export.h"
#include "drawingoptions.h"
#include "jobsnapshot.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace cabledoc {

/// The kinds of reports. Each has print settings of its own in a job.
enum class ReportKind {
    Test,      ///< the tests of the cables, with a part of a page or a page for each ("DetailedCable_Settings")
    Summary,   ///< who, where, and how many cables and ports ("JobInfo_Settings")
    Inventory, ///< what is built in, by type and by room ("Inventory_Settings")
    Schedule,  ///< the cables as a table ("TestSched_Settings")
    Notes,     ///< the notes of the job ("JobNotes_Settings")
    Active,    ///< the tests of ports in the working network ("ActiveNetworkTestResults_Settings")
};

/// How a report is made.
struct ReportOptions
{
    /// The kind of report.
    ReportKind kind = ReportKind::Test;
    /// Positions of the cables that the report has, in their order. Reports of the kinds Test and Schedule have no
    /// other cables. The other kinds have all that the job has.
    QVector<int> cables;
    /// Whether lengths are in metres. Otherwise they are in feet.
    bool metric = false;
    /// The paper, the revision, the date, and the folder with the logo. Without a paper, that of the print settings of
    /// the kind of report counts.
    DrawingOptions page;
};

/// The result of writePdfReport() and writeHtmlReport().
struct ReportResult
{
    /// Why the file could not be written, or an empty string.
    QString error;
    /// What the report lacks, such as a logo that cannot be read, or characters that no font has.
    QStringList warnings;
    /// Number of pages. An HTML file has none.
    int pages = 0;
};

/// Moves the cables whose tests have failed to the beginning. Those with an unknown verdict follow.
CABLEDOC_EXPORT void moveFailuresToFront(const JobSnapshot &job, QVector<int> *cables);

/// Writes a report of a job as a PDF file, with an outline and links. What is not known is not shown, and a status that
/// is not known stands as it is. The paper, its orientation and the zoom are those of the print settings: either the
/// zoom in percent (style 0), or the largest zoom up to 100 % with which the report fits on the number of pages. The
/// zoom is so small that the short side of the paper has room for 105 mm at 100 %, so that columns stay readable. The
/// file is written whole or not at all, and replaces a file of the same name. With the environment variable
/// SOURCE_DATE_EPOCH, the same job gives the same bytes with the same version of Qt. The program must have a
/// QGuiApplication, but needs no display.
CABLEDOC_EXPORT ReportResult writePdfReport(const JobSnapshot &job, const ReportOptions &options,
                                            const QString &fileName);

/// Writes a report of a job as one HTML file without scripts, with the content of writePdfReport(). The file is written
/// whole or not at all, and replaces a file of the same name. The program must have a QGuiApplication, but needs no
/// display.
CABLEDOC_EXPORT ReportResult writeHtmlReport(const JobSnapshot &job, const ReportOptions &options,
                                             const QString &fileName);

} // namespace cabledoc
