#pragma once

#include "drawingfonts.h"
#include "drawingoptions.h"
#include "jobsnapshot.h"

namespace cabledoc {

/// Returns the title of a drawing, with the site of the job.
QString titleOf(const JobSnapshot &job, const QString &title);

/// The paper and the title blocks of the drawings of a job.
class PageSetup
{
public:
    /// What is drawn is printed as the settings of the job with the given name say.
    PageSetup(const JobSnapshot &job, const DrawingOptions &options, const QString &settings);

    /// Returns why nothing can be drawn, or an empty string.
    const QString &problem() const { return m_problem; }
    const QSizeF &paper() const { return m_paper; }
    /// Completes a drawing: adds the title blocks, the title and the author. There is a subject and a scale
    /// for each page. The kind says what the subjects are, such as "Floor".
    void complete(DrawingResult *result, const QString &kind, const QStringList &subjects,
                  const QStringList &scales) const;

    /// Returns the content of the file with the contractor's logo, or no data if there is none. Adds a warning if the
    /// file cannot be read.
    QByteArray logo(QStringList *warnings) const;

private:
    const JobSnapshot &m_job;
    const DrawingOptions &m_options;
    QSizeF m_paper;
    QString m_problem;
};

} // namespace cabledoc
