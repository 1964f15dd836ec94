#pragma once

#include "command.h"

#include <cabledoc/jobsnapshot.h>

// The names by which users give elements of a job to commands.

/// An element that the user has named.
struct NamedElement
{
    cabledoc::snapshot::Target element;
    QString fullName;
};

/// These return the elements with the given name, with their full names. A name is an id, or the end of the full name:
/// "FLOOR/ROOM/PORT" of a port or vertical run, "FLOOR/ROOM" of a room, "SHEET/DEVICE" of a network device. The room
/// "Undefined" is empty. In a name with several parts, a backslash comes before a "/", ";" or backslash that belongs to
/// an id.
QVector<NamedElement> portsNamed(const cabledoc::JobSnapshot &job, const QString &name);
QVector<NamedElement> cablesNamed(const cabledoc::JobSnapshot &job, const QString &name);
QVector<NamedElement> roomsNamed(const cabledoc::JobSnapshot &job, const QString &name);
QVector<NamedElement> devicesNamed(const cabledoc::JobSnapshot &job, const QString &name);

/// Returns the full name of a port or vertical run.
QString fullNameOf(const cabledoc::JobSnapshot &job, const cabledoc::snapshot::Target &port);

/// Refuses a name if there are no elements, with the given message, or if they have several full names.
ExitCode refuseUnclear(const QString &fileName, const QString &name, const QVector<NamedElement> &elements,
                       const QString &noElement);
