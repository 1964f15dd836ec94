#include "testcontent.h"

#include "cablelength.h"
#include "drawingfonts.h"
#include "measurementtext.h"
#include "naturalorder.h"
#include "testfigures.h"
#include "verdicts.h"
#include "vocabulary.h"

#include <QtCore/QMap>

#include <algorithm>
#include <array>
#include <map>

namespace cabledoc {

namespace {

constexpr int pairCount = 4;

QString pinsOf(int pair)
{
    static const std::array<QString, pairCount> pins{QStringLiteral("1-2"), QStringLiteral("3-6"),
                                                     QStringLiteral("4-5"), QStringLiteral("7-8")};
    return pins.at(std::size_t(pair));
}

/// Returns the day of a time.
QString dayOf(const QString &time)
{
    return time.section(QLatin1Char('T'), 0, 0);
}

bool hasWireMap(const cable_struct &block)
{
    return std::any_of(block.wire_map + 1, block.wire_map + 1 + pairCount, [](quint8 far) { return far < pairCount; });
}

/// What the tester says about the parameters of a cable, without the columns that have nothing.
TableBlock parameterTable(const QVector<TestParameter> &parameters)
{
    const QVector<std::pair<ReportColumn, QString TestParameter::*>> all{
        {{ReportText::tr("From the tester"), ReportColumn::Text}, &TestParameter::name},
        {{ReportText::tr("Worst margin (dB)"), ReportColumn::Number}, &TestParameter::margin},
        {{ReportText::tr("Worst value (dB or ns)"), ReportColumn::Number}, &TestParameter::value},
        {{ReportText::tr("Frequency (MHz)"), ReportColumn::Number}, &TestParameter::frequency},
        {{ReportText::tr("Pair"), ReportColumn::Text}, &TestParameter::pair},
        {{ReportText::tr("End"), ReportColumn::Text}, &TestParameter::end},
    };
    TableBlock table;
    QVector<QString TestParameter::*> fields;
    for (const auto &[column, field] : all) {
        const auto hasText = [member = field](const TestParameter &parameter) {
            return !(parameter.*member).isEmpty();
        };
        if (std::none_of(parameters.cbegin(), parameters.cend(), hasText))
            continue;
        table.columns.append(column);
        fields.append(field);
    }
    table.rowCount = int(parameters.size());
    table.row = [parameters, fields](int row) {
        ReportRow cells;
        for (const auto field : fields)
            cells.append({parameters.at(row).*field});
        return cells;
    };
    return table;
}

/// Returns what a test of the history says beyond its verdict.
QString remarksOn(const TestDetails &details)
{
    QStringList remarks;
    if (!details.wireMap().isEmpty())
        remarks.append(details.wireMap());
    for (const TestParameter &parameter : details.parameters()) {
        if (!parameter.margin.isEmpty())
            remarks.append(ReportText::tr("%1: %2 dB").arg(parameter.name, parameter.margin));
    }
    return remarks.join(QLatin1String(", "));
}

TableBlock historyTable(const QVector<CableTest> &history)
{
    TableBlock table;
    table.columns = {{ReportText::tr("Earlier tests"), ReportColumn::Text},
                     {ReportText::tr("Verdict"), ReportColumn::Verdict},
                     {ReportText::tr("Tester"), ReportColumn::Text},
                     {ReportText::tr("Operator"), ReportColumn::Text},
                     {ReportText::tr("Remarks"), ReportColumn::Text}};
    table.rowCount = int(history.size());
    table.row = [history](int row) {
        const CableTest &test = history.at(row);
        return ReportRow{{timeText(test.results.time())},
                         {test.results.status()},
                         {test.results.serialNumber()},
                         {test.details.operatorName()},
                         {remarksOn(test.details)}};
    };
    return table;
}

} // namespace

TestContent::TestContent(const JobSnapshot &job, const ReportOptions &options)
    : ReportContent(job, options)
    , m_names(job)
    , m_measure(std::make_unique<TextMeasure>())
{
}

TestContent::~TestContent() = default;

void TestContent::writeTo(const ReportSink &sink) const
{
    sink(titlePage());
    sink(summary());
    for (const int cable : options().cables)
        sink(pageOf(cable));
    if (!options().cables.isEmpty())
        sink(index());
}

QVector<ReportOutlineEntry> TestContent::outline() const
{
    // The cables by the floor and the room in which they end.
    QMap<std::pair<int, int>, QVector<int>> cables;
    for (const int cable : options().cables) {
        const snapshot::Target &end = job().cables().at(cable).toTarget;
        int room = -1;
        if (end.exists())
            room = end.kind == ElementKind::Ports ? job().ports().at(end.position).holder
                                                  : job().verticalRuns().at(end.position).holder;
        cables[{room < 0 ? -1 : job().rooms().at(room).holder, room}].append(cable);
    }
    QVector<ReportOutlineEntry> entries{{title(), QStringLiteral("title"), 0},
                                        {ReportText::tr("Summary"), QStringLiteral("summary"), 0}};
    int lastFloor = -2;
    for (auto group = cables.cbegin(); group != cables.cend(); ++group) {
        const auto [floor, room] = group.key();
        const QString anchor = anchorOf(group->first());
        if (floor != lastFloor)
            entries.append({floor < 0 ? ReportText::tr("Without a place") : job().floors().at(floor).id, anchor, 0});
        lastFloor = floor;
        if (room >= 0)
            entries.append({roomName(room), anchor, 1});
        for (const int cable : *group)
            entries.append({job().cables().at(cable).id, anchorOf(cable), room < 0 ? 1 : 2});
    }
    if (!options().cables.isEmpty())
        entries.append({ReportText::tr("Index"), QStringLiteral("index"), 0});
    return entries;
}

// The first pages

ReportGroup TestContent::titlePage() const
{
    ReportGroup group{QStringLiteral("title"), true, beginning()};
    group.blocks.append(HeadingBlock{ReportText::tr("What was tested"), HeadingBlock::Subject});
    for (const QString &sentence : statement())
        group.blocks.append(ParagraphBlock{sentence});
    group.blocks.append(verdictTable());
    const QVector<std::pair<QString, TableBlock>> tables{
        {ReportText::tr("Limits and testers"), equipmentTable()},
        {ReportText::tr("Failed"), listOf(cablesWith(verdicts::Fail))},
        {ReportText::tr("Not tested"), listOf(cablesWith(verdicts::Untested))},
    };
    for (const auto &[heading, table] : tables) {
        if (table.rowCount > 0)
            group.blocks << HeadingBlock{heading, HeadingBlock::Minor} << table;
    }
    return group;
}

QStringList TestContent::statement() const
{
    int tested = 0;
    int retested = 0;
    QString firstDay;
    QString lastDay;
    for (const int cable : options().cables) {
        const QString day = dayOf(job().cables().at(cable).test.time);
        tested += job().cables().at(cable).test.status == verdicts::Untested ? 0 : 1;
        retested += job().earlierTestCount(cable) > 0 ? 1 : 0;
        if (!day.isEmpty() && (firstDay.isEmpty() || day < firstDay))
            firstDay = day;
        lastDay = std::max(lastDay, day);
    }
    const int count = int(options().cables.size());
    QStringList sentences{ReportText::tr("Cables in this report: %1. Tested: %2. Not tested: %3.")
                              .arg(count)
                              .arg(tested)
                              .arg(count - tested)};
    if (!firstDay.isEmpty())
        sentences.append(firstDay == lastDay ? ReportText::tr("Day of the tests: %1.").arg(firstDay)
                                             : ReportText::tr("Days of the tests: %1 to %2.").arg(firstDay, lastDay));
    if (count < job().cables().size())
        sentences.append(ReportText::tr("The job has further cables, which were not selected: %1.")
                             .arg(job().cables().size() - count));
    if (retested > 0)
        sentences.append(ReportText::tr("Cables that were tested more than once: %1. The last part of the page of such "
                                        "a cable lists its earlier tests.")
                             .arg(retested));
    return sentences;
}

/// Returns with which limits and testers the cables were tested, and how many with each.
TableBlock TestContent::equipmentTable() const
{
    std::map<QStringList, int> counts;
    for (const int position : options().cables) {
        const TestDetails details = job().testDetails(position);
        const QStringList equipment{details.limit(), details.standard(), job().cables().at(position).test.serialNumber};
        if (!equipment.join(QString()).isEmpty())
            ++counts[equipment];
    }
    QVector<ReportRow> rows;
    for (const auto &[equipment, count] : counts)
        rows.append({{equipment.at(0)}, {equipment.at(1)}, {equipment.at(2)}, {QString::number(count)}});
    return tableOf({{ReportText::tr("Limit"), ReportColumn::Text},
                    {ReportText::tr("Standard"), ReportColumn::Text},
                    {ReportText::tr("Tester"), ReportColumn::Text},
                    {ReportText::tr("Cables"), ReportColumn::Number}},
                   rows);
}

QVector<int> TestContent::cablesWith(const QString &verdict) const
{
    QVector<int> cables;
    std::copy_if(options().cables.cbegin(), options().cables.cend(), std::back_inserter(cables),
                 [&](int cable) { return job().cables().at(cable).test.status == verdict; });
    return cables;
}

TableBlock TestContent::verdictTable() const
{
    // The known verdicts first, then the others in string order.
    QVector<std::pair<QString, int>> counts{
        {verdicts::Pass, 0}, {verdicts::PassWithinAccuracy, 0}, {verdicts::Fail, 0}, {verdicts::Untested, 0}};
    QMap<QString, int> others;
    for (const int cable : options().cables) {
        const QString &status = job().cables().at(cable).test.status;
        const auto known =
            std::find_if(counts.begin(), counts.end(), [&status](const auto &count) { return count.first == status; });
        known == counts.end() ? ++others[status] : ++known->second;
    }
    for (auto other = others.cbegin(); other != others.cend(); ++other)
        counts.append({other.key(), other.value()});
    const QMap<QString, QString> meanings{
        {verdicts::Pass, ReportText::tr("passed")},
        {verdicts::PassWithinAccuracy, ReportText::tr("passed, but closer to the limit than the tester measures")},
        {verdicts::Fail, ReportText::tr("failed")},
        {verdicts::Untested, ReportText::tr("not tested")},
    };
    TableBlock table;
    table.columns = {{ReportText::tr("Verdict"), ReportColumn::Verdict},
                     {ReportText::tr("Cables"), ReportColumn::Number},
                     {ReportText::tr("Meaning"), ReportColumn::Text}};
    table.rowCount = int(counts.size());
    table.row = [counts, meanings](int row) {
        const auto &[verdict, count] = counts.at(row);
        return ReportRow{{verdict},
                         {QString::number(count)},
                         {meanings.value(verdict, ReportText::tr("as the tester says; does not count as passed"))}};
    };
    return table;
}

ReportGroup TestContent::summary() const
{
    TableBlock table;
    table.columns = {
        {ReportText::tr("Cable"), ReportColumn::Text},      {ReportText::tr("From"), ReportColumn::Text},
        {ReportText::tr("To"), ReportColumn::Text},         {ReportText::tr("Type"), ReportColumn::Text},
        {ReportText::tr("Verdict"), ReportColumn::Verdict}, {ReportText::tr("Length"), ReportColumn::Number},
        {ReportText::tr("Tested"), ReportColumn::Text},     {ReportText::tr("Page"), ReportColumn::Page}};
    table.rowCount = int(options().cables.size());
    table.row = [this](int row) {
        const int position = options().cables.at(row);
        const snapshot::Cable &cable = job().cables().at(position);
        const float feet = job().measuredLength(position, false);
        return ReportRow{{cable.id, anchorOf(position)},
                         {endText(cable.fromTarget)},
                         {endText(cable.toTarget)},
                         {cable.type},
                         {cable.test.status},
                         {feet < 0.0F ? QString() : lengthText(double(feet))},
                         {dayOf(cable.test.time)},
                         {{}, anchorOf(position)}};
    };
    return {QStringLiteral("summary"), true, {HeadingBlock{ReportText::tr("Summary")}, table}};
}

// Cables

ReportGroup TestContent::pageOf(int position) const
{
    const snapshot::Cable &cable = job().cables().at(position);
    const CableTest test{job().testResults(position), job().testDetails(position)};
    ReportGroup group{anchorOf(position), false, {}};
    group.blocks.append(HeadingBlock{cable.id, HeadingBlock::Subject, cable.test.status});
    FactsBlock facts = factsOf(cable, test);
    if (hasWireMap(cable.test.results))
        facts.picture = wireMapFigure(definitionOf(cable), cable.test.results, *m_measure);
    group.blocks.append(facts);
    const TableBlock lengths = lengthTable(cable);
    if (lengths.rowCount > 0)
        group.blocks.append(lengths);
    if (!test.details.parameters().isEmpty())
        group.blocks.append(parameterTable(test.details.parameters()));
    if (const std::optional<Scene> curves = curvesFigure(test.results, *m_measure)) {
        group.blocks.append(FigureBlock{*curves});
        group.startsPage = true; // with curves, a cable fills a page
    }
    const QVector<CableTest> history = job().testHistory(position);
    if (!history.isEmpty())
        group.blocks.append(historyTable(history));
    return group;
}

FactsBlock TestContent::factsOf(const snapshot::Cable &cable, const CableTest &test) const
{
    const TestDetails &details = test.details;
    const int errors = cable.test.bertErrors;
    const QVector<QPair<QString, QString>> facts{
        {ReportText::tr("From"), endText(cable.fromTarget)},
        {ReportText::tr("To"), endText(cable.toTarget)},
        {ReportText::tr("Type"), cable.type},
        {ReportText::tr("Use"), Vocabulary::portUses().name(cable.use)},
        {ReportText::tr("Tested"), timeText(cable.test.time)},
        {ReportText::tr("Operator"), details.operatorName()},
        {ReportText::tr("Tester"), cable.test.serialNumber},
        {ReportText::tr("Tester software"), cable.test.softwareVersion},
        {ReportText::tr("Limit"), details.limit()},
        {ReportText::tr("Standard"), details.standard()},
        {ReportText::tr("Link"), details.linkType()},
        {ReportText::tr("NVP"), details.nvp().isEmpty() ? QString() : ReportText::tr("%1 %").arg(details.nvp())},
        {ReportText::tr("Temperature"),
         details.temperature().isEmpty() ? QString() : ReportText::tr("%1 °C").arg(details.temperature())},
        {ReportText::tr("Bit errors"), errors < 0 ? QString() : QString::number(errors)},
        {ReportText::tr("Wire map"), details.wireMap()},
        {ReportText::tr("File of the tester"), details.attachment()},
    };
    FactsBlock block;
    block.columns = 2;
    for (const auto &fact : facts) {
        if (!fact.second.isEmpty())
            block.facts.append(fact);
    }
    return block;
}

/// Returns the lengths of the pairs beside the limit, in one row.
TableBlock TestContent::lengthTable(const snapshot::Cable &cable) const
{
    TableBlock table;
    const TestDef definition = definitionOf(cable);
    if (!isUsableLengthConstant(definition.length_constant()))
        return table;
    ReportRow row{{ReportText::tr("Length")}};
    table.columns = {{ReportText::tr("Pair"), ReportColumn::Text}};
    for (int pair = 0; pair < pairCount; ++pair) {
        const int reading = cable.test.results.pair_length[pair];
        if (!isLengthReading(reading))
            continue;
        table.columns.append({pinsOf(pair), ReportColumn::Number});
        row.append({lengthText(double(correctedLength(reading, definition.length_constant())))});
    }
    if (row.size() == 1)
        return table;
    if (definition.max_length() >= 0) {
        table.columns.append({ReportText::tr("Longest allowed"), ReportColumn::Number});
        row.append({lengthText(double(definition.max_length()))});
    }
    table.rowCount = 1;
    table.row = [row](int) { return row; };
    return table;
}

/// Returns cables with their pages, several in a row.
TableBlock TestContent::listOf(const QVector<int> &cables) const
{
    const int cablesInARow = std::min(5, int(cables.size()));
    TableBlock table;
    if (cables.isEmpty())
        return table;
    for (int i = 0; i < cablesInARow; ++i)
        table.columns += {{ReportText::tr("Cable"), ReportColumn::Text}, {ReportText::tr("Page"), ReportColumn::Page}};
    table.rowCount = int(cables.size() + cablesInARow - 1) / cablesInARow;
    table.row = [this, cables, cablesInARow](int row) {
        ReportRow cells;
        for (const int cable : cables.mid(row * cablesInARow, cablesInARow))
            cells += {{job().cables().at(cable).id, anchorOf(cable)}, {QString(), anchorOf(cable)}};
        return cells;
    };
    return table;
}

ReportGroup TestContent::index() const
{
    QVector<int> cables = options().cables;
    sortByText(&cables, [this](int cable) { return job().cables().at(cable).id; });
    return {QStringLiteral("index"), true, {HeadingBlock{ReportText::tr("Index")}, listOf(cables)}};
}

QString TestContent::roomName(int room) const
{
    const QString name = m_names.partOf(TableKind::Rooms, room, 0);
    return name.isEmpty() ? ReportText::tr("Without a room") : name;
}

/// Returns the whole name of the end of a cable.
QString TestContent::endText(const snapshot::Target &end) const
{
    return end.exists() ? joined(m_names.partsOf(tableOf(end.kind), end.position), QStringLiteral(" / ")) : QString();
}

TestDef TestContent::definitionOf(const snapshot::Cable &cable) const
{
    return cable.definition < 0 ? TestDef() : TestDef(job().definitions().at(cable.definition));
}

} // namespace cabledoc
