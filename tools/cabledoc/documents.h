#pragma once

#include "command.h"

namespace cabledoc {
class JobSnapshot;
}

// The files of the commands. Each function returns Done, or prints a message and returns how the program ends.

/// Sets up the job document and the template document as the program uses them. Files above the given size in bytes
/// are not read.
void setUpDocuments(qint64 maximumSize);

/// Reads the job that the first argument of the command line names.
ExitCode readJob(const CommandLine &line, cabledoc::JobSnapshot *job);
/// Loads a file into the job document.
ExitCode loadJob(const QString &fileName);
/// Loads a file into the job document, and keeps other commands from changing the file until the program ends. Waits
/// some seconds for a command that is changing it.
ExitCode lockAndLoadJob(const QString &fileName);
/// Loads a file into the template document. A file of an earlier version is not changed.
ExitCode loadTemplate(const QString &fileName);
/// Saves the job if it was changed.
ExitCode saveChangedJob();

/// Refuses a file that exists.
ExitCode refuseExistingFile(const QString &fileName);
