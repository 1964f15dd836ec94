#include <QtCore/QFile>
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

    void newReplacesNothing()
    {
        QFile file(path("there.job"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.write("precious");
        file.flush();
        QCOMPARE(run({"new", path("there")}), 4);
        QVERIFY(m_messages.contains("there.job"));
        file.seek(0);
        QCOMPARE(file.readAll(), QByteArray("precious"));
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

    void infoOfWhatCannotBeLoaded()
    {
        QFile file(path("broken.job"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<Job>");
        file.close();
        for (const QString &name : {path("broken.job"), path("missing.job"), m_directory.path()}) {
            QCOMPARE(run({"info", name}), 3);
            QCOMPARE(m_output, QByteArray());
            QVERIFY2(m_messages.contains(name.toLocal8Bit()), m_messages.constData());
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
