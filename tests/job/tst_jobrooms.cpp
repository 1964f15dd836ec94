#include "jobeditorprobe.h"

#include <QtTest/QtTest>

/// Rooms as records. What operations make of them in the file, tst_joboperations shows.
class JobRoomsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(JobEditor::Instance().Load(testDataPath("site.job"))); }
    void cleanup() { JobEditor::Destroy(); }

    void addedRooms()
    {
        JobEditor &job = JobEditor::Instance();
        QCOMPARE(job.addRoom("FFloor_1", 1, 2, 3, 4, QString(), "Office", 5, 6, 7, 8, 9, 0), QString("Room3"));
        const Room office("Room3", 1, 2, 3, 4, "Office1", "FFloor_1", 5, 6, 7, 8, 9);
        QVERIFY(job.getRoomByTag("Room3") == office);
        QVERIFY(job.getRoomById("FFloor_1", "Office1") == office);
        QCOMPARE(job.addRoom(office, 2), QString("Room3"));
        job.error().clear();
        QCOMPARE(job.addRoom(Room("no name", 1, 2, 3, 4, "a", "FFloor_1", 5, 6, 7, 8, 9), 2), QString());
        QVERIFY(!job.error().isEmpty());
    }

    void roomsOfAFile()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.getRoomByTag("FFloor_1", "Room1") == Room("Room1", 1, 2, 30, 40, "Lab", "FFloor_1", 5, 6, 0, 2, 1));
        QVERIFY(job.getRoomById("FFloor_2", "Lab") == Room("Room1", 7, -1, -1, -1, "Lab", "FFloor_2", 0, 0, 3, 3, 3));
        // Both floors have a "Room1": without a floor, the first is meant.
        QCOMPARE(job.getRoomByTag("Room1").floor(), QString("FFloor_1"));
        job.removeRoom(job.getRoomByTag("Room1"));
        QCOMPARE(job.getRoomByTag("Room1").floor(), QString("FFloor_2"));
        for (const QString &floor : {QString("FFloor_1"), QString("none")}) {
            QVERIFY(job.getRoomByTag(floor, "none") == Room());
            QVERIFY(job.getRoomById(floor, "none") == Room());
        }
        QVERIFY(job.getRoomByTag("none") == Room());
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
        QVERIFY(job.getRoomById("FFloor_1", undefined) == expected);
    }
};

QTEST_GUILESS_MAIN(JobRoomsTest)
#include "tst_jobrooms.moc"
