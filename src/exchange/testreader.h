#pragma once

#include "activeport.h"
#include "resultsfile.h"
#include "resultsplan.h"
#include "testdetails.h"
#include "testtime.h"

#include <functional>
#include <optional>

namespace cabledoc {

/// Reads the tests in the rows of a table.
class TestReader
{
public:
    /// The problems of the rows are added to the list.
    TestReader(const ResultsFile &file, const ResultsOptions &options, QVector<CsvProblem> *problems);

    /// What a row says about a test, whatever was tested.
    struct Heading
    {
        TestTime time;
        QString timeText;
        QString verdict;
    };
    /// Reads when a test was done, and its verdict. Returns nothing if there is a problem.
    std::optional<Heading> readHeading(const CsvRow &row);
    /// Reads the test of a cable with a type and its length constant. If there is a problem, the result is not usable.
    CableTest readTest(const CsvRow &row, const Heading &heading, const QString &type, int lengthConstant);
    /// Reads the test of an active port. If there is a problem, the result is not usable.
    ActiveTestResult readActiveTest(const CsvRow &row, const Heading &heading);

    /// Returns the files that the tests name and that are to be stored beside the job.
    const QVector<TestAttachment> &attachments() const { return m_attachments; }

private:
    void report(const CsvRow &row, int field, const QString &message);
    void report(const CsvRow &row, ResultsColumn column, const QString &message);
    QString field(const CsvRow &row, ResultsColumn column) const { return m_file.field(row, column); }
    QString withPoint(const QString &number) const;
    std::optional<int> readNumber(const CsvRow &row, ResultsColumn column);
    void checkCharacters(const CsvRow &row);
    void readBlock(const CsvRow &row, cable_struct *block);
    void readLengths(const CsvRow &row, int lengthConstant, cable_struct *block);
    void readWireMap(const CsvRow &row, cable_struct *block, TestDetailsFields *details);
    bool hasOwnMeasurements(const CsvRow &row) const;
    TRUEPHY_PLOT_DATA readCurve(const CsvRow &row, ResultsColumn column);
    QVector<TestParameter> readParameters(const CsvRow &row);
    void readAttachment(const CsvRow &row, TestDetailsFields *details);
    std::optional<QByteArray> readFile(const CsvRow &row, ResultsColumn column, const QString &path);
    std::optional<QString> pathOfFile(const QString &path) const;

    const ResultsFile &m_file;
    const ResultsOptions &m_options;
    QVector<CsvProblem> &m_problems;
    QVector<TestAttachment> m_attachments;
};

} // namespace cabledoc
