#include "overviewcontent.h"

#include "cableorder.h"
#include "cabletotals.h"
#include "vocabulary.h"

#include <QtCore/QMap>

namespace cabledoc {

namespace {

ReportColumn textColumn(const QString &heading)
{
    return {heading, ReportColumn::Text};
}

ReportColumn numberColumn(const QString &heading)
{
    return {heading, ReportColumn::Number};
}

/// Returns a length, or a dash if no cable has one.
QString sumText(int count, double length, bool metric)
{
    if (count == 0)
        return QString(QChar(0x2013));
    return QString::number(length, 'f', 1) + (metric ? QLatin1String(" m") : QLatin1String(" ft"));
}

/// Returns the columns of a table of cables, after those that name the group.
QVector<ReportColumn> groupColumns()
{
    return {numberColumn(ReportText::tr("Cables")), numberColumn(ReportText::tr("Measured")),
            numberColumn(ReportText::tr("of cables")), numberColumn(ReportText::tr("Estimated")),
            numberColumn(ReportText::tr("of cables"))};
}

ReportRow groupCells(const CableGroup &group, bool metric)
{
    return {{QString::number(group.cables)},
            {sumText(group.measured, group.measuredLength, metric)},
            {QString::number(group.measured)},
            {sumText(group.estimated, group.estimatedLength, metric)},
            {QString::number(group.estimated)}};
}

/// Returns the name of a group, or a dash for cables that have none.
QString nameOf(const QString &name)
{
    return name.isEmpty() ? QString(QChar(0x2013)) : name;
}

/// Adds a table with its heading, unless it is empty.
void addTable(ReportGroup *group, const QString &heading, const TableBlock &table)
{
    if (table.rowCount == 0)
        return;
    group->blocks.append(HeadingBlock{heading, HeadingBlock::Minor});
    group->blocks.append(table);
}

TableBlock tableOfGroups(const QString &heading, const QVector<CableGroup> &groups, bool metric)
{
    QVector<ReportRow> rows;
    for (const CableGroup &group : groups)
        rows.append(ReportRow{{nameOf(group.name)}} + groupCells(group, metric));
    return tableOf(QVector<ReportColumn>{textColumn(heading)} + groupColumns(), rows);
}

TableBlock tableOfFloors(const QVector<FloorGroup> &groups, bool metric)
{
    QVector<ReportRow> rows;
    for (const FloorGroup &group : groups)
        rows.append(ReportRow{{nameOf(group.name)}, {group.otherFloor}} + groupCells(group, metric));
    return tableOf(QVector<ReportColumn>{textColumn(ReportText::tr("Floor")), textColumn(ReportText::tr("Other floor"))}
                       + groupColumns(),
                   rows);
}

TableBlock tableOfPorts(const QMap<QString, int> &portsByUse)
{
    QVector<ReportRow> rows;
    for (auto use = portsByUse.cbegin(); use != portsByUse.cend(); ++use)
        rows.append({{nameOf(Vocabulary::portUses().name(use.key()))}, {QString::number(use.value())}});
    return tableOf({textColumn(ReportText::tr("Use")), numberColumn(ReportText::tr("Ports"))}, rows);
}

/// Returns a text paragraph by paragraph, as its lines were typed.
QVector<ReportBlock> paragraphsOf(const QString &text)
{
    QVector<ReportBlock> blocks;
    for (const QString &line : text.split(QLatin1Char('\n')))
        blocks.append(ParagraphBlock{line});
    return blocks;
}

} // namespace

void SummaryContent::writeTo(const ReportSink &sink) const
{
    const bool metric = options().metric;
    const CableTotals totals = totalsOf(job(), metric);
    sink({QStringLiteral("title"), true, beginning()});
    const auto add = [&sink](const QString &heading, const TableBlock &table) {
        ReportGroup group;
        addTable(&group, heading, table);
        if (!group.blocks.isEmpty())
            sink(group);
    };
    add(ReportText::tr("All cables"), tableOf(groupColumns(), {groupCells(totals.all, metric)}));
    add(ReportText::tr("Cables by type"), tableOfGroups(ReportText::tr("Type"), totals.byType, metric));
    QVector<CableGroup> uses = totals.byUse;
    for (CableGroup &use : uses)
        use.name = Vocabulary::portUses().name(use.name);
    add(ReportText::tr("Cables by use"), tableOfGroups(ReportText::tr("Use"), uses, metric));
    add(ReportText::tr("Cables by floor"), tableOfFloors(totals.byFloor, metric));
    add(ReportText::tr("Cables by bundle"), tableOfGroups(ReportText::tr("Bundle"), totals.byBundle, metric));
    add(ReportText::tr("Cables by test status"), tableOfGroups(ReportText::tr("Status"), totals.byStatus, metric));
    add(ReportText::tr("Ports by use"), tableOfPorts(totals.portsByUse));
}

void InventoryContent::writeTo(const ReportSink &sink) const
{
    const CableTotals totals = totalsOf(job(), options().metric);
    ReportGroup group{QStringLiteral("title"), true, beginning()};
    addTable(&group, ReportText::tr("Cables by type"),
             tableOfGroups(ReportText::tr("Type"), totals.byType, options().metric));
    addTable(&group, ReportText::tr("Ports by use"), tableOfPorts(totals.portsByUse));
    sink(group);
    for (const ReportGroup &part : {order(), devices(), rooms()}) {
        if (!part.blocks.isEmpty())
            sink(part);
    }
}

ReportGroup InventoryContent::order() const
{
    const bool metric = options().metric;
    QVector<ReportRow> rows;
    for (const OrderItem &item : orderOf(job(), {}, metric))
        rows.append({{nameOf(item.name)},
                     {QString::number(item.runs)},
                     {sumText(item.runs, item.length, metric)},
                     {sumText(item.runs, item.longest, metric)},
                     {item.unknown.isEmpty() ? QString() : QString::number(item.unknown.size())}});
    ReportGroup group;
    addTable(&group, ReportText::tr("Lengths from the plan, by type and bundle"),
             tableOf({textColumn(ReportText::tr("Name")), numberColumn(ReportText::tr("Runs")),
                      numberColumn(ReportText::tr("Length")), numberColumn(ReportText::tr("Longest")),
                      numberColumn(ReportText::tr("Without a length"))},
                     rows));
    return group;
}

ReportGroup InventoryContent::devices() const
{
    QMap<std::pair<int, QString>, int> counts;
    for (const snapshot::Device &device : job().devices())
        ++counts[{device.holder, device.type}];
    QVector<ReportRow> rows;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        rows.append({{job().sheets().at(count.key().first).id},
                     {Vocabulary::deviceTypes().name(count.key().second)},
                     {QString::number(count.value())}});
    ReportGroup group;
    addTable(&group, ReportText::tr("Network devices"),
             tableOf({textColumn(ReportText::tr("Sheet")), textColumn(ReportText::tr("Type")),
                      numberColumn(ReportText::tr("Devices"))},
                     rows));
    return group;
}

ReportGroup InventoryContent::rooms() const
{
    const ElementNames names(job());
    QVector<ReportRow> rows;
    for (int position = 0; position < job().rooms().size(); ++position) {
        const snapshot::Room &room = job().rooms().at(position);
        if (room.ports.count == 0 && room.verticalRuns.count == 0)
            continue;
        QMap<QString, int> uses;
        int cables = 0;
        for (int port = room.ports.first; port < room.ports.end(); ++port) {
            ++uses[job().ports().at(port).use];
            cables += job().cableCountAt({ElementKind::Ports, port});
        }
        QStringList parts;
        for (auto use = uses.cbegin(); use != uses.cend(); ++use)
            parts.append(nameOf(Vocabulary::portUses().name(use.key())) + QLatin1Char(' ')
                         + QString::number(use.value()));
        rows.append({{job().floors().at(room.holder).id},
                     {nameOf(names.partOf(TableKind::Rooms, position, 0))},
                     {QString::number(room.ports.count)},
                     {parts.join(QLatin1String(", "))},
                     {QString::number(cables)}});
    }
    ReportGroup group;
    addTable(&group, ReportText::tr("Rooms"),
             tableOf({textColumn(ReportText::tr("Floor")), textColumn(ReportText::tr("Room")),
                      numberColumn(ReportText::tr("Ports")), textColumn(ReportText::tr("Use")),
                      numberColumn(ReportText::tr("Ends of cables"))},
                     rows));
    return group;
}

void ScheduleContent::writeTo(const ReportSink &sink) const
{
    const ElementNames names(job());
    const auto partOf = [&names](const snapshot::Target &end, int number) {
        return end.exists() ? names.partOf(tableOf(end.kind), end.position, number) : QString();
    };
    TableBlock table;
    table.columns = {textColumn(ReportText::tr("Cable")),
                     textColumn(ReportText::tr("Type")),
                     textColumn(ReportText::tr("Use")),
                     textColumn(ReportText::tr("From floor")),
                     textColumn(ReportText::tr("Room")),
                     textColumn(ReportText::tr("Port")),
                     textColumn(ReportText::tr("To floor")),
                     textColumn(ReportText::tr("Room")),
                     textColumn(ReportText::tr("Port")),
                     textColumn(ReportText::tr("Bundle")),
                     {ReportText::tr("Verdict"), ReportColumn::Verdict}};
    table.rowCount = int(options().cables.size());
    table.row = [this, &partOf](int row) {
        const snapshot::Cable &cable = job().cables().at(options().cables.at(row));
        ReportRow cells{{cable.id}, {cable.type}, {Vocabulary::portUses().name(cable.use)}};
        for (const snapshot::Target &end : {cable.fromTarget, cable.toTarget}) {
            for (int number = 2; number >= 0; --number)
                cells.append({partOf(end, number)});
        }
        cells.append({cable.bundleName});
        cells.append({cable.test.status});
        return cells;
    };
    sink({QStringLiteral("title"), true, beginning() << table});
}

void NotesContent::writeTo(const ReportSink &sink) const
{
    ReportGroup group{QStringLiteral("title"), true, beginning()};
    group.blocks += paragraphsOf(job().notes());
    sink(group);
}

void ActiveContent::writeTo(const ReportSink &sink) const
{
    const ElementNames names(job());
    sink({QStringLiteral("title"), true, beginning()});
    for (const snapshot::ActivePort &port : job().activePorts()) {
        const QStringList parts =
            port.portPosition < 0 ? QStringList() : names.partsOf(TableKind::Ports, port.portPosition);
        QVector<ReportRow> rows;
        for (const ActiveTestResult &result : port.results) {
            const ActiveTestResultFields &fields = result.fields();
            QStringList values;
            for (const auto &[name, value] : fields.values)
                values.append(name + QLatin1String(": ") + value);
            rows.append({{timeText(fields.time)},
                         {fields.status},
                         {fields.linkSpeed > 0 ? QString::number(fields.linkSpeed) : QString()},
                         {fields.duplex},
                         {fields.address},
                         {values.join(QLatin1String(", "))}});
        }
        ReportGroup group{QString(),
                          false,
                          {HeadingBlock{port.id, HeadingBlock::Subject,
                                        port.results.isEmpty() ? QString() : port.results.constLast().status()}}};
        if (!parts.isEmpty())
            group.blocks.append(FactsBlock{{{ReportText::tr("Port"), joined(parts, QStringLiteral(" / "))}}});
        if (rows.isEmpty())
            group.blocks.append(ParagraphBlock{ReportText::tr("Not tested.")});
        else
            group.blocks.append(tableOf({textColumn(ReportText::tr("Tested")),
                                         {ReportText::tr("Verdict"), ReportColumn::Verdict},
                                         numberColumn(ReportText::tr("Speed (Mbit/s)")),
                                         textColumn(ReportText::tr("Duplex")),
                                         textColumn(ReportText::tr("Far end")),
                                         textColumn(ReportText::tr("Other values"))},
                                        rows));
        sink(group);
    }
}

} // namespace cabledoc
