// Fuzzes cable schedules. A schedule is either refused and changes nothing, or is imported, and a second import changes
// nothing.

#include "fuzzing.h"

#include "jobeditorprobe.h"
#include "schedule.h"

using namespace cabledoc;

namespace {

bool isImported(const ScheduleReport &report)
{
    return report.error.isEmpty() && report.problems.isEmpty();
}

/// Returns whether an import finds nothing to add or to change.
bool isUpToDate(JobEditor &job, const QString &schedule)
{
    const ScheduleReport report = importSchedule(job, schedule);
    return isImported(report) && report.floors + report.rooms + report.ports + report.cables + report.changed == 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString schedule = inputFile("fuzzed.csv", data, size);
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    const JobEditorProbe probe(job);
    expect(job.New(QStringLiteral("%1.job").arg(schedule)), "a job can be made");
    const QByteArray before = probe.text();
    if (!isImported(importSchedule(job, schedule))) {
        expect(probe.text() == before && !job.fileChanged(), "a schedule that is refused changes nothing");
        return 0;
    }
    expect(probe.indexesMatchTheTree(), "the indexes equal their rebuild after an import");
    expect(probe.danglingReferences().isEmpty(), "an import names nothing that is not there");
    const QByteArray imported = probe.text();
    expect(isUpToDate(job, schedule), "a second import has nothing to do");
    expect(probe.text() == imported, "a second import changes nothing");
    expect(job.save() && job.Load(job.filename()) && probe.text() == imported,
           "the job is the same after saving and loading");

    const QByteArray exported = exportSchedule(job);
    const QString again = inputFile("exported.csv", reinterpret_cast<const std::uint8_t *>(exported.constData()),
                                    std::size_t(exported.size()));
    expect(isUpToDate(job, again), "the exported schedule of a job has nothing new for it");
    return 0;
}
