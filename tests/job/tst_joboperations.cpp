#include "jobeditorprobe.h"
#include "testcases.h"

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

    /// Does what a line tells: the name of an operation of JobEditor and its arguments.
    static void apply(JobEditor &job, const QString &line)
    {
        const QStringList words = line.split(' ');
        const auto word = [&words](int position) { return words.value(position); };
        const QMap<QString, QString> cableIds{{"Cable001", words.value(3, "unasked")}};
        const QHash<QString, std::function<void()>> operations{
            {"copyFloor", [&] { job.copyFloor(word(1), word(2), cableIds, words.size() > 3); }},
            {"copySheet", [&] { job.copySheet(word(1), word(2)); }},
            {"removeFloor", [&] { job.removeFloor(word(1)); }},
            {"removeSheet", [&] { job.removeSheet(word(1)); }},
            {"removeRoom", [&] { job.removeRoom(word(1), word(2)); }},
            {"removePort", [&] { job.removePort(word(1)); }},
            {"removeVertRun", [&] { job.removeVertRun(word(1)); }},
            {"removePoint", [&] { job.removePoint(word(1)); }},
            {"removeDevice", [&] { job.removeDevice(word(1)); }},
            {"removeVertice", [&] { job.removeVertice(word(1)); }},
            {"removeCable", [&] { job.removeCable(word(1)); }},
            {"setPortRoom", [&] { job.setPortRoom(word(1), word(2), word(3)); }},
            {"setVertRunRoom", [&] { job.setVertRunRoom(word(1), word(2), word(3)); }},
        };
        if (!operations.contains(words.first()))
            qFatal("unknown: %s", qPrintable(line));
        operations.value(words.first())();
    }

private Q_SLOTS:
    void cleanupTestCase() { JobEditor::Destroy(); }

    void operations_data() { addCases("cases/operations.txt"); }

    void operations()
    {
        QFETCH(TestCase, testCase);
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
        QVERIFY(job.fileChanged() || probe.text() == before);
    }
};

QTEST_GUILESS_MAIN(JobOperationsTest)
#include "tst_joboperations.moc"
