#include "jobeditorprobe.h"
#include "operations.h"
#include "testcases.h"
#include "testlanguage.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

/// What the operations of a job answer and change. tests/data/README.md describes the form of the cases.
class JobOperationsTest : public QObject
{
    Q_OBJECT

private:
    const QVector<const char *> m_files{"cases/cables.txt",  "cases/copies.txt",   "cases/fields.txt",
                                        "cases/floors.txt",  "cases/lengths.txt",  "cases/lifecycle.txt",
                                        "cases/queries.txt", "cases/removals.txt", "cases/rooms.txt"};
    QTemporaryDir m_directory;

    /// Opens the job of that content.
    static JobEditor &load(const QByteArray &content)
    {
        writeFile("site.job", content);
        JobEditor &job = JobEditor::Instance();
        if (!job.Load("site.job"))
            qFatal("%s", qPrintable(job.error()));
        return job;
    }

    /// The lines with messages as the test's language has them.
    static QString translatedErrors(const QString &lines)
    {
        QStringList all = lines.split('\n');
        for (QString &line : all) {
            if (line.startsWith("error = "))
                line = "error = " + JobEditor::tr(line.mid(8).toLatin1());
        }
        return all.join('\n');
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_directory.path()) && QDir().mkdir("data"));
        for (const char *file : {"lengths.job", "site.job"})
            writeFile(QString("data/") + file, withGeneratedNames(testData(file)));
    }

    void cleanup() { JobEditor::Destroy(); }

    void operations_data() { addCases(m_files); }

    void operations()
    {
        QFETCH(TestCase, testCase);
        const QString given = QString::fromLatin1(withGeneratedNames(testCase.given));
        const QString lines = translatedErrors(given.section("<Job>", 0, 0).trimmed());
        const QByteArray content = given.mid(given.indexOf("<Job>")).toLatin1();
        QByteArray expected = withGeneratedNames(testCase.expected);
        QVERIFY2(!expected.isEmpty() || !lines.contains("-> elements"), "the case does not show the job");
        if (!expected.isEmpty())
            expected = JobEditorProbe(load(expected)).text();
        JobEditor::Destroy();
        JobEditor &job = content.startsWith('<') ? load(content) : JobEditor::Instance();
        const JobEditorProbe probe(job);
        QStringList transcript;
        for (const QString &line : lines.split('\n')) {
            transcript.append(transcriptOf(job, line.section(QRegularExpression(" (=|->|!)( |$)"), 0, 0)));
            QVERIFY2(probe.root().isNull() || probe.indexesMatchTheTree(), qPrintable(line));
        }
        COMPARE_TEXTS(transcript.join('\n'), lines, testCase.place());
        if (!expected.isEmpty())
            COMPARE_TEXTS(QString::fromLatin1(probe.text()), QString::fromLatin1(expected), testCase.place());
    }

    void everyOperationHasACase()
    {
        QString cases;
        for (const char *file : m_files)
            cases += testData(file);
        for (const QString &name : operationNames())
            QVERIFY2(cases.contains(QRegularExpression('\n' + name + "[ \n]")), qPrintable(name));
    }

    /// What a caller did to the tree counts after each of the rebuilds.
    void rebuildsSeeTheChangesOfCallers()
    {
        using Rebuild = void (JobEditor::*)();
        for (const Rebuild rebuild :
             {&JobEditor::updateAllInternalLists, &JobEditor::populateCurrentCablesLists, &JobEditor::populateCableMap,
              &JobEditor::populateCableTypeMap, &JobEditor::populateConnectionMap, &JobEditor::populateSheetMap,
              &JobEditor::populateDeviceMap, &JobEditor::populateVerticeMap, &JobEditor::populateFreeTextMap,
              &JobEditor::populateFloorMap, &JobEditor::populateRoomMap, &JobEditor::populatePortMap,
              &JobEditor::populateActivePortMap, &JobEditor::populateVerticalRunMap, &JobEditor::populatePointMap,
              &JobEditor::populateFloorFreeTextMap}) {
            JobEditor &job =
                load("<Job><Version number='3.0'/><Cable_List><C1/></Cable_List><Floor_List><F1><Room_List>"
                     "<R1><Port_List><P1/><P2/></Port_List></R1></Room_List></F1></Floor_List></Job>");
            job.removePort("P2");
            job.getToCableList().firstChildElement().setAttribute("to", "P1");
            (job.*rebuild)();
            job.removePort("P1");
            QCOMPARE(job.getCables(true), QStringList());
        }
    }

    void floorsInBetween()
    {
        const JobEditorProbe probe(load("<Job><Version number='3.0'/><Floor_List><FFloor_8/><FFloor_9/><FFloor_10/>"
                                        "<FFloor_11/><FFloor_12/></Floor_List></Job>"));
        // In the order of the tags, not of the numbers.
        QCOMPARE(probe.floorsInBetween("FFloor_12", "FFloor_8").join(','), QString("FFloor_10,FFloor_11,FFloor_9"));
        QCOMPARE(probe.floorsInBetween("FFloor_8", "FFloor_12").join(','), QString("FFloor_10,FFloor_11,FFloor_9"));
        QVERIFY(probe.floorsInBetween("FFloor_9", "FFloor_10").isEmpty());
        QVERIFY(probe.floorsInBetween("FFloor_9", "FFloor_9").isEmpty());
    }
};

QTEST_GUILESS_MAIN(JobOperationsTest)
#include "tst_joboperations.moc"
