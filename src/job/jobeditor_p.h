#pragma once

#include "document.h"
#include "jobeditor.h"
#include "jobtree.h"

namespace cabledoc {

/// The private data of the job document, and functions that its source files share.
class JobEditorPrivate
{
public:
    JobEditorPrivate(Document *jobDocument, JobTree *jobTree)
        : document(*jobDocument)
        , tree(*jobTree)
    {
        document.notes = CableTable::wantedNotes();
    }

    /// Returns the private data of a job document.
    static JobEditorPrivate &of(const JobEditor &job) { return *job.d; }

    /// Returns a new empty document.
    static std::shared_ptr<JobEditor> newDocument()
    {
        return std::shared_ptr<JobEditor>(new JobEditor, [](JobEditor *job) { delete job; });
    }
    /// Returns what generated ids of cables begin with, in the present language.
    static QString cableIdPrefix();
    /// Adds an element, as JobTree::add() does. Returns a null element and sets error() if a given tag cannot be the
    /// name of an element.
    template <typename Fields> QDomElement add(const Kind<Fields> &kind, const Fields &fields, int mode)
    {
        return addmode::keepsTag(mode) && !mayBeName(fields.element) ? QDomElement() : tree.add(kind, fields, mode);
    }
    /// Returns whether the text can be the name of an element or attribute. Sets error() if not.
    bool mayBeName(const QString &name);
    /// Returns whether a file can be saved under that name. Sets error() if not.
    bool mayBeFile(const QString &filename, const QString &extension);
    /// Returns whether an element of the kind has that text as its tag, or as its id if byTag is false.
    bool exists(ElementKind kind, const QString &text, bool byTag) const;

    Document &document;
    JobTree &tree;
    QString defaultBktFile;
    int release = 0;
};

} // namespace cabledoc
