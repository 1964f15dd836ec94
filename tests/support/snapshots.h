#pragma once

#include "jobsnapshot.h"
#include "testfiles.h"

/// Writes a job file and reads it. Ends the test if the content is not a job.
inline cabledoc::JobSnapshot writtenJob(const QString &fileName, const QByteArray &content)
{
    writeFile(fileName, content);
    const cabledoc::JobSnapshot job = cabledoc::JobSnapshot::read(fileName);
    if (!job.error().isEmpty())
        qFatal("%s", qPrintable(job.error()));
    return job;
}
