#include "jobeditorprobe.h"

#include <QtTest/QtTest>

using Exists = bool (JobEditor::*)(const QString &, bool) const;
Q_DECLARE_METATYPE(Exists)

class JobIndexTest : public QObject
{
    Q_OBJECT

private:
    static QString joined(const QStringList &list) { return list.join(','); }

private Q_SLOTS:
    void initTestCase() { QVERIFY(JobEditor::Instance().Load(testDataPath("site.job"))); }

    void cleanupTestCase() { JobEditor::Destroy(); }

    void existence_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("id");
        QTest::addColumn<Exists>("exists");
        const auto row = [](const char *tag, const char *id, Exists exists) {
            QTest::newRow(tag) << tag << id << exists;
        };
        row("Cable2", "Cable002", &JobEditor::cableExists);
        row("Connection1", "Uplink", &JobEditor::connectionExists);
        row("FFloor_2", "Upper", &JobEditor::floorExists);
        row("SSheet_1", "Network", &JobEditor::sheetExists);
        row("Room2", "Store", &JobEditor::roomExists);
        row("P3", "Jack 1", &JobEditor::portExists);
        row("V1", "Riser", &JobEditor::vertRunExists);
        row("P1", "Jack 1", &JobEditor::portOrVertRunExists);
        QTest::newRow("V1 too") << "V1"
                                << "Riser" << Exists(&JobEditor::portOrVertRunExists);
        row("Device1", "Switch", &JobEditor::deviceExists);
        row("Vertice1", "Corner", &JobEditor::verticeExists);
        row("Point1", "Bend", &JobEditor::pointExists);
        row("Text1", "Note", &JobEditor::freeTextExists);
        row("TText1", "North", &JobEditor::floorFreeTextExists);
        row("ActivePort1", "Live", &JobEditor::activePortExists);
    }

    void existence()
    {
        QFETCH(QString, tag);
        QFETCH(QString, id);
        QFETCH(Exists, exists);
        const JobEditor &job = JobEditor::Instance();
        QVERIFY((job.*exists)(tag, true));
        QVERIFY((job.*exists)(id, false));
        QVERIFY(!(job.*exists)(tag, false));
        QVERIFY(!(job.*exists)(id, true));
        QVERIFY(!(job.*exists)(QString(), true));
    }

    void lists()
    {
        const JobEditor &job = JobEditor::Instance();
        const QString ground = "FFloor_1";
        const QString upper = "FFloor_2";
        const QString sheet = "SSheet_1";
        const QString lab = "Room1";
        QCOMPARE(joined(job.getFloorTags()), QString("FFloor_1,FFloor_2"));
        QCOMPARE(joined(job.getFloorIds()), QString("Ground,Upper"));
        QCOMPARE(job.getFloorIdByTag(upper), QString("Upper"));
        QCOMPARE(job.getFloorTagById("Upper"), upper);
        QCOMPARE(job.getFloorTagById("FFloor_2"), QString());
        QCOMPARE(job.getSheetTagById("Network"), sheet);
        QCOMPARE(joined(job.getCables(true)), QString("Cable1,Cable2,Cable3"));
        QCOMPARE(joined(job.getCables(false)), QString("Cable001,Cable002,Cable003"));
        QCOMPARE(joined(job.getCablesByType("CAT5E")), QString("Cable1,Cable3"));
        QCOMPARE(joined(job.getConnections(false)), QString("Uplink"));
        QCOMPARE(joined(job.getActivePorts(true)), QString("ActivePort1"));
        QCOMPARE(joined(job.getRooms(upper, true)), QString("Undefined,Room1,Room2"));
        QCOMPARE(joined(job.getRooms(upper, false)), QString("Undefined,Lab,Store"));
        QCOMPARE(joined(job.getRooms(QString(), true)), QString());
        QCOMPARE(joined(job.getPorts(ground, lab, false)), QString("Jack 1,Jack 2"));
        QCOMPARE(joined(job.getPorts(upper, "Undefined", true)), QString("P3,P2"));
        QCOMPARE(joined(job.getVertRuns(ground, lab, true)), QString("V1"));
        QCOMPARE(joined(job.getPoints(ground, true)), QString("Point1"));
        QCOMPARE(joined(job.getFloorFreeTexts(ground, false)), QString("North"));
        QCOMPARE(joined(job.getDevices(sheet, true)), QString("Device1"));
        QCOMPARE(joined(job.getVertices(sheet, true)), QString("Vertice1"));
        QCOMPARE(joined(job.getFreeTexts(sheet, true)), QString("Text1"));
    }

    void navigationEndsInNothing()
    {
        const JobEditor &job = JobEditor::Instance();
        const QString upper = "FFloor_2";
        QVERIFY(job.getToPointList(upper).isNull());
        QVERIFY(job.getToFloorFreeTextList(upper).isNull());
        QVERIFY(job.getToPortList(upper, "Room2").isNull());
        QVERIFY(job.getToVertRunList(upper, "Room9").isNull());
        QVERIFY(job.getToRoomList("SSheet_1").isNull());
        QVERIFY(job.getToDeviceList(QString()).isNull());
    }

    void roomsOfAFloor()
    {
        const JobEditor &job = JobEditor::Instance();
        const QString ground = "FFloor_1";
        const QString upper = "FFloor_2";
        QVERIFY(job.roomExistsOnFloor("Undefined", upper, true));
        QVERIFY(job.roomExistsOnFloor("Undefined", upper, false));
        QVERIFY(job.roomExistsOnFloor("Store", upper, false));
        QVERIFY(!job.roomExistsOnFloor("Store", ground, false));
        QVERIFY(!job.roomExistsOnFloor("Room2", ground, true));
        QVERIFY(!job.roomExistsOnFloor(QString(), ground, true));
        // Both floors have a "Room1"; each is found where it is.
        QCOMPARE(job.getToPortList(ground, "Room1").childNodes().size(), 2);
        QCOMPARE(job.getToPortList(upper, "Room1").childNodes().size(), 0);
    }
};

QTEST_GUILESS_MAIN(JobIndexTest)
#include "tst_jobindex.moc"
