#include "bkutilities.h"
#include "jobeditorprobe.h"
#include "testlanguage.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <memory>

class JobLifecycleTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_directory;

    QString path(const QString &name) const { return m_directory->filePath(name); }
    QString fileWith(const QByteArray &content) const
    {
        writeFile(path("given.job"), content);
        return path("given.job");
    }

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        writeFile(path("settings.ini"), "[Settings]\n1=" + QFile::encodeName(m_directory->path()) + "\n24=9.5\n");
        BKUtilities::setSettingsFile(path("settings.ini"));
    }

    void cleanup() { JobEditor::Destroy(); }

    void instanceIsCreatedAndDestroyed()
    {
        JobEditor &job = JobEditor::Instance();
        QCOMPARE(&JobEditor::Instance(), &job);
        QVERIFY(!job.fileChanged());
        QCOMPARE(job.addFloor(QString(), QString(), 8, QString(), 0), QString("Bad Floor"));
        QCOMPARE(job.addSheet(QString(), QString(), 0), QString("Bad Sheet"));
        QVERIFY(job.New("site"));
        JobEditor::Destroy();
        JobEditor::Destroy();
        QVERIFY(JobEditor::Instance().getFloorTags().isEmpty());
    }

    void newJobHasTheExpectedTree()
    {
        JobEditor &job = JobEditor::Instance();
        const QString name = path("new.job");
        QVERIFY(job.New(name));
        QVERIFY(!job.fileChanged());
        QVERIFY(!QFile::exists(name));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        QVERIFY(job.save());
        QCOMPARE(readFile(name), withGeneratedNames(testData("new.job")));
        QVERIFY(job.Load(name));
        QVERIFY(job.save());
        QCOMPARE(readFile(name), withGeneratedNames(testData("new.job")));
    }

    void newUntitledTakesTheFirstFreeName()
    {
        JobEditor &job = JobEditor::Instance();
        QCOMPARE(job.New(), path("Untitled1.job"));
        QVERIFY(job.save());
        job.Unload();
        QCOMPARE(job.New(), path("Untitled2.job"));
        QCOMPARE(job.filename(), path("Untitled2.job"));
        QCOMPARE(job.getFloor("FFloor_1").ceilingHeight(), 9.5);
        QVERIFY(!job.fileChanged());
    }

    void loadAndSaveKeepTheFile()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New("before"));
        job.setDirty(true);
        job.Unload();
        const QString name = fileWith(testData("site.job"));
        QVERIFY2(job.Load(name), qPrintable(job.error()));
        QVERIFY(!job.fileChanged());
        QVERIFY(job.save());
        QCOMPARE(readFile(name), testData("site.job"));
        // A load replaces the job that was open.
        QVERIFY(job.Load(name));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        QCOMPARE(JobEditorProbe(job).text(), testData("site.job"));
    }

    void saveAsMovesTheDocument()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(path("one.job")));
        job.setDirty(true);
        QVERIFY(!job.saveAs(m_directory->path()));
        QCOMPARE(job.error(), JobEditor::tr("Filename given is a directory"));
        QVERIFY(!job.saveAs(path("none/two.job")));
        QVERIFY(job.fileChanged());
        QCOMPARE(job.filename(), path("one.job"));

        writeFile(path("two"), "old");
        QTest::ignoreMessage(QtDebugMsg, "Overwriting in JobEditor::saveAs");
        QVERIFY(job.saveAs(path("two")));
        QVERIFY(!job.fileChanged());
        QCOMPARE(job.filename(), path("two"));
        QVERIFY(readFile(path("two")).startsWith("<Job>"));
        QVERIFY(!QFile::exists(path("one.job")));
    }

    void replacedCharactersAreReported()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(path("lost.job")));
        job.addSheet(QString(), "\u0142\u00f3d\u017a\x01", 1);
        QTest::ignoreMessage(QtDebugMsg, "3 characters that the file cannot hold were written as \"?\"");
        QVERIFY(job.save());
        QVERIFY(job.Load(job.filename()));
        QCOMPARE(job.getSheetIdByTag("SSheet_2"), QString("?\u00f3d??"));
    }

    /// The constructor that takes a name may end the process, so it runs in another process.
    void constructionByName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("existing") << "a.job" << testData("site.job") << 0 << QByteArray("Ground,Upper|");
        QTest::newRow("missing") << "a.job" << QByteArray() << 0 << withGeneratedNames("Floor_1|");
        QTest::newRow("directory") << "." << QByteArray() << 0
                                   << '|' + JobEditor::tr("Filename given to JobEditor is a directory").toLocal8Bit();
        QTest::newRow("unreadable") << "a.job" << QByteArray("no job") << 255 << QByteArray();
    }

    void constructionByName()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        if (!content.isEmpty())
            writeFile(path(name), content);
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--construct", path(name)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(int(process.exitStatus()), int(QProcess::NormalExit));
        QTEST(process.exitCode(), "exitCode");
        QTEST(process.readAllStandardOutput(), "output");
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--construct") == 0) {
        // Only Destroy() deletes a job document, and it deletes only the instance. This one ends with the process.
        static auto *job = new JobEditor(QFile::decodeName(argv[2]));
        std::printf("%s|%s", qPrintable(job->getFloorIds().join(',')), qPrintable(job->error()));
        return 0;
    }
    JobLifecycleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_joblifecycle.moc"
