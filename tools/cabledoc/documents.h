#pragma once

#include "command.h"

#include <functional>

namespace cabledoc {
class JobSnapshot;
}
struct Output;

// The files of the commands. Each function returns Done, or prints a message and returns how the program ends.

/// Sets up the job document and the template document as the program uses them, with the options of the command line.
void setUpDocuments(const CommandLine &line);

/// Reads a file with the given function, which takes its path and returns what went wrong, or an empty text. If the
/// name of the file is "-", the path leads to a copy of standard input.
ExitCode readFile(const CommandLine &line, const QString &fileName,
                  const std::function<QString(const QString &path)> &read);

/// Reads the job that the first argument of the command line names.
ExitCode readJob(const CommandLine &line, cabledoc::JobSnapshot *job);
/// Calls the function with the job that the first argument of the command line names. If the function returns true,
/// also loads the job into the job document. The job that the function gets is no longer in memory then.
ExitCode readAndLoadJob(const CommandLine &line, const std::function<bool(const cabledoc::JobSnapshot &job)> &isNeeded);
/// Loads the job that the first argument of the command line names into the job document.
ExitCode loadJob(const CommandLine &line);
/// Keeps other commands from changing the file of the first argument until the program ends, and waits some seconds for
/// a command that is changing it. Refuses standard input. Does nothing if --output names another file.
ExitCode lockForChange(const CommandLine &line);
/// Does what lockForChange() and loadJob() do.
ExitCode lockAndLoadJob(const CommandLine &line);
/// Loads a file into the template document. A file of an earlier version is not changed.
ExitCode loadTemplate(const CommandLine &line, const QString &fileName);

/// Returns whether --output sends a changed document to standard output, so that nothing else may go there.
bool isDocumentPrinted(const CommandLine &line);
/// Saves the job to the file of --output. Without that option, saves the job to its own file if it was changed.
ExitCode saveChangedJob(const CommandLine &line);
/// Saves a document with the given function, which takes the name of a file and returns what went wrong, or an empty
/// text.
ExitCode saveDocument(const Output &output, const std::function<QString(const QString &fileName)> &save);
/// Saves the job to the output.
ExitCode saveJob(const Output &output);

// Commands that take a job or a template

/// Returns whether a file name is that of a template.
bool isTemplate(const QString &fileName);
/// Reads the job or template that the first argument of the command line names.
ExitCode readDocument(const CommandLine &line, cabledoc::JobSnapshot *document);
/// Loads the job or template that the first argument of the command line names.
ExitCode loadDocument(const CommandLine &line);
/// Saves the job or template like saveChangedJob().
ExitCode saveChangedDocument(const CommandLine &line);
/// Reads a whole file, such as a table.
ExitCode readData(const CommandLine &line, const QString &fileName, QByteArray *data);
