#include "jobeditorprobe.h"

#include <QtTest/QtTest>

class JobFloorsTest : public QObject
{
    Q_OBJECT

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
        const auto row = [](const char *name, int mode, const char *tag, const char *id) {
            QTest::newRow(name) << mode << tag << id;
        };
        row("generated", 0, "_1", "Level 2");
        row("any other", 7, "_1", "Level 2");
        row("id kept", 1, "_1", "Level ");
        row("both kept", 2, "Mine", "Level ");
        row("tag kept", 3, "Mine", "Level 2");
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

        const QString sheet = job.addSheet(Sheet("Mine", level), mode);
        QCOMPARE(sheet, tag.startsWith('_') ? "SSheet" + tag : tag);
        QVERIFY(job.getSheet(sheet) == Sheet(sheet, id));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
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

    void singleFields()
    {
        JobEditor &job = JobEditor::Instance();
        const QString floor = job.addFloor(QString(), QString(), 8, QString(), 0);
        const QString sheet = job.addSheet(QString(), QString(), 0);
        job.setAllFloorIds({{floor, "Roof"}, {"none", "x"}});
        job.setAllSheetIDs({{sheet, "Core"}});
        job.setFloorBackgroundPic(floor, "a.png", 10, 20);
        job.setFloorCeilingHeight(floor, 9.5);
        QCOMPARE(job.getFloorTagById("Roof"), floor);
        QCOMPARE(job.getSheet(sheet).id(), QString("Core"));
        QCOMPARE(job.getFloorBackgroundPic(floor), QString("a.png"));
        QCOMPARE(job.getFloorBackgroundOrigin(floor), QPoint(10, 20));
        QCOMPARE(job.getFloorCeilingHeight(floor), 9.5);
        QCOMPARE(job.getBackgroundOption(floor), QString("Center"));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());

        QVERIFY(job.getFloor("none") == Floor());
        QVERIFY(job.getSheet("none") == Sheet());
        QCOMPARE(job.getFloorCeilingHeight("none"), 8.0);
        QCOMPARE(job.getFloorBackgroundOrigin("none"), QPoint(0, 0));
        QCOMPARE(job.getBackgroundOption("none") + job.getFloorBackgroundPic("none"), QString());
        QVERIFY(!job.floorExists("none", true) && !job.floorExists("1", false));
    }

    void numbers()
    {
        const QVector<QPair<QString, QString>> numbersOfTags{
            {"FFloor_3", "03"}, {"FFloor_12", "12"}, {"FFloor_123", "123"}, {"FFloor_x", "00"},
            {"Mine", "00"},     {"a_4_5", "04"},     {"a__5", "00"},
        };
        for (const auto &[tag, number] : numbersOfTags) {
            QCOMPARE(JobEditor::getFloorNumber(tag), number);
            QCOMPARE(JobEditor::getSheetNumber(tag), number);
        }
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
