#include "commandline.h"
#include "csv.h"
#include "documents.h"
#include "output.h"
#include "table.h"

#include <cabledoc/resultsstatus.h>

#include <algorithm>

using namespace cabledoc;

namespace {

/// A kind of findings: its name in all output, and what stands before its number.
struct KindName
{
    ResultsFinding::Kind kind;
    const char *name;
    QString heading;
};

const QVector<KindName> &kindNames()
{
    using Finding = ResultsFinding;
    static const QVector<KindName> names{
        {Finding::Failed, "failed", Program::tr("failed")},
        {Finding::Untested, "untested", Program::tr("untested")},
        {Finding::UnknownVerdict, "unknown-verdict", Program::tr("unknown verdict")},
        {Finding::Retested, "retested", Program::tr("tested more than once")},
        {Finding::Old, "old", Program::tr("old")},
        {Finding::UnreadableTime, "unreadable-time", Program::tr("unreadable time")},
        {Finding::TooLong, "too-long", Program::tr("too long")},
        {Finding::TooMuchSkew, "too-much-skew", Program::tr("too much skew")},
        {Finding::WrongWiring, "wrong-wiring", Program::tr("wrong wiring")},
    };
    return names;
}

QString nameOf(ResultsFinding::Kind kind)
{
    for (const KindName &name : kindNames()) {
        if (name.kind == kind)
            return QLatin1String(name.name);
    }
    return {};
}

/// Prints the findings.
class Report
{
public:
    Report(const JobSnapshot &job, const ResultsStatus &status)
        : m_job(job)
        , m_status(status)
    {
    }

    QString text() const
    {
        std::vector<TextColumn> columns{
            {Program::tr("Cable"), false, {}}, {Program::tr("Kind"), false, {}}, {Program::tr("Finding"), false, {}}};
        for (const ResultsFinding &finding : m_status.findings) {
            columns[0].cells.append(inOneLine(cableOf(finding).id));
            columns[1].cells.append(nameOf(finding.kind));
            columns[2].cells.append(inOneLine(finding.message));
        }
        return (m_status.findings.isEmpty() ? QString() : textOf(columns) + QLatin1Char('\n')) + summary();
    }

    QByteArray csv() const
    {
        QByteArray text = "cable,kind,message\n";
        for (const ResultsFinding &finding : m_status.findings)
            text += csvLine({cableOf(finding).id, nameOf(finding.kind), finding.message});
        return text;
    }

    JsonObject json(const CommandLine &line, const QDate &olderThan) const
    {
        QJsonObject counts;
        for (const KindName &name : kindNames())
            counts.insert(QLatin1String(name.name), m_status.count(name.kind));
        return {{{QStringLiteral("file"), line.argument(0)},
                 {QStringLiteral("olderThan"),
                  olderThan.isValid() ? QJsonValue(olderThan.toString(Qt::ISODate)) : QJsonValue()},
                 {QStringLiteral("cables"), m_status.cables},
                 {QStringLiteral("passed"), m_status.passed},
                 {QStringLiteral("passedWithinAccuracy"), m_status.passedWithinAccuracy},
                 {QStringLiteral("counts"), counts}},
                QStringLiteral("findings"),
                int(m_status.findings.size()),
                [this](int number) { return objectOf(m_status.findings.at(number)); }};
    }

private:
    const snapshot::Cable &cableOf(const ResultsFinding &finding) const { return m_job.cables().at(finding.cable); }

    QJsonObject objectOf(const ResultsFinding &finding) const
    {
        return {{QStringLiteral("cable"), cableOf(finding).id},
                {QStringLiteral("tag"), cableOf(finding).element},
                {QStringLiteral("kind"), nameOf(finding.kind)},
                {QStringLiteral("message"), finding.message}};
    }

    /// Returns a line with the numbers of cables. Kinds without a cable are left out.
    QString summary() const
    {
        const auto part = [](const QString &heading, int count) {
            return heading + QLatin1Char(' ') + QString::number(count);
        };
        QStringList parts{part(Program::tr("cables"), m_status.cables), part(Program::tr("passed"), m_status.passed),
                          part(Program::tr("passed within accuracy"), m_status.passedWithinAccuracy)};
        for (const KindName &name : kindNames()) {
            if (const int count = m_status.count(name.kind))
                parts.append(part(name.heading, count));
        }
        return parts.join(QLatin1String(", ")) + QLatin1Char('\n');
    }

    const JobSnapshot &m_job;
    const ResultsStatus &m_status;
};

/// Reads the option --older-than. Returns what is wrong with it, or an empty text.
QString readDate(const CommandLine &line, QDate *date)
{
    if (!line.isSet("older-than"))
        return {};
    *date = QDate::fromString(line.value("older-than"), QStringLiteral("yyyy-MM-dd"));
    return date->isValid() ? QString()
                           : Program::tr("\"%1\" is not a date such as 2026-01-31").arg(line.value("older-than"));
}

/// Reads the options --fail-on. Returns what is wrong with them, or an empty text.
QString readKinds(const CommandLine &line, QVector<ResultsFinding::Kind> *kinds)
{
    for (const QString &value : line.values("fail-on")) {
        for (const QString &part : value.split(QLatin1Char(','))) {
            const QString name = part.trimmed();
            if (name != nameOf(ResultsFinding::Untested) && name != nameOf(ResultsFinding::Failed))
                return Program::tr("\"%1\" is neither \"untested\" nor \"failed\"").arg(name);
            kinds->append(name == nameOf(ResultsFinding::Failed) ? ResultsFinding::Failed : ResultsFinding::Untested);
        }
    }
    return {};
}

} // namespace

ExitCode runResultsStatus(const CommandLine &line)
{
    ResultsStatusOptions options;
    options.metric = line.isSet("metric");
    QVector<ResultsFinding::Kind> kinds;
    const QString wrongDate = readDate(line, &options.olderThan);
    const QString problem = wrongDate.isEmpty() ? readKinds(line, &kinds) : wrongDate;
    if (!problem.isEmpty())
        return line.usageError(problem);
    JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    const ResultsStatus status = resultsStatusOf(job, options);
    const Report report(job, status);
    ExitCode printed = Done;
    if (line.isSet("json"))
        printed = printJson(line.output(), "cabledoc-results-status-1", report.json(line, options.olderThan));
    else
        printed = line.isSet("csv") ? printData(line.output(), report.csv()) : printText(line.output(), report.text());
    const bool hasFailed = std::any_of(kinds.cbegin(), kinds.cend(),
                                       [&status](ResultsFinding::Kind kind) { return status.count(kind) > 0; });
    return std::max(printed, hasFailed ? HasFindings : Done);
}
