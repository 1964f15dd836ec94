#include "commandline.h"
#include "csv.h"
#include "documents.h"
#include "lengths.h"
#include "output.h"
#include "table.h"
#include "textlines.h"

#include <cabledoc/cableorder.h>
#include <cabledoc/cabletotals.h>

#include <QtCore/QRegularExpression>

using namespace cabledoc;

namespace {

/// A table of the totals, with its heading and its name in JSON and CSV.
struct Section
{
    const char *key;
    QString heading;
    Table table;
};

/// What the command prints.
struct Totals
{
    QVector<Section> sections;
    OrderOptions options;
    QStringList unknown; ///< ids of the cables of unknown length
    QStringList tooLong; ///< ids of the cables that are longer than a coil
    bool metric = false;
};

// Tables

QVector<Column> groupColumns(const QVector<Column> &names)
{
    return names
           + QVector<Column>{{"cables", Program::tr("Cables")},        {"measuredLength", Program::tr("Measured")},
                             {"unmeasured", Program::tr("without")},   {"estimatedLength", Program::tr("Estimated")},
                             {"unestimated", Program::tr("without")},  {"compared", QString()},
                             {"difference", Program::tr("Difference")}};
}

QVariantList groupCells(const CableGroup &group)
{
    const auto length = [](int count, double sum) { return count == 0 ? QVariant() : lengthValue(sum); };
    return {group.cables,
            length(group.measured, group.measuredLength),
            group.cables - group.measured,
            length(group.estimated, group.estimatedLength),
            group.cables - group.estimated,
            group.compared,
            length(group.compared, group.difference)};
}

Table tableOf(const QString &heading, const QVector<CableGroup> &groups)
{
    Table table{groupColumns({{"name", heading}}), {}};
    for (const CableGroup &group : groups)
        table.rows.append(QVariantList{group.name} + groupCells(group));
    return table;
}

Table tableOfFloors(const QVector<FloorGroup> &groups)
{
    Table table{groupColumns({{"name", Program::tr("Floor")}, {"otherFloor", Program::tr("Other floor")}}), {}};
    for (const FloorGroup &group : groups)
        table.rows.append(QVariantList{group.name, group.otherFloor} + groupCells(group));
    return table;
}

Table tableOfPorts(const QMap<QString, int> &portsByUse)
{
    Table table{{{"name", Program::tr("Use")}, {"ports", Program::tr("Ports")}}, {}};
    for (auto use = portsByUse.cbegin(); use != portsByUse.cend(); ++use)
        table.rows.append({use.key(), use.value()});
    return table;
}

Table tableOfOrder(const QVector<OrderItem> &items)
{
    Table table{{{"name", Program::tr("Name")},
                 {"bundle", Program::tr("Bundle")},
                 {"runs", Program::tr("Runs")},
                 {"length", Program::tr("Length")},
                 {"longest", Program::tr("Longest")},
                 {"coilLength", Program::tr("Coil")},
                 {"coils", Program::tr("Coils")},
                 {"left", Program::tr("Left")},
                 {"unknown", Program::tr("Unknown")},
                 {"tooLong", Program::tr("Too long")}},
                {}};
    for (const OrderItem &item : items) {
        const bool hasCoils = item.coilLength > 0.0;
        table.rows.append({item.name, item.isBundle, item.runs, lengthValue(item.length), lengthValue(item.longest),
                           hasCoils ? lengthValue(item.coilLength) : QVariant(),
                           hasCoils ? QVariant(item.coils) : QVariant(), hasCoils ? lengthValue(item.left) : QVariant(),
                           int(item.unknown.size()), int(item.tooLong.size())});
    }
    return table;
}

QStringList idsOf(const JobSnapshot &job, const QVector<int> &cables)
{
    QStringList ids;
    for (const int cable : cables)
        ids.append(job.cables().at(cable).id);
    return ids;
}

Totals totalsFor(const JobSnapshot &job, const OrderOptions &options, bool metric)
{
    const CableTotals totals = totalsOf(job, metric);
    const QVector<OrderItem> order = orderOf(job, options, metric);
    Totals result;
    result.options = options;
    result.metric = metric;
    result.sections = {
        {"all", Program::tr("All cables"), tableOf(QString(), {totals.all})},
        {"byType", Program::tr("Cables by type"), tableOf(Program::tr("Type"), totals.byType)},
        {"byUse", Program::tr("Cables by use"), tableOf(Program::tr("Use"), totals.byUse)},
        {"byFloor", Program::tr("Cables by floor"), tableOfFloors(totals.byFloor)},
        {"byBundle", Program::tr("Cables by bundle"), tableOf(Program::tr("Bundle"), totals.byBundle)},
        {"byStatus", Program::tr("Cables by test status"), tableOf(Program::tr("Status"), totals.byStatus)},
        {"portsByUse", Program::tr("Ports by use"), tableOfPorts(totals.portsByUse)},
        {"order", Program::tr("Order"), tableOfOrder(order)},
    };
    for (const OrderItem &item : order) {
        result.unknown += idsOf(job, item.unknown);
        result.tooLong += idsOf(job, item.tooLong);
    }
    return result;
}

// Text

/// Returns the table with one decimal for lengths, and a mark for names that are empty.
Table printed(Table table)
{
    for (QVariantList &row : table.rows) {
        for (QVariant &cell : row) {
            if (cell.userType() == QMetaType::Double)
                cell = lengthText(cell.toDouble());
            if (cell.userType() == QMetaType::Bool)
                cell = cell.toBool() ? Program::tr("yes") : QString();
        }
        if (row.constFirst().toString().isEmpty())
            row.first() = QStringLiteral("-");
    }
    return table;
}

QString orderNotes(const OrderOptions &options)
{
    QStringList notes{Program::tr("The lengths are estimated from the plan.")};
    if (options.spare > 0.0)
        notes.append(Program::tr("They include %1 % spare.").arg(options.spare * 100));
    notes.append(Program::tr("The cables of a bundle with the same group number are one run of the bundle."));
    if (options.coilLength > 0.0 || !options.coilLengths.isEmpty())
        notes.append(Program::tr("Each run is cut from one coil, without a splice: the longest runs first, each from "
                                 "the first coil that has enough left (first-fit decreasing)."));
    return brokenLine(notes.join(QLatin1Char(' ')));
}

/// Returns a heading and the ids below it, or an empty text if there are none.
QString listText(const QString &heading, const QStringList &ids)
{
    constexpr int maximum = 50;
    if (ids.isEmpty())
        return {};
    QString list = ids.mid(0, maximum).join(QLatin1String(", "));
    if (ids.size() > maximum)
        list += QLatin1Char(' ') + Program::tr("and %1 more").arg(ids.size() - maximum);
    return QLatin1Char('\n') + heading.arg(ids.size()) + QLatin1Char('\n') + brokenLine(QLatin1String("  ") + list, 2);
}

QString textOf(const Totals &totals)
{
    QString text = brokenLine(Program::tr("Lengths are in %1. \"without\" counts the cables without such a length. The "
                                          "difference is measured minus estimated, for cables that have both.")
                                  .arg(lengthUnit(totals.metric)));
    for (const Section &section : totals.sections) {
        if (section.table.rows.isEmpty())
            continue;
        text += QLatin1Char('\n') + section.heading + QLatin1Char('\n');
        if (qstrcmp(section.key, "order") == 0)
            text += orderNotes(totals.options);
        text += textOf(printed(section.table));
    }
    return text + listText(Program::tr("Cables of unknown length, which are not in the order: %1"), totals.unknown)
           + listText(Program::tr("Cables that are longer than a coil: %1"), totals.tooLong);
}

// CSV

QString columnName(const char *key)
{
    static const QRegularExpression capital(QStringLiteral("([A-Z])"));
    return QString::fromLatin1(key).replace(capital, QStringLiteral("_\\1")).toLower();
}

/// Returns all tables in one. Its first column names the table of each row.
QByteArray csvOf(const Totals &totals)
{
    QStringList names{QStringLiteral("table"), QStringLiteral("name")};
    for (const Section &section : totals.sections) {
        for (const Column &column : section.table.columns) {
            if (!names.contains(columnName(column.key)))
                names.append(columnName(column.key));
        }
    }
    const auto lineOf = [&names](const QMap<QString, QVariant> &cells) {
        QVariantList line;
        for (const QString &name : names)
            line.append(cells.value(name));
        return csvLine(line);
    };
    QByteArray text = csvLine(QVariant(names).toList());
    for (const Section &section : totals.sections) {
        for (const QVariantList &row : section.table.rows) {
            QMap<QString, QVariant> cells{{names.constFirst(), columnName(section.key)}};
            for (int column = 0; column < row.size(); ++column)
                cells.insert(columnName(section.table.columns.at(column).key), row.at(column));
            text += lineOf(cells);
        }
    }
    const auto listOf = [&names](const QString &table, const QStringList &ids) {
        QVariantList line = QVector<QVariant>(names.size()).toList();
        line[0] = table;
        QByteArray lines;
        for (const QString &id : ids) {
            line[1] = id;
            lines += csvLine(line);
        }
        return lines;
    };
    return text + listOf(QStringLiteral("unknown_length"), totals.unknown)
           + listOf(QStringLiteral("longer_than_coil"), totals.tooLong);
}

// JSON

QJsonObject jsonOf(const Totals &totals)
{
    QJsonObject object{{QStringLiteral("lengthUnit"), lengthUnit(totals.metric)},
                       {QStringLiteral("spare"), totals.options.spare},
                       {QStringLiteral("unknownLength"), QJsonArray::fromStringList(totals.unknown)},
                       {QStringLiteral("longerThanCoil"), QJsonArray::fromStringList(totals.tooLong)}};
    for (const Section &section : totals.sections)
        object.insert(QLatin1String(section.key), arrayOf(section.table));
    QJsonObject all = objectOf(totals.sections.constFirst().table, 0);
    all.remove(QStringLiteral("name"));
    object.insert(QStringLiteral("all"), all);
    return object;
}

// Options

/// Reads the option --spare. Returns what is wrong with it, or an empty text.
QString readSpare(const CommandLine &line, OrderOptions *options)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("([0-9]{1,3}(?:\\.[0-9]{1,3})?) *%?")));
    if (!line.isSet("spare"))
        return {};
    const QRegularExpressionMatch match = form.match(line.value("spare"));
    constexpr double percent = 0.01;
    options->spare = match.captured(1).toDouble() * percent;
    return match.hasMatch() ? QString()
                            : Program::tr("\"%1\" is not a percentage such as 10%").arg(line.value("spare"));
}

/// Reads the options --coil. Returns what is wrong with them, or an empty text.
QString readCoils(const CommandLine &line, bool metric, OrderOptions *options)
{
    for (const QString &text : line.values("coil")) {
        const auto sign = text.lastIndexOf(QLatin1Char('='));
        const std::optional<double> length = readLength(text.mid(sign + 1), metric);
        if (!length)
            return Program::tr("\"%1\" is not a coil such as 305m, 1000ft or CAT6=305m").arg(text);
        if (sign < 0)
            options->coilLength = *length;
        else
            options->coilLengths.insert(text.left(sign), *length);
    }
    return {};
}

/// Returns the name of a coil that no cable has, or an empty text.
QString unusedCoil(const JobSnapshot &job, const OrderOptions &options)
{
    QMap<QString, double> coils = options.coilLengths;
    for (const snapshot::Cable &cable : job.cables())
        coils.remove(cable.bundleName.isEmpty() ? cable.type : cable.bundleName);
    return coils.isEmpty() ? QString() : coils.firstKey();
}

} // namespace

ExitCode runTotals(const CommandLine &line)
{
    const bool metric = line.isSet("metric");
    OrderOptions options;
    const QString wrongSpare = readSpare(line, &options);
    const QString problem = wrongSpare.isEmpty() ? readCoils(line, metric, &options) : wrongSpare;
    if (!problem.isEmpty())
        return line.usageError(problem);
    JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    const QString unused = unusedCoil(job, options);
    if (!unused.isEmpty())
        return fail(WrongUsage, line.argument(0), Program::tr("no cable has the type or bundle \"%1\"").arg(unused));
    const Totals totals = totalsFor(job, options, metric);
    if (line.isSet("json"))
        return printJson(line.output(), "cabledoc-totals-1", jsonOf(totals));
    return line.isSet("csv") ? printData(line.output(), csvOf(totals)) : printText(line.output(), textOf(totals));
}
