#include "jobeditorprobe.h"

#include <QtTest/QtTest>

namespace {

const QString Ground = "FFloor_1";
const QString Upper = "FFloor_2";

Room room(const QString &tag, const QString &id, const QString &floor = Ground)
{
    return Room(tag, 1.9, 2, 30, 40, id, floor, 5, 6, 0, 1, 2);
}

} // namespace

class JobRoomsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(JobEditor::Instance().New("site"));
        JobEditor::Instance().addFloor(QString(), QString(), 8, QString(), 0);
        JobEditor::Instance().setDirty(false);
    }

    void cleanup() { JobEditor::Destroy(); }

    void tagsAndIds()
    {
        JobEditor &job = JobEditor::Instance();
        const QString office = "Office";
        QCOMPARE(job.addRoom(Ground, 1, 2, 3, 4, QString(), office, 5, 6, 7, 8, 9, 0), QString("Room1"));
        QVERIFY(job.fileChanged());
        const Room first("Room1", 1, 2, 3, 4, "Office1", Ground, 5, 6, 7, 8, 9);
        QVERIFY(job.getRoomByTag("Room1") == first);
        QCOMPARE(job.addRoom(room(QString(), office), 0), QString("Room2"));
        QVERIFY(job.roomExistsOnFloor("Office2", Ground, false));
        // Ids are unique on a floor, tags in the job.
        QCOMPARE(job.addRoom(room(QString(), office, Upper), 0), QString("Room3"));
        QVERIFY(job.roomExistsOnFloor("Office1", Upper, false));
        QCOMPARE(job.addRoom(room("Mine", office), 2), QString("Mine"));
        QCOMPARE(job.getRoomByTag("Mine").id(), office);
        QCOMPARE(job.addRoom(room("Yours", office), 3), QString("Yours"));
        QCOMPARE(job.getRoomByTag("Yours").id(), QString("Office3"));
        QCOMPARE(job.addRoom(room(QString(), office), 1), QString("Room4"));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    void tagAfterTheLastInStringOrder()
    {
        JobEditor &job = JobEditor::Instance();
        // Without "Undefined", which would be the last, the rooms themselves show the rule.
        for (const QString &floor : {Ground, Upper}) {
            QDomElement list = job.getToRoomList(floor);
            list.removeChild(list.firstChild());
        }
        job.updateAllInternalLists();
        QCOMPARE(job.addRoom(room("Room9", "Hall9"), 2), QString("Room9"));
        QCOMPARE(job.addRoom(room("Room10", "Hall10"), 2), QString("Room10"));
        QCOMPARE(job.addRoom(room(QString(), "Hall"), 0), QString("Room11"));
        QCOMPARE(job.getRoomByTag("Room11").id(), QString("Hall11"));
        QCOMPARE(job.addRoom(room("Room97x", QString()), 3), QString("Room97x"));
        QCOMPARE(job.addRoom(room(QString(), QString()), 0), QString("Room1"));
    }

    void refusedRooms()
    {
        JobEditor &job = JobEditor::Instance();
        QCOMPARE(job.addRoom(room("Mine", "a"), 2), QString("Mine"));
        const QByteArray before = JobEditorProbe(job).text();
        job.setDirty(false);
        QCOMPARE(job.addRoom(room("Mine", "b"), 2), QString("Mine"));
        QCOMPARE(job.addRoom(room(QString(), QString(), "none"), 0), QString());
        job.error().clear();
        QCOMPARE(job.addRoom(room("no name", QString()), 2), QString());
        QVERIFY(!job.error().isEmpty());
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(!job.fileChanged());
        // The same tag on another floor is not in the way.
        QCOMPARE(job.addRoom(room("Mine", "b", Upper), 2), QString("Mine"));
        QCOMPARE(job.getRoomByTag(Upper, "Mine").id(), QString("b"));
    }

    void readingCompletesOlderRooms()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.Load(testDataPath("site.job")));
        QVERIFY(job.getRoomByTag(Ground, "Room1") == Room("Room1", 1, 2, 30, 40, "Lab", Ground, 5, 6, 0, 2, 1));
        QVERIFY(!job.fileChanged());
        QVERIFY(job.getRoomById(Upper, "Lab") == Room("Room1", 7, -1, -1, -1, "Lab", Upper, 0, 0, 3, 3, 3));
        QVERIFY(job.fileChanged());
        const QDomElement element = JobEditorProbe(job).roomElement(Upper, "Room1");
        for (const char *name : {"layer", "show_name", "show_dimensions"})
            QCOMPARE(element.attribute(name), QString("3"));
        QVERIFY(!element.hasAttribute("y"));
        job.setDirty(false);
        job.getRoomByTag(Upper, "Room1");
        QVERIFY(!job.fileChanged());
    }

    void undefinedIsAnsweredWithoutLooking()
    {
        JobEditor &job = JobEditor::Instance();
        const QString undefined = "Undefined";
        Room expected;
        expected.setElement(undefined);
        expected.setID(undefined);
        QVERIFY(job.getRoomByTag("no floor", undefined) == expected);
        QVERIFY(job.getRoomByTag(undefined) == expected);
        QVERIFY(job.getRoomById(Ground, undefined) == expected);
        QVERIFY(!job.fileChanged());
        job.setRoomLayer(Upper, undefined, 5);
        QCOMPARE(JobEditorProbe(job).roomElement(Upper, undefined).attribute("layer"), QString("5"));
    }

    void setters()
    {
        JobEditor &job = JobEditor::Instance();
        const QString hall = "Hall";
        const QString tag = job.addRoom(room(QString(), hall), 1);
        job.addRoom(room(QString(), hall, Upper), 1);
        job.setDirty(false);
        job.setRoomPos(Ground, hall, -10, 20, 300, 400);
        QVERIFY(job.fileChanged());
        job.setRoomNamePos(Ground, hall, QPoint(50, 60));
        job.setRoomLayer(Ground, hall, 7);
        job.setShowRoomName(Ground, hall, 8);
        job.setShowRoomDimensions(Ground, hall, 9);
        job.setRoomName(Ground, hall, "Foyer");
        QVERIFY(job.getRoomById(Ground, "Foyer") == Room(tag, -10, 20, 300, 400, "Foyer", Ground, 50, 60, 9, 8, 7));
        QCOMPARE(job.getRoomById(Upper, hall).x(), 1.0);
        QVERIFY(!job.roomExistsOnFloor(hall, Ground, false));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    void unknownRooms()
    {
        JobEditor &job = JobEditor::Instance();
        const QByteArray before = JobEditorProbe(job).text();
        const QString none = "none";
        for (const QString &floor : {Ground, none}) {
            QVERIFY(job.getRoomByTag(floor, none) == Room());
            QVERIFY(job.getRoomById(floor, none) == Room());
            job.setRoomPos(floor, none, 1, 1, 1, 1);
            job.setRoomName(floor, none, none);
            job.setRoomLayer(floor, none, 1);
            job.removeRoom(floor, none);
        }
        QVERIFY(job.getRoomByTag(none) == Room());
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(!job.fileChanged());
    }

    void firstOfTheSameIdIsMeant()
    {
        JobEditor &job = JobEditor::Instance();
        const QString a = "a";
        job.addRoom(room("Z", a), 2);
        job.addRoom(room("A", a), 2);
        job.addRoom(room("B", "b"), 2);
        job.setRoomName(Ground, a, "b");
        QCOMPARE(job.getRoomById(Ground, "b").element(), QString("Z"));
        QCOMPARE(job.getRoomById(Ground, a).element(), QString("A"));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }
};

QTEST_GUILESS_MAIN(JobRoomsTest)
#include "tst_jobrooms.moc"
