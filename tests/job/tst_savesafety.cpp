#include "jobeditorprobe.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <csignal>
#include <cstdio>

#include <sys/resource.h>

namespace {

constexpr int floorsInJob = 300;

/// Gives all floors a name that tells one state of the file from another.
void nameFloors(JobEditor &job, const QString &name)
{
    const QStringList tags = job.getFloorTags();
    for (const QString &tag : tags)
        job.setFloorId(tag, name);
}

/// What the process does that the tests kill: it saves two states of the file in turn.
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

} // namespace

/// Whatever happens during a save, the file holds the old or the new content, whole, and the save says
/// which.
class SaveSafetyTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    /// Makes and saves a job, and changes it: the next save has something to lose.
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

    void killedWhileSaving()
    {
        const QString fileName = m_directory.filePath("killed.job");
        prepare(fileName);
        const QByteArray first = readFile(fileName);
        QVERIFY(JobEditor::Instance().save());
        const QByteArray second = readFile(fileName);
        QVERIFY(first != second);
        for (int kill = 0; kill < 40; ++kill) {
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
        // The disk is filled until nothing more fits, and emptied page by page until the save succeeds.
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
