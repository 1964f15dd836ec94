#pragma once

#include "cabledoc_export.h"
#include "csvoptions.h"
#include "resultsmapping.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <memory>

class JobEditor;

namespace cabledoc {

class JobSnapshot;
struct ResultsPlanData;

/// Which of several tests of a cable is the current one.
enum class RetestRule {
    Latest, ///< the latest one
    Worst,  ///< the worst one, and of several such tests the latest one. "FAIL" is worse than other words, these are
            ///< worse than "PASS*", and that is worse than "PASS".
    Refuse, ///< a test of a cable that already has a test is a problem
};

/// How test results are imported.
struct ResultsOptions
{
    /// How the CSV text is read.
    CsvOptions csv;
    /// How the table differs from one of exportResults().
    ResultsMapping mapping;
    /// Which of several tests of a cable is the current one.
    RetestRule retest = RetestRule::Latest;
    /// Whether rows with an unknown cable or active port are left out. Otherwise they are problems.
    bool skipUnknown = false;
    /// The folder that has the files that the table names.
    QString folder;
    /// The present time. Later tests are problems.
    QDateTime now = QDateTime::currentDateTime();
};

/// A test that an import adds.
struct ResultsChange
{
    /// Number of the row in the table.
    int row = 0;
    /// Whether the test becomes the current one. Otherwise it becomes an earlier one.
    bool isCurrent = true;
};

/// Counts of tests and cables, or of tests and active ports.
struct ResultsCounts
{
    int passed = 0;               ///< tests of the table with the verdict "PASS"
    int passedWithinAccuracy = 0; ///< tests of the table with the verdict "PASS*"
    int failed = 0;               ///< tests of the table with the verdict "FAIL"
    int others = 0;               ///< tests of the table with another verdict
    int known = 0;                ///< tests of the table that the job already has
    int skipped = 0;              ///< rows that were left out
    int retested = 0;             ///< tests that are added to a cable or active port that already had a test
    int untested = 0;             ///< cables or active ports of the job that have no test after the import
};

/// A file that belongs to a test.
struct TestAttachment
{
    /// Path of the file.
    QString source;
    /// Name that the file gets in the folder that attachmentFolder() returns.
    QString name;
};

/// The tests that a table adds to a job.
///
/// A table is CSV text, as exportResults() writes it. Its first row names the columns, in any order:
///
///     column                  holds
///     cable_id                id of the cable; required
///     tested_at               time of the test in ISO 8601, such as "2026-11-20T14:05:00"; required
///     verdict                 "PASS", "PASS*", "FAIL" or "UNTESTED"; required. Another word is kept as it is.
///     state                   "earlier" for a test that is not to become the current one
///     tester_serial           serial number of the tester
///     tester_version          version of the tester's software
///     test_type               type of the cable. Another type than the cable has is a problem.
///     length_12, length_36,   length of each pair, which becomes a reading: the length in feet times the length
///     length_45, length_78    constant of the cable's type / 100, rounded
///     length_unit             "ft" or "m"
///     wiremap                 the pair at the far end for each pair, such as "12>12 36>36 45>45 78>78". A text that
///                             says more, such as "36 open", is kept too.
///     bit_errors              number of bit errors
///     results_block           the tester's block of 96 hexadecimal digits. It excludes lengths and the wire map.
///     next_curve, echo_curve, the 514 samples of a curve, with blanks, commas or semicolons between them. "@" and a
///     channel_curve           path stand for the content of a file.
///     operator, limit,        texts of the tester
///     standard, link_type,
///     nvp, temperature
///     m:NAME, v:NAME, f:NAME, worst margin in dB, worst value, its frequency in MHz, its pair and its end of the
///     p:NAME, e:NAME          parameter with that name
///     attachment              path of a file of the tester. The file is stored beside the job.
///     attachment_size,        size and SHA-256 of the file. With both, the file need not be there.
///     attachment_sha256
///
/// A table with the column "active_port" instead of "cable_id" has tests of ports in the working network. Its other
/// columns are tested_at and verdict, which are required, link_speed (Mbit/s), duplex, peer_address and v:NAME.
///
/// Paths are relative to ResultsOptions::folder, and the files must be in it. A row with the verdict "UNTESTED" and no
/// measurements adds nothing. A row of a test that the job already has adds nothing either, so that importing a table
/// again never changes anything.
///
/// A later test becomes the current one, and the one before becomes an earlier test with all that it had. No test is
/// ever removed. Times without a zone are compared as they stand.
class CABLEDOC_EXPORT ResultsPlan
{
public:
    /// Compares a table with a job. The job is not changed.
    ResultsPlan(const JobSnapshot &job, const QByteArray &csv, const ResultsOptions &options = {});
    /// Destroys the plan.
    ~ResultsPlan();
    Q_DISABLE_COPY(ResultsPlan)

    /// Returns why the text cannot be read as a table of results, or an empty text if it can.
    const QString &error() const;
    /// Returns what is wrong with the table, in the order of its rows.
    const QVector<CsvProblem> &problems() const;
    /// Returns what may be a mistake, in the order of the rows.
    const QVector<CsvProblem> &warnings() const;
    /// Returns the tests that are added, in the order of the rows. There are none if there is an error or a problem.
    const QVector<ResultsChange> &changes() const;
    /// Returns a translated description of the change at an index of changes(), such as
    /// "cable "A-1": PASS, 2026-11-20T14:05:00".
    QString changeText(int index) const;
    /// Returns counts of the whole table, and of the job after the import.
    const ResultsCounts &counts() const;
    /// Returns the rows that were left out as a table with the same heading. It is empty if there are none.
    const QByteArray &skippedRows() const;
    /// Returns the files of the table that are to be stored beside the job.
    const QVector<TestAttachment> &attachments() const;

    /// Adds the tests to a job, which is marked as changed if there are any. The job must have the content from which
    /// the plan was made. Does nothing if there is an error or a problem.
    void applyTo(JobEditor &job) const;

private:
    std::unique_ptr<ResultsPlanData> d;
};

} // namespace cabledoc
