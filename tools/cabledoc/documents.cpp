#include "documents.h"

#include "commandline.h"
#include "output.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>
#include <cabledoc/jobsnapshot.h>

#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>

#include <memory>

namespace {

constexpr int lockTimeout = 5000; // milliseconds

/// Sets up a document so that it keeps names in all scripts, and never replaces a file that it has not read.
void setUp(BKXMLEditor *document, qint64 maximumSize)
{
    document->setCharacterReferences(true);
    document->setReplacesUnknownFiles(false);
    document->setMaximumFileSize(maximumSize);
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

} // namespace

void setUpDocuments(qint64 maximumSize)
{
    setUp(&JobEditor::Instance(), maximumSize);
    setUp(&BktEditor::Instance(), maximumSize);
}

ExitCode readJob(const CommandLine &line, cabledoc::JobSnapshot *job)
{
    *job = cabledoc::JobSnapshot::read(line.argument(0), line.maximumSize());
    return job->error().isEmpty() ? Done : fail(CannotLoad, line.argument(0), job->error());
}

ExitCode loadJob(const QString &fileName)
{
    JobEditor &job = JobEditor::Instance();
    return job.Load(fileName) ? Done : fail(CannotLoad, fileName, job.error());
}

ExitCode lockAndLoadJob(const QString &fileName)
{
    const ExitCode locked = lockUntilEnd(fileName);
    return locked == Done ? loadJob(fileName) : locked;
}

ExitCode loadTemplate(const QString &fileName)
{
    BktEditor &bkt = BktEditor::Instance();
    return bkt.LoadWithoutSaving(fileName) ? Done : fail(CannotLoad, fileName, bkt.error());
}

ExitCode saveChangedJob()
{
    JobEditor &job = JobEditor::Instance();
    return !job.fileChanged() || job.save() ? Done : fail(CannotSave, job.filename(), job.error());
}

ExitCode refuseExistingFile(const QString &fileName)
{
    return !QFileInfo::exists(fileName)
               ? Done
               : fail(CannotSave, fileName, Program::tr("%1 exists and is left as it is").arg(fileName));
}
