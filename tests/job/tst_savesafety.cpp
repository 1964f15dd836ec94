#include "failingcalls.h"
#include "jobeditorprobe.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <functional>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int floorsInJob = 300;

/// Gives all floors the same name, by which the states of the file differ.
void nameFloors(JobEditor &job, const QString &name)
{
    const QStringList tags = job.getFloorTags();
    for (const QString &tag : tags)
        job.setFloorId(tag, name);
}

/// Saves two states of the file in turn. This runs in the process that the tests kill.
[[noreturn]] void saveForever(const QString &fileName)
{
    JobEditor &job = JobEditor::Instance();
    if (!job.Load(fileName))
        std::exit(2);
    for (int i = 0;; ++i) {
        nameFloors(job, QString::number(i % 2));
        if (!job.save())
            std::exit(3);
        std::puts("saved");
        std::fflush(stdout);
    }
}

/// Takes the rights of the administrator from the process as long as the object exists. The given files and folders
/// belong to the ordinary user.
class OrdinaryUser
{
public:
    explicit OrdinaryUser(const QStringList &files)
    {
        if (!m_isRoot)
            return;
        bool isDone = true;
        for (const QString &file : files) {
            if (QFile::exists(file))
                isDone = isDone && chown(QFile::encodeName(file).constData(), nobody, nobody) == 0;
        }
        if (!isDone || setresuid(nobody, nobody, 0) != 0)
            qFatal("cannot become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (m_isRoot && setresuid(0, 0, 0) != 0)
            qFatal("cannot become the administrator again");
    }
    Q_DISABLE_COPY(OrdinaryUser)

private:
    static constexpr uid_t nobody = 65534;
    const bool m_isRoot = geteuid() == 0;
};

/// Returns the names and the contents of the files in a folder. Returns the content of the file if there is a file in
/// place of the folder. Returns an empty array if there is neither.
QByteArray contentOf(const QString &folder)
{
    if (QFileInfo(folder).isFile())
        return readFile(folder);
    QByteArray content;
    const QDir::Filters all = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    const QFileInfoList files = QDir(folder).entryInfoList(all);
    for (const QFileInfo &file : files)
        content += file.fileName().toUtf8() + '\n' + (file.isFile() ? readFile(file.filePath()) : QByteArray());
    return content;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(const QString &)>)

/// Tests that the file holds either the whole old or the whole new content, whatever happens during a save. Also tests
/// that a save that fails reports it.
class SaveSafetyTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    /// Makes and saves a job, and changes it, so that the next save replaces a different content.
    void prepare(const QString &fileName)
    {
        JobEditor::Destroy();
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(fileName));
        for (int i = 1; i < floorsInJob; ++i)
            job.addFloor(QString(), QString(), 8, QString(), 0);
        nameFloors(job, "0");
        QVERIFY2(job.save(), qPrintable(job.error()));
        nameFloors(job, "1");
    }

    void expectFailedSave(const QByteArray &before)
    {
        JobEditor &job = JobEditor::Instance();
        const QStringList files = QFileInfo(job.filename()).dir().entryList(QDir::Files);
        job.error().clear();
        QVERIFY(!job.save());
        QVERIFY(!job.error().isEmpty());
        QVERIFY(job.fileChanged());
        QCOMPARE(readFile(job.filename()), before);
        QCOMPARE(QFileInfo(job.filename()).dir().entryList(QDir::Files), files);
    }

private Q_SLOTS:
    void cleanupTestCase() { JobEditor::Destroy(); }

    /// CABLEDOC_TEST_KILLS sets the number of kills.
    void killedWhileSaving()
    {
        const QString fileName = m_directory.filePath("killed.job");
        prepare(fileName);
        const QByteArray first = readFile(fileName);
        QVERIFY(JobEditor::Instance().save());
        const QByteArray second = readFile(fileName);
        QVERIFY(first != second);
        bool isNumber = false;
        const int kills = qEnvironmentVariableIntValue("CABLEDOC_TEST_KILLS", &isNumber);
        for (int kill = 0; kill < (isNumber ? kills : 40); ++kill) {
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), {"--save-forever", fileName});
            QVERIFY(process.waitForReadyRead());
            QTest::qSleep(1 + kill % 13);
            process.kill();
            QVERIFY(process.waitForFinished());
            QCOMPARE(int(process.exitStatus()), int(QProcess::CrashExit));
            const QByteArray content = readFile(fileName);
            QVERIFY2(content == first || content == second, qPrintable(QString("kill %1").arg(kill)));
        }
    }

    void fileSizeLimit()
    {
        prepare(m_directory.filePath("limited.job"));
        const QByteArray before = readFile(JobEditor::Instance().filename());
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit unlimited{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &unlimited), 0);
        for (const rlim_t limit : {rlim_t(0), rlim_t(4096), rlim_t(before.size() - 1)}) {
            const rlimit limited{limit, unlimited.rlim_max};
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &limited), 0);
            expectFailedSave(before);
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &unlimited), 0);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY(JobEditor::Instance().save());
        QVERIFY(readFile(JobEditor::Instance().filename()) != before);
    }

    void failingCalls_data()
    {
        QTest::addColumn<int>("call");
        QTest::addColumn<int>("error");
        QTest::newRow("write: disk full") << int(failingcalls::Write) << ENOSPC;
        QTest::newRow("write: short") << int(failingcalls::Write) << 0;
        QTest::newRow("write: broken disk") << int(failingcalls::Write) << EIO;
        QTest::newRow("fsync") << int(failingcalls::Fsync) << EIO;
        QTest::newRow("rename") << int(failingcalls::Rename) << EACCES;
    }

    /// Makes the first call fail, then the second, and so on, until a save makes no call that fails.
    void failingCalls()
    {
        QFETCH(int, call);
        QFETCH(int, error);
        const auto function = failingcalls::Call(call);
        prepare(m_directory.filePath("calls.job"));
        JobEditor &job = JobEditor::Instance();
        job.setJobNotesText(QString(9000000, 'x')); // written in several pieces
        const QByteArray before = readFile(job.filename());
        const QByteArray after = JobEditorProbe(job).text();
        const QStringList files = QDir(m_directory.path()).entryList(QDir::Files);
        int failures = 0;
        for (int number = 1; job.fileChanged(); ++number) {
            failingcalls::fail(function, number, error);
            job.error().clear();
            const bool isSaved = job.save();
            const int made = failingcalls::made(function);
            failingcalls::fail(function, 0, 0);
            QCOMPARE(isSaved, made < number);
            QCOMPARE(job.fileChanged(), !isSaved);
            QCOMPARE(job.error().isEmpty(), isSaved);
            const QByteArray content = readFile(job.filename());
            // If the folder cannot be synced, the new content is in place, but a power failure could undo this.
            QVERIFY(content == after || (!isSaved && content == before));
            QCOMPARE(QDir(m_directory.path()).entryList(QDir::Files), files);
            failures += isSaved ? 0 : 1;
        }
        QVERIFY(failures > (function == failingcalls::Write ? 1 : 0));
    }

    void places_data()
    {
        QTest::addColumn<std::function<void(const QString &)>>("change");
        QTest::addColumn<bool>("isSaved");
        const auto row = [](const char *name, bool isSaved, const std::function<void(const QString &)> &change) {
            QTest::newRow(name) << change << isSaved;
        };
        const auto permit = [](const QString &name, mode_t mode) {
            QCOMPARE(chmod(QFile::encodeName(name).constData(), mode), 0);
        };
        row("as it was", true, [](const QString &) {});
        row("file taken away", true, [](const QString &file) { QVERIFY(QFile::remove(file)); });
        row("read-only file", false, [permit](const QString &file) { permit(file, 0444); });
        row("read-only folder", false, [permit](const QString &file) { permit(QFileInfo(file).path(), 0555); });
        row("folder taken away", false, [](const QString &file) { QDir(QFileInfo(file).path()).removeRecursively(); });
        row("folder in its place", false,
            [](const QString &file) { QVERIFY(QFile::remove(file) && QDir().mkdir(file)); });
        row("file in the place of its folder", false, [](const QString &file) {
            QDir(QFileInfo(file).path()).removeRecursively();
            writeFile(QFileInfo(file).path(), "precious");
        });
        row("pipe in its place", false, [](const QString &file) {
            QVERIFY(QFile::remove(file));
            QCOMPARE(mkfifo(QFile::encodeName(file).constData(), 0666), 0);
        });
        row("link to a file", true, [](const QString &file) {
            QVERIFY(QFile::rename(file, file + ".real") && QFile::link(file + ".real", file));
        });
        row("link to nothing", true,
            [](const QString &file) { QVERIFY(QFile::remove(file) && QFile::link(file + ".gone", file)); });
        row("link to itself", false,
            [](const QString &file) { QVERIFY(QFile::remove(file) && QFile::link(file, file)); });
    }

    /// Changes the file or its folder before the save.
    void places()
    {
        using Change = std::function<void(const QString &)>;
        QFETCH(Change, change);
        QFETCH(bool, isSaved);
        const QString folder = m_directory.filePath("place");
        QFile::remove(folder);
        QDir(folder).removeRecursively();
        QVERIFY(QDir().mkdir(folder));
        prepare(folder + "/site.job");
        JobEditor &job = JobEditor::Instance();
        change(job.filename());
        if (QTest::currentTestFailed())
            return;
        const bool wasLink = QFileInfo(job.filename()).isSymLink();
        const QByteArray before = contentOf(folder);
        job.error().clear();
        {
            const OrdinaryUser user({m_directory.path(), folder, job.filename()});
            QCOMPARE(job.save(), isSaved);
        }
        QCOMPARE(job.fileChanged(), !isSaved);
        QCOMPARE(job.error().isEmpty(), isSaved);
        QCOMPARE(QFileInfo(job.filename()).isSymLink(), wasLink);
        if (isSaved)
            QCOMPARE(readFile(job.filename()), JobEditorProbe(job).text());
        else
            QCOMPARE(contentOf(folder), before);
    }

    void diskFull()
    {
        const QString folder = m_directory.filePath("small");
        QVERIFY(QDir().mkdir(folder));
        const auto mount = [&folder] {
            return QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=256k", "tmpfs", folder});
        };
        if (mount() != 0)
            QSKIP("no file system can be mounted here");
        const auto unmount = qScopeGuard([&folder] {
            JobEditor::Destroy();
            QProcess::execute("umount", {folder});
        });

        prepare(folder + "/full.job");
        if (QTest::currentTestFailed())
            return;
        const QByteArray before = readFile(JobEditor::Instance().filename());
        // Fills the disk, and then empties it page by page until the save succeeds.
        QFile ballast(folder + "/ballast");
        QVERIFY(ballast.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (ballast.write(QByteArray(4096, 'x')) == 4096) {
        }
        int failures = 0;
        while (ballast.size() > 0 && !JobEditor::Instance().save()) {
            ++failures;
            expectFailedSave(before);
            if (QTest::currentTestFailed())
                return;
            QVERIFY(ballast.resize(std::max<qint64>(0, ballast.size() - 4096)));
        }
        QVERIFY(failures >= before.size() / 4096);
        QVERIFY(!JobEditor::Instance().fileChanged());
        QCOMPARE(readFile(JobEditor::Instance().filename()), JobEditorProbe(JobEditor::Instance()).text());
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--save-forever") == 0)
        saveForever(QFile::decodeName(argv[2]));
    SaveSafetyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_savesafety.moc"
