#include "jobeditorprobe.h"
#include "sitejob.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using Exists = bool (JobEditor::*)(const QString &, bool) const;
Q_DECLARE_METATYPE(Exists)

class JobIndexTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    static QString joined(const QStringList &list) { return list.join(QLatin1Char(',')); }

private Q_SLOTS:
    void initTestCase()
    {
        const QString name = m_directory.filePath(QStringLiteral("site.job"));
        writeFile(name, siteJob());
        QVERIFY(JobEditor::Instance().Load(name));
    }

    void cleanupTestCase() { JobEditor::Destroy(); }

    void existence_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("id");
        QTest::addColumn<Exists>("exists");
        const auto row = [](const char *tag, const char *id, Exists exists) {
            QTest::newRow(tag) << QString::fromLatin1(tag) << QString::fromLatin1(id) << exists;
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
        const QString ground = QStringLiteral("FFloor_1");
        const QString upper = QStringLiteral("FFloor_2");
        const QString sheet = QStringLiteral("SSheet_1");
        const QString lab = QStringLiteral("Room1");
        QCOMPARE(joined(job.getFloorTags()), QStringLiteral("FFloor_1,FFloor_2"));
        QCOMPARE(joined(job.getFloorIds()), QStringLiteral("Ground,Upper"));
        QCOMPARE(job.getFloorIdByTag(upper), QStringLiteral("Upper"));
        QCOMPARE(job.getFloorTagById(QStringLiteral("Upper")), upper);
        QCOMPARE(job.getFloorTagById(QStringLiteral("FFloor_2")), QString());
        QCOMPARE(job.getSheetTagById(QStringLiteral("Network")), sheet);
        QCOMPARE(joined(job.getCables(true)), QStringLiteral("Cable1,Cable2,Cable3"));
        QCOMPARE(joined(job.getCables(false)), QStringLiteral("Cable001,Cable002,Cable003"));
        QCOMPARE(joined(job.getCablesByType(QStringLiteral("CAT5E"))), QStringLiteral("Cable1,Cable3"));
        QCOMPARE(joined(job.getConnections(false)), QStringLiteral("Uplink"));
        QCOMPARE(joined(job.getActivePorts(true)), QStringLiteral("ActivePort1"));
        QCOMPARE(joined(job.getRooms(upper, true)), QStringLiteral("Undefined,Room1,Room2"));
        QCOMPARE(joined(job.getRooms(upper, false)), QStringLiteral("Undefined,Lab,Store"));
        QCOMPARE(joined(job.getRooms(QString(), true)), QString());
        QCOMPARE(joined(job.getPorts(ground, lab, false)), QStringLiteral("Jack 1,Jack 2"));
        QCOMPARE(joined(job.getPorts(upper, QStringLiteral("Undefined"), true)), QStringLiteral("P3,P2"));
        QCOMPARE(joined(job.getVertRuns(ground, lab, true)), QStringLiteral("V1"));
        QCOMPARE(joined(job.getPoints(ground, true)), QStringLiteral("Point1"));
        QCOMPARE(joined(job.getFloorFreeTexts(ground, false)), QStringLiteral("North"));
        QCOMPARE(joined(job.getDevices(sheet, true)), QStringLiteral("Device1"));
        QCOMPARE(joined(job.getVertices(sheet, true)), QStringLiteral("Vertice1"));
        QCOMPARE(joined(job.getFreeTexts(sheet, true)), QStringLiteral("Text1"));
    }

    void navigationEndsInNothing()
    {
        const JobEditor &job = JobEditor::Instance();
        const QString upper = QStringLiteral("FFloor_2");
        QVERIFY(job.getToPointList(upper).isNull());
        QVERIFY(job.getToFloorFreeTextList(upper).isNull());
        QVERIFY(job.getToPortList(upper, QStringLiteral("Room2")).isNull());
        QVERIFY(job.getToVertRunList(upper, QStringLiteral("Room9")).isNull());
        QVERIFY(job.getToRoomList(QStringLiteral("SSheet_1")).isNull());
        QVERIFY(job.getToDeviceList(QString()).isNull());
    }

    void roomsOfAFloor()
    {
        const JobEditor &job = JobEditor::Instance();
        const QString ground = QStringLiteral("FFloor_1");
        const QString upper = QStringLiteral("FFloor_2");
        QVERIFY(job.roomExistsOnFloor(QStringLiteral("Undefined"), upper, true));
        QVERIFY(job.roomExistsOnFloor(QStringLiteral("Undefined"), upper, false));
        QVERIFY(job.roomExistsOnFloor(QStringLiteral("Store"), upper, false));
        QVERIFY(!job.roomExistsOnFloor(QStringLiteral("Store"), ground, false));
        QVERIFY(!job.roomExistsOnFloor(QStringLiteral("Room2"), ground, true));
        QVERIFY(!job.roomExistsOnFloor(QString(), ground, true));
        // Both floors have a "Room1"; each is found where it is.
        QCOMPARE(job.getToPortList(ground, QStringLiteral("Room1")).childNodes().size(), 2);
        QCOMPARE(job.getToPortList(upper, QStringLiteral("Room1")).childNodes().size(), 0);
    }

    void firstOfARepeatedTagCounts()
    {
        JobEditor &job = JobEditor::Instance();
        QDomElement floorList = JobEditorProbe(job).root().firstChildElement(QStringLiteral("Floor_List"));
        QDomElement twin = floorList.firstChildElement().cloneNode(true).toElement();
        twin.setAttribute(QStringLiteral("id"), QStringLiteral("Twin"));
        floorList.appendChild(twin);
        job.updateAllInternalLists();
        QVERIFY(!job.floorExists(QStringLiteral("Twin"), false));
        QCOMPARE(job.getFloorIdByTag(QStringLiteral("FFloor_1")), QStringLiteral("Ground"));
        job.removeFloor(QStringLiteral("FFloor_1"));
        QCOMPARE(job.getFloorIdByTag(QStringLiteral("FFloor_1")), QStringLiteral("Twin"));
        QVERIFY(job.portExists(QStringLiteral("P1"), true));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }
};

QTEST_APPLESS_MAIN(JobIndexTest)
#include "tst_jobindex.moc"
