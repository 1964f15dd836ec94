#include "jobeditorprobe.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

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
        QCOMPARE(tag, QString("Port1"));
        const Port port("Port1", "Jack 1", 1.5, 2, "data", 0.5, 3.25, m_room, m_floor);
        QVERIFY(job().getPortByTag(tag) == port);
        Port second = port;
        second.setElement("MyPort");
        second.setID("12");
        QCOMPARE(job().addPort(second, 2), QString("MyPort"));
        reload();
        QVERIFY(job().getPortById("12") == second);
        QCOMPARE(job().getPorts(m_floor, m_room, true), QStringList({tag, "MyPort"}));

        job().setPortID(tag, "Jack X");
        job().setPortPos(tag, 7, 8.5);
        job().setPortUse(tag, "voice");
        job().setPortIconScale(tag, 2);
        job().setPortDropHeight(tag, 4);
        reload();
        QCOMPARE(job().getPortIdByTag(tag), QString("Jack X"));
        QCOMPARE(job().getPortTagById("Jack X"), tag);
        QCOMPARE(job().getPortPos(tag), QPointF(7, 8.5));
        QCOMPARE(job().getPortUse(tag), QString("voice"));
        QCOMPARE(job().getPortIconScale(tag), 2.0);
        QCOMPARE(job().getPortDropHeight(tag), 4.0);

        const QString upper = job().addFloor("", "Upper", 8, "", 1);
        job().setPortRoom(tag, upper, "Undefined");
        reload();
        QCOMPARE(job().getPortFloor(tag), upper);
        QCOMPARE(job().getPortRoom(tag), QString("Undefined"));
        QCOMPARE(job().getPorts(m_floor, m_room, true), QStringList("MyPort"));
        job().setPortRoom(tag, upper, "Room9");
        QCOMPARE(job().getPortRoom(tag), QString("Undefined"));
        job().addPort(upper, "Undefined", 1, 2, "Last", "", "", 1, 1, 2);
        job().setPortRoom(tag, upper, "Undefined");
        QCOMPARE(job().getPorts(upper, "Undefined", true), QStringList({tag, "Last"}));
    }

    void verticalRuns()
    {
        job().addCable("", "", "data", "", 0);
        job().addCable("", "", "data", "", 0);
        const QString tag = job().addVertRun(m_floor, m_room, 1, 2, "", "Riser", "", 1, 2, {"Cable1"}, {}, 0);
        const VertRun vertRun({tag, "Riser1", 1, 2, "", 1, 2, m_room, m_floor}, {{"Cable1"}, {}});
        QVERIFY(job().getVertRunByTag(tag) == vertRun);
        QVERIFY(VertRun(vertRun) == vertRun);
        VertRun other = vertRun;
        other.setDisconnected({"Cable2"});
        QVERIFY(other != vertRun);
        job().disconnectCableFromVertRun("Cable1", tag);
        job().connectCableToVertRun("Cable2", tag);
        job().connectCableToVertRun("none", tag);
        reload();
        // A list may name a cable that is gone.
        job().setVertRunConnected(tag, {"Cable2", "gone"});
        job().removeCableFromVertRun("gone", tag);
        QCOMPARE(job().getVertRunConnected(tag), QStringList("Cable2"));
        QCOMPARE(job().getVertRunDisconnected(tag), QStringList("Cable1"));
        QVERIFY(job().isCableInVertRun("Cable1", tag) && job().isCableInVertRun("Cable2", tag));
        job().removeCableFromVertRun("Cable2", tag);
        QVERIFY(!job().isCableInVertRun("Cable2", tag));
        job().removeCable("Cable1");
        QVERIFY(!job().isCableInVertRun("Cable1", tag));

        job().setVertRunID(tag, "Shaft");
        job().setVertRunPos(tag, 3, 4);
        job().setVertRunUse(tag, "data");
        job().setVertRunIconScale(tag, 3);
        job().setVertRunDropHeight(tag, 1);
        job().setVertRunConnected(tag, {"Cable2"});
        job().setVertRunDisconnected(tag, {});
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
        QCOMPARE(job().getPointPos(point), QPointF(9, 8));
        QVERIFY(job().getVerticeById("Bend") == Vertice("Vertice1", "Bend", 7, 6, m_sheet));
        QCOMPARE(job().getVerticePos(bend), QPointF(7, 6));
        QCOMPARE(job().getVerticeSheet(bend), m_sheet);
        QCOMPARE(job().getPointFloor(point), m_floor);
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
        const QString port = job().addPort(m_floor, m_room, 1, 2, "", "J", "data", 1, 0, 0);
        const QVector<ActiveTestResult> results{ActiveTestResult("9:00", "PASS", 1000, "full", "10.0.0.1",
                                                                 {{"ping", "2 ms"}, {"ping", "3 ms"}, {"vlan", ""}}),
                                                ActiveTestResult("9:30", "FAIL", 0, "", "", {})};
        const QString tag = job().addActivePort(ActivePort("", "Desk", port, results), 1);
        reload();
        QVERIFY(job().getActivePortById("Desk") == ActivePort("ActivePort1", "Desk", port, results));
        QVERIFY(job().activePortTestResultExists(tag, "9:30"));
        QVERIFY(!job().activePortTestResultExists(tag, "9:31"));
        job().removeActiveTestResult(tag, "9:00");
        QVERIFY(job().getActiveTestResults(tag) == results.mid(1));
        job().addActiveTestResult(tag, results.at(0));
        QCOMPARE(job().getActiveTestResults(tag).size(), 2);
    }

    /// Two floors joined by a shaft that passes a third, with 20 feet to the inch: 5 inches of way, 13 feet of
    /// drops, 9.5 feet of ceiling.
    void lengths()
    {
        job().addFloor("", "Middle", 9.5, "", 1);
        job().addFloor("", "Top", 8, "", 1);
        const QString a = job().addPort("FFloor_1", m_room, 0, 0, "", "A", "", 1, 7, 1);
        const QString point = job().addPoint("FFloor_1", 96, 0, "", "", 0);
        const QString low = job().addVertRun("FFloor_1", m_room, 96, 144, "", "", "", 1, 5, {}, {}, 0);
        const QString high = job().addVertRun("FFloor_3", "Undefined", 96, 144, "", "", "", 1, 5, {}, {}, 0);
        const QString b = job().addPort("FFloor_3", "Undefined", 288, 288, "", "B", "", 1, 6, 1);
        const auto addCable = [](const QString &to, const QString &from, const QStringList &path) {
            job().addCable(Cable("", "", "", to, from, "", TestResults(), path, "", "", "", ""), 0);
        };
        addCable(b, a, {point, low, high}); // 96 + 144 + 0 + 240 pixels
        addCable(low, a, {});               // 173.07 pixels
        addCable(b, a, {point});            // no shaft
        addCable(b, "none", {low});
        addCable(b, a, {low, "none"});
        addCable(b, low, {}); // the shaft itself leads up
        const QStringList unscaled = job().getCables(true);
        for (const QString &tag : unscaled)
            QCOMPARE(job().estimateCableLength(tag, false), -1.0);

        ScaleSettings scale;
        scale.setStyle(1);
        job().setScaleSettings(scale, "FloorPlan_Settings");
        QCOMPARE(job().estimateCableLength("Cable1", false), 100 + 13 + 9.5);
        QCOMPARE(job().estimateCableLength("Cable1", true), (100 + 13 + 9.5) / 3.2808399);
        QVERIFY(qAbs(job().estimateCableLength("Cable2", false) - (173.0664 / 96 * 20 + 7 + 5)) < 0.001);
        QCOMPARE(job().estimateCableLength("Cable3", false), -1.0);
        QCOMPARE(job().estimateCableLength("Cable4", false), -1.0);
        QCOMPARE(job().estimateCableLength("Cable5", false), -1.0);
        QCOMPARE(job().estimateCableLength("Cable6", false), 240.0 / 96 * 20 + 5 + 6 + 9.5);
        QCOMPARE(job().estimateCableLength("none", false), -1.0);

        // 1 to 50: an inch of the drawing is 50 inches.
        job().setScaleSettings(ScaleSettings("Metric", "1 : 5", 1, 1, 1.0, 50.0, 2), "FloorPlan_Settings");
        QCOMPARE(job().estimateCableLength("Cable1", false), 5 * 50 / 12.0 + 13 + 9.5);
        const QMap<QString, double> all = job().estimateCableLengths(true);
        QCOMPARE(all.keys(), job().getCables(true));
        for (auto length = all.cbegin(); length != all.cend(); ++length)
            QCOMPARE(length.value(), job().estimateCableLength(length.key(), true));
        // The first cable of a tag counts.
        job().addCable("Cable1", "", 2);
        QCOMPARE(job().estimateCableLengths(true), all);
    }

    void copiedFloor()
    {
        const QString upper = job().addFloor("", "Upper", 8, "", 1);
        const QString lab = job().addRoom(upper, 5, 5, 1, 1, "", "Lab", 0, 0, 3, 3, 3, 1);
        job().addRoom(m_floor, 1, 2, 3, 4, "", "Store", 5, 6, 0, 1, 2, 1);
        const QString a = job().addPort(m_floor, m_room, 1, 2, "", "12", "data", 0.5, 3, 1);
        const QString b = job().addPort(m_floor, "Undefined", 3, 4, "", "B", "voice", 1, 0, 1);
        const QString far = job().addPort(upper, "Undefined", 0, 0, "", "12A", "", 1, 0, 1);
        const QString point = job().addPoint(m_floor, 7, 8, "", "Bend1", 1);
        const QString run = job().addVertRun(m_floor, m_room, 1, 1, "", "Riser", "", 1, 0, {}, {}, 1);
        job().addFloorFreeText(m_floor, "North", 1, 2, "", 9, false, false, "red", "", "T", 0);
        TestResults tested;
        tested.setStatus("PASS");
        job().addCable(Cable("", "", "data", a, b, "CAT5E", tested, {point, run}, "HTheatre", "1", "4", "#112233"), 0);
        job().addCable(Cable("", "", "", far, run, "", tested, {}, "HTheatre", "2", "4", "red"), 0);
        job().addCable(Cable("", "", "", far, far, "", tested, {}, "", "", "1", "red"), 0);
        job().setVertRunConnected(run, {"Cable3", "Cable2"});
        job().setVertRunDisconnected(run, {"Cable1"});

        job().copyFloor(m_floor, upper, {{"Cable001", "New name"}}, true);
        QVERIFY(JobEditorProbe(job()).indexesMatchTheTree());
        // A room of that name was there; the other is new.
        QCOMPARE(job().getRooms(upper, false), QStringList({"Undefined", "Lab", "Store"}));
        QVERIFY(job().getRoomById(upper, "Store") == Room("Room4", 1, 2, 3, 4, "Store", upper, 5, 6, 0, 1, 2));
        const QString portCopy = job().getPorts(upper, lab, true).value(0);
        QVERIFY(job().getPortByTag(portCopy) == Port(portCopy, "12B", 1, 2, "data", 0.5, 3, lab, upper));
        QCOMPARE(job().getPorts(upper, "Undefined", false), QStringList({"12A", "BA"}));
        QCOMPARE(job().getPoints(upper, false), QStringList("Bend2"));
        const QString text = job().getFloorFreeTexts(upper, true).value(0);
        QVERIFY(job().getFloorFreeTextByTag(text)
                == FreeText(text, "T2", "North", 1, 2, "", 9, false, false, "red", upper));
        const QString runCopy = job().getVertRuns(upper, lab, true).value(0);
        const QString pointCopy = job().getPoints(upper, true).value(0);
        const QString secondPort = job().getPorts(upper, "Undefined", true).value(1);
        QCOMPARE(job().getCables(true).size(), 5);
        Cable expected("Cable4", "New name", "data", portCopy, secondPort, "CAT5E", TestResults(), {pointCopy, runCopy},
                       "HTheatre", "1", "2", "#112233");
        QCOMPARE(job().getCableStatus("Cable4"), QString("UNTESTED"));
        expected.setTestResults(job().getCableTestResults("Cable4"));
        QVERIFY(job().getCable("Cable4") == expected);
        QCOMPARE(job().getCableID("Cable5"), QString("Cable004"));
        QCOMPARE(job().getCableTo("Cable5"), far);
        QCOMPARE(job().getCableFrom("Cable5"), runCopy);
        QCOMPARE(job().getCableBundleGroupNum("Cable5"), QString("2"));
        // Of the cables in the source's lists, those that were copied.
        QCOMPARE(job().getVertRunConnected(runCopy), QStringList("Cable5"));
        QCOMPARE(job().getVertRunDisconnected(runCopy), QStringList("Cable4"));
        QCOMPARE(job().getCableStatus("Cable1"), QString("PASS"));

        const int rooms = int(job().getRooms(m_floor, true).size());
        job().copyFloor(m_floor, m_floor, {{"Cable001", "Ignored"}}, false);
        QVERIFY(!job().cableExists("Ignored", false));
        QCOMPARE(int(job().getRooms(m_floor, true).size()), rooms);
        QCOMPARE(job().getPorts(m_floor, m_room, false), QStringList({"12", "12C"}));
        QVERIFY(JobEditorProbe(job()).indexesMatchTheTree());
        const QByteArray before = JobEditorProbe(job()).text();
        job().copyFloor(m_floor, "none", {}, false);
        job().copySheet("none", m_sheet);
        QCOMPARE(JobEditorProbe(job()).text(), before);
    }

    void copiedPortIdsWrapAround()
    {
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            job().addPort(m_floor, m_room, 1, 2, "", QString("12") + letter, "", 1, 0, 1);
        const QString source = job().addFloor("", "S", 8, "", 1);
        const QString target = job().addFloor("", "T", 8, "", 1);
        job().addPort(source, "Undefined", 1, 2, "", "12", "", 1, 0, 1);
        for (int i = 0; i < 3; ++i)
            job().copyFloor(source, target, {}, false);
        QCOMPARE(job().getPorts(target, "Undefined", false), QStringList({"12[", "12AA", "12AB"}));
    }

    void copiedToFloorWithoutRooms()
    {
        writeFile(job().filename(), "<Job><Version number='3.0'/><Floor_List><F1><Room_List><Undefined id='Undefined'>"
                                    "<Port_List><P1 id='1'/></Port_List></Undefined></Room_List></F1><F2/></Floor_List>"
                                    "</Job>");
        QVERIFY(job().Load(job().filename()));
        // Only the list of rooms is new.
        job().copyFloor("F2", "F2", {}, false);
        QVERIFY(job().fileChanged());
        job().copyFloor("F1", "F2", {}, false);
        QCOMPARE(job().getPorts("F2", "Undefined", false), QStringList("1A"));
        QVERIFY(JobEditorProbe(job()).indexesMatchTheTree());
    }

    void copiedSheet()
    {
        const QString device = job().addDevice(m_sheet, "switch", 1, 2, 0.5, "i", "", "S", 0);
        const QString bend = job().addVertice(m_sheet, 1, 2, "", "V", 0);
        job().addFreeText(m_sheet, "x", 1, 2, "", 9, true, true, "red", "", "T", 0);
        job().addConnection("", "", device, bend, "", 0);
        const QString target = job().addSheet("", "Target", 1);
        job().copySheet(m_sheet, target);
        QVERIFY(job().getDeviceByTag("Device2") == Device("Device2", "S2", "switch", 1, 2, 0.5, "i", target));
        QCOMPARE(job().getVertices(target, false), QStringList("V2"));
        QCOMPARE(job().getFreeTexts(target, false), QStringList("T2"));
        QCOMPARE(job().getConnections(true).size(), 1);
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

    /// What is removed takes with it what cannot be without it.
    void removal()
    {
        const QString a = job().addPort(m_floor, m_room, 1, 2, "", "A", "", 1, 1, 1);
        const QString b = job().addPort(m_floor, m_room, 1, 2, "", "B", "", 1, 1, 1);
        const QString point = job().addPoint(m_floor, 1, 2, "", "", 0);
        const QString run = job().addVertRun(m_floor, m_room, 1, 2, "", "", "", 1, 1, {}, {}, 0);
        const QString active = job().addActivePort(a, "", "", 0);
        job().addCable(Cable("", "", "", a, b, "", TestResults(), {point, run}, "", "", "", ""), 0);
        job().addCable("", "", "", b, run, 0);
        job().connectCableToVertRun("Cable1", run);
        job().removePoint(point);
        QCOMPARE(job().getCablePath("Cable1"), QStringList(run));
        job().removePort(a);
        QCOMPARE(job().getCables(true), QStringList("Cable2"));
        QVERIFY(!job().activePortExists(active, true));
        QVERIFY(job().getVertRunConnected(run).isEmpty());
        job().removeVertRun(run);
        QVERIFY(job().getCables(true).isEmpty());
        QVERIFY(job().portExists(b, true));

        const QString device = job().addDevice(m_sheet, "", 1, 2, 1, "", "", "", 0);
        const QString bend = job().addVertice(m_sheet, 1, 2, "", "", 0);
        // Elements of the same tag stand for each other.
        job().addPort(m_floor, "Undefined", 1, 2, b, "", "", 1, 1, 2);
        job().addCable("", "", "", b, 0);
        job().addActivePort(b, "", "", 0);
        job().addDevice(m_sheet, "", 1, 2, 1, "", device, "", 2);
        job().addConnection("", "", device, "", "", 0);
        job().removePort(b);
        job().removeDevice(device);
        QCOMPARE(job().getCables(true).size(), 1);
        QCOMPARE(job().getActivePorts(true).size(), 1);
        QCOMPARE(job().getConnections(true).size(), 1);
        job().removePort(b);
        QVERIFY(job().getCables(true).isEmpty());
        QVERIFY(job().getActivePorts(true).isEmpty());
        job().removeConnection("Connection1");

        job().addConnection("", "", device, bend, "", 0);
        job().addConnection("", "", device, "", "", 0);
        job().removeVertice(bend);
        QCOMPARE(job().getConnections(true), QStringList("Connection2"));
        job().removeSheet(m_sheet);
        QVERIFY(job().getConnections(true).isEmpty());

        // What a caller changed by itself counts after a rebuild.
        const QString c = job().addPort(m_floor, m_room, 1, 2, "", "C", "", 1, 1, 1);
        job().addCable("", "", 0);
        job().getToCableList().firstChildElement().setAttribute("to", c);
        job().updateAllInternalLists();
        job().removePort(c);
        QVERIFY(job().getCables(true).isEmpty());
    }
};

QTEST_GUILESS_MAIN(JobPlanTest)
#include "tst_jobplan.moc"
