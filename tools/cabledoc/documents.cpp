#include "documents.h"

#include "commandline.h"
#include "output.h"
#include "progress.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>
#include <cabledoc/jobsnapshot.h>

#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTemporaryFile>

#include <cstdio>
#include <memory>

namespace {

constexpr int lockTimeout = 5000; // milliseconds

/// Sets up a document so that it keeps names in all scripts, and replaces a file that it has not read only if this is
/// wanted.
void setUp(BKXMLEditor *document, const CommandLine &line)
{
    document->setCharacterReferences(true);
    document->setReplacesUnknownFiles(line.output().mayReplace);
    document->setMaximumFileSize(line.maximumSize());
}

/// Copies standard input to a file. Returns what went wrong, or an empty text.
QString copyStandardInput(QFile *copy, qint64 maximumSize)
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return input.errorString();
    constexpr qint64 pieceSize = 1 << 20;
    for (QByteArray piece = input.read(pieceSize); !piece.isEmpty(); piece = input.read(pieceSize)) {
        if (copy->write(piece) != piece.size())
            return copy->errorString();
        if (copy->pos() > maximumSize)
            return Program::tr("standard input is larger than the limit, which --max-size sets");
    }
    if (input.error() != QFileDevice::NoError)
        return input.errorString();
    return copy->flush() ? QString() : copy->errorString();
}

QString lockError(const QLockFile &lock, const QString &lockName)
{
    qint64 process = 0;
    QString host;
    QString application;
    if (lock.error() != QLockFile::LockFailedError || !lock.getLockInfo(&process, &host, &application))
        return Program::tr("The file cannot be locked: no file can be created in its folder");
    return Program::tr("Another program is changing the file: %1, process %2 on %3. If it is not, delete %4")
        .arg(application, QString::number(process), host, lockName);
}

/// Keeps other commands from changing the file until the program ends.
ExitCode lockUntilEnd(const QString &fileName)
{
    const QFileInfo file(fileName);
    // A missing file is reported when it is loaded.
    if (!file.exists())
        return Done;
    const QString lockName = file.canonicalFilePath() + QStringLiteral(".lock");
    static std::unique_ptr<QLockFile> lock;
    lock = std::make_unique<QLockFile>(lockName);
    // The lock of a running command is never taken over, however long the command takes.
    lock->setStaleLockTime(0);
    return lock->tryLock(lockTimeout) ? Done : fail(CannotSave, fileName, lockError(*lock, lockName));
}

/// Saves a document to standard output, by way of a regular file, since documents are saved to nothing else.
ExitCode printDocument(const std::function<QString(const QString &fileName)> &save)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("document"));
    QString error = save(path);
    QFile file(path);
    if (error.isEmpty() && !file.open(QIODevice::ReadOnly))
        error = file.errorString();
    return error.isEmpty() ? printData({}, file.readAll())
                           : fail(CannotPrint, standardStream, error.replace(path, standardStream));
}

} // namespace

void setUpDocuments(const CommandLine &line)
{
    setUp(&JobEditor::Instance(), line);
    setUp(&BktEditor::Instance(), line);
}

ExitCode readFile(const CommandLine &line, const QString &fileName,
                  const std::function<QString(const QString &path)> &read)
{
    QString path = fileName;
    QString error;
    // If the system allows it, the file has no name, and nothing remains of it however the program ends.
    QTemporaryFile copy;
    auto progress = std::make_unique<Progress>(Program::tr("reading %1").arg(fileName));
    if (fileName == standardStream) {
        error = copy.open() ? copyStandardInput(&copy, line.maximumSize()) : copy.errorString();
        path = QStringLiteral("/dev/fd/%1").arg(copy.handle());
    }
    if (error.isEmpty())
        error = read(path);
    progress.reset();
    return error.isEmpty() ? Done : fail(CannotLoad, fileName, error.replace(path, fileName));
}

ExitCode readJob(const CommandLine &line, cabledoc::JobSnapshot *job)
{
    return readFile(line, line.argument(0), [&](const QString &path) {
        *job = cabledoc::JobSnapshot::read(path, line.maximumSize());
        return job->error();
    });
}

namespace {

/// Loads a job. Returns what went wrong, or an empty text.
QString load(const QString &path)
{
    JobEditor &job = JobEditor::Instance();
    return job.Load(path) ? QString() : job.error();
}

} // namespace

ExitCode readAndLoadJob(const CommandLine &line, const std::function<bool(const cabledoc::JobSnapshot &job)> &isNeeded)
{
    return readFile(line, line.argument(0), [&](const QString &path) {
        {
            const auto job = cabledoc::JobSnapshot::read(path, line.maximumSize());
            if (!job.error().isEmpty() || !isNeeded(job))
                return job.error();
        }
        return load(path);
    });
}

ExitCode loadJob(const CommandLine &line)
{
    return readFile(line, line.argument(0), load);
}

ExitCode lockForChange(const CommandLine &line)
{
    if (line.isSet("output"))
        return Done;
    if (line.argument(0) == standardStream)
        return line.usageError(Program::tr("standard input cannot be changed, so -o is needed"));
    return lockUntilEnd(line.argument(0));
}

ExitCode lockAndLoadJob(const CommandLine &line)
{
    const ExitCode locked = lockForChange(line);
    return locked == Done ? loadJob(line) : locked;
}

ExitCode loadTemplate(const CommandLine &line, const QString &fileName)
{
    return readFile(line, fileName, [](const QString &path) {
        BktEditor &bkt = BktEditor::Instance();
        return bkt.LoadWithoutSaving(path) ? QString() : bkt.error();
    });
}

ExitCode saveDocument(const Output &output, const std::function<QString(const QString &fileName)> &save)
{
    if (output.isStandard())
        return printDocument(save);
    auto progress = std::make_unique<Progress>(Program::tr("saving %1").arg(output.fileName));
    const QString error = save(output.fileName);
    progress.reset();
    return error.isEmpty() ? Done : fail(CannotSave, output.fileName, error);
}

ExitCode saveJob(const Output &output)
{
    return saveDocument(output, [](const QString &fileName) {
        JobEditor &job = JobEditor::Instance();
        return job.saveAs(fileName) ? QString() : job.error();
    });
}

bool isDocumentPrinted(const CommandLine &line)
{
    return line.isSet("output") && line.output().isStandard();
}

namespace {

/// Saves a document to the file of --output, or to its own file if it was changed.
template <typename Editor> ExitCode saveChanged(Editor &document, const CommandLine &line)
{
    const auto result = [&document](bool isSaved) { return isSaved ? QString() : document.error(); };
    if (line.isSet("output"))
        return saveDocument(line.output(), [&](const QString &name) { return result(document.saveAs(name)); });
    if (!document.fileChanged())
        return Done;
    return saveDocument({document.filename()}, [&](const QString &) { return result(document.save()); });
}

} // namespace

ExitCode saveChangedJob(const CommandLine &line)
{
    return saveChanged(JobEditor::Instance(), line);
}

bool isTemplate(const QString &fileName)
{
    return BktEditor::checkBktExtension(fileName);
}

ExitCode readDocument(const CommandLine &line, cabledoc::JobSnapshot *document)
{
    if (!isTemplate(line.argument(0)))
        return readJob(line, document);
    if (const ExitCode error = loadTemplate(line, line.argument(0)))
        return error;
    *document = cabledoc::JobSnapshot(BktEditor::Instance());
    return Done;
}

ExitCode loadDocument(const CommandLine &line)
{
    return isTemplate(line.argument(0)) ? loadTemplate(line, line.argument(0)) : loadJob(line);
}

ExitCode saveChangedDocument(const CommandLine &line)
{
    return isTemplate(line.argument(0)) ? saveChanged(BktEditor::Instance(), line) : saveChangedJob(line);
}

ExitCode readData(const CommandLine &line, const QString &fileName, QByteArray *data)
{
    return readFile(line, fileName, [data](const QString &path) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            *data = file.readAll();
        return file.error() == QFileDevice::NoError ? QString() : file.errorString();
    });
}
