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

    void callersChangesCountAfterARebuild()
    {
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
