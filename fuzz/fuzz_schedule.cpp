// Fuzzes cable schedules. A schedule is either refused and changes nothing, or is imported, and a second import changes
// nothing. The size of the input chooses how it is read and how the schedule of the job is written.

#include "fuzzing.h"

#include "jobeditorprobe.h"
#include "schedule.h"

#include <array>
#include <tuple>

using namespace cabledoc;

namespace {

bool isEqual(const ScheduleReport &a, const ScheduleReport &b)
{
    const auto counts = [](const ScheduleReport &report) {
        return std::make_tuple(report.error, report.problems.size(), report.warnings.size(), report.floors,
                               report.rooms, report.ports, report.cables, report.changed);
    };
    return counts(a) == counts(b);
}

bool isImported(const ScheduleReport &report)
{
    return report.error.isEmpty() && report.problems.isEmpty();
}

CsvOptions optionsOf(std::size_t size)
{
    constexpr std::array<char, 4> delimiters{'\0', ',', ';', '\t'};
    constexpr std::array<CsvEncoding, 4> encodings{CsvEncoding::Detected, CsvEncoding::Utf8, CsvEncoding::Utf16,
                                                   CsvEncoding::Windows1252};
    CsvOptions options;
    // Most inputs are read without given options.
    if (size % 2 == 0)
        return options;
    options.delimiter = delimiters[size / 2 % 4];
    options.encoding = encodings[size / 8 % 4];
    options.removeProtection = size / 32 % 2 == 1;
    return options;
}

CsvStyle styleOf(std::size_t size)
{
    constexpr std::array<char, 3> delimiters{',', ';', '\t'};
    return {delimiters[size % 3], size / 3 % 2 == 1, size / 6 % 2 == 1};
}

/// Returns whether an import finds nothing to add or to change.
bool isUpToDate(JobEditor &job, const QByteArray &schedule, const CsvOptions &options)
{
    const ScheduleReport report = importScheduleText(job, schedule, options);
    return isImported(report) && report.floors + report.rooms + report.ports + report.cables + report.changed == 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray schedule(reinterpret_cast<const char *>(data), int(size));
    const CsvOptions options = optionsOf(size);
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    const JobEditorProbe probe(job);
    expect(job.New(inputFile("fuzzed.job", data, 0)), "a job can be made");
    const QByteArray before = probe.text();
    const ScheduleReport dryRun = importScheduleText(job, schedule, options, true);
    expect(probe.text() == before && !job.fileChanged(), "a dry run changes nothing");
    const ScheduleReport report = importScheduleText(job, schedule, options);
    expect(isEqual(report, dryRun), "the report of a dry run is that of an import");
    if (!isImported(report)) {
        expect(probe.text() == before && !job.fileChanged(), "a schedule that is refused changes nothing");
        return 0;
    }
    expect(probe.indexesMatchTheTree(), "the indexes equal their rebuild after an import");
    expect(probe.danglingReferences().isEmpty(), "an import names nothing that is not there");
    const QByteArray imported = probe.text();
    expect(isUpToDate(job, schedule, options), "a second import has nothing to do");
    expect(probe.text() == imported, "a second import changes nothing");
    expect(job.save() && job.Load(job.filename()) && probe.text() == imported,
           "the job is the same after saving and loading");

    const CsvStyle style = styleOf(size);
    CsvOptions exportedOptions;
    exportedOptions.removeProtection = style.protectFormulas;
    const QByteArray exported = exportSchedule(job, style);
    expect(isUpToDate(job, exported, exportedOptions), "the exported schedule of a job has nothing new for it");
    return 0;
}
