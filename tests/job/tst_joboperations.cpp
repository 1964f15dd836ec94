#include "bkteditor.h"
#include "jobeditorprobe.h"
#include "operations.h"
#include "testcases.h"
#include "testlanguage.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

/// Tests what the operations of a job and a template return and change. tests/data/README.md describes the form of the
/// cases.
class JobOperationsTest : public QObject
{
    Q_OBJECT

private:
    const QVector<const char *> m_files{"cases/cables.txt",    "cases/copies.txt",   "cases/exchange.txt",
                                        "cases/fields.txt",    "cases/floors.txt",   "cases/lengths.txt",
                                        "cases/lifecycle.txt", "cases/queries.txt",  "cases/removals.txt",
                                        "cases/rooms.txt",     "cases/templates.txt"};
    QTemporaryDir m_directory;

    /// Opens the job and the template of a case, or one of them.
    static void open(const QString &documents)
    {
        for (const QString &document : documents.split(QRegularExpression("(?=<Job>|<Bkt>)"))) {
            const bool isJob = document.startsWith("<Job>");
            const QString name = isJob ? "site.job" : "shop.bkt";
            writeFile(name, document.toLatin1());
            if (!document.isEmpty() && !(isJob ? JobEditor::Instance().Load(name) : BktEditor::Instance().Load(name)))
                qFatal("%s: %s", qPrintable(JobEditor::Instance().error()), qPrintable(document));
        }
    }

    /// Returns the texts of the documents that a case expects, as they would be saved now.
    static QString savedTexts(const QString &expected)
    {
        QByteArray texts;
        if (expected.contains("<Job>"))
            texts += JobEditorProbe(JobEditor::Instance()).text();
        if (expected.contains("<Bkt>") && BktEditor::Instance().saveAs("saved.bkt"))
            texts += readFile("saved.bkt");
        return QString::fromLatin1(texts);
    }

    /// Returns the lines with their messages translated to the language of the test.
    static QString translatedErrors(const QString &lines)
    {
        QStringList all = lines.split('\n');
        for (QString &line : all) {
            const QString call = callIn(line);
            if (call.endsWith("error"))
                line = call + " = " + translated(call == "error" ? "JobEditor" : "BktEditor", line.section(" = ", 1));
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

    void cleanup()
    {
        JobEditor::Destroy();
        BktEditor::Destroy();
    }

    void cases_data() { addCases(m_files); }

    void cases()
    {
        QFETCH(TestCase, testCase);
        const QString given = QString::fromLatin1(withGeneratedNames(testCase.given));
        const QString lines = translatedErrors(given.section(QRegularExpression("<(Job|Bkt)>"), 0, 0).trimmed());
        QString expected = QString::fromLatin1(withGeneratedNames(testCase.expected));
        QVERIFY2(expected.contains("<Job>") || !lines.contains("-> elements"), "the case does not show the job");
        open(expected);
        expected = savedTexts(expected);
        cleanup();
        open(given.section(QRegularExpression("(?=<(Job|Bkt)>)"), 1));
        const JobEditorProbe probe(JobEditor::Instance());
        QStringList transcript;
        for (const QString &line : lines.split('\n')) {
            transcript.append(transcriptOf(callIn(line)));
            QVERIFY2(probe.root().isNull() || probe.indexesMatchTheTree(), qPrintable(line));
        }
        COMPARE_TEXTS(transcript.join('\n'), lines, testCase.place());
        COMPARE_TEXTS(savedTexts(expected), expected, testCase.place());
    }

    void everyOperationHasACase()
    {
        QString cases;
        for (const char *file : m_files)
            cases += testData(file);
        for (const Callable &operation : operations())
            QVERIFY2(cases.contains(QRegularExpression('\n' + operation.name + "[ \n]")), qPrintable(operation.name));
    }

    /// After each of the rebuilds, the index contains the changes that a caller has made to the tree.
    void rebuildsIncludeChangesOfCallers()
    {
        using Rebuild = void (JobEditor::*)();
        for (const Rebuild rebuild :
             {&JobEditor::updateAllInternalLists, &JobEditor::populateCurrentCablesLists, &JobEditor::populateCableMap,
              &JobEditor::populateCableTypeMap, &JobEditor::populateConnectionMap, &JobEditor::populateSheetMap,
              &JobEditor::populateDeviceMap, &JobEditor::populateVerticeMap, &JobEditor::populateFreeTextMap,
              &JobEditor::populateFloorMap, &JobEditor::populateRoomMap, &JobEditor::populatePortMap,
              &JobEditor::populateActivePortMap, &JobEditor::populateVerticalRunMap, &JobEditor::populatePointMap,
              &JobEditor::populateFloorFreeTextMap}) {
            open("<Job><Version number='3.0'/><Cable_List><C1/></Cable_List><Floor_List><F1><Room_List>"
                 "<R1><Port_List><P1/><P2/></Port_List></R1></Room_List></F1></Floor_List></Job>");
            JobEditor &job = JobEditor::Instance();
            job.removePort("P2");
            job.getToCableList().firstChildElement().setAttribute("to", "P1");
            (job.*rebuild)();
            job.removePort("P1");
            QCOMPARE(job.getCables(true), QStringList());
        }
    }

    /// Connections keep the numbers of types that applications give them as texts.
    void numberedTypesOfConnections()
    {
        open("<Job><Version number='3.0'/><Connection_List/></Job>");
        JobEditor &job = JobEditor::Instance();
        const QString tag = job.getConnectionTagById(job.addConnection("", "Up", "", "", 7, 1));
        QCOMPARE(job.getConnectionType(tag), 7);
        job.setConnectionType(tag, -3);
        QCOMPARE(job.getConnectionType(tag), -3);
    }

    /// A file with more attributes in an element could not be loaded.
    void mostReleases()
    {
        open("<Job><Version number='3.0'/><Release/></Job>");
        JobEditor &job = JobEditor::Instance();
        int added = 0;
        for (; job.error().isEmpty(); ++added)
            job.addRelease('R' + QString::number(added), "1");
        QCOMPARE(job.getRelease('R' + QString::number(added - 1)), QString());
        QCOMPARE(job.getRelease('R' + QString::number(added - 2)), QString("1"));
        job.addRelease("R0", "2");
        QCOMPARE(job.getRelease("R0"), QString("2"));
        QVERIFY(job.save());
        QVERIFY2(job.Load(QString(job.filename())), qPrintable(job.error()));
        QCOMPARE(job.getRelease('R' + QString::number(added - 2)), QString("1"));
    }

    void floorsInBetween()
    {
        open("<Job><Version number='3.0'/><Floor_List><FFloor_8/><FFloor_9/><FFloor_10/>"
             "<FFloor_11/><FFloor_12/></Floor_List></Job>");
        const JobEditorProbe probe(JobEditor::Instance());
        // The floors are in the order of their tags, not of their numbers.
        QCOMPARE(probe.floorsInBetween("FFloor_12", "FFloor_8").join(','), QString("FFloor_10,FFloor_11,FFloor_9"));
        QCOMPARE(probe.floorsInBetween("FFloor_8", "FFloor_12").join(','), QString("FFloor_10,FFloor_11,FFloor_9"));
        QVERIFY(probe.floorsInBetween("FFloor_9", "FFloor_10").isEmpty());
        QVERIFY(probe.floorsInBetween("FFloor_9", "FFloor_9").isEmpty());
    }
};

QTEST_GUILESS_MAIN(JobOperationsTest)
#include "tst_joboperations.moc"
