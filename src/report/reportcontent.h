#pragma once

#include "report.h"
#include "reportblocks.h"

#include <QtCore/QCoreApplication>

#include <memory>

namespace cabledoc {

/// The translation context of the texts of reports.
struct ReportText
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

/// What a report says.
class ReportContent
{
public:
    ReportContent(const JobSnapshot &job, const ReportOptions &options);
    virtual ~ReportContent() = default;
    Q_DISABLE_COPY(ReportContent)

    /// Returns the title, such as "Test report".
    virtual QString title() const = 0;
    /// Gives all groups to a sink. They are the same each time.
    virtual void writeTo(const ReportSink &sink) const = 0;
    virtual QVector<ReportOutlineEntry> outline() const { return {}; }

protected:
    const JobSnapshot &job() const { return m_job; }
    const ReportOptions &options() const { return m_options; }

    /// Returns the beginning: the title, the contractor and the site.
    QVector<ReportBlock> beginning() const;
    /// Returns a length with its unit, such as "30.5 m".
    QString lengthText(double feet) const;

private:
    const JobSnapshot &m_job;
    const ReportOptions &m_options;
};

/// Returns a time without the mark between the date and the time of day.
QString timeText(const QString &time);

/// Returns the parts that are not empty, with a separator between them.
QString joined(QStringList parts, const QString &separator);

/// Returns a table of rows that are there already.
TableBlock tableOf(const QVector<ReportColumn> &columns, const QVector<ReportRow> &rows);

/// Returns the content of the kind of report that the options ask for.
std::unique_ptr<ReportContent> contentOf(const JobSnapshot &job, const ReportOptions &options);

} // namespace cabledoc
