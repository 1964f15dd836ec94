#include "jobeditorprobe.h"

#include <QtTest/QtTest>

class JobFloorsTest : public QObject
{
    Q_OBJECT

private:
    static QString attribute(const QString &floorTag, const char *name)
    {
        return JobEditorProbe(JobEditor::Instance()).floorElement(floorTag).attribute(name);
    }

private Q_SLOTS:
    void init()
    {
        QVERIFY(JobEditor::Instance().New("site"));
        JobEditor::Instance().removeFloor("FFloor_1");
        JobEditor::Instance().removeSheet("SSheet_1");
        JobEditor::Instance().setDirty(false);
    }

    void cleanup() { JobEditor::Destroy(); }

    void modes_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("id");
        QTest::newRow("generated") << 0 << "_1"
                                   << "Level 2";
        QTest::newRow("any other") << 7 << "_1"
                                   << "Level 2";
        QTest::newRow("id kept") << 1 << "_1"
                                 << "Level ";
        QTest::newRow("both kept") << 2 << "Mine"
                                   << "Level ";
        QTest::newRow("tag kept") << 3 << "Mine"
                                  << "Level 2";
    }

    void modes()
    {
        QFETCH(int, mode);
        QFETCH(QString, tag);
        QFETCH(QString, id);
        JobEditor &job = JobEditor::Instance();
        const QString level = "Level ";
        job.addFloor("Other", "Level 1", 8, QString(), 2);
        job.addSheet("Other", "Level 1", 2);
        job.setDirty(false);

        const QString floor = job.addFloor(Floor("Mine", level, "a.png", 9.5), mode);
        QVERIFY(job.fileChanged());
        QCOMPARE(floor, tag.startsWith('_') ? "FFloor" + tag : tag);
        QVERIFY(job.getFloor(floor) == Floor(floor, id, "a.png", 9.5));
        QCOMPARE(attribute(floor, "ceiling_height"), QString("9.5"));

        const QString sheet = job.addSheet(Sheet("Mine", level), mode);
        QCOMPARE(sheet, tag.startsWith('_') ? "SSheet" + tag : tag);
        QVERIFY(job.getSheet(sheet) == Sheet(sheet, id));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    void freedNumbersAreTakenAgain()
    {
        JobEditor &job = JobEditor::Instance();
        const QString level = "Level";
        for (int i = 1; i <= 12; ++i)
            QCOMPARE(job.addFloor(QString(), level, 8, QString(), 0), QString("FFloor_%1").arg(i));
        job.removeFloor("FFloor_2");
        job.setFloorId("FFloor_7", "Attic");
        QCOMPARE(job.addFloor(QString(), level, 8, QString(), 0), QString("FFloor_2"));
        QCOMPARE(job.getFloorIdByTag("FFloor_2"), QString("Level2"));
        QCOMPARE(job.addFloor(QString(), level, 8, QString(), 0), QString("FFloor_13"));
        QCOMPARE(job.getFloorIdByTag("FFloor_13"), QString("Level7"));
    }

    void tagsThatCannotBeNames()
    {
        JobEditor &job = JobEditor::Instance();
        const QByteArray before = JobEditorProbe(job).text();
        for (const char *tag : {"", "has space", "1st", "a:b", "a<b", "\u0142", "a\x01", "\u00d7"}) {
            job.error().clear();
            QCOMPARE(job.addFloor(QString::fromUtf8(tag), QString(), 8, QString(), 2), QString("Bad Floor"));
            QVERIFY2(!job.error().isEmpty(), tag);
            QCOMPARE(job.addSheet(QString::fromUtf8(tag), QString(), 3), QString("Bad Sheet"));
        }
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(!job.fileChanged());
        QCOMPARE(job.addFloor("\u00e9tage-1.b", QString(), 8, QString(), 2), QString("\u00e9tage-1.b"));
    }

    void backgroundKeepsItsFirstVerticalOrigin()
    {
        JobEditor &job = JobEditor::Instance();
        const QString tag = job.addFloor(QString(), QString(), 8, QString(), 0);
        job.setFloorBackgroundPic(tag, "a.png", 10, 20);
        QCOMPARE(job.getFloorBackgroundOrigin(tag), QPoint(10, 20));
        job.setFloorBackgroundPic(tag, "b.png", 30, 40);
        QCOMPARE(job.getFloorBackgroundOrigin(tag), QPoint(30, 20));
        QCOMPARE(job.getFloorBackgroundPic(tag), QString("b.png"));
    }

    void readingCompletesOlderFloors()
    {
        JobEditor &job = JobEditor::Instance();
        QVERIFY(job.Load(testDataPath("site.job")));
        const QString tag = "FFloor_2";
        QCOMPARE(job.getFloor(tag).ceilingHeight(), 8.0);
        QVERIFY(!job.fileChanged());
        QCOMPARE(job.getFloorCeilingHeight(tag), 8.0);
        QCOMPARE(attribute(tag, "ceiling_height"), QString("8"));
        QVERIFY(job.fileChanged());
        job.setDirty(false);
        QCOMPARE(job.getFloorBackgroundOrigin(tag), QPoint(0, 0));
        QCOMPARE(attribute(tag, "pic_x") + attribute(tag, "pic_y"), QString("00"));
        QVERIFY(job.fileChanged());
        job.setDirty(false);
        QCOMPARE(job.getBackgroundOption(tag), QString("Center"));
        QCOMPARE(attribute(tag, "option"), QString("Center"));
        QVERIFY(job.fileChanged());
        job.setDirty(false);
        QCOMPARE(job.getBackgroundOption(tag), QString("Center"));
        QVERIFY(!job.fileChanged());
        job.setFloorCeilingHeight(tag, 0.1);
        QCOMPARE(attribute(tag, "ceiling_height"), QString("0.1"));
        job.setBackgroundOption(tag, "Stretch");
        QCOMPARE(job.getBackgroundOption(tag), QString("Stretch"));
    }

    void unknownTags()
    {
        JobEditor &job = JobEditor::Instance();
        const QByteArray before = JobEditorProbe(job).text();
        const QString tag = "FFloor_9";
        QVERIFY(job.getFloor(tag) == Floor());
        QVERIFY(job.getSheet(tag) == Sheet());
        QCOMPARE(job.getFloorCeilingHeight(tag), 8.0);
        QCOMPARE(job.getFloorBackgroundOrigin(tag), QPoint(0, 0));
        QCOMPARE(job.getBackgroundOption(tag) + job.getFloorBackgroundPic(tag), QString());
        job.setFloorId(tag, tag);
        job.setSheetID(tag, tag);
        job.setFloorCeilingHeight(tag, 1);
        job.setFloorBackgroundPic(tag, tag, 1, 1);
        job.setBackgroundOption(tag, tag);
        job.removeFloor(tag);
        job.removeSheet(tag);
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(!job.floorExists(tag, true) && !job.floorExists(tag, false));
        QVERIFY(!job.fileChanged());
    }

    void renaming()
    {
        JobEditor &job = JobEditor::Instance();
        const QString floor = job.addFloor(QString(), QString(), 8, QString(), 0);
        const QString sheet = job.addSheet(QString(), QString(), 0);
        job.setAllFloorIds({{floor, "Roof"}, {"none", "x"}});
        job.setAllSheetIDs({{sheet, "Core"}});
        QCOMPARE(job.getFloorTagById("Roof"), floor);
        QCOMPARE(job.getSheet(sheet).id(), QString("Core"));
        QVERIFY(!job.floorExists("1", false));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    void numbers_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("number");
        QTest::newRow("one digit") << "FFloor_3"
                                   << "03";
        QTest::newRow("two digits") << "FFloor_12"
                                    << "12";
        QTest::newRow("three digits") << "FFloor_123"
                                      << "123";
        QTest::newRow("no number") << "FFloor_x"
                                   << "00";
        QTest::newRow("no underscore") << "Mine"
                                       << "00";
        QTest::newRow("second part counts") << "a_4_5"
                                            << "04";
        QTest::newRow("empty part") << "a__5"
                                    << "00";
    }

    void numbers()
    {
        QFETCH(QString, tag);
        QTEST(JobEditor::getFloorNumber(tag), "number");
        QTEST(JobEditor::getSheetNumber(tag), "number");
        QCOMPARE(JobEditor::getFloorNumber(QString()), QString("1"));
        QCOMPARE(JobEditor::getSheetNumber(QString()), QString("00"));
    }

    void floorsInBetween()
    {
        JobEditor &job = JobEditor::Instance();
        for (int i = 0; i < 12; ++i)
            job.addFloor(QString(), QString(), 8, QString(), 0);
        const JobEditorProbe probe(job);
        const QString five = "FFloor_5";
        QCOMPARE(probe.floorsInBetween(five, "FFloor_2").join(','), QString("FFloor_3,FFloor_4"));
        // In the order of the tags, not of the numbers.
        QCOMPARE(probe.floorsInBetween("FFloor_12", "FFloor_8").join(','), QString("FFloor_10,FFloor_11,FFloor_9"));
        QVERIFY(probe.floorsInBetween(five, five).isEmpty());
        QVERIFY(probe.floorsInBetween(five, "FFloor_6").isEmpty());
    }
};

QTEST_GUILESS_MAIN(JobFloorsTest)
#include "tst_jobfloors.moc"
