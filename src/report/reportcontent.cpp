#include "reportcontent.h"

#include "overviewcontent.h"
#include "testcontent.h"
#include "units.h"
#include "verdicts.h"

namespace cabledoc {

namespace {

const QString comma = QStringLiteral(", ");

QString addressText(const Address &address)
{
    const AddressFields &fields = address.fields();
    return joined({fields.address1, fields.address2, joined({fields.zipcode, fields.city}, QStringLiteral(" ")),
                   fields.state, fields.country},
                  comma);
}

} // namespace

QColor verdictColor(const QString &verdict)
{
    if (verdict == verdicts::Pass)
        return QColor(0x1a, 0x6e, 0x2e);
    if (verdict == verdicts::PassWithinAccuracy)
        return QColor(0x8a, 0x5a, 0x00);
    if (verdict == verdicts::Fail)
        return QColor(0xb0, 0x10, 0x10);
    return QColor(0x55, 0x55, 0x55);
}

ReportContent::ReportContent(const JobSnapshot &job, const ReportOptions &options)
    : m_job(job)
    , m_options(options)
{
}

QVector<ReportBlock> ReportContent::beginning() const
{
    const SiteDataFields &site = m_job.site();
    const ContractorDataFields &contractor = m_job.contractor();
    FactsBlock block;
    const QVector<QPair<QString, QString>> facts{
        {ReportText::tr("Site"), site.company},
        {ReportText::tr("Address"), addressText(site.address)},
        {ReportText::tr("Contact"), joined({site.contact, site.phone, site.email}, comma)},
        {ReportText::tr("Job"), site.jobID},
        {ReportText::tr("Contractor"), contractor.company},
        {ReportText::tr("Address"), addressText(contractor.address)},
        {ReportText::tr("Contact"), joined({contractor.phone, contractor.email}, comma)},
        {ReportText::tr("Tested by"), contractor.tester},
    };
    for (const auto &fact : facts) {
        if (!fact.second.isEmpty())
            block.facts.append(fact);
    }
    return {HeadingBlock{title(), HeadingBlock::Title}, block};
}

QString ReportContent::lengthText(double feet) const
{
    return m_options.metric ? QString::number(feet / feetInAMeter, 'f', 1) + QLatin1String(" m")
                            : QString::number(feet, 'f', 1) + QLatin1String(" ft");
}

QString timeText(const QString &time)
{
    constexpr int markPosition = 10; // in a time of ISO 8601
    QString text = time;
    if (text.size() > markPosition && text.at(markPosition) == QLatin1Char('T'))
        text[markPosition] = QLatin1Char(' ');
    return text;
}

QString joined(QStringList parts, const QString &separator)
{
    parts.removeAll(QString());
    return parts.join(separator);
}

TableBlock tableOf(const QVector<ReportColumn> &columns, const QVector<ReportRow> &rows)
{
    return {columns, int(rows.size()), [rows](int row) { return rows.at(row); }};
}

std::unique_ptr<ReportContent> contentOf(const JobSnapshot &job, const ReportOptions &options)
{
    switch (options.kind) {
    case ReportKind::Summary:
        return std::make_unique<SummaryContent>(job, options);
    case ReportKind::Inventory:
        return std::make_unique<InventoryContent>(job, options);
    case ReportKind::Schedule:
        return std::make_unique<ScheduleContent>(job, options);
    case ReportKind::Notes:
        return std::make_unique<NotesContent>(job, options);
    case ReportKind::Active:
        return std::make_unique<ActiveContent>(job, options);
    default:
        return std::make_unique<TestContent>(job, options);
    }
}

} // namespace cabledoc
