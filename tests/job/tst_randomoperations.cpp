#include "jobeditorprobe.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <functional>
#include <random>

/// Long random sequences of operations, after each of which every index has to equal its rebuild.
class RandomOperationsTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int stepsOfARun = 400;

    QTemporaryDir m_directory;
    std::mt19937 m_random;

    int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }

    QString oneOf(const QStringList &list) { return list.isEmpty() ? QString() : list.at(number(int(list.size()))); }

    /// Mostly a tag that exists, sometimes one that does not or cannot.
    QString someTag(const QStringList &tags)
    {
        static const QStringList others{QString(),  "none",  "no name", "FFloor_2",
                                        "SSheet_3", "Room2", "Mine",    "Undefined"};
        return number(4) == 0 ? oneOf(others) : oneOf(tags);
    }

    QString someId()
    {
        static const QStringList ids{QString(),   "Hall", "Hall ", "Hall1", "7", "<\u00dc\"&'>\r\n\t",
                                     "Undefined", "Room"};
        return oneOf(ids);
    }

    void addFloorOrSheet(JobEditor &job)
    {
        const int mode = number(5);
        const bool isFloor = number(2) == 0;
        const QStringList before = isFloor ? job.getFloorTags() : job.getSheetTags();
        const QString given = someTag(before);
        const QString prefix = isFloor ? "FFloor_" : "SSheet_";
        const QString tag = isFloor ? job.addFloor(given, someId(), number(20) / 4.0, someId(), mode)
                                    : job.addSheet(given, someId(), mode);
        if (mode == 2 || mode == 3)
            return;
        int expected = 1;
        while (before.contains(prefix + QString::number(expected)))
            ++expected;
        QCOMPARE(tag, prefix + QString::number(expected));
    }

    void addRoom(JobEditor &job)
    {
        const int mode = number(5);
        const QString floor = someTag(job.getFloorTags());
        const QStringList ids = job.getRooms(floor, false);
        const QStringList tags = job.getRooms(floor, true);
        const QString prefix = someId();
        QStringList tagsInJob;
        const QStringList floors = job.getFloorTags();
        for (const QString &floorTag : floors)
            tagsInJob += job.getRooms(floorTag, true);
        const QString tag = job.addRoom(floor, number(9), 2, 3, 4, someTag(tags), prefix, 5, 6, 7, 8, 9, mode);
        if (tag.isEmpty() || tags.contains(tag))
            return;
        QCOMPARE(job.getRooms(floor, true), tags + QStringList(tag));
        const QString id = job.getRooms(floor, false).constLast();
        if (mode == 1 || mode == 2)
            QCOMPARE(id, prefix);
        else
            QVERIFY2(!ids.contains(id) && id.startsWith(prefix), qPrintable(id));
        if (mode != 2 && mode != 3)
            QVERIFY2(!tagsInJob.contains(tag), qPrintable(tag));
    }

    void changeFloorOrSheet(JobEditor &job)
    {
        const QString floor = someTag(job.getFloorTags());
        const QString sheet = someTag(job.getSheetTags());
        const QVector<std::function<void()>> operations{
            [&] { job.setFloorId(floor, someId()); },
            [&] {
                job.setAllFloorIds({{floor, someId()}, {sheet, someId()}});
            },
            [&] { job.setSheetID(sheet, someId()); },
            [&] { job.setFloorBackgroundPic(floor, someId(), number(9), number(9)); },
            [&] { job.getFloorBackgroundOrigin(floor); },
            [&] { job.setBackgroundOption(floor, someId()); },
            [&] { job.getFloorCeilingHeight(floor); },
            [&] { job.setFloorCeilingHeight(floor, number(100) / 7.0); },
            [&] { job.removeFloor(floor); },
            [&] { job.removeSheet(sheet); },
        };
        operations.at(number(int(operations.size())))();
    }

    void changeRoom(JobEditor &job)
    {
        const QString floor = someTag(job.getFloorTags());
        const QString id = oneOf(job.getRooms(floor, false));
        const QString tag = someTag(job.getRooms(floor, true));
        const QVector<std::function<void()>> operations{
            [&] { job.setRoomName(floor, id, someId()); },
            [&] { job.setRoomName(floor, id, someId() + QString::number(number(5))); },
            [&] { job.setRoomPos(floor, id, number(9), number(9), number(9), number(9)); },
            [&] { job.setRoomNamePos(floor, id, QPoint(number(9), number(9))); },
            [&] { job.setRoomLayer(floor, id, number(9)); },
            [&] { job.getRoomById(floor, id); },
            [&] { job.getRoomByTag(tag); },
            [&] { job.removeRoom(floor, tag); },
        };
        operations.at(number(int(operations.size())))();
    }

    void addCable(JobEditor &job)
    {
        const int mode = number(5);
        const QStringList tags = job.getCables(true);
        // Of cables that share a tag the first counts, and so does its id.
        QStringList ids;
        for (const QString &tag : tags)
            ids.append(job.getCableID(tag));
        TestResults results;
        results.setStatus(someId());
        Cable cable(someTag(tags), someId(), someId(), someTag(portsOf(job)), someTag(portsOf(job)), someId(), results,
                    {someId()}, someId(), someId(), someId(), someId());
        const QString id = job.addCable(cable, mode);
        if (job.getCables(true).size() == tags.size())
            return;
        const QString tag = job.getCables(true).constLast();
        QCOMPARE(job.getCables(false).constLast(), id);
        if (mode != 1 && mode != 2)
            QVERIFY2(!ids.contains(id) && QRegularExpression("^Cable[0-9]{3,}$").match(id).hasMatch(), qPrintable(id));
        if (mode == 2 || mode == 3)
            QCOMPARE(tag, cable.tag());
        else
            QVERIFY2(!tags.contains(tag) && tag.startsWith("Cable"), qPrintable(tag));
    }

    static QStringList portsOf(JobEditor &job)
    {
        QStringList ports;
        const QStringList floors = job.getFloorTags();
        for (const QString &floor : floors) {
            const QStringList rooms = job.getRooms(floor, true);
            for (const QString &room : rooms)
                ports += job.getPorts(floor, room, true) + job.getVertRuns(floor, room, true);
        }
        return ports;
    }

    void changeCable(JobEditor &job)
    {
        const QString cable = someTag(job.getCables(true));
        const QString connection = someTag(job.getConnections(true));
        const QVector<std::function<void()>> operations{
            [&] { job.setCableID(cable, someId()); },
            [&] { job.setCableID(cable, QString("Cable%1").arg(number(20), 3, 10, QChar('0'))); },
            [&] { job.setCableType(cable, someId()); },
            [&] { job.setCableUse(cable, someId()); },
            [&] { job.setCableTo(cable, someTag(portsOf(job))); },
            [&] {
                job.setCablePath(cable, {someId(), someId()});
            },
            [&] { job.setCableTestResults(cable, TestResults(QString(), someId(), cable_struct::untested(), 1)); },
            [&] { job.getCableTestResults(cable); },
            [&] { job.removeCable(cable); },
            [&] { job.removeCable(cable); },
            [&] { job.addConnection(connection, someId(), "D1", "D2", "1", number(5)); },
            [&] { job.setConnectionTo(connection, someId()); },
            [&] { job.removeConnection(connection); },
        };
        operations.at(number(int(operations.size())))();
    }

    void changeContents(JobEditor &job)
    {
        const QString definition = number(2) == 0 ? someId() : oneOf(job.getTestDefNames());
        const QString bundle = number(2) == 0 ? someId() : oneOf(job.getBundledCableTypeIds());
        const QVector<std::function<void()>> operations{
            [&] { job.addTestDef(TestDef(definition)); },
            [&] { job.renameTestDef(definition, someId()); },
            [&] { job.removeTestDef(definition); },
            [&] {
                job.addBundledCableType(bundle, {someId(), someId()}, "red", true);
            },
            [&] { job.renameBundledCableType(bundle, someId()); },
            [&] { job.removeBundledCableTypeByTag(job.getBundledCableTypeTagById(bundle)); },
            [&] { job.addRelease(someTag({"plan"}), someId()); },
            [&] { job.removeRelease(someTag({"plan"})); },
            [&] { job.setJobNotesText(someId()); },
        };
        operations.at(number(int(operations.size())))();
    }

    void step(JobEditor &job)
    {
        switch (number(14)) {
        case 0:
            addFloorOrSheet(job);
            break;
        case 1:
        case 2:
        case 3:
            addRoom(job);
            break;
        case 4:
            changeFloorOrSheet(job);
            break;
        case 5:
        case 6:
            addCable(job);
            break;
        case 7:
        case 8:
            changeCable(job);
            break;
        case 9:
            changeContents(job);
            break;
        default:
            changeRoom(job);
        }
    }

private Q_SLOTS:
    void cleanup() { JobEditor::Destroy(); }

    void runs_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void runs()
    {
        QFETCH(unsigned, seed);
        m_random.seed(seed);
        JobEditor &job = JobEditor::Instance();
        const QString name = m_directory.filePath("random.job");
        if (seed % 2 == 0) {
            writeFile(name, testData("site.job"));
            QVERIFY(job.Load(name));
        } else {
            QVERIFY(job.New(name));
        }
        const JobEditorProbe probe(job);
        for (int i = 0; i < stepsOfARun; ++i) {
            const QByteArray before = probe.text();
            job.setDirty(false);
            step(job);
            if (QTest::currentTestFailed())
                return;
            QVERIFY2(probe.indexesMatchTheTree(), qPrintable(QString("after step %1").arg(i)));
            // The flag may be raised for a value that was there before, but never missing.
            QVERIFY(job.fileChanged() || probe.text() == before);
        }
        const QByteArray text = probe.text();
        QVERIFY(job.save());
        QVERIFY2(job.Load(name), qPrintable(job.error()));
        QCOMPARE(probe.text(), text);
        QCOMPARE(readFile(name), text);
        QVERIFY(probe.indexesMatchTheTree());
    }
};

QTEST_APPLESS_MAIN(RandomOperationsTest)
#include "tst_randomoperations.moc"
