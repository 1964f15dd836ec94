#pragma once

#include "jobattributes.h"
#include "jobeditor.h"
#include "jobindex.h"
#include "testfiles.h"

/// What tests may see and do inside the job document.
class JobEditorProbe
{
public:
    explicit JobEditorProbe(JobEditor &job)
        : m_job(job)
    {
    }

    /// The document as it would be saved.
    QByteArray text() const { return cabledoc::xmlfile::toText(m_job.m_document, cabledoc::jobAttributeOrder()).bytes; }
    QDomElement root() const { return m_job.m_document.documentElement(); }
    QDomElement floorElement(const QString &tag) const { return m_job.floorElement(tag); }
    QDomElement roomElement(const QString &floorTag, const QString &tag) const
    {
        return m_job.roomElement(floorTag, tag);
    }
    QStringList floorsInBetween(const QString &tagA, const QString &tagB) const
    {
        return m_job.getFloorsInBetween(tagA, tagB);
    }

    /// Whether the indexes equal what a rebuild makes of the tree. They are left as they are, not rebuilt.
    bool indexesMatchTheTree() const
    {
        // These lists are made when they are asked for.
        m_job.getCables(true);
        m_job.getCablesByType(QString());
        const cabledoc::JobIndex kept = *m_job.m_index;
        m_job.updateAllInternalLists();
        const bool match = kept == *m_job.m_index;
        *m_job.m_index = kept;
        return match;
    }

private:
    JobEditor &m_job;
};
