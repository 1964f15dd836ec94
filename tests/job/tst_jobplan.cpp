#include "jobeditorprobe.h"
#include "testcases.h"

#include <QtCore/QTemporaryDir>

/// Ports, vertical runs, points, bends, devices, texts and active ports.
class JobPlanTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    QString m_floor;
    QString m_room;
    QString m_sheet;

    static JobEditor &job() { return JobEditor::Instance(); }

    /// Saves and loads the job: what was stored has to come back from the file.
    void reload()
    {
        QVERIFY2(job().save(), qPrintable(job().error()));
        QVERIFY2(job().Load(job().filename()), qPrintable(job().error()));
        QVERIFY(JobEditorProbe(job()).indexesMatchTheTree());
    }

private Q_SLOTS:
    void init()
    {
        JobEditor::Destroy();
        QVERIFY(job().New(m_directory.filePath("plan.job")));
        m_floor = "FFloor_1";
        m_sheet = "SSheet_1";
        m_room = job().addRoom(m_floor, 0, 0, 9, 9, "", "Lab", 0, 0, 3, 3, 3, 1);
    }

    void cleanupTestCase() { JobEditor::Destroy(); }

    void ports()
    {
        const QString tag = job().addPort(m_floor, m_room, 1.5, 2, "", "Jack ", "data", 0.5, 3.25, 0);
        QVERIFY(job().getPortByTag(tag) == Port("Port1", "Jack 1", 1.5, 2, "data", 0.5, 3.25, m_room, m_floor));
        const Port second("MyPort", "12", 1.5, 2, "data", 0.5, 3.25, m_room, m_floor);
        QCOMPARE(job().addPort(second, 2), QString("MyPort"));
        reload();
        QVERIFY(job().getPortById("12") == second);
        QCOMPARE(job().getPorts(m_floor, m_room, true), QStringList({tag, "MyPort"}));

        job().setPortID(tag, "Jack X");
        job().setPortPos(tag, 7, 8.5);
        job().setPortUse(tag, "voice");
        job().setPortIconScale(tag, 2);
        job().setPortDropHeight(tag, 4);
        job().setPortRoom(tag, m_floor, "Undefined");
        reload();
        const Port changed(tag, "Jack X", 7, 8.5, "voice", 2, 4, "Undefined", m_floor);
        QVERIFY(job().getPortById("Jack X") == changed);
        const QPointF pos = job().getPortPos(tag);
        QVERIFY(changed
                == Port(tag, job().getPortIdByTag(tag), pos.x(), pos.y(), job().getPortUse(tag),
                        job().getPortIconScale(tag), job().getPortDropHeight(tag), job().getPortRoom(tag),
                        job().getPortFloor(tag)));
    }

    void verticalRuns()
    {
        job().addCable("", "", "data", "", 0);
        job().addCable("", "", "data", "", 0);
        const QString tag = job().addVertRun(m_floor, m_room, 1, 2, "", "Riser", "", 1, 2, {"Cable1"}, {"Cable2"}, 0);
        const VertRun vertRun({tag, "Riser1", 1, 2, "", 1, 2, m_room, m_floor}, {{"Cable1"}, {"Cable2"}});
        reload();
        QVERIFY(job().getVertRunByTag(tag) == vertRun);
        VertRun other = vertRun;
        other.setDisconnected({});
        QVERIFY(other != vertRun);
        job().disconnectCableFromVertRun("Cable1", tag);
        job().connectCableToVertRun("Cable2", tag);
        job().connectCableToVertRun("none", tag);
        QCOMPARE(job().getVertRunConnected(tag), QStringList("Cable2"));
        QCOMPARE(job().getVertRunDisconnected(tag), QStringList("Cable1"));
        QVERIFY(job().isCableInVertRun("Cable1", tag) && job().isCableInVertRun("Cable2", tag));
        // A list may name a cable that is gone.
        job().setVertRunConnected(tag, {"Cable2", "gone"});
        job().removeCableFromVertRun("gone", tag);
        job().removeCableFromVertRun("Cable1", tag);
        QVERIFY(!job().isCableInVertRun("Cable1", tag));

        job().setVertRunID(tag, "Shaft");
        job().setVertRunPos(tag, 3, 4);
        job().setVertRunUse(tag, "data");
        job().setVertRunIconScale(tag, 3);
        job().setVertRunDropHeight(tag, 1);
        job().setVertRunRoom(tag, m_floor, "Undefined");
        reload();
        QVERIFY(job().getVertRunById("Shaft")
                == VertRun({tag, "Shaft", 3, 4, "data", 3, 1, "Undefined", m_floor}, {{"Cable2"}, {}}));
    }

    void pointsAndBends()
    {
        // The list is not there before the first point.
        QVERIFY(job().getToPointList(m_floor).isNull());
        const QString point = job().addPoint(m_floor, 1, 2.5, "", "P", 0);
        const QString bend = job().addVertice(m_sheet, 3, 4, "", "V", 0);
        job().setPointPos(point, 9, 8);
        job().setPointID(point, "Corner");
        job().setVerticePos(bend, 7, 6);
        job().setVerticeID(bend, "Bend");
        reload();
        QVERIFY(job().getPointById("Corner") == Point("Point1", "Corner", 9, 8, m_floor));
        QVERIFY(job().getVerticeById("Bend") == Vertice("Vertice1", "Bend", 7, 6, m_sheet));
        QCOMPARE(job().getPointPos(point) + job().getVerticePos(bend), QPointF(9 + 7, 8 + 6));
        QCOMPARE(job().getPointFloor(point) + job().getVerticeSheet(bend), m_floor + m_sheet);
    }

    void devices()
    {
        const QString tag = job().addDevice(m_sheet, "switch", 1, 2, 0.5, "48 ports", "", "Switch ", 0);
        QVERIFY(job().getDeviceByTag(tag) == Device("Device1", "Switch 1", "switch", 1, 2, 0.5, "48 ports", m_sheet));
        job().setDeviceID(tag, "Core");
        job().setDeviceType(tag, "router");
        job().setDevicePos(tag, 5, 6);
        job().setDeviceIconScale(tag, 1.5);
        job().setDeviceInfo(tag, "new");
        reload();
        QVERIFY(job().getDeviceById("Core") == Device(tag, "Core", "router", 5, 6, 1.5, "new", m_sheet));
        QCOMPARE(job().getDeviceInfo(tag), QString("new"));
    }

    void texts()
    {
        const QString onSheet = job().addFreeText(m_sheet, "a\n b", 1, 2, "Sans", 9.5, true, false, "red", "", "T", 0);
        const QString onFloor = job().addFloorFreeText(m_floor, "c", 3, 4, "", 12, false, true, "#010203", "", "T", 0);
        reload();
        QVERIFY(job().getFreeTextById("T1")
                == FreeText("Text1", "T1", "a\n b", 1, 2, "Sans", 9.5, true, false, "red", m_sheet));
        QVERIFY(job().getFloorFreeTextById("T1")
                == FreeText("TText1", "T1", "c", 3, 4, "", 12, false, true, "#010203", m_floor));
        job().setFreeTextText(onSheet, "x");
        job().setFreeTextPos(onSheet, 5, 6);
        job().setFreeTextFontFamily(onSheet, "Serif");
        job().setFreeTextFontSize(onSheet, 20);
        job().setFreeTextBold(onSheet, false);
        job().setFreeTextItalic(onSheet, true);
        job().setFreeTextColor(onSheet, "blue");
        job().setFloorFreeTextBold(onFloor, true);
        reload();
        QVERIFY(job().getFreeTextByTag(onSheet)
                == FreeText(onSheet, "T1", "x", 5, 6, "Serif", 20, false, true, "blue", m_sheet));
        QVERIFY(job().getFloorFreeTextBold(onFloor));
    }

    void activePorts()
    {
        const QVector<ActiveTestResult> results{ActiveTestResult("9:00", "PASS", 1000, "full", "10.0.0.1",
                                                                 {{"ping", "2 ms"}, {"ping", "3 ms"}, {"vlan", ""}}),
                                                ActiveTestResult("9:30", "FAIL", 0, "", "", {})};
        const QString tag = job().addActivePort(ActivePort("", "Desk", "Port1", results), 1);
        QVERIFY(JobEditorProbe(job()).text().contains("link_speed=\"1000\" duplex=\"full\" address=\"10.0.0.1\""));
        reload();
        QVERIFY(job().getActivePortById("Desk") == ActivePort("ActivePort1", "Desk", "Port1", results));
        QVERIFY(job().activePortTestResultExists(tag, "9:30"));
        QVERIFY(!job().activePortTestResultExists(tag, "9:31"));
        job().removeActiveTestResult(tag, "9:00");
        QVERIFY(job().getActiveTestResults(tag) == results.mid(1));
        job().addActiveTestResult(tag, results.at(0));
        QCOMPARE(job().getActiveTestResults(tag).size(), 2);
    }

    void lengths_data() { addCases({"cases/lengths.txt"}); }

    /// The lengths of the cables of lengths.job, whose floor plans have that scale.
    void lengths()
    {
        QFETCH(TestCase, testCase);
        writeFile(job().filename(), testData("lengths.job").replace("<FloorPlan_Settings/>", testCase.given));
        QVERIFY2(job().Load(job().filename()), qPrintable(job().error()));
        const QMap<QString, double> feet = job().estimateCableLengths(false);
        const QMap<QString, double> metres = job().estimateCableLengths(true);
        QString lengths;
        for (const QString &cable : feet.keys()) {
            lengths +=
                QString("%1: %2 ft, %3 m\n").arg(cable).arg(feet[cable], 0, 'f', 4).arg(metres[cable], 0, 'f', 4);
            QCOMPARE(job().estimateCableLength(cable, false), feet[cable]);
            QCOMPARE(job().estimateCableLength(cable, true), metres[cable]);
        }
        QCOMPARE(lengths, QString(testCase.expected));
        QCOMPARE(job().estimateCableLength("none", false), -1.0);
    }

    void nothingIsThere()
    {
        const QByteArray before = JobEditorProbe(job()).text();
        job().setDirty(false);
        QVERIFY(job().getPortByTag("none") == Port());
        QVERIFY(job().getVertRunById("none") == VertRun());
        QVERIFY(job().getDeviceByTag("none") == Device());
        QVERIFY(job().getActivePortByTag("none") == ActivePort());
        QVERIFY(job().getFreeTextByTag("none") == FreeText());
        QVERIFY(job().getPointByTag("none") == Point());
        job().setPortUse("none", "x");
        job().addActiveTestResult("none", ActiveTestResult());
        QVERIFY(job().addPort("none", m_room, 1, 2, "", "", "", 1, 1, 0).isEmpty());
        QVERIFY(job().addPort(m_floor, "none", 1, 2, "", "", "", 1, 1, 0).isEmpty());
        QVERIFY(job().addPoint(m_floor, 1, 2, "no name", "", 2).isEmpty());
        QVERIFY(job().addDevice("none", "", 1, 2, 1, "", "", "", 0).isEmpty());
        QVERIFY(!job().fileChanged());
        QCOMPARE(JobEditorProbe(job()).text(), before);
    }

    /// What a caller did to the tree counts after any of the rebuilds.
    void callersChangesCountAfterARebuild()
    {
        using Rebuild = void (JobEditor::*)();
        for (const Rebuild rebuild :
             {&JobEditor::updateAllInternalLists, &JobEditor::populateCurrentCablesLists, &JobEditor::populateCableMap,
              &JobEditor::populateCableTypeMap, &JobEditor::populateConnectionMap, &JobEditor::populateSheetMap,
              &JobEditor::populateDeviceMap, &JobEditor::populateVerticeMap, &JobEditor::populateFreeTextMap,
              &JobEditor::populateFloorMap, &JobEditor::populateRoomMap, &JobEditor::populatePortMap,
              &JobEditor::populateActivePortMap, &JobEditor::populateVerticalRunMap, &JobEditor::populatePointMap,
              &JobEditor::populateFloorFreeTextMap}) {
            const QString port = job().addPort(m_floor, m_room, 1, 2, "", "P", "", 1, 1, 1);
            job().removePort(job().addPort(m_floor, m_room, 1, 2, "", "Q", "", 1, 1, 1));
            job().addCable("", "", 0);
            job().getToCableList().firstChildElement().setAttribute("to", port);
            (job().*rebuild)();
            job().removePort(port);
            QCOMPARE(job().getCables(true), QStringList());
        }
    }
};

QTEST_GUILESS_MAIN(JobPlanTest)
#include "tst_jobplan.moc"
