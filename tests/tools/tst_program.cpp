#include "testfiles.h"

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

/// The program as a person or a script runs it.
class ProgramTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    QByteArray m_output;
    QByteArray m_messages;

    QString path(const char *name) const { return m_directory.filePath(name); }

    int run(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral(CABLEDOC_PROGRAM), arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return -1;
        m_output = process.readAllStandardOutput();
        m_messages = process.readAllStandardError();
        return process.exitCode();
    }

private Q_SLOTS:
    void newAndInfo()
    {
        QCOMPARE(run({"new", path("site"), "--floors", "12"}), 0);
        QCOMPARE(m_output + m_messages, QByteArray());
        QVERIFY(QFile::exists(path("site.job")));

        QCOMPARE(run({"info", path("site.job"), "--json"}), 0);
        const QJsonObject info = QJsonDocument::fromJson(m_output).object();
        const QJsonArray floors = info.value("floors").toArray();
        QCOMPARE(floors.size(), 12);
        QCOMPARE(floors.at(1).toObject().value("id").toString(), QString("Floor_10"));
        QCOMPARE(floors.at(1).toObject().value("ceilingHeight").toDouble(), 8.0);
        QCOMPARE(info.value("sheets").toArray().size(), 1);
        QCOMPARE(info.value("cables").toInt(-1), 0);

        QCOMPARE(run({"info", path("site.job")}), 0);
        QVERIFY(m_output.startsWith("Floor     Tag        Ceiling  Rooms  Ports  Vertical runs  Points  Texts\n"
                                    "Floor_1   FFloor_1         8      0      0              0       0      0\n"));
        QCOMPARE(m_messages, QByteArray());
    }

    void cables()
    {
        const QString site = CABLEDOC_TEST_DATA "/site.job";
        QCOMPARE(run({"cables", site}), 0);
        QCOMPARE(m_output, QByteArray("Cable     Type   Use   From    To      Status  Length (ft)\n"
                                      "Cable001  CAT5E  data  Jack 2  Jack 1  PASS\n"
                                      "Cable002  CAT6         Riser   Jack 1\n"
                                      "Cable003  CAT5E        P9      Jack 1\n"));
        QCOMPARE(run({"cables", site, "--metric", "--json"}), 0);
        const QJsonObject object = QJsonDocument::fromJson(m_output).object();
        QCOMPARE(object.value("lengthUnit").toString(), QString("m"));
        QCOMPARE(object.value("cables").toArray().size(), 3);
        QVERIFY(object.value("cables").toArray().at(0).toObject().value("length").isNull());
        QCOMPARE(run({"info", site}), 0);
        QVERIFY2(m_output.contains("PASS              1\n"), m_output.constData());
    }

    void check()
    {
        QCOMPARE(run({"check", CABLEDOC_TEST_DATA "/new.job"}), 0);
        QCOMPARE(m_output + m_messages, QByteArray());
        const QString site = CABLEDOC_TEST_DATA "/site.job";
        QCOMPARE(run({"check", site}), 1);
        QCOMPARE(m_output.count('\n'), 7);
        QVERIFY(m_output.startsWith(site.toLocal8Bit() + ":6: missing-reference: Cable_List/Cable1: there is no "));
        QCOMPARE(run({"check", site, "--json"}), 1);
        const QJsonArray findings = QJsonDocument::fromJson(m_output).object().value("findings").toArray();
        QCOMPARE(findings.size(), 7);
        QCOMPARE(findings.at(6).toObject().value("rule").toString(), QString("duplicate-tag"));
        QCOMPARE(findings.at(6).toObject().value("line").toInt(), 48);
    }

    void convert()
    {
        for (const char *name : {"template-1.1.bkt", "job-1.1.job"}) {
            const QFileInfo file(CABLEDOC_TEST_DATA "/migration/" + QString(name));
            const QByteArray before = readFile(file.filePath());
            QCOMPARE(run({"convert", file.filePath(), "-o", path(name)}), 0);
            QCOMPARE(m_output + m_messages, QByteArray());
            QCOMPARE(readFile(path(name)),
                     testData(qPrintable("migration/" + file.completeBaseName() + ".expected." + file.suffix())));
            QCOMPARE(readFile(file.filePath()), before);
            QCOMPARE(run({"convert", file.filePath(), "-o", path(name)}), 4);
        }
    }

    void importAndExport()
    {
        const QString old = CABLEDOC_TEST_DATA "/migration/template-1.1.bkt";
        const QByteArray before = readFile(old);
        QCOMPARE(run({"new", path("shop.job")}), 0);
        QCOMPARE(run({"import", path("shop.job"), "--template", old, "--missing-only"}), 0);
        QVERIFY(readFile(path("shop.job")).contains("tester=\"\""));
        QVERIFY(!readFile(path("shop.job")).contains("CAT6-X"));
        // What changes nothing does not touch the file.
        QFile file(path("shop.job"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime lastYear = QDateTime::currentDateTime().addYears(-1);
        QVERIFY(file.setFileTime(lastYear, QFileDevice::FileModificationTime));
        QCOMPARE(run({"import", path("shop.job"), "--template", old, "--missing-only"}), 0);
        QCOMPARE(QFileInfo(path("shop.job")).lastModified().date(), lastYear.date());
        QCOMPARE(run({"import", path("shop.job"), "--template", old}), 0);
        QVERIFY(readFile(path("shop.job")).contains("tester=\"Ann\""));
        QVERIFY(readFile(path("shop.job")).contains("CAT6-X"));
        QCOMPARE(readFile(old), before);
        QCOMPARE(run({"export", path("shop.job"), "-o", path("shop.bkt")}), 0);
        QCOMPARE(m_output + m_messages, QByteArray());
        QVERIFY(readFile(path("shop.bkt")).contains("tester=\"Ann\""));
        QCOMPARE(run({"export", path("shop.job"), "-o", path("shop.bkt")}), 4);
        QCOMPARE(run({"import", path("shop.job"), "--template", path("shop.job")}), 3);
        QVERIFY(m_messages.contains("shop.job: Incompatible"));
    }

    void schedule()
    {
        const QByteArray heading = "id,from_floor,from_room,from_port,to_floor,to_room,to_port\n";
        const QString plan = path("plan.csv");
        writeFile(plan, heading + "A1,Floor_1,Lab,1,Top,,2\n");
        QCOMPARE(run({"new", path("planned.job")}), 0);
        const QByteArray before = readFile(path("planned.job"));
        QCOMPARE(run({"schedule", "import", path("planned.job"), plan, "--dry-run"}), 0);
        QCOMPARE(m_output, QByteArray("floors 1, rooms 1, ports 2, cables 1 to add; 0 cables to change\n"));
        QCOMPARE(readFile(path("planned.job")), before);
        QCOMPARE(run({"schedule", "import", path("planned.job"), plan}), 0);
        QCOMPARE(m_output, QByteArray("floors 1, rooms 1, ports 2, cables 1 added; 0 cables changed\n"));
        QCOMPARE(run({"schedule", "export", path("planned.job")}), 0);
        QVERIFY2(m_output.endsWith("\nA1,,,Floor_1,Lab,1,Top,,2,,,,#000000\n"), m_output.constData());

        writeFile(plan, heading + "A1,Floor_1,Lab,1,,,\nA2,Floor_1,Lab,,,,2\n");
        const QByteArray planned = readFile(path("planned.job"));
        QCOMPARE(run({"schedule", "import", path("planned.job"), plan}), 3);
        QCOMPARE(m_output, QByteArray());
        QVERIFY2(m_messages.startsWith(plan.toLocal8Bit() + ":3:4: "), m_messages.constData());
        QVERIFY2(m_messages.contains('\n' + plan.toLocal8Bit() + ":3:5: "), m_messages.constData());
        QCOMPARE(readFile(path("planned.job")), planned);
        QCOMPARE(run({"schedule", "import", path("planned.job"), path("missing.csv")}), 3);
        QVERIFY2(m_messages.contains("missing.csv"), m_messages.constData());
    }

    void newReplacesNothing()
    {
        writeFile(path("there.job"), "precious");
        QCOMPARE(run({"new", path("there")}), 4);
        QVERIFY(m_messages.contains("there.job"));
        QCOMPARE(readFile(path("there.job")), QByteArray("precious"));
        QCOMPARE(run({"new", path("none/there.job")}), 4);
        QVERIFY(m_messages.contains("none/there.job"));
    }

    void wrongCommandLines_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const QString file = path("never.job");
        const QString create = "new";
        const QString floors = "--floors";
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("unknown command") << QStringList{"draw", file};
        QTest::newRow("no file") << QStringList{create};
        QTest::newRow("two files") << QStringList{create, file, file};
        QTest::newRow("unknown option") << QStringList{create, file, "--force"};
        QTest::newRow("no floors") << QStringList{create, file, floors, "0"};
        QTest::newRow("too many floors") << QStringList{create, file, floors, "1001"};
        QTest::newRow("floors in words") << QStringList{create, file, floors, "two"};
        QTest::newRow("option of another command") << QStringList{create, file, "--json"};
        QTest::newRow("no output") << QStringList{"convert", file};
        QTest::newRow("template from a job") << QStringList{"convert", file, "-o", "never.bkt"};
        QTest::newRow("neither job nor template") << QStringList{"convert", "never.xml", "-o", "never.xml"};
        QTest::newRow("export as a job") << QStringList{"export", file, "-o", file};
        QTest::newRow("no template") << QStringList{"import", file};
        QTest::newRow("half a command") << QStringList{"schedule"};
        QTest::newRow("unknown half") << QStringList{"schedule", file};
        QTest::newRow("no schedule") << QStringList{"schedule", "import", file};
    }

    void wrongCommandLines()
    {
        QFETCH(QStringList, arguments);
        QCOMPARE(run(arguments), 2);
        QCOMPARE(m_output, QByteArray());
        QVERIFY(m_messages.startsWith("cabledoc: "));
        QVERIFY(m_messages.contains("--help"));
        QVERIFY(!QFile::exists(path("never.job")));
    }

    void filesThatCannotBeLoaded()
    {
        writeFile(path("broken.job"), "<Job>");
        QVERIFY(QFile::copy(path("broken.job"), path("broken.bkt")));
        for (const QString &name : {path("broken.job"), path("missing.job"), m_directory.path()}) {
            for (const QString &command : {QString("info"), QString("check")}) {
                QCOMPARE(run({command, name}), 3);
                QCOMPARE(m_output, QByteArray());
                QVERIFY2(m_messages.contains(name.toLocal8Bit()), m_messages.constData());
            }
        }
        for (const QString &name : {path("broken.bkt"), path("missing.bkt")}) {
            QCOMPARE(run({"convert", name, "-o", path("converted.bkt")}), 3);
            QVERIFY2(m_messages.contains(name.toLocal8Bit()), m_messages.constData());
            QVERIFY(!QFile::exists(path("converted.bkt")));
        }
    }

    void outputThatCannotBeWritten()
    {
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(QStringLiteral(CABLEDOC_PROGRAM), {"--help"});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 4);
        QVERIFY(process.readAllStandardError().contains("standard output"));
    }

    void help()
    {
        QCOMPARE(run({"--help"}), 0);
        QVERIFY(m_output.contains("info FILE"));
        QCOMPARE(run({"info", "--help"}), 0);
        QVERIFY(m_output.contains("--json"));
        QCOMPARE(run({"--version"}), 0);
        QVERIFY(m_output.startsWith("cabledoc "));
    }
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "tst_program.moc"
