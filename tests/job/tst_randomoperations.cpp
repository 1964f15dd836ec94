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
            [&] {
                // Each copy doubles what it copies.
                if (job.getCables(true).size() < 100)
                    job.copyFloor(floor, someTag(job.getFloorTags()), {{"Cable001", someId()}}, number(2) == 0);
            },
            [&] {
                if (textsOf(job).size() + devicesOf(job).size() < 100)
                    job.copySheet(sheet, someTag(job.getSheetTags()));
            },
            [&] { job.estimateCableLengths(true); },
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
        Cable cable(someTag(tags), someId(), someId(), someTag(endsOf(job)), someTag(endsOf(job)), someId(), results,
                    {oneOf(pointsOf(job)), someId()}, someId(), someId(), someId(), someId());
        const QString id = job.addCable(cable, mode);
        if (job.getCables(true).size() == tags.size())
            return;
        const QString tag = job.getCables(true).constLast();
        QCOMPARE(job.getCables(false).constLast(), id);
        if (mode != 1 && mode != 2)
            QVERIFY2(!ids.contains(id)
                         && QRegularExpression('^' + JobEditor::tr("Cable") + "[0-9]{3,}$").match(id).hasMatch(),
                     qPrintable(id));
        if (mode == 2 || mode == 3)
            QCOMPARE(tag, cable.tag());
        else
            QVERIFY2(!tags.contains(tag) && tag.startsWith("Cable"), qPrintable(tag));
    }

    using TagsOn = QStringList (JobEditor::*)(const QString &, bool) const;
    using TagsIn = QStringList (JobEditor::*)(const QString &, const QString &, bool) const;

    /// The tags of everything of a kind, on all floors or sheets.
    static QStringList onAll(const JobEditor &job, const QStringList &parents, TagsOn tagsOn)
    {
        QStringList tags;
        for (const QString &parent : parents)
            tags += (job.*tagsOn)(parent, true);
        return tags;
    }

    static QStringList inAllRooms(const JobEditor &job, TagsIn tagsIn)
    {
        QStringList tags;
        for (const QString &floor : job.getFloorTags()) {
            for (const QString &room : job.getRooms(floor, true))
                tags += (job.*tagsIn)(floor, room, true);
        }
        return tags;
    }

    static QStringList portsOf(JobEditor &job) { return inAllRooms(job, &JobEditor::getPorts); }
    static QStringList vertRunsOf(JobEditor &job) { return inAllRooms(job, &JobEditor::getVertRuns); }
    static QStringList endsOf(JobEditor &job) { return portsOf(job) + vertRunsOf(job); }

    void changeCable(JobEditor &job)
    {
        const QString cable = someTag(job.getCables(true));
        const QString connection = someTag(job.getConnections(true));
        const QVector<std::function<void()>> operations{
            [&] { job.setCableID(cable, someId()); },
            [&] { job.setCableID(cable, QString("Cable%1").arg(number(20), 3, 10, QChar('0'))); },
            [&] { job.setCableType(cable, someId()); },
            [&] { job.setCableUse(cable, someId()); },
            [&] { job.setCableTo(cable, someTag(endsOf(job))); },
            [&] {
                job.setCablePath(cable, {oneOf(pointsOf(job)), oneOf(endsOf(job)), someId()});
            },
            [&] { job.setCableTestResults(cable, TestResults(QString(), someId(), cable_struct::untested(), 1)); },
            [&] { job.getCableTestResults(cable); },
            [&] { job.removeCable(cable); },
            [&] { job.removeCable(cable); },
            [&] { job.addConnection(connection, someId(), oneOf(devicesOf(job)), "", "1", number(5)); },
            [&] { job.setConnectionFrom(connection, oneOf(devicesOf(job))); },
            [&] { job.setConnectionTo(connection, someId()); },
            [&] { job.removeConnection(connection); },
        };
        operations.at(number(int(operations.size())))();
    }

    static QStringList pointsOf(JobEditor &job) { return onAll(job, job.getFloorTags(), &JobEditor::getPoints); }

    static QStringList devicesOf(JobEditor &job)
    {
        const QStringList sheets = job.getSheetTags();
        return onAll(job, sheets, &JobEditor::getDevices) + onAll(job, sheets, &JobEditor::getVertices);
    }

    static QStringList textsOf(JobEditor &job)
    {
        return onAll(job, job.getSheetTags(), &JobEditor::getFreeTexts)
               + onAll(job, job.getFloorTags(), &JobEditor::getFloorFreeTexts);
    }

    void addPlanElement(JobEditor &job)
    {
        const int mode = number(5);
        const QString floor = someTag(job.getFloorTags());
        const QString room = someTag(job.getRooms(floor, true));
        const QString sheet = someTag(job.getSheetTags());
        const QString place = someTag(endsOf(job));
        const QVector<std::function<QString()>> operations{
            [&] { return job.addPort(floor, room, 1, 2, place, someId(), "data", 1, 2, mode); },
            [&] { return job.addPort(floor, room, 1, 2, place, someId(), "data", 1, 2, mode); },
            [&] {
                const QStringList cables = job.getCables(true);
                return job.addVertRun(floor, room, 1, 2, place, someId(), "", 1, 2, {oneOf(cables), oneOf(cables)}, {},
                                      mode);
            },
            [&] { return job.addPoint(floor, 1, 2, someTag(pointsOf(job)), someId(), mode); },
            [&] { return job.addDevice(sheet, "switch", 1, 2, 1, someId(), someTag(devicesOf(job)), someId(), mode); },
            [&] { return job.addVertice(sheet, 1, 2, someTag(devicesOf(job)), someId(), mode); },
            [&] {
                return job.addFreeText(
                    FreeText(someTag(textsOf(job)), someId(), "x", 1, 2, "", 9, true, false, "", sheet), mode);
            },
            [&] {
                return job.addFloorFreeText(
                    FreeText(someTag(textsOf(job)), someId(), "x", 1, 2, "", 9, true, false, "", floor), mode);
            },
            [&] {
                const ActiveTestResult result("noon", "PASS", 100, "full", someId(), {{someId(), someId()}});
                const QString tag = job.addActivePort(
                    ActivePort(someTag(job.getActivePorts(true)), someId(), oneOf(portsOf(job)), {result, result}),
                    mode);
                const bool isThere = job.activePortTestResultExists(tag, "noon");
                return isThere ? tag : QString();
            },
        };
        const QString tag = operations.at(number(int(operations.size())))();
        if (!tag.isEmpty() && mode != 2 && mode != 3)
            QVERIFY2(tag.at(tag.size() - 1).isDigit(), qPrintable(tag));
    }

    void changePlanElement(JobEditor &job)
    {
        const QString port = someTag(number(2) == 0 ? portsOf(job) : vertRunsOf(job));
        const QString point = someTag(pointsOf(job));
        const QString device = someTag(devicesOf(job));
        const QString text = someTag(textsOf(job));
        const QString activePort = someTag(job.getActivePorts(true));
        const QString cable = someTag(job.getCables(true));
        const QString floor = someTag(job.getFloorTags());
        const QString room = someTag(job.getRooms(floor, true));
        const QVector<std::function<void()>> operations{
            [&] { job.setPortID(port, someId()); },
            [&] { job.setPortPos(port, number(9), number(9) / 7.0); },
            [&] { job.setPortRoom(port, floor, room); },
            [&] { job.setPortRoom(port, floor, room); },
            [&] { job.removePort(port); },
            [&] { job.setVertRunID(port, someId()); },
            [&] { job.setVertRunRoom(port, floor, room); },
            [&] { job.connectCableToVertRun(cable, port); },
            [&] { job.connectCableToVertRun(cable, port); },
            [&] { job.disconnectCableFromVertRun(cable, port); },
            [&] { job.removeCableFromVertRun(cable, port); },
            [&] { job.removeVertRun(port); },
            [&] { job.setPointID(point, someId()); },
            [&] { job.removePoint(point); },
            [&] { job.setDeviceID(device, someId()); },
            [&] { job.setVerticeID(device, someId()); },
            [&] { job.removeDevice(device); },
            [&] { job.removeVertice(device); },
            [&] { job.setFreeTextID(text, someId()); },
            [&] { job.removeFreeText(text); },
            [&] { job.setFloorFreeTextText(text, someId()); },
            [&] { job.removeFloorFreeText(text); },
            [&] { job.setActivePortPort(activePort, oneOf(portsOf(job))); },
            [&] { job.removeActiveTestResult(activePort, "noon"); },
            [&] { job.removeActivePort(activePort); },
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

    /// Without the references that led nowhere when they were made: to names that no element gets by itself.
    static QStringList generatedOnly(const QStringList &references)
    {
        return references.filter(QRegularExpression(": (Port|VertRun|Point|Device|Vertice|Cable)[0-9]+$"));
    }

    void step(JobEditor &job)
    {
        using Test = RandomOperationsTest;
        // With how many chances of twenty
        static const QVector<std::pair<int, void (Test::*)(JobEditor &)>> steps{
            {1, &Test::addFloorOrSheet}, {3, &Test::addRoom},           {1, &Test::changeFloorOrSheet},
            {2, &Test::addCable},        {2, &Test::changeCable},       {1, &Test::changeContents},
            {4, &Test::addPlanElement},  {3, &Test::changePlanElement}, {3, &Test::changeRoom},
        };
        int chance = number(20);
        auto step = steps.begin();
        for (; chance >= step->first; ++step)
            chance -= step->first;
        (this->*step->second)(job);
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
            const QStringList dangling = generatedOnly(probe.danglingReferences());
            QVERIFY2(dangling.isEmpty(), qPrintable(QString("%1 after step %2").arg(dangling.join(' ')).arg(i)));
        }
        const QByteArray text = probe.text();
        QVERIFY(job.save());
        QVERIFY2(job.Load(name), qPrintable(job.error()));
        QCOMPARE(probe.text(), text);
        QCOMPARE(readFile(name), text);
        QVERIFY(probe.indexesMatchTheTree());
    }
};

QTEST_GUILESS_MAIN(RandomOperationsTest)
#include "tst_randomoperations.moc"
