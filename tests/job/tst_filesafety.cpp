#include "bkteditor.h"
#include "failingcalls.h"
#include "jobeditorprobe.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <cerrno>
#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using Change = std::function<void(const QString &fileName)>;
Q_DECLARE_METATYPE(Change)

namespace {

/// The functions of a job or of the template that both have.
struct Document
{
    BKXMLEditor &editor;
    std::function<bool(const QString &)> load;
    std::function<bool()> save;
    std::function<bool()> saveAnyway;
    std::function<bool(const QString &)> saveAs;
};

template <typename Editor> Document documentOf(Editor &editor)
{
    return {editor, [&editor](const QString &name) { return editor.Load(name); }, [&editor] { return editor.save(); },
            [&editor] { return editor.saveAnyway(); }, [&editor](const QString &name) { return editor.saveAs(name); }};
}

QByteArray content(const QString &root, const QString &tester)
{
    return QString("<%1>\n <Version number=\"3.0\"/>\n <Contractor_Info tester=\"%2\"/>\n</%1>\n")
        .arg(root, tester)
        .toLatin1();
}

/// Replaces a file as another program does. Writes the content to a new file and moves that into place.
void replaceFile(const QString &fileName, const QByteArray &bytes)
{
    writeFile(fileName + ".new", bytes);
    QCOMPARE(::rename(QFile::encodeName(fileName + ".new").constData(), QFile::encodeName(fileName).constData()), 0);
}

} // namespace

/// Tests that the content of a file is never lost without a message, neither by a failed load nor by a second program.
class FileSafetyTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_directory;

    QString path(const QString &name) const { return m_directory->filePath(name); }

    /// Runs a check for a job and for the template. Both are loaded from a file "a" and then changed.
    void forBoth(const std::function<void(const QString &root, Document &document)> &check)
    {
        Document documents[] = {documentOf(JobEditor::Instance()), documentOf(BktEditor::Instance())};
        for (Document &document : documents) {
            const QString root = &document.editor == &BktEditor::Instance() ? "Bkt" : "Job";
            const QString name = path("a." + root.toLower());
            writeFile(name, content(root, "Ann"));
            QVERIFY2(document.load(name), qPrintable(document.editor.error()));
            document.editor.setContractorTester("Eve");
            check(root, document);
            if (QTest::currentTestFailed())
                return;
        }
    }

private Q_SLOTS:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }
    void cleanup()
    {
        for (int call = 0; call < failingcalls::CallCount; ++call)
            failingcalls::fail(failingcalls::Call(call), 0, 0);
        JobEditor::Destroy();
        BktEditor::Destroy();
    }

    void failedLoads_data()
    {
        QTest::addColumn<Change>("spoil");
        QTest::addColumn<Change>("mend");
        const Change nothing = [](const QString &) {};
        const auto write = [](const QByteArray &bytes) {
            return [bytes](const QString &name) { writeFile(name, bytes); };
        };
        const auto fail = [](failingcalls::Call call, int error) {
            return [=](const QString &) { failingcalls::fail(call, 1, error); };
        };
        const Change unfail = [](const QString &) {
            for (const auto call : {failingcalls::Open, failingcalls::Read, failingcalls::Stat})
                failingcalls::fail(call, 0, 0);
        };
        QTest::newRow("missing") << Change([](const QString &name) { QVERIFY(QFile::remove(name)); }) << nothing;
        QTest::newRow("folder away for a moment") << Change([](const QString &name) {
            QVERIFY(QDir().rename(QFileInfo(name).path(), name.left(1) + "away"));
        }) << Change([](const QString &name) {
            QVERIFY(QDir().rename(name.left(1) + "away", QFileInfo(name).path()));
        });
        QTest::newRow("no permission") << Change(fail(failingcalls::Open, EACCES)) << unfail;
        QTest::newRow("no status") << Change(fail(failingcalls::Stat, EIO)) << unfail;
        QTest::newRow("broken disk") << Change(fail(failingcalls::Read, EIO)) << unfail;
        QTest::newRow("version") << Change(write("<Job><Version number='9'/></Job>")) << nothing;
        QTest::newRow("another root") << Change(write("<Other><Version number='3.0'/></Other>")) << nothing;
        QTest::newRow("no XML") << Change(write("plan")) << nothing;
        QTest::newRow("too large") << Change(write(QByteArray(2000, ' '))) << nothing;
        QTest::newRow("pipe") << Change([](const QString &name) {
            QVERIFY(QFile::remove(name));
            QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
        }) << nothing;
    }

    /// A file that could not be loaded is not replaced by the document that was open before.
    void failedLoads()
    {
        QFETCH(Change, spoil);
        QFETCH(Change, mend);
        forBoth([&](const QString &root, Document &document) {
            QVERIFY(QDir().mkpath(path("in")));
            const QString other = path("in/b." + root.toLower());
            const QString third = path("c." + root.toLower());
            writeFile(other, content(root, "Bob"));
            document.editor.setMaximumFileSize(1000);
            spoil(other);
            QVERIFY(!document.load(other));
            QCOMPARE(document.editor.filename(), other);
            mend(other);
            const bool isFile = QFileInfo(other).isFile();
            const QByteArray before = isFile ? readFile(other) : QByteArray();
            document.editor.error().clear();
            QVERIFY(!document.save() && !document.saveAnyway());
            QCOMPARE(document.editor.error(),
                     BKXMLEditor::tr("The file could not be loaded, so it is not replaced. Save under another name."));
            QVERIFY(!document.load(QString()));
            QVERIFY(!document.save());
            QCOMPARE(isFile ? readFile(other) : QByteArray(), before);
            QCOMPARE(QFileInfo::exists(other), isFile || qstrcmp(QTest::currentDataTag(), "pipe") == 0);

            QFile::remove(other);
            writeFile(other, content(root, "Bob"));
            QVERIFY2(document.load(other) && document.save(), qPrintable(document.editor.error()));
            QVERIFY(document.saveAs(third) && document.save());
        });
    }

    void changesByOthers_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("isSaved");
        const auto row = [](const char *name, bool isSaved, const Change &change) {
            QTest::newRow(name) << change << isSaved;
        };
        row("none", true, [](const QString &) {});
        row("touched", true,
            [](const QString &name) { QCOMPARE(utimensat(AT_FDCWD, qPrintable(name), nullptr, 0), 0); });
        row("same content in a new file", true, [](const QString &name) { replaceFile(name, readFile(name)); });
        row("permissions", true, [](const QString &name) { QCOMPARE(chmod(qPrintable(name), 0660), 0); });
        row("taken away", true, [](const QString &name) { QVERIFY(QFile::remove(name)); });
        row("another content", false, [](const QString &name) { replaceFile(name, "<other/>"); });
        row("written in place, the same size and time", false, [](const QString &name) {
            struct stat before;
            QCOMPARE(stat(qPrintable(name), &before), 0);
            writeFile(name, readFile(name).replace("Ann", "Zoe"));
            const timespec times[] = {before.st_atim, before.st_mtim};
            QCOMPARE(utimensat(AT_FDCWD, qPrintable(name), times, 0), 0);
        });
        row("emptied", false, [](const QString &name) { writeFile(name, ""); });
    }

    /// A save does not replace content that another program has written since the load or the last save.
    void changesByOthers()
    {
        QFETCH(Change, change);
        QFETCH(bool, isSaved);
        forBoth([&](const QString &, Document &document) {
            const QString name = document.editor.filename();
            for (int round = 0; round < 2; ++round) { // first after a load, then after a save
                change(name);
                const QByteArray before = QFile::exists(name) ? readFile(name) : QByteArray();
                QCOMPARE(document.save(), isSaved);
                if (!isSaved) {
                    QCOMPARE(document.editor.error(),
                             QCoreApplication::translate("XmlFile", "Another program has changed the file since it was "
                                                                    "read. It is not replaced."));
                    QCOMPARE(readFile(name), before);
                    QVERIFY(document.saveAnyway());
                }
                QVERIFY(readFile(name).contains("Eve"));
                QVERIFY(document.save());
                writeFile(name, readFile(name).replace("Eve", "Ann"));
                QVERIFY(document.load(name));
                document.editor.setContractorTester("Eve");
                QVERIFY(document.save());
                document.editor.setContractorTester("Ann");
                QVERIFY(document.save());
                document.editor.setContractorTester("Eve");
            }
        });
    }

    void existingFilesAreNotReplaced()
    {
        forBoth([&](const QString &root, Document &document) {
            const QString there = path("there." + root.toLower());
            writeFile(there, "precious");
            document.editor.setReplacesUnknownFiles(false);
            QVERIFY(!document.saveAs(there));
            QCOMPARE(readFile(there), QByteArray("precious"));
            QVERIFY(document.save());
            const QString fresh = path("fresh." + root.toLower());
            QVERIFY(document.saveAs(fresh) && document.saveAs(fresh));
            QVERIFY(readFile(fresh).contains("Eve"));
        });
        JobEditor::Destroy();
        JobEditor &job = JobEditor::Instance();
        job.setReplacesUnknownFiles(false);
        QVERIFY(job.New(path("a.job")));
        QVERIFY(!job.save());
    }

    /// Some file systems cannot rename a file and see to it in the same step that the new name is free.
    void newFilesOnOtherFileSystems()
    {
        forBoth([&](const QString &root, Document &document) {
            document.editor.setReplacesUnknownFiles(false);
            for (const int error : {EINVAL, ENOSYS, EIO}) {
                const bool isPossible = error != EIO;
                const QString fresh = path(QString("%1.%2").arg(error).arg(root.toLower()));
                const QString there = path("there." + fresh.section('.', 1));
                writeFile(there, "precious");
                const QStringList before = QDir(m_directory->path()).entryList(QDir::Files);
                failingcalls::fail(failingcalls::Rename, 1, error);
                QCOMPARE(document.saveAs(fresh), isPossible);
                QCOMPARE(failingcalls::made(failingcalls::Rename), 1);
                document.editor.setFilename(path("a." + root.toLower()));
                QVERIFY(!document.saveAs(there));
                failingcalls::fail(failingcalls::Rename, 0, 0);
                QCOMPARE(readFile(there), QByteArray("precious"));
                QCOMPARE(QFile::exists(fresh) && readFile(fresh).contains("Eve"), isPossible);
                // No copies are left.
                QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files).size(), before.size() + (isPossible ? 1 : 0));
            }
        });
    }

    void exportToTheFileOfTheJob()
    {
        const QString name = path("site.bkt"); // a job may have any name
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.New(path("site.job")) && job.saveAs(name));
        const QByteArray before = readFile(name);
        QVERIFY(QFile::link(name, path("link.bkt")));
        QCOMPARE(::link(qPrintable(name), qPrintable(path("hardlink.bkt"))), 0);
        for (const QString &target : {name, path("./../" + QDir(m_directory->path()).dirName() + "/site.bkt"),
                                      path("link.bkt"), path("hardlink.bkt")}) {
            QVERIFY2(!job.Export(target), qPrintable(target));
            QCOMPARE(job.error(), JobEditor::tr("This is the job's own file. Choose another name for the template."));
            QCOMPARE(readFile(target), before);
        }
        QVERIFY(job.Export(path("other.bkt")));
    }

    void charactersBeyondLatin1()
    {
        forBoth([&](const QString &, Document &document) {
            const QString text = "\u0141\u00f3d\u017a \u03a9 \u65e5 \U0001F600";
            document.editor.setCharacterReferences(true);
            document.editor.setContractorTester(text);
            document.editor.setContractorCompany(text + QChar(0xD83D) + QChar(1) + QChar(0xFFFE));
            QVERIFY(document.save());
            QCOMPARE(document.editor.replacedCharacters(), 3);
            QVERIFY(readFile(document.editor.filename())
                        .contains("tester=\"&#321;\xf3"
                                  "d&#378; &#937; &#26085; &#128512;\""));
            QVERIFY(document.load(document.editor.filename()));
            QCOMPARE(document.editor.getContractorTester(), text);
            document.editor.setCharacterReferences(false);
            QVERIFY(document.save());
            QCOMPARE(document.editor.replacedCharacters(), 10);
        });
    }

    void relativeNamesKeepTheirFolder()
    {
        const QString before = QDir::currentPath();
        const auto back = qScopeGuard([&before] { QDir::setCurrent(before); });
        forBoth([&](const QString &root, Document &document) {
            const QString name = QFileInfo(document.editor.filename()).fileName();
            const QString another = "another." + root;
            QVERIFY(QDir::setCurrent(m_directory->path()));
            QVERIFY(document.load(name));
            QVERIFY(QDir().mkpath("elsewhere") && QDir::setCurrent("elsewhere"));
            document.editor.setContractorTester("Zoe");
            QCOMPARE(document.editor.filename(), name);
            QVERIFY(document.save());
            QVERIFY(!QFile::exists(name) && readFile(path(name)).contains("Zoe"));
            const QString withNul = QString("x") + QChar(0) + ".job";
            QVERIFY(!(root == "Job" ? JobEditor::Instance().New(withNul) : BktEditor::Instance().New(withNul)));
            QCOMPARE(document.editor.filename(), name);
            QVERIFY(!document.saveAs(withNul) && !document.load(withNul));
            QCOMPARE(document.editor.error(), BKXMLEditor::tr("The file name contains a NUL character."));
            QVERIFY(!QFile::exists("x"));
        });
    }

    void templatesAreReadWithoutBeingRewritten()
    {
        BktEditor &bkt = BktEditor::Instance();
        const QString name = path("old.bkt");
        writeFile(name, testData("migration/template-1.1.bkt"));
        QVERIFY(bkt.LoadWithoutSaving(name));
        QCOMPARE(readFile(name), testData("migration/template-1.1.bkt"));
        QVERIFY(!bkt.fileChanged());
        QVERIFY(bkt.save());
        QCOMPARE(readFile(name), testData("migration/template-1.1.expected.bkt"));
    }
};

QTEST_GUILESS_MAIN(FileSafetyTest)
#include "tst_filesafety.moc"
