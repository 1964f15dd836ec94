#include "commandline.h"
#include "documents.h"
#include "output.h"
#include "table.h"

#include <cabledoc/jobsnapshot.h>

using cabledoc::ElementKind;
using cabledoc::JobSnapshot;
using cabledoc::snapshot::Target;

namespace {

/// Returns the name of a port or vertical run, or the tag if the job does not have it.
QString endName(const JobSnapshot &job, const Target &end, const QString &tag)
{
    if (!end.exists())
        return tag;
    return end.kind == ElementKind::Ports ? job.ports().at(end.position).id : job.verticalRuns().at(end.position).id;
}

QVariant lengthOf(const JobSnapshot &job, int cable, bool metric)
{
    const float length = job.measuredLength(cable, metric);
    // A direct conversion to double would make 16.700000762939453 of the float 16.7.
    return length < 0 ? QVariant() : QString::number(double(length), 'g', 7).toDouble();
}

Table tableOfCables(const JobSnapshot &job, bool metric)
{
    Table table{{
                    {"id", Program::tr("Cable")},
                    {"tag", QString()},
                    {"type", Program::tr("Type")},
                    {"use", Program::tr("Use")},
                    {"from", Program::tr("From")},
                    {"to", Program::tr("To")},
                    {"status", Program::tr("Status")},
                    {"length", metric ? Program::tr("Length (m)") : Program::tr("Length (ft)")},
                },
                {}};
    int position = 0;
    for (const auto &cable : job.cables()) {
        table.rows.append({cable.id, cable.element, cable.type, cable.use, endName(job, cable.fromTarget, cable.from),
                           endName(job, cable.toTarget, cable.to), cable.test.status,
                           lengthOf(job, position++, metric)});
    }
    return table;
}

} // namespace

ExitCode runCables(const CommandLine &line)
{
    JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    const bool metric = line.isSet("metric");
    const Table table = tableOfCables(job, metric);
    if (!line.isSet("json"))
        return printText(line.output(), textOf(table));
    return printJson(line.output(), "cabledoc-cables-1",
                     {{{QStringLiteral("lengthUnit"), metric ? QStringLiteral("m") : QStringLiteral("ft")}},
                      QStringLiteral("cables"),
                      int(table.rows.size()),
                      [&table](int row) { return objectOf(table, row); }});
}
