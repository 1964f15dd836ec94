#include "bkteditor.h"
#include "testfiles.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

namespace {

/// A template beside the instance of the process.
class NamedTemplate : public BktEditor
{
public:
    explicit NamedTemplate(const QString &filename)
        : BktEditor(filename)
    {
    }
};

} // namespace

class BktEditorTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    QString path(const QString &name) const { return m_directory.filePath(name); }

private Q_SLOTS:
    void cleanup() { BktEditor::Destroy(); }

    void newTemplateHasTheExpectedTree()
    {
        BktEditor &bkt = BktEditor::Instance();
        QCOMPARE(&BktEditor::Instance(), &bkt);
        bkt.setContractorTester("nobody");
        QVERIFY(bkt.New(path("new.bkt")));
        QVERIFY(!bkt.fileChanged());
        QVERIFY(!QFile::exists(path("new.bkt")));
        QVERIFY(bkt.save());
        QCOMPARE(readFile(path("new.bkt")), testData("new.bkt"));
        QVERIFY(bkt.New(path("another.bkt")));
        QVERIFY(bkt.save());
        QCOMPARE(readFile(path("another.bkt")), testData("new.bkt"));
        bkt.setContractorTester("nobody");
        QVERIFY(bkt.Load(path("new.bkt")));
        QVERIFY(!bkt.fileChanged());
        QVERIFY(bkt.save());
        QCOMPARE(readFile(path("new.bkt")), testData("new.bkt"));
    }

    void constructedByName()
    {
        const NamedTemplate fresh(path("fresh.bkt"));
        QVERIFY(!QFile::exists(path("fresh.bkt")));
        writeFile(path("there.bkt"), testData("new.bkt"));
        NamedTemplate loaded(path("there.bkt"));
        QVERIFY(loaded.save());
        QCOMPARE(readFile(path("there.bkt")), testData("new.bkt"));
        writeFile(path("broken.bkt"), "<Bkt>");
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--construct", path("broken.bkt")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 255);
        QVERIFY(
            process.readAllStandardError().contains("Load failed in BktEditor::BktEditor(const QString &filename)"));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--construct") == 0) {
        const NamedTemplate bkt(QFile::decodeName(argv[2]));
        return 0;
    }
    BktEditorTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_bkteditor.moc"
