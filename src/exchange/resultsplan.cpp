#include "resultsplan.h"

#include "jobeditor.h"
#include "knowntests.h"
#include "messagetext.h"
#include "resultsfile.h"
#include "resultstext.h"
#include "testreader.h"
#include "texthash.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <map>

namespace cabledoc {

namespace {

/// A test that is added to an element with a tag.
struct AddedTest
{
    QString tag;
    QString id;
    std::optional<StoredTest> test;         ///< of a cable
    std::optional<ActiveTestResult> active; ///< of an active port
};

} // namespace

/// The inside of a plan.
struct ResultsPlanData
{
    QString error;
    QVector<CsvProblem> problems;
    QVector<CsvProblem> warnings;
    QVector<ResultsChange> changes;
    std::vector<AddedTest> tests; ///< of each change
    ResultsCounts counts;
    QByteArray skippedRows;
    QVector<TestAttachment> attachments;
};

namespace {

/// How bad a verdict is. A higher number is worse.
int badnessOf(const QString &verdict)
{
    const QStringList fromGoodToBad{verdicts::Pass, verdicts::PassWithinAccuracy};
    const auto place = fromGoodToBad.indexOf(verdict);
    constexpr int other = 2;
    constexpr int failed = 3;
    return place >= 0 ? int(place) : verdict == verdicts::Fail ? failed : other;
}

/// Compares a table with a job.
class ResultsPlanner
{
public:
    ResultsPlanner(const JobSnapshot &job, const ResultsFile &file, const ResultsOptions &options,
                   ResultsPlanData *plan)
        : m_job(job)
        , m_file(file)
        , m_options(options)
        , m_plan(*plan)
        , m_reader(file, options, &plan->problems)
        , m_idColumn(file.isOfActivePorts() ? ResultsColumn::ActivePort : ResultsColumn::CableId)
    {
        if (file.isOfActivePorts())
            findIds(job.activePorts());
        else
            findIds(job.cables());
    }

    void plan()
    {
        for (const CsvRow &row : m_file.rows()) {
            const std::optional<int> position = findElement(row);
            if (!position)
                continue;
            const std::optional<TestReader::Heading> heading = m_reader.readHeading(row);
            if (!heading)
                continue;
            if (m_file.isOfActivePorts())
                planActiveTest(row, *position, *heading);
            else
                planTest(row, *position, *heading);
        }
        m_plan.attachments = m_reader.attachments();
        countUntested();
    }

private:
    static constexpr int ambiguous = -1;

    /// A test of an active port: one of the job, in row 0, or one of the table.
    struct KnownActiveTest
    {
        ActiveTestResult test;
        int row;
    };
    using KnownActiveTests = TextMap<KnownActiveTest>; ///< by the time

    template <typename Elements> void findIds(const Elements &elements)
    {
        for (int position = 0; position < elements.size(); ++position) {
            auto [known, isNew] = m_positions.insert({elements.at(position).id, position});
            if (!isNew)
                known.value() = ambiguous;
        }
    }

    std::optional<int> findElement(const CsvRow &row);
    void skip(const CsvRow &row);
    void planTest(const CsvRow &row, int cable, const TestReader::Heading &heading);
    void planActiveTest(const CsvRow &row, int port, const TestReader::Heading &heading);
    bool becomesCurrent(const KnownTests &known, const KnownTests::Entry &test) const;
    void count(const QString &verdict);
    void countUntested();
    void checkVerdict(const CsvRow &row, const QString &verdict);
    KnownActiveTests &activeTestsOf(int port);
    int lengthConstantOf(int cable) const;

    void report(const CsvRow &row, ResultsColumn column, const QString &message)
    {
        m_plan.problems.append({row.number, m_file.fieldOf(column) + 1, message});
    }
    void reportKnown(const CsvRow &row, bool isEqual, int rowBefore);

    const JobSnapshot &m_job;
    const ResultsFile &m_file;
    const ResultsOptions &m_options;
    ResultsPlanData &m_plan;
    TestReader m_reader;
    ResultsColumn m_idColumn;
    TextMap<int> m_positions; ///< of the elements, by their ids
    std::map<int, KnownTests> m_tests;
    std::map<int, KnownActiveTests> m_activeTests;
    TextMap<bool> m_unknownVerdicts;
};

/// Returns the position of the cable or active port of a row. Returns nothing if the row is skipped or has a problem.
std::optional<int> ResultsPlanner::findElement(const CsvRow &row)
{
    const QString id = m_file.field(row, m_idColumn);
    const auto found = m_positions.find(id);
    if (!id.isEmpty() && found != m_positions.end() && found->second != ambiguous)
        return found->second;
    if (!id.isEmpty() && found != m_positions.end())
        report(row, m_idColumn, ResultsText::tr("several have the id \"%1\"").arg(excerpt(id)));
    else if (m_options.skipUnknown)
        skip(row);
    else
        report(row, m_idColumn,
               m_file.isOfActivePorts() ? ResultsText::tr("there is no active port \"%1\"").arg(excerpt(id))
                                        : ResultsText::tr("there is no cable \"%1\"").arg(excerpt(id)));
    return std::nullopt;
}

void ResultsPlanner::skip(const CsvRow &row)
{
    CsvStyle style;
    style.delimiter = m_file.delimiter();
    if (m_plan.skippedRows.isEmpty())
        m_plan.skippedRows = csvLine(m_file.heading(), style);
    m_plan.skippedRows += csvLine(row.fields, style);
    ++m_plan.counts.skipped;
}

void ResultsPlanner::count(const QString &verdict)
{
    ResultsCounts &counts = m_plan.counts;
    ++(verdict == verdicts::Pass                 ? counts.passed
       : verdict == verdicts::PassWithinAccuracy ? counts.passedWithinAccuracy
       : verdict == verdicts::Fail               ? counts.failed
                                                 : counts.others);
}

/// Warns of a verdict that may be a mistake. Each word is worth one warning.
void ResultsPlanner::checkVerdict(const CsvRow &row, const QString &verdict)
{
    const QStringList known{verdicts::Pass, verdicts::PassWithinAccuracy, verdicts::Fail, verdicts::Untested};
    if (!known.contains(verdict) && m_unknownVerdicts.insert({verdict, true}).second)
        m_plan.warnings.append({row.number, m_file.fieldOf(ResultsColumn::Verdict) + 1,
                                ResultsText::tr("\"%1\" does not count as passed: it is not one of %2")
                                    .arg(excerpt(verdict), known.join(QLatin1String(", ")))});
}

/// Reports a row whose test is already known, unless the job has the same test.
void ResultsPlanner::reportKnown(const CsvRow &row, bool isEqual, int rowBefore)
{
    if (rowBefore > 0)
        report(row, m_idColumn, ResultsText::tr("row %1 already has this test").arg(rowBefore));
    else if (isEqual)
        ++m_plan.counts.known;
    else
        report(row, ResultsColumn::TestedAt,
               ResultsText::tr("the job already has another test of the same time and tester"));
}

// Tests of cables

int ResultsPlanner::lengthConstantOf(int cable) const
{
    const int definition = m_job.cables().at(cable).definition;
    return definition < 0 ? 0 : TestDef(m_job.definitions().at(definition)).length_constant();
}

void ResultsPlanner::planTest(const CsvRow &row, int cable, const TestReader::Heading &heading)
{
    const snapshot::Cable &tested = m_job.cables().at(cable);
    const QString state = m_file.field(row, ResultsColumn::State);
    if (!state.isEmpty() && state != earlierState)
        report(row, ResultsColumn::State, ResultsText::tr("\"%1\" is not \"%2\"").arg(excerpt(state), earlierState));
    if (m_job.positionOfTag(ElementKind::Cables, tested.element) != cable)
        report(row, m_idColumn, ResultsText::tr("several cables have the tag \"%1\"").arg(excerpt(tested.element)));
    const CableTest test = m_reader.readTest(row, heading, tested.type, lengthConstantOf(cable));
    if (test.isEmpty())
        return;
    checkVerdict(row, heading.verdict);
    count(heading.verdict);
    KnownTests &known = m_tests.try_emplace(cable, m_job, cable).first->second;
    const KnownTests::Entry entry{StoredTest(test), heading.time, row.number};
    if (const KnownTests::Entry *same = known.find(entry)) {
        reportKnown(row, same->test == entry.test, same->row);
        return;
    }
    if (m_options.retest == RetestRule::Refuse && known.hasCurrent() && state.isEmpty())
        report(row, m_idColumn, ResultsText::tr("the cable already has a test"));
    m_plan.counts.retested += known.isEmpty() ? 0 : 1;
    const bool isCurrent = state.isEmpty() && (!known.hasCurrent() || becomesCurrent(known, entry));
    known.add(entry, isCurrent);
    m_plan.changes.append({row.number, isCurrent});
    m_plan.tests.push_back({tested.element, tested.id, entry.test, std::nullopt});
}

/// Returns whether a test becomes the current one of a cable that has a current test.
bool ResultsPlanner::becomesCurrent(const KnownTests &known, const KnownTests::Entry &test) const
{
    const KnownTests::Entry &current = known.current();
    // A time that cannot be read is that of another program, which knew no earlier tests.
    const bool isLater = !current.time || *current.time < *test.time;
    const int difference = badnessOf(test.test.status()) - badnessOf(current.test.status());
    if (m_options.retest == RetestRule::Worst && difference != 0)
        return difference > 0;
    return isLater;
}

// Tests of active ports

void ResultsPlanner::planActiveTest(const CsvRow &row, int port, const TestReader::Heading &heading)
{
    const snapshot::ActivePort &tested = m_job.activePorts().at(port);
    if (m_job.positionOfTag(ElementKind::ActivePorts, tested.element) != port)
        report(row, m_idColumn,
               ResultsText::tr("several active ports have the tag \"%1\"").arg(excerpt(tested.element)));
    const ActiveTestResult test = m_reader.readActiveTest(row, heading);
    count(heading.verdict);
    KnownActiveTests &known = activeTestsOf(port);
    const auto [same, isNew] = known.insert({test.time(), {test, row.number}});
    if (!isNew) {
        reportKnown(row, same->second.test == test, same->second.row);
        return;
    }
    m_plan.counts.retested += known.size() > 1 ? 1 : 0;
    m_plan.changes.append({row.number, true});
    m_plan.tests.push_back({tested.element, tested.id, std::nullopt, test});
}

ResultsPlanner::KnownActiveTests &ResultsPlanner::activeTestsOf(int port)
{
    const auto [known, isNew] = m_activeTests.try_emplace(port);
    if (isNew) {
        for (const ActiveTestResult &test : m_job.activePorts().at(port).results)
            known->second.insert({test.time(), {test, 0}});
    }
    return known->second;
}

/// Counts what has no test after the import.
void ResultsPlanner::countUntested()
{
    int &untested = m_plan.counts.untested;
    if (m_file.isOfActivePorts()) {
        for (int port = 0; port < m_job.activePorts().size(); ++port) {
            const auto added = m_activeTests.find(port);
            untested += m_job.activePorts().at(port).results.isEmpty() && added == m_activeTests.end() ? 1 : 0;
        }
        return;
    }
    for (int cable = 0; cable < m_job.cables().size(); ++cable) {
        const auto tests = m_tests.find(cable);
        const QString status = tests != m_tests.end() && tests->second.hasCurrent()
                                   ? tests->second.current().test.status()
                                   : m_job.cables().at(cable).test.status;
        untested += status == verdicts::Untested ? 1 : 0;
    }
}

} // namespace

ResultsPlan::ResultsPlan(const JobSnapshot &job, const QByteArray &csv, const ResultsOptions &options)
    : d(std::make_unique<ResultsPlanData>())
{
    const ResultsFile file(csv, options.csv, options.mapping);
    d->error = file.error();
    d->problems = file.problems();
    if (d->error.isEmpty() && d->problems.isEmpty())
        ResultsPlanner(job, file, options, d.get()).plan();
    sortByPlace(d->problems);
    if (!d->problems.isEmpty()) {
        d->changes.clear();
        d->tests.clear();
        d->attachments.clear();
    }
}

ResultsPlan::~ResultsPlan() = default;

const QString &ResultsPlan::error() const
{
    return d->error;
}

const QVector<CsvProblem> &ResultsPlan::problems() const
{
    return d->problems;
}

const QVector<CsvProblem> &ResultsPlan::warnings() const
{
    return d->warnings;
}

const QVector<ResultsChange> &ResultsPlan::changes() const
{
    return d->changes;
}

QString ResultsPlan::changeText(int index) const
{
    const AddedTest &added = d->tests[std::size_t(index)];
    if (added.active)
        return ResultsText::tr("active port \"%1\": %2, %3")
            .arg(excerpt(added.id), excerpt(added.active->status()), added.active->time());
    const QString text = d->changes.at(index).isCurrent ? ResultsText::tr("cable \"%1\": %2, %3")
                                                        : ResultsText::tr("cable \"%1\": %2, %3, as an earlier test");
    return text.arg(excerpt(added.id), excerpt(added.test->status()), added.test->time());
}

const ResultsCounts &ResultsPlan::counts() const
{
    return d->counts;
}

const QByteArray &ResultsPlan::skippedRows() const
{
    return d->skippedRows;
}

const QVector<TestAttachment> &ResultsPlan::attachments() const
{
    return d->attachments;
}

void ResultsPlan::applyTo(JobEditor &job) const
{
    for (int index = 0; index < d->changes.size(); ++index) {
        const AddedTest &added = d->tests[std::size_t(index)];
        if (added.active)
            job.addActiveTestResult(added.tag, *added.active);
        else if (d->changes.at(index).isCurrent)
            job.setCurrentCableTest(added.tag, added.test->test());
        else
            job.addEarlierCableTest(added.tag, added.test->test());
    }
}

} // namespace cabledoc
