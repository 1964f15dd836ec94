#include "bkteditor.h"
#include "documentvalues.h"
#include "elementname.h"
#include "elementtable.h"
#include "jobeditorprobe.h"
#include "jobsnapshot.h"
#include "tableplan.h"
#include "testcases.h"

#include <QtCore/QTemporaryDir>

#include <functional>
#include <random>

using namespace cabledoc;

namespace {

QStringList placesOf(const QVector<CsvProblem> &problems)
{
    QStringList places;
    for (const CsvProblem &problem : problems)
        places.append(QString("%1:%2").arg(problem.row).arg(problem.column));
    return places;
}

} // namespace

Q_DECLARE_METATYPE(cabledoc::TableUnit)

/// Tests tables and single values in open documents. The sessions of the program test the same with files.
class TablesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    int m_jobs = 0;

    JobEditor &openJob(const QByteArray &content = QByteArray())
    {
        JobEditor::Destroy();
        JobEditor &job = JobEditor::Instance();
        const QString name = m_directory.filePath(QString("%1.job").arg(++m_jobs));
        if (!content.isEmpty())
            writeFile(name, content);
        if (!(content.isEmpty() ? job.New(name) : job.Load(name)))
            qFatal("no job: %s", qPrintable(job.error()));
        return job;
    }

    /// Opens a job without floors and sheets.
    JobEditor &openEmptyJob()
    {
        JobEditor &job = openJob();
        job.removeFloor(job.getFloorTags().constFirst());
        job.removeSheet(job.getSheetTags().constFirst());
        return job;
    }

    /// Imports a table, and returns the number of changes, or the places of the problems.
    static QString import(JobEditor &job, TableKind kind, const QByteArray &table)
    {
        const TablePlan plan(JobSnapshot(job), kind, table);
        plan.applyTo(job);
        return plan.problems().isEmpty() ? QString::number(plan.changes().size()) : placesOf(plan.problems()).join(' ');
    }

    static QByteArray exported(const JobEditor &job, TableKind kind, const TableExportOptions &options = {})
    {
        return exportTable(JobSnapshot(job), kind, options).text;
    }

private Q_SLOTS:
    void cleanup()
    {
        JobEditor::Destroy();
        BktEditor::Destroy();
    }

    void roundTrips_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<TableUnit>("unit");
        QTest::addColumn<bool>("tags");
        for (const char *name : {"site.job", "trace.job", "lengths.job", "migration/job-1.1.job"})
            QTest::addRow("%s", name) << testData(name) << TableUnit::Pixels << false;
        QTest::newRow("with tags") << testData("trace.job") << TableUnit::Pixels << true;
        QTest::newRow("in feet") << testData("trace.job") << TableUnit::Feet << false;
        QTest::newRow("in metres") << testData("trace.job") << TableUnit::Metres << false;
    }

    /// The tables of a job make the same tables again. With tags, they make the same elements.
    void roundTrips()
    {
        QFETCH(QByteArray, file);
        QFETCH(TableUnit, unit);
        QFETCH(bool, tags);
        TableExportOptions options;
        options.unit = unit;
        options.tags = tags;
        JobEditor &job = openJob(file);
        QCOMPARE(setValue(job, "scale.network-view", "10 ft"), QString());
        const JobSnapshot original(job);
        QMap<TableKind, QByteArray> tables;
        for (const TableKind kind : tableKinds()) {
            const TableExport table = exportTable(original, kind, options);
            QCOMPARE(table.error, QString());
            tables.insert(kind, table.text);
        }
        JobEditor &copy = openEmptyJob();
        for (const char *entry : {"FloorPlan_Settings", "NetView_Settings"})
            copy.setScaleSettings(ScaleSettings(original.scaleSettings().value(entry)), entry);
        for (const TableKind kind : tableKinds()) {
            const QString places = import(copy, kind, tables.value(kind));
            QVERIFY2(!places.contains(':'), qPrintable(tableName(kind) + ' ' + places));
            QVERIFY(JobEditorProbe(copy).indexesMatchTheTree());
            QCOMPARE(import(copy, kind, tables.value(kind)), QString("0"));
        }
        for (const TableKind kind : tableKinds())
            COMPARE_TEXTS(QString(exported(copy, kind, options)), QString(tables.value(kind)), tableName(kind));
        QVERIFY(JobEditorProbe(copy).danglingReferences().isEmpty());
    }

    void namesInTables()
    {
        const QStringList parts{"A/B", "", "; \\"};
        QCOMPARE(nameText(parts), QString("A\\/B//\\; \\\\"));
        QCOMPARE(partsOfName(nameText(parts)), parts);
        const QStringList names{nameText(parts), "", " x"};
        QCOMPARE(namesIn(nameListText(names)), names);
        QCOMPARE(namesIn(""), QStringList());
    }

    /// Elements whose names are not unique are left out, unless their tags are in the table.
    void elementsWithoutNames()
    {
        JobEditor &job = openJob();
        const QString floor = job.getFloorTags().constFirst();
        for (const char *id : {"1", "1", ""})
            job.addPort(floor, "Undefined", 0, 0, "", id, "", 1, 0, 1);
        job.addVertRun(floor, "Undefined", 0, 0, "", "1", "", 1, 0, {}, {}, 1);
        job.addFloor("", job.getFloorIdByTag(floor), 8, "", 1);
        QCOMPARE(exportTable(JobSnapshot(job), TableKind::Ports).leftOut, 2);
        QCOMPARE(exportTable(JobSnapshot(job), TableKind::VerticalRuns).leftOut, 1);
        QCOMPARE(exportTable(JobSnapshot(job), TableKind::Floors).leftOut, 1);
        TableExportOptions withTags;
        withTags.tags = true;
        const TableExport all = exportTable(JobSnapshot(job), TableKind::Ports, withTags);
        QCOMPARE(all.leftOut, 0);
        QCOMPARE(int(all.text.count('\n')), 4);
        // A tag gives the second of them a name of its own.
        QCOMPARE(import(job, TableKind::Ports, "tag,id\nPort2,2\nPort3,3\n"), QString("2"));
        QCOMPARE(exportTable(JobSnapshot(job), TableKind::Ports).leftOut, 0);
    }

    void tagsOfNewElements()
    {
        JobEditor &job = openJob();
        const QByteArray floor = job.getFloorIds().constFirst().toUtf8();
        QCOMPARE(import(job, TableKind::Points, "tag,floor,id\nMine," + floor + ",P\n"), QString("1"));
        QVERIFY(job.pointExists("Mine", true));
        QCOMPARE(import(job, TableKind::Ports, "tag,floor,room,id\nMine," + floor + ",,1\n"), QString("2:1"));
        QCOMPARE(import(job, TableKind::Points, "tag,floor,id\nTwo," + floor + ",A\nTwo," + floor + ",B\n"),
                 QString("3:1"));
        QCOMPARE(import(job, TableKind::Ports, "tag,floor,room,id\n1x," + floor + ",,1\n"), QString("2:1"));
        QCOMPARE(import(job, TableKind::Ports, "tag,floor,room,id,action\nNew," + floor + ",,1,change\n"),
                 QString("2:4"));
    }

    /// A room can have the tag of a room on another floor.
    void tagsOfRooms()
    {
        JobEditor &job = openJob(testData("site.job"));
        QVERIFY(JobSnapshot(job).hasRepeatedTags(ElementKind::Ports));
        QVERIFY(!JobSnapshot(job).hasRepeatedTags(ElementKind::Cables));
        QCOMPARE(job.getRooms("FFloor_1", true), QStringList({"Undefined", "Room1"}));
        QCOMPARE(import(job, TableKind::Rooms, "tag,floor,id\nRoom1,Upper,Attic\nRoom1,Ground,Hall\n"), QString("2"));
        QCOMPARE(job.getRooms("FFloor_1", false), QStringList({"Undefined", "Hall"}));
        QVERIFY(job.getRooms("FFloor_2", false).contains("Attic"));
    }

    /// A cable can be in either list of a vertical run, and other cables of the lists stay there.
    void verticalRunsOfCables()
    {
        JobEditor &job = openJob(testData("trace.job"));
        const QStringList runs = job.getVertRuns("FFloor_1", "Room1", true);
        QVERIFY(!runs.isEmpty());
        const QString &run = runs.constFirst();
        const QStringList before = job.getVertRunConnected(run);
        const QString cable = job.addCable("", "New", 1);
        const ElementTable table(JobSnapshot(job), TableKind::VerticalRuns);
        const QByteArray name = table.name(0).toUtf8();
        QCOMPARE(import(job, TableKind::Cables, "id,connected\nNew," + name + "\n"), QString("1"));
        const QString tag = job.getCableById("New").tag();
        QCOMPARE(job.getVertRunConnected(run), before + QStringList(tag));
        QCOMPARE(import(job, TableKind::Cables, "id,connected,disconnected\nNew,," + name + "\n"), QString("1"));
        QCOMPARE(job.getVertRunConnected(run), before);
        QVERIFY(job.getVertRunDisconnected(run).contains(tag));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    /// Test definitions are found by their names, so names that are exchanged must not meet.
    void exchangedDefinitions()
    {
        BktEditor &bkt = BktEditor::Instance();
        QVERIFY(bkt.New(m_directory.filePath("shop.bkt")));
        const auto importInto = [&bkt](TableKind kind, const QByteArray &table) {
            const TablePlan plan(JobSnapshot(bkt), kind, table);
            plan.applyTo(bkt);
            return plan.problems().isEmpty() ? QString::number(plan.changes().size())
                                             : placesOf(plan.problems()).join(' ');
        };
        QCOMPARE(importInto(TableKind::TestDefinitions, "id,comment\nA,first\nB,second\nC,third\n"), QString("3"));
        QCOMPARE(importInto(TableKind::Bundles, "id,types\nDuo,A; B; A\n"), QString("1"));
        QCOMPARE(
            importInto(TableKind::TestDefinitions, "action,id,new_id\nrename,A,B\nrename,B,A\nremove,C,\nadd,D,\n"),
            QString("4"));
        QCOMPARE(bkt.getTestDef("A").comment(), QString("second"));
        QCOMPARE(bkt.getTestDef("B").comment(), QString("first"));
        QCOMPARE(bkt.getTestDefNames(), QStringList({"B", "A", "D"}));
        QCOMPARE(bkt.getBundledCableType("Duo").types(), QStringList({"B", "A", "B"}));
        QCOMPARE(importInto(TableKind::Bundles, "id,types\nDuo,A; A; A; A; A; A; A; A; A\n"), QString("2:2"));
        QCOMPARE(importInto(TableKind::Bundles, "action,id,new_id\nrename,Duo,Trio\n"), QString("1"));
        QCOMPARE(bkt.getBundledCableTypeIds(), QStringList("Trio"));
    }

    /// New rooms and ports without a position are put where there is space.
    void placesOfNewElements()
    {
        JobEditor &job = openJob();
        const QString floor = job.getFloorTags().constFirst();
        const QByteArray name = job.getFloorIdByTag(floor).toUtf8();
        job.addRoom(floor, 0, 0, 900, 900, "", "Old", 0, 0, 3, 3, 3, 1);
        QByteArray rooms = "floor,id,width\n";
        QByteArray ports = "floor,room,id,x\n" + name + ",Old,here,7\n";
        for (int i = 0; i < 8; ++i) {
            rooms += name + ",Room " + QByteArray::number(i) + (i == 3 ? ",500\n" : ",\n");
            ports += name + ",Room 3,port " + QByteArray::number(i) + ",\n";
        }
        QCOMPARE(import(job, TableKind::Rooms, rooms), QString("8"));
        QVector<QRectF> areas;
        for (const QString &tag : job.getRooms(floor, true)) {
            const Room room = job.getRoomByTag(floor, tag);
            const QRectF area(room.x(), room.y(), room.width(), room.height());
            for (const QRectF &other : std::as_const(areas))
                QVERIFY2(tag == "Undefined" || room.id() == "Room 3" || !area.intersects(other), qPrintable(room.id()));
            if (tag != "Undefined" && room.id() != "Room 3")
                areas.append(area);
        }
        QCOMPARE(areas.size(), 8);
        QCOMPARE(job.getRoomById(floor, "Room 3").width(), 500.0);
        QCOMPARE(import(job, TableKind::Ports, ports), QString("9"));
        QCOMPARE(job.getPortPos(job.getPortTagById("here")).x(), 7.0);
        const Room room = job.getRoomById(floor, "Room 3");
        const QRectF area(room.x(), room.y(), room.width(), room.height());
        QVector<QPointF> places;
        for (const QString &port : job.getPorts(floor, room.element(), true)) {
            QVERIFY(area.contains(job.getPortPos(port)) && !places.contains(job.getPortPos(port)));
            places.append(job.getPortPos(port));
        }
        QCOMPARE(places.size(), 8);
    }

    void movesKeepWhatBelongsToAnElement()
    {
        JobEditor &job = openJob(testData("trace.job"));
        const QStringList dangling = JobEditorProbe(job).danglingReferences();
        const QString sheet = job.getSheetIdByTag("SSheet_1");
        const QString device = job.getDevices("SSheet_1", true).constFirst();
        const QStringList connections = job.getConnections(true);
        job.addSheet("", "Other", 1);
        QCOMPARE(import(job, TableKind::Devices,
                        ("action,sheet,id,new_sheet,type\nmove," + sheet + "," + job.getDeviceIdByTag(device)
                         + ",Other,router\n")
                            .toUtf8()),
                 QString("1"));
        QCOMPARE(job.getSheetIdByTag(job.getDeviceSheet(device)), QString("Other"));
        QCOMPARE(job.getDeviceType(device), QString("router"));
        QCOMPARE(job.getConnections(true), connections);

        const QString port = job.getPortTagById("Speaker");
        const QStringList cables = job.getCablesByPort(port);
        QVERIFY(!cables.isEmpty());
        const QByteArray move = "action,floor,room,id,new_floor,new_room,new_id\n"
                                "move,Upper,Office,Speaker,Ground,Undefined,Horn\n";
        QCOMPARE(import(job, TableKind::Ports, move), QString("1"));
        QCOMPARE(job.getPortFloor(port) + '/' + job.getPortRoom(port), QString("FFloor_1/Undefined"));
        QCOMPARE(job.getPortIdByTag(port), QString("Horn"));
        QCOMPARE(job.getCablesByPort(port), cables);
        QCOMPARE(import(job, TableKind::Ports, move), QString("0"));
        QCOMPARE(import(job, TableKind::Rooms, "action,floor,id,new_floor\nmove,Upper,Office,Ground\n"),
                 QString("1:4"));

        // The ports of a removed room stay on the floor.
        const QStringList inRoom = job.getPorts("FFloor_2", "Room2", true);
        QVERIFY(!inRoom.isEmpty());
        QCOMPARE(import(job, TableKind::Rooms, "action,floor,id\nremove,Upper,Office\n"), QString("1"));
        const QStringList onFloor = job.getPorts("FFloor_2", "Undefined", true);
        for (const QString &moved : inRoom)
            QVERIFY2(onFloor.contains(moved), qPrintable(moved));
        QCOMPARE(JobEditorProbe(job).danglingReferences(), dangling);
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
    }

    void changesInWords()
    {
        JobEditor &job = openJob(testData("site.job"));
        const TablePlan plan(JobSnapshot(job), TableKind::Cables,
                             "action;id;use;bundle_number;new_id\r\n;Cable001;voice;3;\r\nremove;Cable002;;;\r\n"
                             "rename;Cable003;;;C3\r\n;New;;;\r\n");
        QCOMPARE(plan.changes().size(), 4);
        const QVector<TableAction> actions{TableAction::Change, TableAction::Remove, TableAction::Rename,
                                           TableAction::Add};
        const QVector<QStringList> words{{"\"Cable001\"", "use \"data\" -> \"voice\"", "bundle_number"},
                                         {"\"Cable002\""},
                                         {"\"Cable003\"", "\"C3\""},
                                         {"\"New\""}};
        for (int number = 0; number < actions.size(); ++number) {
            const TableChange &change = plan.changes().at(number);
            QCOMPARE(change.row, number + 2);
            QCOMPARE(change.action, actions.at(number));
            for (const QString &word : words.at(number))
                QVERIFY2(plan.changeText(number).contains(word), qPrintable(plan.changeText(number)));
        }
        // A removal says how many cables go with the element.
        const TablePlan floors(JobSnapshot(job), TableKind::Floors, "action,id\nremove,Ground\n");
        const auto cables = job.getCables(true).size();
        floors.applyTo(job);
        const QString gone = QString::number(cables - job.getCables(true).size());
        QVERIFY2(floors.changeText(0).endsWith(gone), qPrintable(floors.changeText(0)));
        BktEditor &bkt = BktEditor::Instance();
        QVERIFY(bkt.New(m_directory.filePath("shop.bkt")));
        floors.applyTo(bkt);
        QVERIFY(!bkt.fileChanged());
    }

    /// The texts of a table are those that the operations of the job return.
    void textsOfTables()
    {
        JobEditor &job = openJob(testData("trace.job"));
        job.setPortUse(job.getPortTagById("Speaker"), "audio");
        const JobSnapshot snapshot(job);
        const ElementTable ports(snapshot, TableKind::Ports);
        const int tagColumn = ports.columnOf("tag");
        QCOMPARE(tagColumn, 0);
        for (int row = 0; row < ports.rowCount(); ++row) {
            const Port port = job.getPortByTag(ports.text(row, tagColumn));
            const auto text = [&](const char *column) { return ports.text(row, ports.columnOf(column)); };
            QCOMPARE(text("id"), port.id());
            QCOMPARE(text("use"), port.use());
            QCOMPARE(text("floor"), job.getFloorIdByTag(port.floor()));
            const Room room = job.getRoomByTag(port.floor(), port.room());
            QCOMPARE(text("room"), room.element() == "Undefined" ? QString() : room.id());
            QCOMPARE(text("x").toDouble(), port.x());
            QCOMPARE(text("drop_height").toDouble(), port.dropHeight());
            QCOMPARE(text("cables").toInt(), int(job.getCablesByPort(port.element()).size()));
            QCOMPARE(ports.name(row), nameText({text("floor"), text("room"), text("id")}));
            QCOMPARE(snapshot.ports().at(ports.positionOf(row)).element, port.element());
        }
        const ElementTable cables(snapshot, TableKind::Cables, TableUnit::Metres);
        for (int row = 0; row < cables.rowCount(); ++row) {
            const QString tag = cables.text(row, 0);
            const double estimate = job.estimateCableLength(tag, true);
            const QString shown = cables.text(row, cables.columnOf("estimated_length_m"));
            QVERIFY2(estimate < 0 ? shown.isEmpty() : qAbs(shown.toDouble() - estimate) < 0.001, qPrintable(tag));
            QCOMPARE(cables.text(row, cables.columnOf("status")), job.getCableStatus(tag));
        }
        QCOMPARE(cables.columnOf("x"), -1);
        for (const TableKind kind : tableKinds()) {
            const ElementTable table(snapshot, kind);
            for (const ElementTable::Column &column : table.columns())
                QVERIFY(!column.name.isEmpty() && !(column.isNumber && column.isSearchable));
            QVERIFY2(table.columnOf("id") >= 0, qPrintable(tableName(kind)));
        }
        QVERIFY(!tableOfName("chairs"));
    }

    /// Tables in which random fields were exchanged are refused, or change the job once.
    void randomTables()
    {
        std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same tables in each run
        const auto number = [&random](int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); };
        int imported = 0;
        constexpr int runs = 150;
        for (int run = 0; run < runs; ++run) {
            JobEditor &job = openJob(testData("trace.job"));
            const TableKind kind = tableKinds().at(number(int(tableKinds().size())));
            TableExportOptions options;
            options.tags = number(2) == 0;
            QList<QByteArray> lines = exported(job, kind, options).trimmed().split('\n');
            if (lines.size() < 2)
                continue;
            for (int change = number(2); change < 2; ++change) {
                QByteArray &line = lines[1 + number(int(lines.size()) - 1)];
                QList<QByteArray> fields = line.split(',');
                const QList<QByteArray> others = lines.at(number(int(lines.size()))).split(',');
                fields[number(int(fields.size()))] = others.at(number(int(others.size())));
                line = fields.join(',');
            }
            const QByteArray table = lines.join('\n');
            const QByteArray before = JobEditorProbe(job).text();
            const TablePlan plan(JobSnapshot(job), kind, table);
            plan.applyTo(job);
            QVERIFY2(JobEditorProbe(job).indexesMatchTheTree(), table.constData());
            QVERIFY2((JobEditorProbe(job).text() == before) == plan.changes().isEmpty(), table.constData());
            if (!plan.problems().isEmpty() || !plan.error().isEmpty())
                continue;
            ++imported;
            QVERIFY2(TablePlan(JobSnapshot(job), kind, table).changes().isEmpty(), table.constData());
        }
        QVERIFY2(imported > runs / 10 && imported < runs, qPrintable(QString::number(imported)));
    }

    void problems_data() { addCases({"cases/table-problems.txt"}); }

    /// A case is the kind of a table, and the table. It expects the places of the problems. The other rows would change
    /// the job.
    void problems()
    {
        QFETCH(TestCase, testCase);
        JobEditor &job = openJob(testData("trace.job"));
        const QByteArray before = JobEditorProbe(job).text();
        const auto endOfKind = testCase.given.indexOf('\n');
        const std::optional<TableKind> kind = tableOfName(testCase.given.left(endOfKind));
        const TablePlan plan(JobSnapshot(job), *kind, testCase.given.mid(endOfKind + 1));
        QCOMPARE(placesOf(plan.problems()).join(' '), testCase.expectedText());
        for (const CsvProblem &problem : plan.problems())
            QVERIFY(!problem.message.isEmpty());
        QVERIFY(plan.changes().isEmpty());
        plan.applyTo(job);
        QCOMPARE(JobEditorProbe(job).text(), before);
        QVERIFY(!job.fileChanged());
    }

    /// The tables of a changed job make the same changes in a job that is as it was before.
    void tablesCarryChanges()
    {
        std::mt19937 random(5); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same changes in each run
        const auto number = [&random](int below) { return int(random() % unsigned(below)); };
        const auto one = [&number](const QStringList &names) { return names.at(number(int(names.size()))); };
        const QStringList ends{"P1", "P5", "P7", "P11", "V1", "V2", ""};
        const QStringList words{"data", "voice", "CAT6", "CAT5E", "Duo", "Ann's \"desk\"", "1,5", ""};
        const std::function<void(JobEditor &)> changes[] = {
            [&](JobEditor &job) { job.setCableFrom(one(job.getCables(true)), one(ends)); },
            [&](JobEditor &job) { job.setCableTo(one(job.getCables(true)), one(ends)); },
            [&](JobEditor &job) {
                job.setCablePath(one(job.getCables(true)), {one({"Point1", "V1", "P4"}), "V2"});
            },
            [&](JobEditor &job) { job.setCableType(one(job.getCables(true)), one(words)); },
            [&](JobEditor &job) { job.setCableUse(one(job.getCables(true)), one(words)); },
            [&](JobEditor &job) { job.setCableBundleName(one(job.getCables(true)), one(words)); },
            [&](JobEditor &job) { job.setCableBundleNum(one(job.getCables(true)), one(words)); },
            [&](JobEditor &job) { job.setCableColor(one(job.getCables(true)), "#12345" + QString::number(number(9))); },
            [&](JobEditor &job) { job.setCableID(one(job.getCables(true)), "Renamed " + QString::number(number(99))); },
            [&](JobEditor &job) {
                job.setConnectionTo(one(job.getConnections(true)), one({"Device1", "Vertice2", ""}));
            },
            [&](JobEditor &job) {
                job.setConnectionFrom(one(job.getConnections(true)), one({"Device2", "Vertice1"}));
            },
            [&](JobEditor &job) { job.setPortPos(one(ends.mid(0, 4)), number(900), number(900) / 8.0); },
            [&](JobEditor &job) { job.setPortUse(one(ends.mid(0, 4)), one(words)); },
            [&](JobEditor &job) { job.setPortDropHeight(one(ends.mid(0, 4)), number(90) / 8.0); },
            [&](JobEditor &job) {
                job.setVertRunConnected("V1", {one(job.getCables(true)), "Cable3"});
            },
            [&](JobEditor &job) { job.setFloorCeilingHeight("FFloor_1", 5 + number(9) / 4.0); },
            [&](JobEditor &job) { job.setRoomPos("FFloor_2", "Room2", number(99), number(99), 10 + number(9), 20); },
            [&](JobEditor &job) { job.setDeviceType("Device1", one(words)); },
            [&](JobEditor &job) { job.setDeviceInfo("Device2", one(words)); },
        };
        TableExportOptions options;
        options.tags = true;
        for (int round = 0; round < 25; ++round) {
            JobEditor &job = openJob(testData("trace.job"));
            for (int change = 1 + number(6); change > 0; --change)
                changes[number(int(std::size(changes)))](job);
            QMap<TableKind, QByteArray> tables;
            for (const TableKind kind : tableKinds())
                tables.insert(kind, exported(job, kind, options));
            JobEditor &copy = openJob(testData("trace.job"));
            for (const TableKind kind : tableKinds()) {
                const bool isEqual = exported(copy, kind, options) == tables.value(kind);
                const QString changed = import(copy, kind, tables.value(kind));
                QVERIFY2(changed == "0" ? isEqual : !isEqual && !changed.contains(':'), qPrintable(changed));
            }
            for (const TableKind kind : tableKinds())
                COMPARE_TEXTS(QString(exported(copy, kind, options)), QString(tables.value(kind)), tableName(kind));
            QVERIFY(JobEditorProbe(copy).indexesMatchTheTree());
        }
    }

    void releases()
    {
        JobEditor &job = openJob();
        QCOMPARE(import(job, TableKind::Releases, "id,value\nOne,1\nTwo,2\n"), QString("2"));
        QCOMPARE(import(job, TableKind::Releases, "action,id,new_id\nrename,One,Two\nrename,Two,Three\n"),
                 QString("2"));
        QCOMPARE(job.getRelease("Two") + job.getRelease("Three") + job.getRelease("One"), QString("12"));
        QCOMPARE(import(job, TableKind::Releases, "action,id\nremove,Two\nremove,Two\n"), QString("3:2"));
        QCOMPARE(import(job, TableKind::Releases, "id,value\nNot a name,1\n"), QString("2:1"));
        QCOMPARE(import(job, TableKind::Releases, "action,id,new_id\nrename,Three,Not a name\n"), QString("2:2"));
        QByteArray many = "id\n";
        for (int i = 0; i < 4096; ++i)
            many += 'R' + QByteArray::number(i) + '\n';
        QVERIFY(import(job, TableKind::Releases, many).endsWith("4097:1"));
    }

    void values()
    {
        JobEditor &job = openJob();
        job.setFloorId(job.getFloorTags().constFirst(), "A.picture");
        QVector<DocumentValue> before = valuesOfJob(JobSnapshot(job));
        // All settings have values.
        const auto count = [&before](const char *end) {
            return std::count_if(before.cbegin(), before.cend(),
                                 [end](const DocumentValue &value) { return value.name.endsWith(QString(end)); });
        };
        QCOMPARE(int(count(".print_zoom")), int(JobSnapshot(job).printSettings().size()));
        QCOMPARE(int(count(".page_units")), int(JobSnapshot(job).pageSettings().size()));
        // Each value can be set to the text that it has.
        for (const DocumentValue &value : std::as_const(before))
            QVERIFY2(setValue(job, value.name, value.text).isEmpty(), qPrintable(value.name));
        QCOMPARE(setValue(job, "floor.A.picture.picture", "plan.png"), QString());
        QCOMPARE(job.getFloorBackgroundPic(job.getFloorTags().constFirst()), QString("plan.png"));
        QCOMPARE(setValue(job, "scale.floor-plan", "1 : 50"), QString());
        QVERIFY(job.getScaleSettings("FloorPlan_Settings").isMetric());
        QCOMPARE(job.getScaleSettings("FloorPlan_Settings").scale(), 50);
        QCOMPARE(setValue(job, "page.floor-plan", "17x11"), QString());
        QCOMPARE(job.getPageSettings("FloorPlan_Settings").customWidth(), 17.0);
        QCOMPARE(setValue(job, "print.inventory.orientation", "landscape"), QString());
        QCOMPARE(job.getPrintSettings("Inventory_Settings").orientation(), 1);
        for (const char *name :
             {"scale.floor-plan", "page.floor-plan", "print.inventory.orientation", "print.inventory.paper_size",
              "floor.A.picture.picture_x", "floor.B.picture", "contractor", "site.address", "page.inventory", ""})
            QVERIFY2(!setValue(job, name, "nonsense").isEmpty(), name);
        BktEditor &bkt = BktEditor::Instance();
        QVERIFY(bkt.New(m_directory.filePath("shop.bkt")));
        QCOMPARE(setValue(bkt, "contractor.address.city", "Town"), QString());
        QCOMPARE(bkt.getContractorAddress().city(), QString("Town"));
        QVERIFY(!setValue(bkt, "site.company", "X").isEmpty());
        QCOMPARE(valuesOfTemplate(JobSnapshot(bkt)).constFirst().name, QString("contractor.tester"));
    }

    /// Setting a value changes nothing else. A text that is refused changes no value.
    void eachValueIsSetAlone()
    {
        const QStringList texts{"Other",
                                "7",
                                "portrait",
                                "landscape",
                                "a5",
                                "tabloid",
                                "1:250",
                                QString(400, '9') + " x 1",
                                QString("a") + QChar(1)};
        JobEditor &job = openJob(testData("trace.job"));
        QVector<DocumentValue> before = valuesOfJob(JobSnapshot(job));
        QVERIFY(before.size() > 100);
        for (const DocumentValue &value : QVector<DocumentValue>(before)) {
            int changes = 0;
            for (const QString &text : texts) {
                job.setDirty(false);
                const bool isSet = setValue(job, value.name, text).isEmpty();
                if (!isSet && !job.fileChanged())
                    continue;
                const QVector<DocumentValue> after = valuesOfJob(JobSnapshot(job));
                QCOMPARE(after.size(), before.size());
                for (int i = 0; i < after.size(); ++i) {
                    const QString change = value.name + '=' + text + " changes " + after.at(i).name;
                    // A page and a scale have parts with values of their own.
                    const bool isPart = after.at(i).name.section('.', 0, 1) == value.name.section('.', 0, 1)
                                        && QRegularExpression("^(page|scale)\\.").match(value.name).hasMatch();
                    const bool isEqual = after.at(i).text == before.at(i).text;
                    QVERIFY2(isEqual || (isSet && (isPart || after.at(i).name == value.name)), qPrintable(change));
                    QVERIFY2(!after.at(i).text.contains("inf"), qPrintable(change));
                    changes += isEqual ? 0 : 1;
                }
                before = after;
            }
            QVERIFY2(changes > 0, qPrintable(value.name));
        }
    }

    /// A job that lacks its lists, as other programs may write it, gets them.
    void jobsWithoutLists()
    {
        JobEditor &job = openJob("<Job><Version number=\"3.0\"/></Job>");
        QCOMPARE(import(job, TableKind::Floors, "id\nGround\n"), QString("1"));
        job.getToRoomList(job.getFloorTags().constFirst())
            .parentNode()
            .toElement()
            .removeChild(job.getToRoomList(job.getFloorTags().constFirst()));
        job.updateAllInternalLists();
        QCOMPARE(import(job, TableKind::Ports, "floor,room,id\nGround,,1\n"), QString("1"));
        QCOMPARE(import(job, TableKind::Cables, "id,from_floor,from_room,from_port\nA,Ground,,1\n"), QString("1"));
        QCOMPARE(import(job, TableKind::TestDefinitions, "id\nCAT6\n"), QString("1"));
        QCOMPARE(import(job, TableKind::ActivePorts, "id,floor,room,port\nL,Ground,,1\n"), QString("1"));
        QCOMPARE(import(job, TableKind::Releases, "id,value\nOne,1\n"), QString("1"));
        QCOMPARE(job.getRelease("One"), QString("1"));
        QCOMPARE(import(job, TableKind::Bundles, "id,types\nDuo,CAT6\n"), QString("1"));
        QCOMPARE(import(job, TableKind::Sheets, "id\nNet\n"), QString("1"));
        QCOMPARE(import(job, TableKind::Devices, "sheet,id\nNet,Core\nNet,Edge\n"), QString("2"));
        QCOMPARE(import(job, TableKind::Connections, "id,from_sheet,from\nUp,Net,Core\n"), QString("1"));
        QCOMPARE(import(job, TableKind::VerticalRuns, "floor,room,id\nGround,,Shaft\n"), QString("1"));
        QCOMPARE(import(job, TableKind::FloorTexts, "floor,id,text\nGround,T,x\n"), QString("1"));
        QCOMPARE(job.getBundledCableTypeIds() + job.getConnections(false), QStringList({"Duo", "Up"}));
        QVERIFY(JobEditorProbe(job).indexesMatchTheTree());
        QCOMPARE(job.getCablesByPort(job.getPortTagById("1")).size(), 1);
    }
};

QTEST_GUILESS_MAIN(TablesTest)
#include "tst_tables.moc"
