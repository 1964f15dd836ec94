#pragma once

#include "elementname.h"
#include "jobsnapshot.h"
#include "tablekind.h"
#include "texthash.h"

#include <array>

namespace cabledoc {

/// What the tables need to know of an element of any kind.
struct ElementView
{
    const QString &tag; ///< null for test definitions and releases
    const QString &id;
    int holder;         ///< position of the room, floor or sheet that holds the element, or -1
    const void *fields; ///< the record, as the attribute table of the kind knows it
};

/// Returns the number of elements of a kind.
int countOf(const JobSnapshot &job, TableKind kind);
/// Returns the element of a kind at a position, as long as the job exists. A release has its value as the record.
ElementView elementOf(const JobSnapshot &job, TableKind kind, int position);
/// Returns whether the element is the room "Undefined" of a floor.
bool isUndefinedRoom(TableKind kind, const ElementView &element);
/// Returns the kind of elements as the schema knows it, or None for test definitions, bundles and releases.
ElementKind elementKind(TableKind kind);
/// Returns the table of a kind of elements.
TableKind tableOf(ElementKind kind);
/// Returns the kind of the elements that hold those of a kind, or Count if the document itself holds them.
TableKind holderKind(TableKind kind);

/// Returns the kinds that have their names in common with a kind. If elements of several kinds have a name, it leads to
/// that of the first kind.
QVector<TableKind> kindsWithNamesOf(TableKind kind);

/// The names of the elements of a job, as the user sees them. The name of a port has three parts: the ids of its floor,
/// its room and its own id. The part of the room is empty for the room "Undefined".
///
/// An element has a name if all parts but that of the room have texts, its holder has a name, and no element before it
/// has the same name. Ports and vertical runs have their names in common, and so have devices and bends.
class ElementNames
{
public:
    explicit ElementNames(const JobSnapshot &job);

    const JobSnapshot &job() const { return m_job; }
    /// Returns the parts of the name of an element. They may be empty or not unique.
    QStringList partsOf(TableKind kind, int position) const;
    /// Returns a part of the name of an element. 0 is its last part, and 1 that of its holder.
    QString partOf(TableKind kind, int position, int numberFromEnd) const;
    /// Returns whether the name leads to the element.
    bool isNamed(TableKind kind, int position) const;
    /// Returns the position of the element of the kind with that name, or -1 if there is none.
    int find(TableKind kind, const QStringList &parts) const;
    /// Returns the element of one of the kinds with that name. The first kind counts more.
    snapshot::Target find(std::initializer_list<TableKind> kinds, const QStringList &parts) const;
    /// Returns the position of the element with that tag that an operation of the job would find, or -1.
    int findTag(TableKind kind, const QString &tag) const;

private:
    struct Index
    {
        bool isMade = false;
        TextMap<int> positions;
        QVector<bool> isNamed;
    };

    const Index &indexOf(TableKind kind) const;
    void makeIndex(TableKind kind, Index *index) const;
    bool hasKey(TableKind kind, const QString &key) const;
    bool isReachable(TableKind kind, int position, const ElementView &element) const;

    JobSnapshot m_job;
    mutable std::array<Index, std::size_t(TableKind::Count)> m_indexes;
};

} // namespace cabledoc
