#include "command.h"
#include "table.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

struct Cables
{
    Q_DECLARE_TR_FUNCTIONS(Cables)
};

/// The name of a port or vertical run; its tag when the job holds no such thing.
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
        // As a double the float 16.7 would be 16.700000762939453.
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

ExitCode runCables(const QStringList &arguments)
{
    const QString jsonOption = QStringLiteral("json");
    const QString metricOption = QStringLiteral("metric");
    Command command(QStringLiteral("cables"), Cables::tr("Lists the cables of a job file with their ends, the status "
                                                         "of their tests and their measured lengths."));
    command.addOption({jsonOption, Cables::tr("Print JSON instead of a table.")});
    command.addOption({metricOption, Cables::tr("Lengths in metres instead of feet.")});
    command.addMaximumSizeOption();
    if (!command.parse(arguments) || !command.loadJob())
        return command.exitCode();

    const bool metric = command.isSet(metricOption);
    JobEditor &job = JobEditor::Instance();
    QJsonArray cables;
    const QStringList tags = job.getCables(true);
    for (const QString &tag : tags)
        cables.append(describeCable(job, tag, metric));

    if (command.isSet(jsonOption)) {
        const QJsonObject object{{QStringLiteral("lengthUnit"), metric ? QStringLiteral("m") : QStringLiteral("ft")},
                                 {QStringLiteral("cables"), cables}};
        return printData(QJsonDocument(object).toJson());
    }
    return printData(
        tableOf(cables, {{QStringLiteral("id"), Cables::tr("Cable")},
                         {QStringLiteral("type"), Cables::tr("Type")},
                         {QStringLiteral("use"), Cables::tr("Use")},
                         {QStringLiteral("from"), Cables::tr("From")},
                         {QStringLiteral("to"), Cables::tr("To")},
                         {QStringLiteral("status"), Cables::tr("Status")},
                         {QStringLiteral("length"), metric ? Cables::tr("Length (m)") : Cables::tr("Length (ft)")}})
            .toLocal8Bit());
}
