#include "jobeditorprobe.h"
#include "schedule.h"
#include "testcases.h"
#include "testlanguage.h"

#include <QtCore/QTemporaryDir>

using namespace cabledoc;

namespace {

const QByteArray heading = "id,from_floor,from_room,from_port,to_floor,to_room,to_port,color\n";

} // namespace

/// Tests the import and the export of cable schedules.
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

    /// Returns the numbers of elements that the import adds and changes. Returns the error and the places of the
    /// problems if there are any.
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

    /// Returns the part of a message in quotation marks.
    static QString quotedIn(const QString &message)
    {
        return QRegularExpression("\"(.*)\"").match(message).captured(1);
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

    void missingFilesAndLists()
    {
        QVERIFY(!importSchedule(openJob(), m_directory.filePath("missing.csv")).error.isEmpty());
        QVERIFY(!importSchedule(openJob(), m_directory.path()).error.isEmpty());
        openJob("<Job><Version number=\"3.0\"/></Job>");
        QVERIFY(summary(import(heading)).contains("site.job"));
        QCOMPARE(exportSchedule(JobEditor::Instance()).count('\n'), 1);
    }

    void imports_data() { addCases({"cases/schedule-imports.txt"}); }

    /// Each case is a job and a schedule. It expects the counts of the import and the schedule of the job afterwards.
    void imports()
    {
        QFETCH(TestCase, testCase);
        const auto endOfJob = testCase.given.indexOf("</Job>\n") + 7;
        const QByteArray schedule = testCase.given.mid(endOfJob);
        JobEditor &job = openJob(testCase.given.left(endOfJob));
        const QByteArray before = JobEditorProbe(job).text();
        const QString counts = summary(import(schedule, true));
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(!job.fileChanged());
        QCOMPARE(summary(import(schedule)), counts);
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        const QByteArray exported = exportSchedule(job);
        QCOMPARE(QString(counts + '\n' + exported), QString(testCase.expected));

        QVERIFY(job.save());
        QCOMPARE(summary(import(schedule)), QString("0 0 0 0 0"));
        QCOMPARE(summary(import(exported)), QString("0 0 0 0 0"));
        QVERIFY(!job.fileChanged());
        QVERIFY(job.Load(QString(job.filename())));
        QCOMPARE(exportSchedule(job), exported);
        JobEditor &other = openJob();
        import(exported);
        QCOMPARE(exportSchedule(other), exported);
    }

    void warnings_data() { addCases({"cases/schedule-warnings.txt"}); }

    void warnings()
    {
        QFETCH(TestCase, testCase);
        const auto endOfJob = testCase.given.indexOf("</Job>\n") + 7;
        openJob(testCase.given.left(endOfJob));
        const QByteArray schedule = testCase.given.mid(endOfJob);
        for (const bool dryRun : {true, false}) {
            const ScheduleReport report = import(schedule, dryRun);
            QString found;
            for (const ScheduleProblem &warning : report.warnings)
                found += QString("%1:%2 %3\n").arg(warning.row).arg(warning.column).arg(quotedIn(warning.message));
            COMPARE_TEXTS(found, QString(testCase.expected), testCase.place());
        }
        // The cables have left these places before.
        for (const ScheduleProblem &warning : import(schedule).warnings)
            QVERIFY2(!warning.message.contains(" / "), qPrintable(warning.message));
    }

    void styles()
    {
        const QByteArray schedule = readFile(CABLEDOC_EXAMPLES "/office/office.csv") + "=1,,,,,,,,,=2,'-3,-4,\n";
        CsvOptions options;
        options.removeProtection = true;
        for (const char delimiter : {',', ';', '\t'}) {
            importScheduleText(openJob(), schedule);
            const QByteArray exported = exportSchedule(JobEditor::Instance());
            const QByteArray styled = exportSchedule(JobEditor::Instance(), {delimiter, true, true});
            QVERIFY(styled.contains(QByteArray("'=2,''-3,-4,#").replace(',', delimiter)));
            QCOMPARE(summary(importScheduleText(JobEditor::Instance(), styled, options)), QString("0 0 0 0 0"));
            importScheduleText(openJob(), styled, options);
            QCOMPARE(exportSchedule(JobEditor::Instance()), exported);
        }
    }

    void example()
    {
        const QByteArray schedule = readFile(CABLEDOC_EXAMPLES "/office/office.csv");
        QVERIFY(schedule.count('\n') > 200);
        JobEditor &job = openJob();
        QCOMPARE(import(schedule).cables, int(schedule.count('\n')) - 1);
        QCOMPARE(exportSchedule(job), schedule);
    }

    void changedCableKeepsOtherProperties()
    {
        JobEditor &job = openJob(testData("site.job"));
        QCOMPARE(summary(import(exportSchedule(job))), QString("0 0 0 0 0"));
        QCOMPARE(JobEditorProbe(job).text(), testData("site.job"));
        import("id,from_floor,from_room,from_port,to_floor,to_room,to_port\nCable001,,,,,,\n");
        const Cable cable = job.getCable("Cable1");
        QCOMPARE(cable.from() + cable.to(), QString());
        QCOMPARE(cable.path(), QStringList({"Point1", "V1"}));
        QCOMPARE(cable.testResults().status(), QString("PASS"));
    }

    /// New rooms and ports do not overlap others.
    void places()
    {
        JobEditor &job = openJob();
        const QString lab = job.addRoom("FFloor_1", 0, 0, 900, 900, "", "Lab", 0, 0, 3, 3, 3, 1);
        const QByteArray cables = "A1,Floor_1,Lab,1,Floor_1,Hall,1,\nA2,Floor_1,Lab,2,Floor_1,Store,1,\n";
        import(heading + withGeneratedNames(cables));
        import(heading + withGeneratedNames("A3,Floor_1,Lab,3,,,,\n"));
        import(heading.chopped(6) + withGeneratedNames("use\nA4,Floor_1,,1,Floor_1,,2,voice\n"));
        const QStringList portsWithoutRoom = job.getPorts("FFloor_1", "Undefined", true);
        QCOMPARE(job.getPortUse(portsWithoutRoom.value(0)), QString("voice"));
        QCOMPARE(job.getPortPos(portsWithoutRoom.value(1)), QPointF(48, 12));
        QVector<QRectF> areas;
        for (const char *id : {"Lab", "Hall", "Store"}) {
            const Room room = job.getRoomById("FFloor_1", id);
            const QRectF area(room.x(), room.y(), room.width(), room.height());
            for (const QRectF &other : std::as_const(areas))
                QVERIFY2(!area.intersects(other), id);
            areas.append(area);
        }
        QVector<QPointF> places;
        const QStringList ports = job.getPorts("FFloor_1", lab, true);
        QCOMPARE(ports.size(), 3);
        for (const QString &port : ports) {
            const QPointF place = job.getPortPos(port);
            QVERIFY(areas.constFirst().contains(place) && !places.contains(place));
            places.append(place);
        }
    }
};

QTEST_GUILESS_MAIN(ScheduleTest)
#include "tst_schedule.moc"
