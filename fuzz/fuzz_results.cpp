// Fuzzes the import of test results. The input is a mapping and up to four tables. Each table is either refused and
// changes nothing, or is imported, and a second import changes nothing. No test ever disappears. What is exported makes
// the same tests again in a job without tests.
//
// The input is divided by the control character "record separator": bytes that choose the job and the options, the
// mapping, and the tables.

#include "choices.h"
#include "fuzzing.h"

#include "jobeditorprobe.h"
#include "jobsnapshot.h"
#include "resultsfile.h"
#include "resultsplan.h"
#include "resultstable.h"
#include "testtime.h"

#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

using namespace cabledoc;

namespace {

constexpr char separator = '\x1E';
constexpr int maximumTables = 4;

/// The job to begin with.
struct JobChoice
{
    QString lengthConstant;
    /// Whether the job has tests that no import has made, and two cables with the same id.
    bool hasOtherTests = false;
};

/// A failed test that a table has given.
struct Failure
{
    bool isOfActivePort = false;
    QString id;
    QString time;
    QString serial;
};

/// Prints a text if CABLEDOC_VERBOSE is set, to find out what an input has found.
void note(const QByteArray &text)
{
    static const bool isVerbose = qEnvironmentVariableIsSet("CABLEDOC_VERBOSE");
    if (isVerbose)
        std::fprintf(stderr, "%s\n", text.constData());
}

/// Makes a job with cables and active ports. The type of the cables has a length constant, and that of "D" has none.
void makeJob(JobEditor *job, const JobChoice &choice)
{
    job->Unload();
    expect(job->New(inputFile("fuzzed.job", nullptr, 0)), "a job can be made");
    TestDef definition(QStringLiteral("CAT6"));
    definition.setLengthConstant(choice.lengthConstant.toFloat());
    job->addTestDef(definition);
    for (const char *id : {"A", "B", "C", "D", "\u00dc \"1\""}) {
        const QString type = *id == 'D' ? QString() : QStringLiteral("CAT6");
        job->addCable(QString(), QString::fromUtf8(id), QStringLiteral("data"), QString(), QString(), type,
                      addmode::GivenId);
    }
    for (const char *id : {"Link 1", "Link 2"})
        job->addActivePort(QString(), QString(), QLatin1String(id), addmode::GivenId);
    if (!choice.hasOtherTests)
        return;
    cable_struct block = cable_struct::untested();
    block.pair_length[1] = 65000;
    const TestResults failed(QStringLiteral("May 3rd"), QStringLiteral("FAIL"), QString(), QString(), block, 4);
    job->setCableTestResults(QStringLiteral("B"), failed);
    job->addEarlierCableTest(QStringLiteral("B"), {failed, TestDetails()});
    job->setCableTestResults(QStringLiteral("C"), TestResults(QString(), QStringLiteral("UNTESTED"), block, 0));
    job->addCable(QString(), QStringLiteral("A"), QStringLiteral("data"), addmode::GivenId);
}

/// Returns the options for the tables. They find no files.
ResultsOptions readOptions(Choices *choices, const QByteArray &mapping)
{
    static const QTemporaryDir emptyFolder;
    constexpr std::array<char, 4> delimiters{'\0', ',', ';', '\t'};
    constexpr std::array<CsvEncoding, 4> encodings{CsvEncoding::Detected, CsvEncoding::Utf8, CsvEncoding::Utf16,
                                                   CsvEncoding::Windows1252};
    ResultsOptions options;
    options.folder = emptyFolder.path();
    options.now = QDateTime(QDate(2030, 1, 1), QTime(0, 0), Qt::UTC);
    options.skipUnknown = choices->oneIn(2);
    if (choices->oneIn(4)) {
        options.csv.delimiter = delimiters[std::size_t(choices->number(4))];
        options.csv.encoding = encodings[std::size_t(choices->number(4))];
        options.csv.removeProtection = choices->oneIn(2);
    }
    const ResultsMappingReport report = readResultsMapping(mapping);
    if (!report.error.isEmpty())
        note(report.error.toUtf8());
    else
        options.mapping = report.mapping;
    return options;
}

QVector<CableTest> testsOf(const JobSnapshot &job, int cable)
{
    QVector<CableTest> tests = job.testHistory(cable);
    const CableTest current{job.testResults(cable), job.testDetails(cable)};
    if (!current.isEmpty())
        tests.append(current);
    return tests;
}

/// Expects that all tests of a job are still there, and that there are as many new ones as there were changes.
void expectTestsAreKept(const JobSnapshot &before, const JobSnapshot &after, int changes)
{
    const auto expectKept = [&changes](const auto &testsBefore, const auto &testsAfter) {
        for (const auto &test : testsBefore)
            expect(testsAfter.contains(test), "an import keeps all tests");
        changes -= int(testsAfter.size() - testsBefore.size());
    };
    for (int cable = 0; cable < before.cables().size(); ++cable)
        expectKept(testsOf(before, cable), testsOf(after, cable));
    for (int port = 0; port < before.activePorts().size(); ++port)
        expectKept(before.activePorts().at(port).results, after.activePorts().at(port).results);
    expect(changes == 0, "an import adds the tests that it lists");
}

/// Returns the failed tests that an imported table gives, without the code that imports them.
std::vector<Failure> failuresOf(const JobSnapshot &job, const QByteArray &table, const ResultsOptions &options)
{
    std::vector<Failure> failures;
    const ResultsFile file(table, options.csv, options.mapping);
    const auto isKnown = [](const auto &elements, const QString &id) {
        return std::any_of(elements.cbegin(), elements.cend(), [&id](const auto &other) { return other.id == id; });
    };
    for (const CsvRow &row : file.rows()) {
        const bool isOfActivePort = file.isOfActivePorts();
        const QString id = file.field(row, isOfActivePort ? ResultsColumn::ActivePort : ResultsColumn::CableId);
        const QString verdict = file.field(row, ResultsColumn::Verdict);
        const bool isTested = isOfActivePort ? isKnown(job.activePorts(), id) : isKnown(job.cables(), id);
        if (!isTested || options.mapping.verdicts.value(verdict, verdict) != verdicts::Fail)
            continue;
        QString time = file.field(row, ResultsColumn::TestedAt);
        if (!options.mapping.dateFormat.isEmpty())
            time = TestTime::fromText(time, options.mapping.dateFormat)->toText();
        failures.push_back({isOfActivePort, id, time, file.field(row, ResultsColumn::TesterSerial)});
    }
    return failures;
}

bool isIn(const JobSnapshot &job, const Failure &failure)
{
    if (failure.isOfActivePort) {
        const auto &ports = job.activePorts();
        return std::any_of(ports.cbegin(), ports.cend(), [&failure](const snapshot::ActivePort &port) {
            return port.id == failure.id
                   && std::any_of(port.results.cbegin(), port.results.cend(), [&failure](const ActiveTestResult &test) {
                          return test.status() == verdicts::Fail && test.time() == failure.time;
                      });
        });
    }
    for (int cable = 0; cable < job.cables().size(); ++cable) {
        const QVector<CableTest> tests = testsOf(job, cable);
        const bool isHere = std::any_of(tests.cbegin(), tests.cend(), [&failure](const CableTest &test) {
            const TestResults &results = test.results;
            return results.status() == verdicts::Fail && results.time() == failure.time
                   && results.serialNumber() == failure.serial;
        });
        if (isHere && job.cables().at(cable).id == failure.id)
            return true;
    }
    return false;
}

/// Expects that the rows that were left out are a table whose rows are all left out.
void expectSkippedAgain(const JobSnapshot &job, const ResultsPlan &plan, ResultsOptions options)
{
    options.csv.encoding = CsvEncoding::Utf8;
    options.csv.removeProtection = false;
    const ResultsPlan again(job, plan.skippedRows(), options);
    expect(again.error().isEmpty() && again.problems().isEmpty() && again.counts().skipped == plan.counts().skipped,
           "the rows that were left out are a table");
}

/// Imports a table. Returns whether it was imported.
bool import(JobEditor *job, const QByteArray &table, const ResultsOptions &options)
{
    const JobEditorProbe probe(*job);
    const QByteArray before = probe.text();
    const JobSnapshot snapshot(*job);
    const ResultsPlan plan(snapshot, table, options);
    note(plan.error().toUtf8());
    for (const CsvProblem &problem : plan.problems())
        note(QStringLiteral("%1:%2: %3").arg(problem.row).arg(problem.column).arg(problem.message).toUtf8());
    for (int index = 0; index < plan.changes().size(); ++index)
        note(plan.changeText(index).toUtf8());
    expect(probe.text() == before, "a plan changes nothing");
    expect(plan.attachments().isEmpty(), "the import names files of an empty folder");
    const bool isPossible = plan.error().isEmpty() && plan.problems().isEmpty();
    expect(isPossible || plan.changes().isEmpty(), "a table that is refused asks for nothing");
    plan.applyTo(*job);
    expect(plan.changes().isEmpty() == (probe.text() == before), "an import makes the changes that it lists");
    expect(probe.indexesMatchTheTree(), "the indexes equal their rebuild after an import");
    if (!isPossible)
        return false;

    const ResultsCounts &counts = plan.counts();
    const int rows = counts.passed + counts.passedWithinAccuracy + counts.failed + counts.others;
    expect(rows == counts.known + plan.changes().size(), "each test of a table is new or known");
    const JobSnapshot after(*job);
    expectTestsAreKept(snapshot, after, int(plan.changes().size()));
    const ResultsPlan second(after, table, options);
    expect(second.error().isEmpty() && second.problems().isEmpty() && second.changes().isEmpty(),
           "a second import changes nothing");
    expect(second.counts().known == rows && second.counts().untested == counts.untested,
           "a second import knows all tests");
    if (!plan.skippedRows().isEmpty())
        expectSkippedAgain(after, plan, options);
    return true;
}

void expectFileIsEqual(JobEditor *job)
{
    const JobEditorProbe probe(*job);
    const QByteArray text = probe.text();
    expect(job->save(), "the job can be saved");
    expectEqualSnapshots(*job, job->filename());
    expect(job->replacedCharacters() == 0, "a file holds all characters of the tests");
    expect(job->Load(job->filename()) && probe.text() == text, "the job is the same after saving and loading");
}

/// Exports all tests, and imports them into a job without tests.
void testRoundTrip(JobEditor *job, const JobChoice &choice, const ResultsExportOptions &options, const QDateTime &now)
{
    const JobEditorProbe probe(*job);
    const QByteArray text = probe.text();
    const JobSnapshot original(*job);
    const QByteArray tables[] = {exportResults(original, options), exportActiveResults(original, options.style)};
    ResultsOptions importOptions;
    importOptions.now = now;
    importOptions.csv.removeProtection = options.style.protectFormulas;
    makeJob(job, choice);
    for (const QByteArray &table : tables) {
        note(table);
        expect(import(job, table, importOptions), "an exported table can be imported");
    }
    if (probe.text() != text)
        note("the job\n" + text + "became\n" + probe.text());
    expect(probe.text() == text, "the exported tests make the same job again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QList<QByteArray> parts =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size)).split(separator);
    const QByteArray &first = parts.constFirst();
    Choices choices(data, std::size_t(first.size()));
    const JobChoice choice{choices.oneOf({QStringLiteral("1420"), QStringLiteral("1000"), QStringLiteral("6500"),
                                          QStringLiteral("1333.5"), QStringLiteral("900")}),
                           choices.oneIn(4)};
    ResultsOptions options = readOptions(&choices, parts.value(1));
    constexpr std::array<char, 3> delimiters{',', ';', '\t'};
    ResultsExportOptions exportOptions;
    exportOptions.metric = choices.oneIn(2);
    exportOptions.style = {delimiters[std::size_t(choices.number(3))], choices.oneIn(2), choices.oneIn(2)};

    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    job.setCharacterReferences(true);
    makeJob(&job, choice);
    std::vector<Failure> failures;
    bool isImported = false;
    for (int number = 2; number < std::min(int(parts.size()), 2 + maximumTables); ++number) {
        options.retest = RetestRule(choices.number(3));
        if (!import(&job, parts.at(number), options))
            continue;
        isImported = true;
        for (const Failure &failure : failuresOf(JobSnapshot(job), parts.at(number), options))
            failures.push_back(failure);
    }
    if (!isImported)
        return 0;
    expectFileIsEqual(&job);
    const JobSnapshot saved = JobSnapshot::read(job.filename());
    for (const Failure &failure : failures)
        expect(isIn(saved, failure), "a failed test does not disappear");
    if (!choice.hasOtherTests)
        testRoundTrip(&job, choice, exportOptions, options.now);
    return 0;
}
