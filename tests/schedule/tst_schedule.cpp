#include "jobeditorprobe.h"
#include "schedule.h"
#include "testcases.h"

#include <QtCore/QTemporaryDir>

namespace {

const QByteArray ends = "from_floor,from_room,from_port,to_floor,to_room,to_port";
const QByteArray allColumns = "id,type,use," + ends + ",bundle,bundle_number,bundle_group,color\n";
const QByteArray heading = "id," + ends + ",color\n";

} // namespace

/// Cable schedules as they go into jobs and come out of them.
class ScheduleTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    int m_jobs = 0;

    QString newPath(const char *name) { return m_directory.filePath(QString("%1-%2").arg(++m_jobs).arg(name)); }

    JobEditor &openJob(const QByteArray &content = QByteArray())
    {
        JobEditor::Destroy();
        JobEditor &job = JobEditor::Instance();
        const QString name = newPath("site.job");
        if (!content.isEmpty())
            writeFile(name, content);
        if (!(content.isEmpty() ? job.New(name) : job.Load(name)))
            qFatal("no job: %s", qPrintable(job.error()));
        return job;
    }

    ScheduleReport import(const QByteArray &schedule, bool dryRun = false)
    {
        const QString name = newPath("schedule.csv");
        writeFile(name, schedule);
        return importSchedule(JobEditor::Instance(), name, dryRun);
    }

    /// What the import adds and changes; the error or the places of the problems where it does not.
    static QString summary(const ScheduleReport &report)
    {
        QStringList places;
        for (const ScheduleProblem &problem : report.problems) {
            places.append(QString("%1:%2").arg(problem.row).arg(problem.column));
            if (problem.message.isEmpty())
                places.append("without a message");
        }
        if (!report.error.isEmpty() || !places.isEmpty())
            return report.error + places.join(' ');
        return QString("%1 %2 %3 %4 %5")
            .arg(report.floors)
            .arg(report.rooms)
            .arg(report.ports)
            .arg(report.cables)
            .arg(report.changed);
    }

private Q_SLOTS:
    void cleanup() { JobEditor::Destroy(); }

    void problems_data() { addCases({"cases/schedule-problems.txt"}); }

    void problems()
    {
        QFETCH(TestCase, testCase);
        JobEditor &job = openJob();
        const QByteArray before = JobEditorProbe(job).text();
        QCOMPARE(summary(import(testCase.given)), testCase.expectedText());
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(!job.fileChanged());
    }

    void whatCannotBeDoneAtAll()
    {
        QVERIFY(!importSchedule(openJob(), m_directory.filePath("missing.csv")).error.isEmpty());
        QVERIFY(!importSchedule(openJob(), m_directory.path()).error.isEmpty());
        openJob("<Job><Version number=\"3.0\"/></Job>");
        QVERIFY(summary(import(heading)).contains("site.job"));
        QCOMPARE(exportSchedule(JobEditor::Instance()), allColumns);
    }

    void importAddsWhatIsMissing()
    {
        const QByteArray schedule = "\xEF\xBB\xBF"
                                    "color,use,"
                                    + ends
                                    + ",id,type\n"
                                      "#123456,cable_box,Floor_1,Lab,1,Top,,1,A1,CAT6\n"
                                      "\"\",data,Floor_1,Lab,1,Floor_1,Lab,2,A2,CAT6\n"
                                      "\n"
                                      ",,,,,Floor_1,Hall,1,A3\n";
        JobEditor &job = openJob();
        TestDef definition("CAT6");
        definition.setColor("#abcdef");
        job.addTestDef(definition);
        job.save();
        QCOMPARE(summary(import(schedule, true)), QString("1 2 4 3 0"));
        QVERIFY(!job.fileChanged());
        QCOMPARE(summary(import(schedule)), QString("1 2 4 3 0"));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        QCOMPARE(exportSchedule(job), allColumns
                                          + "A1,CAT6,TV,Floor_1,Lab,1,Top,,1,,,,#123456\n"
                                            "A2,CAT6,data,Floor_1,Lab,1,Floor_1,Lab,2,,,,#abcdef\n"
                                            "A3,,,,,,Floor_1,Hall,1,,,,#000000\n");
        const Room lab = job.getRoomById("FFloor_1", "Lab");
        const Room hall = job.getRoomById("FFloor_1", "Hall");
        const QRectF labArea(lab.x(), lab.y(), lab.width(), lab.height());
        QVERIFY(!labArea.intersects(QRectF(hall.x(), hall.y(), hall.width(), hall.height())));
        const QStringList ports = job.getPorts("FFloor_1", lab.element(), true);
        QCOMPARE(ports.size(), 2);
        QVERIFY(labArea.contains(job.getPortPos(ports.at(0))) && labArea.contains(job.getPortPos(ports.at(1))));
        QVERIFY(job.getPortPos(ports.at(0)) != job.getPortPos(ports.at(1)));

        job.save();
        QCOMPARE(summary(import(schedule)), QString("0 0 0 0 0"));
        QVERIFY(!job.fileChanged());
    }

    void importChangesWhatDiffers()
    {
        // Its cables lack attributes, one has an end that is not there and one ends at a vertical run.
        JobEditor &job = openJob(testData("site.job"));
        const QByteArray before = JobEditorProbe(job).text();
        QCOMPARE(summary(import(exportSchedule(job))), QString("0 0 0 0 0"));
        QVERIFY(!job.fileChanged());
        QCOMPARE(JobEditorProbe(job).text(), before);

        const QByteArray schedule = "id,use," + ends
                                    + "\n"
                                      "Cable001,voice,Ground,Lab,Riser,Ground,Lab,Jack 1\n"
                                      "Cable002,voice,Ground,Lab,Riser,Upper,Undefined,Twin\n";
        QCOMPARE(summary(import(schedule, true)), QString("0 0 1 0 2"));
        QCOMPARE(JobEditorProbe(job).text(), before);
        QCOMPARE(summary(import(schedule)), QString("0 0 1 0 2"));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        const Cable first = job.getCable("Cable1");
        QCOMPARE(first.from(), QString("V1"));
        QCOMPARE(first.use(), QString("voice"));
        QCOMPARE(first.type(), QString("CAT5E"));
        QCOMPARE(first.color(), QString("#112233"));
        QCOMPARE(first.path(), QStringList({"Point1", "V1"}));
        QCOMPARE(first.testResults().status(), QString("PASS"));
        QCOMPARE(job.getCableUse("Cable2"), QString("voice"));
        QCOMPARE(job.getPortIdByTag(job.getCableTo("Cable2")), QString("Twin"));
        QCOMPARE(summary(import(schedule)), QString("0 0 0 0 0"));
        QVERIFY(import(heading + "Cable001,,,,,,,\n").changed == 1 && job.getCableFrom("Cable1").isEmpty());
    }

    void floorsThatLackTheirRooms()
    {
        JobEditor &job =
            openJob("<Job><Version number=\"3.0\"/><Cable_List/><Floor_List><F1 id=\"a\"/></Floor_List></Job>");
        const QByteArray schedule = heading + "A1,a,,1,a,Lab,1,\n";
        QCOMPARE(summary(import(schedule)), QString("0 1 2 1 0"));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        QCOMPARE(summary(import(schedule)), QString("0 0 0 0 0"));
    }

    void roundTrip_data()
    {
        QTest::addColumn<QByteArray>("schedule");
        QTest::addColumn<int>("cables");
        const QByteArray example = readFile(CABLEDOC_EXAMPLES "/office/office.csv");
        QVERIFY(example.count('\n') > 200);
        QTest::newRow("example") << example << int(example.count('\n')) - 1;
        QTest::newRow("texts that need quotation marks")
            << allColumns
                   + "\"A,1\",\"a \"\"b\"\"\",\" x\",\"\r\nTop\",\"\t\",\"1\n2\",Stra\xC3\x9F"
                     "e,H\xC3\xA4ll,'1',\",\",2,3,#ff0000\n"
            << 1;
    }

    void roundTrip()
    {
        QFETCH(QByteArray, schedule);
        JobEditor &job = openJob();
        QTEST(import(schedule).cables, "cables");
        QCOMPARE(exportSchedule(job), schedule);
        QVERIFY(job.save());
        QVERIFY(job.Load(QString(job.filename())));
        QCOMPARE(exportSchedule(job), schedule);
    }

    void whatNoScheduleCanSay()
    {
        JobEditor &job =
            openJob("<Job><Version number=\"3.0\"/><Cable_List><C1 id=\"A\" from=\"P1\" to=\"P2\" "
                    "use=\"cable_box\" color=\"reddish\"/><C2 id=\"A\"/><C3/><C4 id=\"&#x20AC;\" from=\"P3\"/>"
                    "</Cable_List><Floor_List><F1 id=\"Top\"><Room_List><R1 id=\"Undefined\"><Port_List>"
                    "<P1 id=\"\"/><P2 id=\"1\"/><P3 id=\"&#x1F600;\"/></Port_List></R1></Room_List></F1>"
                    "</Floor_List></Job>");
        const QByteArray schedule = exportSchedule(job);
        QCOMPARE(schedule, allColumns + "A,,TV,,,,Top,,1,,,,#000000\n?,,,Top,,?,,,,,,,#000000\n");
        QCOMPARE(summary(import(schedule)), QString("0 0 0 0 0"));
        QVERIFY(!job.fileChanged());
        JobEditor &other = openJob();
        QCOMPARE(import(schedule).cables, 2);
        QCOMPARE(exportSchedule(other), schedule);
    }
};

QTEST_GUILESS_MAIN(ScheduleTest)
#include "tst_schedule.moc"
