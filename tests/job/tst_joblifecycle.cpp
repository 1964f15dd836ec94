#include "bkutilities.h"
#include "jobeditorprobe.h"
#include "sitejob.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <memory>

namespace {

const char NewJob[] = R"(<Job>
 <Release/>
 <Version number="3.0"/>
 <Contractor_Info tester="" company="" email="" phone="" logo="">
  <Address address1="" address2="" city="" state="" zipcode="" country=""/>
 </Contractor_Info>
 <Site_Info phone="" jobid="" company="" email="" contact="">
  <Address address1="" address2="" city="" state="" zipcode="" country=""/>
 </Site_Info>
 <Cable_List/>
 <Connection_List/>
 <Floor_List>
  <FFloor_1 id="Floor_1" pic="" ceiling_height="9.5">
   <Room_List>
    <Undefined id="Undefined">
     <Port_List/>
     <VerticalRun_List/>
    </Undefined>
   </Room_List>
  </FFloor_1>
 </Floor_List>
 <Sheet_List>
  <SSheet_1 id="Sheet_1">
   <Device_List/>
   <Vertice_List/>
   <FreeText_List/>
  </SSheet_1>
 </Sheet_List>
 <TestDef_List/>
 <BundledCable_List/>
 <Settings_List>
  <PrintSettings_List>
   <JobInfo_Settings paper_size="Letter: 8.5 in. x 11 in." orientation="0" print_zoom="100" fit_to_across="1" fit_to_down="1" print_zoom_style="0"/>
)";

const char NewJobEnd[] = R"( </Settings_List>
 <JobNotes_Text text=""/>
 <ActiveNetworkTest_List>
  <ActivePort_List/>
 </ActiveNetworkTest_List>
</Job>
)";

} // namespace

class JobLifecycleTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_directory;

    QString path(const QString &name) const { return m_directory->filePath(name); }
    QString fileWith(const QByteArray &content) const
    {
        writeFile(path(QStringLiteral("given.job")), content);
        return path(QStringLiteral("given.job"));
    }

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        writeFile(path(QStringLiteral("settings.ini")),
                  "[Settings]\n1=" + QFile::encodeName(m_directory->path()) + "\n24=9.5\n");
        BKUtilities::setSettingsFile(path(QStringLiteral("settings.ini")));
    }

    void cleanup() { JobEditor::Destroy(); }

    void instanceStartsEmptyAndEnds()
    {
        JobEditor &job = JobEditor::Instance();
        QCOMPARE(&JobEditor::Instance(), &job);
        QVERIFY(!job.fileChanged());
        QCOMPARE(job.addFloor(QString(), QString(), 8, QString(), 0), QStringLiteral("Bad Floor"));
        QCOMPARE(job.addSheet(QString(), QString(), 0), QStringLiteral("Bad Sheet"));
        QVERIFY(job.New(QStringLiteral("site")));
        JobEditor::Destroy();
        JobEditor::Destroy();
        QVERIFY(JobEditor::Instance().getFloorTags().isEmpty());
    }

    void newJobHasTheTreeOfTheFormat()
    {
        JobEditor &job = JobEditor::Instance();
        const QString name = path(QStringLiteral("new.job"));
        QVERIFY(job.New(name));
        QVERIFY(!job.fileChanged());
        QVERIFY(!QFile::exists(name));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        QVERIFY(job.save());
        const QByteArray saved = readFile(name);
        QVERIFY2(saved.startsWith(NewJob), saved.constData());
        QVERIFY2(saved.endsWith(NewJobEnd), saved.constData());

        QVERIFY(job.Load(name));
        QVERIFY(job.save());
        QCOMPARE(readFile(name), saved);
    }

    void newNamesTheFile()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(!job.New(QString()));
        QCOMPARE(job.error(), QStringLiteral("Null filename given to New(const &Qstring)"));
        const QVector<QPair<QString, QString>> names{
            {QStringLiteral("site"), QStringLiteral("site.job")},
            {QStringLiteral("site.JOB"), QStringLiteral("site.JOB")},
            {QStringLiteral("site.job.bak"), QStringLiteral("site.job.bak.job")},
            {QLatin1String(""), QStringLiteral(".job")},
        };
        for (const auto &[given, expected] : names) {
            QVERIFY(job.New(given));
            QCOMPARE(job.filename(), expected);
            job.Unload();
        }
    }

    void newUntitledTakesTheFirstFreeName()
    {
        JobEditor &job = JobEditor::Instance();
        QCOMPARE(job.New(), path(QStringLiteral("Untitled1.job")));
        QVERIFY(job.save());
        job.Unload();
        writeFile(path(QStringLiteral("Untitled2.job")), "");
        QCOMPARE(job.New(), path(QStringLiteral("Untitled3.job")));
        QCOMPARE(job.filename(), path(QStringLiteral("Untitled3.job")));
        QCOMPARE(job.getFloor(QStringLiteral("FFloor_1")).ceilingHeight(), 9.5);
        QVERIFY(!job.fileChanged());
    }

    void newIsRefusedWhileAJobIsOpen()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(QStringLiteral("open")));
        job.addSheet(QString(), QStringLiteral("Sheet "), 0);
        const QByteArray before = JobEditorProbe(job).text();
        QVERIFY(!job.New(QStringLiteral("other")));
        QVERIFY(!job.error().isEmpty());
        QCOMPARE(job.New(), QString());
        QCOMPARE(job.filename(), QStringLiteral("open.job"));
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(job.fileChanged());
    }

    void unloadKeepsNamesButNoElements()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(QStringLiteral("old")));
        job.addFloor(QString(), QStringLiteral("Upper "), 8, QString(), 0);
        job.Unload();
        QCOMPARE(job.filename(), QString());
        QCOMPARE(job.error(), QStringLiteral("Unloading"));
        QVERIFY(!job.fileChanged());
        QVERIFY(job.floorExists(QStringLiteral("FFloor_2"), true));
        QCOMPARE(job.getFloor(QStringLiteral("FFloor_2")).id(), QString());
        QVERIFY(job.getRooms(QStringLiteral("FFloor_1"), true).isEmpty());
        QVERIFY(!job.roomExistsOnFloor(QStringLiteral("Undefined"), QStringLiteral("FFloor_1"), false));
        job.setFloorId(QStringLiteral("FFloor_2"), QStringLiteral("x"));
        job.removeFloor(QStringLiteral("FFloor_2"));
        QVERIFY(!job.fileChanged());
        QVERIFY(!job.save());

        QVERIFY(job.New(QStringLiteral("next")));
        QCOMPARE(job.getFloorTags(), QStringList(QStringLiteral("FFloor_1")));
        QCOMPARE(job.getSheetTags(), QStringList(QStringLiteral("SSheet_1")));
    }

    void failedLoads_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("error");
        QTest::addColumn<bool>("keepsTree");
        const QString version = QStringLiteral("Incompatible version of job file %1");
        QTest::newRow("parse error") << QByteArray("<Job>\n<a></Job>")
                                     << QStringLiteral("Error parsing job file %1\n on line 2,\n column 9,\n"
                                                       "Opening and ending tag mismatch.")
                                     << false;
        QTest::newRow("empty") << QByteArray() << QStringLiteral("Unable to parse job file %1") << false;
        QTest::newRow("old version") << QByteArray("<Job><Version number='2.0'/></Job>") << version << true;
        QTest::newRow("no version") << QByteArray("<Job><Floor_List><F id='x'/></Floor_List></Job>") << version << true;
        QTest::newRow("other root") << QByteArray("<Bkt><Version number='3.0'/></Bkt>") << version << true;
        QTest::newRow("comment first") << "<!--c-->" + siteJob() << version << true;
        QTest::newRow("declaration first") << "<?xml version='1.0'?>" + siteJob() << version << true;
    }

    void failedLoads()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, error);
        QFETCH(bool, keepsTree);
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(QStringLiteral("before")));
        const QString name = fileWith(content);
        QVERIFY(!job.Load(name));
        QCOMPARE(job.error(), error.arg(name));
        QCOMPARE(job.filename(), name);
        QCOMPARE(!JobEditorProbe(job).root().isNull(), keepsTree);
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        // Saving after a load that failed must not destroy what could not be read.
        if (!keepsTree) {
            QVERIFY(!job.save());
            QVERIFY(!job.saveAs(name));
            QCOMPARE(readFile(name), content);
        }
    }

    void loadsThatFindNothing()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(QStringLiteral("open")));
        const QByteArray before = JobEditorProbe(job).text();
        QVERIFY(!job.Load(QString()));
        QCOMPARE(job.error(), QStringLiteral("Empty or null filename in JobEditor::Load"));
        QCOMPARE(job.filename(), QStringLiteral("open.job"));
        const QString missing = path(QStringLiteral("missing.job"));
        QVERIFY(!job.Load(missing));
        QCOMPARE(job.error(), QStringLiteral("Job file %1 does not exist").arg(missing));
        QCOMPARE(job.filename(), missing);
        QVERIFY(!job.Load(m_directory->path()));
        QVERIFY(!job.error().isEmpty());
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    void loadedFileStaysAsItWas()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(QStringLiteral("before")));
        job.setDirty(true);
        job.Unload();
        const QString name = fileWith(siteJob());
        QVERIFY2(job.Load(name), qPrintable(job.error()));
        QVERIFY(!job.fileChanged());
        QVERIFY(job.save());
        QCOMPARE(readFile(name), siteJob());
        // A load replaces what was open.
        QVERIFY(job.Load(name));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        QCOMPARE(JobEditorProbe(job).text(), siteJob());
    }

    void saveNeedsAName()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(QStringLiteral("site")));
        for (const QString &name : {QString(), QStringLiteral(".job")}) {
            job.setFilename(name);
            job.setDirty(true);
            job.error().clear();
            QVERIFY(!job.save());
            QCOMPARE(job.error(), QStringLiteral("Filename is Empty"));
            job.error().clear();
            QVERIFY(!job.saveAs(name));
            QCOMPARE(job.error(), QStringLiteral("Filename is Empty"));
            QVERIFY(job.fileChanged());
        }
    }

    void saveAsMovesTheDocument()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(path(QStringLiteral("one.job"))));
        job.setDirty(true);
        QVERIFY(!job.saveAs(m_directory->path()));
        QCOMPARE(job.error(), QStringLiteral("Filename given is a directory"));
        QVERIFY(!job.saveAs(path(QStringLiteral("none/two.job"))));
        QVERIFY(job.fileChanged());
        QCOMPARE(job.filename(), path(QStringLiteral("one.job")));

        writeFile(path(QStringLiteral("two")), "old");
        QTest::ignoreMessage(QtDebugMsg, "Overwriting in JobEditor::saveAs");
        QVERIFY(job.saveAs(path(QStringLiteral("two"))));
        QVERIFY(!job.fileChanged());
        QCOMPARE(job.filename(), path(QStringLiteral("two")));
        QVERIFY(readFile(path(QStringLiteral("two"))).startsWith("<Job>"));
        QVERIFY(!QFile::exists(path(QStringLiteral("one.job"))));
    }

    void lostCharactersAreCounted()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(path(QStringLiteral("lost.job"))));
        job.addSheet(QString(), QString::fromUtf8("\u0142\u00f3d\u017a\x01"), 1);
        QTest::ignoreMessage(QtDebugMsg, "3 characters that the file cannot hold were written as \"?\"");
        QVERIFY(job.save());
        QVERIFY(job.Load(job.filename()));
        QCOMPARE(job.getSheetIdByTag(QStringLiteral("SSheet_2")), QString::fromUtf8("?\u00f3d??"));
    }

    void fileNameChecks()
    {
        QVERIFY(JobEditor::checkJobExtension(QStringLiteral("/x/a.b.JoB")));
        QVERIFY(!JobEditor::checkJobExtension(QStringLiteral("/x.job/a")));
        QVERIFY(!JobEditor::checkJobExtension(QStringLiteral("a.job.bak")));
        QVERIFY(JobEditor::checkUntitledJob(QStringLiteral("/x/untitled.job")));
        QVERIFY(JobEditor::checkUntitledJob(QStringLiteral("UNTITLED7.job")));
        QVERIFY(!JobEditor::checkUntitledJob(QStringLiteral("Untitle.job")));
        QVERIFY(!JobEditor::checkUntitledJob(QStringLiteral("/untitled/my.untitled")));
    }

    void defaultTemplateIgnoresEmptyNames()
    {
        JobEditor &job = JobEditor::Instance();
        job.setDefaultBktFile(QStringLiteral("a.bkt"));
        job.setDefaultBktFile(QString());
        QCOMPARE(job.defaultBktFile(), QStringLiteral("a.bkt"));
    }

    /// The constructor that takes a name may end the process: another one runs it.
    void constructionByName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("existing") << "a.job" << siteJob() << 0 << QByteArray("Ground,Upper|");
        QTest::newRow("missing") << "a.job" << QByteArray() << 0 << QByteArray("Floor_1|");
        QTest::newRow("directory") << "." << QByteArray() << 0
                                   << QByteArray("|Filename given to JobEditor is a directory");
        QTest::newRow("unreadable") << "a.job" << QByteArray("no job") << 255 << QByteArray();
    }

    void constructionByName()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        if (!content.isEmpty())
            writeFile(path(name), content);
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--construct"), path(name)});
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
        // Only Destroy() deletes a job document, and only the instance: this one ends with the process.
        static auto *job = new JobEditor(QFile::decodeName(argv[2]));
        std::printf("%s|%s", qPrintable(job->getFloorIds().join(QLatin1Char(','))), qPrintable(job->error()));
        return 0;
    }
    JobLifecycleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_joblifecycle.moc"
