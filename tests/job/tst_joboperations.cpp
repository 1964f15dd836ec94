#include "jobeditorprobe.h"
#include "testcases.h"
#include "testlanguage.h"

#include <QtCore/QTemporaryDir>

/// What operations on a job's plan make of a job: of the elements themselves and of those that name them.
class JobOperationsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    JobEditor &load(const QByteArray &content)
    {
        writeFile(m_directory.filePath("site.job"), content);
        if (!JobEditor::Instance().Load(m_directory.filePath("site.job")))
            qFatal("%s", qPrintable(JobEditor::Instance().error()));
        return JobEditor::Instance();
    }

    /// Does what a line tells: the name of an operation of JobEditor and its arguments, "-" for an empty one.
    static void apply(JobEditor &job, const QString &line)
    {
        QStringList words = line.split(' ');
        words.replaceInStrings(QRegularExpression("^-$"), "");
        const auto word = [&words](int position) { return words.value(position); };
        const auto number = [&words](int position) { return words.value(position).toInt(); };
        const QMap<QString, QString> cableIds{{withGeneratedNames("Cable001"), words.value(3, "unasked")}};
        const TestResults results("now", word(2), "2", "S", cable_struct::untested(), 1);
        const QHash<QString, std::function<void()>> operations{
            {"addCable", [&] { job.addCable(word(2), word(3), number(1)); }},
            {"addFloor", [&] { job.addFloor(word(2), word(3), 8, QString(), number(1)); }},
            {"addRoom", [&] { job.addRoom(Room(word(3), 1.9, 2, 3, 4, word(4), word(1), 5, 6, 0, 1, 2), number(2)); }},
            {"copyFloor", [&] { job.copyFloor(word(1), word(2), cableIds, words.size() > 3); }},
            {"copySheet", [&] { job.copySheet(word(1), word(2)); }},
            {"getBackgroundOption", [&] { job.getBackgroundOption(word(1)); }},
            {"getCable", [&] { job.getCable(word(1)); }},
            {"getFloor", [&] { job.getFloor(word(1)); }},
            {"getFloorBackgroundOrigin", [&] { job.getFloorBackgroundOrigin(word(1)); }},
            {"getFloorCeilingHeight", [&] { job.getFloorCeilingHeight(word(1)); }},
            {"getRoomById", [&] { job.getRoomById(word(1), word(2)); }},
            {"getRoomByTag", [&] { job.getRoomByTag(word(1), word(2)); }},
            {"removeCable", [&] { job.removeCable(word(1)); }},
            {"removeDevice", [&] { job.removeDevice(word(1)); }},
            {"removeFloor", [&] { job.removeFloor(word(1)); }},
            {"removePoint", [&] { job.removePoint(word(1)); }},
            {"removePort", [&] { job.removePort(word(1)); }},
            {"removeRoom", [&] { job.removeRoom(word(1), word(2)); }},
            {"removeSheet", [&] { job.removeSheet(word(1)); }},
            {"removeVertRun", [&] { job.removeVertRun(word(1)); }},
            {"removeVertice", [&] { job.removeVertice(word(1)); }},
            {"setBackgroundOption", [&] { job.setBackgroundOption(word(1), word(2)); }},
            {"setCableID", [&] { job.setCableID(word(1), word(2)); }},
            {"setCableTestResults", [&] { job.setCableTestResults(word(1), results); }},
            {"setFloorBackgroundPic", [&] { job.setFloorBackgroundPic(word(1), word(2), number(3), number(4)); }},
            {"setFloorCeilingHeight", [&] { job.setFloorCeilingHeight(word(1), word(2).toDouble()); }},
            {"setFloorId", [&] { job.setFloorId(word(1), word(2)); }},
            {"setPortRoom", [&] { job.setPortRoom(word(1), word(2), word(3)); }},
            {"setRoomLayer", [&] { job.setRoomLayer(word(1), word(2), number(3)); }},
            {"setRoomName", [&] { job.setRoomName(word(1), word(2), word(3)); }},
            {"setRoomNamePos", [&] { job.setRoomNamePos(word(1), word(2), QPoint(number(3), number(4))); }},
            {"setRoomPos", [&] { job.setRoomPos(word(1), word(2), number(3), number(4), number(5), number(6)); }},
            {"setSheetID", [&] { job.setSheetID(word(1), word(2)); }},
            {"setShowRoomDimensions", [&] { job.setShowRoomDimensions(word(1), word(2), number(3)); }},
            {"setShowRoomName", [&] { job.setShowRoomName(word(1), word(2), number(3)); }},
            {"setVertRunRoom", [&] { job.setVertRunRoom(word(1), word(2), word(3)); }},
        };
        if (!operations.contains(words.first()))
            qFatal("unknown: %s", qPrintable(line));
        operations.value(words.first())();
    }

private Q_SLOTS:
    void cleanupTestCase() { JobEditor::Destroy(); }

    void operations_data()
    {
        addCases({"cases/cables.txt", "cases/copies.txt", "cases/floors.txt", "cases/removals.txt", "cases/rooms.txt"});
    }

    void operations()
    {
        QFETCH(TestCase, testCase);
        testCase.given = withGeneratedNames(testCase.given);
        testCase.expected = withGeneratedNames(testCase.expected);
        const QByteArray expected = JobEditorProbe(load(testCase.expected)).text();
        const QByteArray content = testCase.given.mid(testCase.given.indexOf('<'));
        JobEditor &job = load(content);
        const JobEditorProbe probe(job);
        QVERIFY(probe.indexesMatchTheTree());
        const QByteArray before = probe.text();
        const QStringList lines = QString(testCase.given).section('<', 0, 0).trimmed().split('\n');
        for (const QString &line : lines) {
            apply(job, line);
            QVERIFY(probe.indexesMatchTheTree());
        }
        QCOMPARE(QString(probe.text()), QString(expected));
        QCOMPARE(job.fileChanged(), probe.text() != before);
    }
};

QTEST_GUILESS_MAIN(JobOperationsTest)
#include "tst_joboperations.moc"
