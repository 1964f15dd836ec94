#include "commandline.h"
#include "documents.h"
#include "output.h"
#include "table.h"

#include <cabledoc/jobeditor.h>

namespace {

/// Returns the name of a port or vertical run, or the tag if the job does not have it.
QString endName(const JobEditor &job, const QString &tag)
{
    if (job.portExists(tag, true))
        return job.getPortIdByTag(tag);
    if (job.vertRunExists(tag, true))
        return job.getVertRunIdByTag(tag);
    return tag;
}

QJsonObject describeCable(JobEditor &job, const QString &tag, bool metric)
{
    QJsonValue length;
    if (job.getCableTestResults(tag).cableLength() >= 0) {
        // A direct conversion to double would make 16.700000762939453 of the float 16.7.
        length = QString::number(double(job.getMaxRoundedCableLength(tag, metric, false)), 'g', 7).toDouble();
    }
    return {{QStringLiteral("id"), job.getCableID(tag)},
            {QStringLiteral("tag"), tag},
            {QStringLiteral("type"), job.getCableType(tag)},
            {QStringLiteral("use"), job.getCableUse(tag)},
            {QStringLiteral("from"), endName(job, job.getCableFrom(tag))},
            {QStringLiteral("to"), endName(job, job.getCableTo(tag))},
            {QStringLiteral("status"), job.getCableStatus(tag)},
            {QStringLiteral("length"), length}};
}

} // namespace

ExitCode runCables(const CommandLine &line)
{
    if (const ExitCode error = loadJob(line.argument(0)))
        return error;
    const bool metric = line.isSet("metric");
    JobEditor &job = JobEditor::Instance();
    QJsonArray cables;
    const QStringList tags = job.getCables(true);
    for (const QString &tag : tags)
        cables.append(describeCable(job, tag, metric));

    if (line.isSet("json")) {
        return printJson({{QStringLiteral("lengthUnit"), metric ? QStringLiteral("m") : QStringLiteral("ft")},
                          {QStringLiteral("cables"), cables}});
    }
    const QVector<Column> columns{
        {"id", Program::tr("Cable")},
        {"type", Program::tr("Type")},
        {"use", Program::tr("Use")},
        {"from", Program::tr("From")},
        {"to", Program::tr("To")},
        {"status", Program::tr("Status")},
        {"length", metric ? Program::tr("Length (m)") : Program::tr("Length (ft)")},
    };
    return printText(tableOf(cables, columns));
}
