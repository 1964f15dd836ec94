#include "documentcheck.h"
#include "jobeditorprobe.h"
#include "jobsnapshot.h"
#include "testcases.h"

#include <QtCore/QTemporaryDir>

using namespace cabledoc;

namespace {

CableTest testAt(const QString &time, const QString &status)
{
    TestResults results(time, status, "2.1", "SN-7", cable_struct::untested(), 3);
    results.results().pair_length[1] = 900;
    TestDetailsFields details;
    details.limit = "Cat 6 <permanent link>";
    details.attachment = time + ".s4p";
    details.attachmentSize = 12;
    details.parameters = {{"NEXT", "4.2", "38", "212.5", "12-36", "near"}, {"RL", "-0.5", "", "", "", ""}};
    return {results, TestDetails(details)};
}

/// Returns the test as a file holds it.
CableTest stored(CableTest test)
{
    for (qint32 *words : {test.results.results().pair_length, test.results.results().word_group_a}) {
        for (int pair = 0; pair < 4; ++pair)
            words[pair] &= 0xFFFF;
    }
    return test;
}

} // namespace

/// Tests the details and the history of the tests of cables.
class TestHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { JobEditor::Destroy(); }

    void currentAndEarlierTests()
    {
        const QTemporaryDir directory;
        const QString name = directory.filePath("a.job");
        writeFile(name, testData("site.job"));
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.Load(name));
        const QString cable = job.getCables(true).at(0);
        const QString other = job.getCables(true).at(1);
        job.setCableTestResults(cable, TestResults());
        job.setCableTestDetails(cable, TestDetails());
        // An empty test leaves no trace.
        job.setCurrentCableTest(cable, testAt("first", "FAIL"));
        QVERIFY(job.getCableTestHistory(cable).isEmpty());
        job.setCurrentCableTest(cable, testAt("second", "PASS"));
        job.addEarlierCableTest(cable, testAt("older", "PASS*"));
        const QVector<CableTest> earlier{stored(testAt("first", "FAIL")), stored(testAt("older", "PASS*"))};
        QVERIFY(job.getCableTestHistory(cable) == earlier);
        QCOMPARE(job.getCableStatus(cable), QString("PASS"));
        QVERIFY(job.getCableTestResults(cable) == stored(testAt("second", "PASS")).results);
        QVERIFY(job.getCableTestDetails(cable) == testAt("second", "PASS").details);
        QVERIFY(job.getCableTestHistory(other).isEmpty() && job.getCableTestDetails(other) == TestDetails());
        // A rename keeps them, and so do a save and a load.
        job.setCableID(cable, "Renamed");
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        const JobSnapshot open(job);
        QVERIFY(job.save());
        const JobSnapshot saved = JobSnapshot::read(name);
        QVERIFY(saved == open);
        const int position = saved.positionOfTag(ElementKind::Cables, cable);
        QVERIFY(saved.testHistory(position) == earlier);
        QCOMPARE(saved.earlierTestCount(position), 2);
        QVERIFY(saved.testDetails(position) == testAt("second", "PASS").details);
        QVERIFY(checkFile(name).error.isEmpty());
        QVERIFY(job.Load(name));
        QVERIFY(JobSnapshot(job) == open);
        QCOMPARE(job.getCablesByStatus("FAIL").contains(cable), false);
        // Copies are untested, and a removal leaves nothing.
        job.removeCable(cable);
        QVERIFY(!JobEditorProbe(job).text().contains("Earlier_Test"));
    }

    void changedDetails()
    {
        const QTemporaryDir directory;
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(directory.filePath("a.job")));
        job.addCable("", "A", 1);
        const QString cable = job.getCables(true).constFirst();
        job.setCurrentCableTest(cable, testAt("first", "PASS"));
        TestDetailsFields details = testAt("first", "PASS").details.fields();
        details.parameters.removeLast();
        details.operatorName = "Ann";
        QVERIFY(job.save());
        job.setCableTestDetails(cable, TestDetails(details));
        QVERIFY(job.fileChanged());
        QVERIFY(job.getCableTestDetails(cable) == TestDetails(details));
        QVERIFY(job.getCableTestResults(cable) == stored(testAt("first", "PASS")).results);
        QVERIFY(job.save() && job.Load(QString(job.filename())));
        job.setCableTestDetails(cable, TestDetails(details));
        QVERIFY(!job.fileChanged());
        QVERIFY(job.getCableTestDetails(cable) == TestDetails(details));
        job.setCableTestDetails(cable, TestDetails());
        QVERIFY(!JobEditorProbe(job).text().contains("Test_Details"));
    }

    void detailsOfAnotherTest()
    {
        JobEditor &job = JobEditor::Instance();
        const QTemporaryDir directory;
        QVERIFY(job.New(directory.filePath("a.job")));
        job.addCable("", "A", 1);
        const QString cable = job.getCables(true).constFirst();
        job.setCurrentCableTest(cable, testAt("first", "PASS"));
        // A program that does not know details tests the cable again.
        job.setCableTestResults(cable, testAt("second", "FAIL").results);
        QVERIFY(job.getCableTestDetails(cable) == TestDetails());
        QVERIFY(JobSnapshot(job).testDetails(0) == TestDetails());
        // They are not taken over by the history.
        job.setCurrentCableTest(cable, testAt("third", "PASS"));
        QVERIFY(job.getCableTestHistory(cable).constFirst().details == TestDetails());
        // Nothing happens to cables that do not exist.
        job.setDirty(false);
        job.setCurrentCableTest("none", testAt("first", "PASS"));
        job.addEarlierCableTest("none", testAt("first", "PASS"));
        job.setCableTestDetails("none", TestDetails());
        job.setCableTestDetails(cable, testAt("third", "PASS").details);
        QVERIFY(!job.fileChanged());
    }
};

QTEST_GUILESS_MAIN(TestHistoryTest)
#include "tst_testhistory.moc"
