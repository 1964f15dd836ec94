// Fuzzes tables. The tables of any job make the same job again, as far as its elements have names. Any other table is
// either refused, or is imported, and a second import changes nothing.

#include "fuzzing.h"
#include "randomjob.h"

#include "elementtable.h"
#include "jobeditorprobe.h"
#include "jobsnapshot.h"
#include "tableplan.h"

#include <cstdio>

using namespace cabledoc;

namespace {

QString pathOf(const char *name, const QByteArray &bytes)
{
    return inputFile(name, reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()));
}

/// Makes an empty job: one without floors and sheets.
void makeEmptyJob(JobEditor *job, const QString &name)
{
    job->Unload();
    expect(job->New(name), "a job can be made");
    job->removeFloor(job->getFloorTags().constFirst());
    job->removeSheet(job->getSheetTags().constFirst());
}

/// Prints what a table does if CABLEDOC_VERBOSE is set, to find out what an input has found.
void note(TableKind kind, const QString &text)
{
    static const bool isVerbose = qEnvironmentVariableIsSet("CABLEDOC_VERBOSE");
    if (isVerbose)
        std::fprintf(stderr, "%s: %s\n", qPrintable(tableName(kind)), qPrintable(text));
}

/// Imports a table. Returns whether it was imported.
bool import(JobEditor *job, TableKind kind, const QByteArray &table)
{
    const JobEditorProbe probe(*job);
    const QByteArray before = probe.text();
    const TablePlan plan(JobSnapshot(*job), kind, table);
    expect(plan.error().isEmpty() || plan.changes().isEmpty(), "a text that is not a table asks for nothing");
    expect(plan.problems().isEmpty() || plan.changes().isEmpty(), "a table with problems asks for nothing");
    expect(probe.text() == before, "a plan changes nothing");
    for (const CsvProblem &problem : plan.problems())
        note(kind, QStringLiteral("%1:%2: %3").arg(problem.row).arg(problem.column).arg(problem.message));
    for (int index = 0; index < plan.changes().size(); ++index)
        note(kind, plan.changeText(index));
    plan.applyTo(*job);
    expect(probe.indexesMatchTheTree(), "the indexes equal their rebuild after an import");
    expect(plan.changes().isEmpty() == (probe.text() == before), "an import makes the changes that it lists");
    return plan.error().isEmpty() && plan.problems().isEmpty();
}

/// Returns a table in a unit, or in pixels if there is no scale.
QByteArray exported(const JobSnapshot &job, TableKind kind, TableUnit unit)
{
    TableExportOptions options;
    options.unit = unit;
    const TableExport table = exportTable(job, kind, options);
    return table.error.isEmpty() ? table.text : exportTable(job, kind).text;
}

void testRoundTrip(const JobSnapshot &job, TableUnit unit, JobEditor *copy)
{
    for (const QString &entry : {QStringLiteral("FloorPlan_Settings"), QStringLiteral("NetView_Settings")})
        copy->setScaleSettings(ScaleSettings(job.scaleSettings().value(entry)), entry);
    for (const TableKind kind : tableKinds()) {
        const QByteArray table = exported(job, kind, unit);
        expect(import(copy, kind, table), "an exported table can be imported");
        expect(TablePlan(JobSnapshot(*copy), kind, table).changes().isEmpty(),
               "a second import of an exported table changes nothing");
        expect(TablePlan(job, kind, table).changes().isEmpty(), "the table of a job has nothing new for it");
    }
    const JobSnapshot made(*copy);
    for (const TableKind kind : tableKinds()) {
        const QByteArray again = exported(made, kind, unit);
        const QByteArray first = exported(job, kind, unit);
        if (again != first)
            note(kind, QString::fromUtf8("the table\n" + first + "became\n" + again));
        expect(again == first, "the tables of a job make the same tables again");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // The last bytes after a mark are a table.
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    const auto mark = bytes.indexOf("\n\n");
    Choices choices(data, mark < 0 ? size : std::size_t(mark));
    const QByteArray table = mark < 0 ? QByteArray() : bytes.mid(mark + 2);
    const TableKind kind = tableKinds().at(choices.number(int(tableKinds().size())));
    const TableUnit unit = choices.oneIn(3) ? TableUnit::Metres : TableUnit::Pixels;

    const QString fileName = pathOf("fuzzed.job", plainText(randomJob(choices)));
    const JobSnapshot snapshot = JobSnapshot::read(fileName);
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    job.setCharacterReferences(true);
    makeEmptyJob(&job, fileName);
    testRoundTrip(snapshot, unit, &job);
    import(&job, kind, table);
    return 0;
}
