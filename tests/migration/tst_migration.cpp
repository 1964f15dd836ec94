#include "bkteditor.h"
#include "jobeditorprobe.h"
#include "testcases.h"
#include "testlanguage.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <csignal>

#include <sys/resource.h>

namespace {

BKXMLEditor &document(const QString &fileName)
{
    if (BktEditor::checkBktExtension(fileName))
        return BktEditor::Instance();
    return JobEditor::Instance();
}

bool load(const QString &fileName)
{
    return BktEditor::checkBktExtension(fileName) ? BktEditor::Instance().Load(fileName)
                                                  : JobEditor::Instance().Load(fileName);
}

bool save(const QString &fileName)
{
    return BktEditor::checkBktExtension(fileName) ? BktEditor::Instance().save() : JobEditor::Instance().save();
}

QByteArray versionOf(const QByteArray &content)
{
    const auto start = content.indexOf("number=\"");
    return start < 0 ? QByteArray() : content.mid(start + 8, 3);
}

/// Returns a template of version 1.1 that takes some time to convert.
QByteArray bigTemplate()
{
    QByteArray content = "<Bkt>\n <Version number=\"1.1\"/>\n <TestDef_List>\n";
    for (int i = 0; i < 3000; ++i) {
        const QByteArray type = "Type" + QByteArray::number(i);
        content += "  <T" + type + " id=\"" + type + "\" expected=\"" + QByteArray(72, '0') + "\"/>\n";
    }
    return content + " </TestDef_List>\n</Bkt>\n";
}

} // namespace

/// Tests the conversion of files of earlier versions.
class MigrationTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    /// Returns the reason why a file is refused, in the language of the test.
    static QString reason(const QString &english, const QString &root, const QString &fileName)
    {
        if (english.contains("checkVersion"))
            return english;
        const QByteArray context = root.toLatin1() + "Editor";
        const QRegularExpression parseError("^(.*) FILE\n on line (\\d+),\n column (\\d+),\n(.*)$");
        const QRegularExpressionMatch match = parseError.match(english);
        if (!match.hasMatch())
            return translated(context, QString(english).replace("FILE", "%1")).arg(fileName);
        return translated(context, match.captured(1) + " %1\n on line %2,\n column %3,\n%4")
            .arg(fileName, match.captured(2), match.captured(3), translated("QXmlStream", match.captured(4)));
    }

private Q_SLOTS:
    void cleanup()
    {
        JobEditor::Destroy();
        BktEditor::Destroy();
    }

    void olderFiles_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList names = QDir(testDataPath("migration"))
                                      .entryList({"*.job", "*.bkt"}, QDir::Files)
                                      .filter(QRegularExpression("^((?!expected).)*$"));
        QVERIFY(!names.isEmpty());
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name;
    }

    /// Each file of tests/data/migration becomes the expected file beside it.
    void olderFiles()
    {
        QFETCH(QString, name);
        const QFileInfo given(testDataPath("migration/") + name);
        const QByteArray before = readFile(given.filePath());
        const QByteArray expected =
            readFile(given.path() + '/' + given.completeBaseName() + ".expected." + given.suffix());
        const QString fileName = m_directory.filePath(name);
        writeFile(fileName, before);

        QVERIFY2(load(fileName), qPrintable(document(fileName).error()));
        // The conversion of a template is saved at once. The conversion of a job is not.
        const bool isConvertedOnDisk = BktEditor::checkBktExtension(fileName) && versionOf(before) != "3.0";
        QCOMPARE(readFile(fileName), isConvertedOnDisk ? expected : before);
        QVERIFY(!JobEditor::Instance().fileChanged());
        QVERIFY(!BktEditor::Instance().fileChanged());
        QVERIFY(JobEditorProbe(JobEditor::Instance()).indexesMatchTheTree());

        for (int i = 0; i < 2; ++i) {
            QVERIFY(save(fileName));
            QCOMPARE(readFile(fileName), expected);
            QVERIFY(load(fileName));
        }
    }

    void refusedFiles_data() { addCases({"cases/refused-files.txt"}); }

    /// Loads each refused file as a job and as a template.
    void refusedFiles()
    {
        QFETCH(TestCase, testCase);
        const bool isRead = testCase.expected.contains("checkVersion");
        QVERIFY(JobEditor::Instance().New("before"));
        QVERIFY(BktEditor::Instance().New("before"));
        for (const QString &root : {QString("Job"), QString("Bkt")}) {
            const QString kind = root == "Job" ? "job" : "Bkt";
            const QString fileName = m_directory.filePath("refused." + kind);
            const QByteArray content = QByteArray(testCase.given).replace("ROOT", root.toLatin1());
            writeFile(fileName, content);
            QVERIFY(!load(fileName));
            QCOMPARE(document(fileName).filename(), fileName);
            QString error = reason(testCase.expectedText().replace("KIND", kind), root, fileName);
            if (isRead)
                error = root == "Job" ? JobEditor::tr("Incompatible version of job file %1").arg(fileName)
                                      : QString("Incompatible version of Bkt file");
            QCOMPARE(document(fileName).error(), error);
            // A file that could not be read is not replaced by a save.
            QVERIFY(isRead || !save(fileName));
            QCOMPARE(readFile(fileName), content);
        }
        QCOMPARE(!JobEditorProbe(JobEditor::Instance()).root().isNull(), isRead);
        QVERIFY(JobEditorProbe(JobEditor::Instance()).indexesMatchTheTree());
        if (isRead) {
            QVERIFY(!BktEditor::Instance().checkVersion());
            QString verdict = testCase.expected.chopped(1);
            const QString badVersion = " is a bad version number in BktEditor::checkVersion.";
            if (verdict.endsWith(badVersion))
                verdict = translated("BktEditor", "%1" + badVersion).arg(verdict.chopped(badVersion.size()));
            QCOMPARE(BktEditor::Instance().error(), verdict);
        }
    }

    void emptyDocument()
    {
        QVERIFY(!BktEditor::Instance().checkVersion());
        QCOMPARE(BktEditor::Instance().error(), QString("_doc has no child nodes in BktEditor::checkVersion"));
    }

    /// The first step fits into the size limit. The second one adds the settings and does not fit.
    void stepThatCannotBeSaved()
    {
        const QString fileName = m_directory.filePath("limited.bkt");
        const QByteArray content = testData("migration/template-1.1.bkt");
        writeFile(fileName, content);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit unlimited{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &unlimited), 0);
        const rlimit limited{rlim_t(content.size() + 100), unlimited.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &limited), 0);
        const bool isLoaded = BktEditor::Instance().Load(fileName);
        const QString message = BktEditor::Instance().error();
        const bool isCurrent = BktEditor::Instance().checkVersion();
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &unlimited), 0);
        QVERIFY(!isLoaded);
        QCOMPARE(message, QString("Incompatible version of Bkt file"));
        QVERIFY(!isCurrent);
        QVERIFY2(!BktEditor::Instance().error().contains("version"), qPrintable(BktEditor::Instance().error()));
        QCOMPARE(versionOf(readFile(fileName)), QByteArray("1.4"));

        QVERIFY(BktEditor::Instance().Load(fileName));
        QCOMPARE(readFile(fileName), testData("migration/template-1.1.expected.bkt"));
    }

    /// Kills a conversion shortly after it has saved a version. The next load then gives the same file as without the
    /// kill.
    void killedWhileConverting()
    {
        const QString fileName = m_directory.filePath("killed.bkt");
        writeFile(fileName, bigTemplate());
        QVERIFY(BktEditor::Instance().Load(fileName));
        const QByteArray expected = readFile(fileName);
        QSet<QByteArray> left;
        for (int kill = 0; kill < 30; ++kill) {
            writeFile(fileName, bigTemplate());
            const QByteArray awaited = QByteArrayList({"1.1", "1.4", "2.1", "2.2", "2.3"}).at(kill % 5);
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), {"--load", fileName});
            QVERIFY(process.waitForStarted());
            QElapsedTimer patience;
            patience.start();
            while (versionOf(readFile(fileName)) < awaited && patience.elapsed() < 10000) {
            }
            QTest::qSleep(1 + kill / 5);
            process.kill();
            QVERIFY(process.waitForFinished());

            left.insert(versionOf(readFile(fileName)));
            QVERIFY2(BktEditor::Instance().Load(fileName), qPrintable(BktEditor::Instance().error()));
            QCOMPARE(readFile(fileName), expected);
        }
        QVERIFY2(left.size() > 2, "no kill came in the middle of the conversion");
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--load") == 0)
        return BktEditor::Instance().Load(QFile::decodeName(argv[2])) ? 0 : 1;
    MigrationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_migration.moc"
