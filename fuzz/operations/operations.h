#pragma once

#include "choices.h"
#include "fuzzing.h"
#include "plainjob.h"
#include "records.h"

#include <vector>

class Session;

/// An operation does something to the job, does to the file what the manual says, and compares what was returned.
using Operation = void (*)(Session *);
using Operations = std::vector<Operation>;

/// A job under test, and the job as its file must be after what was done so far.
class Session
{
public:
    Session(JobEditor *testedJob, const PlainElement &root, Choices *madeChoices);

    /// Does an operation and expects the job to be what it should have made of it.
    void step(Operation operation);
    /// The job as it would be saved after the operation.
    const PlainElement &saved();

    JobEditor &job;
    PlainJob file;
    Choices &choices;

private:
    void readJob();

    QByteArray m_text;
    PlainElement m_saved;
    bool m_isRead = false; ///< whether these two are those after the operation
};

/// What adds, changes, moves and removes elements of all kinds.
const Operations &elementOperations();
/// What concerns floors, sheets and rooms alone, and copies them.
const Operations &planOperations();
/// What concerns cables, their tests and their lengths.
const Operations &cableOperations();
/// What concerns the site, the contractor, settings, definitions, bundles and files.
const Operations &contentOperations();

/// Whether the text can be the tag of an element.
bool isTag(const QString &text);
/// Appends the element that the job has appended to this list. Checks the names that the job has generated: a tag is
/// the prefix and a number, an id the given text and one, and none of them is used.
PlainElement &appendNew(Session *session, PlainElement &list, Kind kind, const Fields &fields, int mode);
/// Gives a new element the lists that belong into it.
void addLists(PlainElement *element, Kind kind);
/// Sets attributes.
void write(PlainElement *element, const Fields &fields);
/// The operations of the manual, done to the file after the job was changed.
void copyFloor(Session *session, const QString &from, const QString &to, const QMap<QString, QString> &cableIds);
void copySheet(Session *session, const QString &from, const QString &to);
PlainElement &addCable(Session *session, const Fields &fields, const Fields &results, int mode);
/// The settings of an entry, which is completed in the file.
Fields readSettings(PlainJob *file, const PlainSettings &settings, const QString &entry);
/// The test definition of a cable type.
Fields testDefOf(PlainJob *file, const QString &type);
