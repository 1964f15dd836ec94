#pragma once

#include "choices.h"
#include "fuzzing.h"
#include "plainjob.h"
#include "records.h"

#include <vector>

class Session;

/// An operation changes the job, changes the file as the manual describes it, and compares what the job returned.
using Operation = void (*)(Session *);
using Operations = std::vector<Operation>;

/// A job under test, and the file that the job must give after the operations so far.
class Session
{
public:
    Session(JobEditor *testedJob, const PlainElement &root, Choices *madeChoices);

    /// Performs an operation, and checks that the job is as expected.
    void step(Operation operation);
    /// Returns the job as it would be saved after the operation.
    const PlainElement &saved();

    JobEditor &job;
    PlainJob file;
    Choices &choices;

private:
    void readJob();

    QByteArray m_text;
    PlainElement m_saved;
    /// Whether the text and the elements are those after the operation.
    bool m_isRead = false;
};

/// Operations that add, change, move and remove elements of all kinds.
const Operations &elementOperations();
/// Operations on floors, sheets and rooms alone, and copies of them.
const Operations &planOperations();
/// Operations on cables, their tests and their lengths.
const Operations &cableOperations();
/// Operations on the site, the contractor, settings, definitions, bundles and files.
const Operations &contentOperations();

/// Returns whether the text can be the tag of an element.
bool isTag(const QString &text);
/// Appends the element that the job has appended to this list. Checks the names that the job has generated: a tag is
/// the prefix and a number, an id is the given text and a number, and neither was in use.
PlainElement &appendNew(Session *session, PlainElement &list, Kind kind, const Fields &fields, int mode);
/// Adds the lists that a new element has.
void addLists(PlainElement *element, Kind kind);
/// Writes the fields into the attributes of the element.
void write(PlainElement *element, const Fields &fields);
/// These perform operations of the manual on the file after the job has been changed.
void copyFloor(Session *session, const QString &from, const QString &to, const QMap<QString, QString> &cableIds);
void copySheet(Session *session, const QString &from, const QString &to);
PlainElement &addCable(Session *session, const Fields &fields, const Fields &results, int mode);
/// Returns the settings of an entry, and completes them in the file.
Fields readSettings(PlainJob *file, const PlainSettings &settings, const QString &entry);
/// Returns the test definition of a cable type.
Fields testDefOf(PlainJob *file, const QString &type);
