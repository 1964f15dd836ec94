#include "jobeditor.h"
#include "jobsnapshot.h"
#include "testfiles.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace cabledoc;

/// Tests snapshots of jobs.
class JobSnapshotTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    /// Returns the sample job with what it lacks.
    static QByteArray site()
    {
        return testData("site.job")
            .replace(" <Sheet_List>",
                     "<TestDef_List><D1 id=\"CAT5\"/><D2 id=\"CAT6\" length_constant=\"1500\"/></TestDef_List>"
                     "<BundledCable_List><B1 id=\"HTheatre\"/></BundledCable_List><Contractor_Info/><Site_Info/>"
                     "<Settings_List><PrintSettings_List/><PageSettings_List/><ScaleSettings_List/></Settings_List>"
                     "<Sheet_List>");
    }

    QString write(const QByteArray &content)
    {
        const QString name = m_directory.filePath("snapshot.job");
        writeFile(name, content);
        return name;
    }

    static JobEditor &load(const QString &name)
    {
        JobEditor &job = JobEditor::Instance();
        if (!job.Load(name))
            qFatal("%s", qPrintable(job.error()));
        return job;
    }

    static QString nameOf(const JobSnapshot &job, const snapshot::Target &target)
    {
        if (!target.exists())
            return "none";
        if (target.kind == ElementKind::Points)
            return "point " + job.points().at(target.position).id;
        const bool isPort = target.kind == ElementKind::Ports;
        const PortFields &end = isPort ? static_cast<const PortFields &>(job.ports().at(target.position))
                                       : job.verticalRuns().at(target.position);
        return (isPort ? "port " : "run ") + end.id;
    }

private Q_SLOTS:
    void cleanup() { JobEditor::Destroy(); }

    void equalsTheDocument_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QDir versions(testDataPath("migration"));
        for (const QString &name : versions.entryList({"job-*.job"}))
            QTest::addRow("%s", qPrintable(name)) << readFile(versions.filePath(name));
        QTest::newRow("site") << site();
        QTest::newRow("places that do not exist") << testData("lengths.job");
        QTest::newRow("in another form") << "<?xml version='1.0'?>" + site();
        QTest::newRow("characters") << QByteArray("<Job><Version number=\"3.0\"/><Cable_List><A id=\"&#8364;\xdc&#13;"
                                                  "&#128268;&lt;\"/></Cable_List></Job>");
    }

    void equalsTheDocument()
    {
        QFETCH(QByteArray, content);
        const QString name = write(content);
        const JobSnapshot ofFile = JobSnapshot::read(name);
        QCOMPARE(ofFile.error(), QString());
        QVERIFY(ofFile == JobSnapshot(load(name)));
        QVERIFY(ofFile != JobSnapshot());
        QCOMPARE(readFile(name), content);
    }

    /// A caller can use any text as a name in the tree.
    void oddNamesInTheTree()
    {
        JobEditor &job = load(write(site()));
        QDomElement cable = job.getToCableList().firstChildElement();
        for (const char *name : {"a=b", "x y", "/", ">", ""})
            cable.setAttribute(name, "1");
        cable.setTagName("Cable 7/");
        const JobSnapshot snapshot(job);
        QCOMPARE(snapshot.cables().size(), 3);
        QCOMPARE(snapshot.cables().at(0).id, QString("Cable001"));
    }

    void seesEachChange()
    {
        JobEditor &job = load(write(site()));
        const JobSnapshot before(job);
        const std::function<void()> changes[] = {
            [&] { job.setCableID("Cable2", "new"); },
            [&] { job.setCableTestResults("Cable1", TestResults("", "FAIL", cable_struct::untested(), 3)); },
            [&] { job.setPortPos("P1", 5, 6); },
            [&] { job.setVertRunConnected("V1", {"Cable3"}); },
            [&] { job.setJobNotesText("late"); },
            [&] { job.addRelease("week", "7"); },
            [&] { job.setCableColor("Cable1", "#123456"); },
            [&] { job.renameTestDef("CAT6", "CAT7"); },
            [&] { job.setFloorBackgroundPic("FFloor_1", "", 7, 8); },
            [&] { job.setRoomName("FFloor_1", "Lab", "Hall"); },
            [&] { job.setVertRunPos("V1", 5, 6); },
            [&] { job.setPointPos("Point1", 5, 6); },
            [&] { job.setFloorFreeTextPos("TText1", 5, 6); },
            [&] { job.setBackgroundOption("FFloor_1", "Left"); },
            [&] { job.setDeviceInfo("Device1", "new"); },
            [&] { job.setVerticePos("Vertice1", 5, 6); },
            [&] { job.setFreeTextPos("Text1", 5, 6); },
            [&] { job.addConnection("", "Second", "", "", QString(), 1); },
            [&] { job.addActiveTestResult("ActivePort1", ActiveTestResult("now", "PASS", 100, "", "", {})); },
            [&] { job.renameBundledCableType("HTheatre", "Home"); },
            [&] { job.setContractorTester("Ann"); },
            [&] { job.setSiteCompany("Firm"); },
            [&] { job.setPrintSettings(PrintSettings("A4", 1, 50, 1, 1, 0), "JobInfo_Settings"); },
            [&] { job.setPageSettings(PageSettings("A4", "", 1, 1, 0, 0, 0), "NetView_Settings"); },
            [&] { job.setScaleSettings(ScaleSettings("", "", 1, 1, 5, 5, 2), "NetView_Settings"); },
            [&] {
                job.addEarlierCableTest("Cable1", {TestResults("", "FAIL", cable_struct::untested(), 3), {}});
            },
            [&] { job.removeSheet("SSheet_1"); },
        };
        for (const auto &change : changes) {
            const JobSnapshot last(job);
            change();
            QVERIFY(JobSnapshot(job) != last);
            QVERIFY(JobSnapshot(job) == JobSnapshot(job));
        }
        QVERIFY(before == JobSnapshot::read(job.filename()));
    }

    void places()
    {
        const JobSnapshot job = JobSnapshot::read(write(site()));
        QStringList cables;
        for (const snapshot::Cable &cable : job.cables()) {
            QStringList path;
            for (const snapshot::Target &place : cable.pathTargets)
                path.append(nameOf(job, place));
            cables.append(
                QString("line %1: %2 to %3 over (%4), %5, definition %6, bundle %7")
                    .arg(cable.line)
                    .arg(nameOf(job, cable.fromTarget), nameOf(job, cable.toTarget), path.join(", "), cable.test.status)
                    .arg(cable.definition)
                    .arg(cable.bundle));
        }
        QCOMPARE(cables.join('\n'),
                 QString("line 6: port Jack 2 to port Jack 1 over (point Bend, run Riser), PASS, "
                         "definition -1, bundle 0\n"
                         "line 9: run Riser to port Jack 1 over (), UNTESTED, definition 1, bundle -1\n"
                         "line 10: none to port Jack 1 over (), UNTESTED, definition -1, bundle -1"));
        QStringList rooms;
        for (const snapshot::Room &room : job.rooms()) {
            QStringList ports;
            for (int port = room.ports.first; port < room.ports.end(); ++port)
                ports.append(job.ports().at(port).element);
            rooms.append(job.floors().at(room.holder).id + ' ' + room.id + ": " + ports.join(' '));
        }
        QCOMPARE(rooms.join('\n'),
                 QString("Ground Undefined: \nGround Lab: P1 P2\nUpper Undefined: P3 P2\nUpper Lab: \nUpper Store: "));
        const int jack = job.positionOfTag(ElementKind::Ports, "P3");
        QCOMPARE(job.cablesAt({ElementKind::Ports, jack}), (QVector<int>{1, 2}));
        QCOMPARE(job.cablesAt({ElementKind::VerticalRuns, 0}), QVector<int>{1});
        QCOMPARE(job.cablesAt({ElementKind::Ports, 99}), QVector<int>());
        QCOMPARE(job.positionOfId(ElementKind::Ports, "Twin"), -1); // another port has its tag
        QCOMPARE(job.definitionOfName("CAT6"), 1);
        QCOMPARE(job.bundleOfName("none"), -1);
    }

    void tests()
    {
        JobEditor &job = load(write(site()));
        TestResults results("now", "FAIL", "2", "9", cable_struct::untested(), 3);
        TRUEPHY_PLOT_DATA curve{};
        curve.plot_a[3] = -7;
        curve.count = TRUEPHY_PLOT_DATA::sampleCount;
        results.setEcho(curve);
        results.results().pair_length[2] = 15020;
        (void)job.getCableTestResults("Cable1"); // adds the attributes that the cable lacks
        job.setCableTestResults("Cable1", results);
        job.setCableType("Cable1", "CAT6");
        const JobSnapshot taken(job);
        QVERIFY(taken.testResults(0) == job.getCableTestResults("Cable1"));
        QCOMPARE(taken.testResults(0).echo().plot_a[3], -7);
        QVERIFY(taken.testResults(99) == TestResults());
        QCOMPARE(taken.measuredLength(1, false), -1.0F);
        for (const bool metric : {false, true})
            QCOMPARE(taken.measuredLength(0, metric), job.getMaxRoundedCableLength("Cable1", metric, false));
        QVERIFY(taken.measuredLength(0, false) > 0);
    }

    void refusedFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("missing") << "nowhere.job";
        QTest::newRow("not XML") << write("<Job><Version");
        QTest::newRow("a template") << testDataPath("new.bkt");
        QTest::newRow("too large") << testDataPath("site.job");
    }

    void refusedFiles()
    {
        QFETCH(QString, name);
        JobEditor &job = JobEditor::Instance();
        job.setMaximumFileSize(1500);
        QVERIFY(!job.Load(name));
        const JobSnapshot snapshot = JobSnapshot::read(name, job.maximumFileSize());
        QCOMPARE(snapshot.error(), job.error());
        QVERIFY(snapshot.cables().isEmpty());
        QCOMPARE(snapshot.positionOfTag(ElementKind::Cables, "Cable1"), -1);
    }
};

QTEST_GUILESS_MAIN(JobSnapshotTest)
#include "tst_jobsnapshot.moc"
