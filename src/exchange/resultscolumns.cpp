#include "resultscolumns.h"

#include <algorithm>
#include <array>

namespace cabledoc {

namespace {

/// The tables that have a column.
enum class Tables {
    Cables,
    ActivePorts,
    Both,
};

struct ColumnRow
{
    QString name;
    Tables tables;
};

const std::array<ColumnRow, std::size_t(ResultsColumn::Count)> &columnRows()
{
    static const std::array<ColumnRow, std::size_t(ResultsColumn::Count)> rows{{
        {QStringLiteral("cable_id"), Tables::Cables},
        {QStringLiteral("active_port"), Tables::ActivePorts},
        {QStringLiteral("tested_at"), Tables::Both},
        {QStringLiteral("verdict"), Tables::Both},
        {QStringLiteral("state"), Tables::Cables},
        {QStringLiteral("tester_serial"), Tables::Cables},
        {QStringLiteral("tester_version"), Tables::Cables},
        {QStringLiteral("test_type"), Tables::Cables},
        {QStringLiteral("length_12"), Tables::Cables},
        {QStringLiteral("length_36"), Tables::Cables},
        {QStringLiteral("length_45"), Tables::Cables},
        {QStringLiteral("length_78"), Tables::Cables},
        {QStringLiteral("length_unit"), Tables::Cables},
        {QStringLiteral("wiremap"), Tables::Cables},
        {QStringLiteral("bit_errors"), Tables::Cables},
        {QStringLiteral("results_block"), Tables::Cables},
        {QStringLiteral("next_curve"), Tables::Cables},
        {QStringLiteral("echo_curve"), Tables::Cables},
        {QStringLiteral("channel_curve"), Tables::Cables},
        {QStringLiteral("operator"), Tables::Cables},
        {QStringLiteral("limit"), Tables::Cables},
        {QStringLiteral("standard"), Tables::Cables},
        {QStringLiteral("link_type"), Tables::Cables},
        {QStringLiteral("nvp"), Tables::Cables},
        {QStringLiteral("temperature"), Tables::Cables},
        {QStringLiteral("attachment"), Tables::Cables},
        {QStringLiteral("attachment_size"), Tables::Cables},
        {QStringLiteral("attachment_sha256"), Tables::Cables},
        {QStringLiteral("link_speed"), Tables::ActivePorts},
        {QStringLiteral("duplex"), Tables::ActivePorts},
        {QStringLiteral("peer_address"), Tables::ActivePorts},
    }};
    return rows;
}

} // namespace

QString resultsColumnName(ResultsColumn column)
{
    return columnRows()[std::size_t(column)].name;
}

std::optional<ResultsColumn> resultsColumnOfName(const QString &name)
{
    const auto &rows = columnRows();
    const auto found =
        std::find_if(rows.cbegin(), rows.cend(), [&name](const ColumnRow &row) { return row.name == name; });
    return found == rows.cend() ? std::nullopt : std::make_optional(ResultsColumn(found - rows.cbegin()));
}

bool isColumnOf(ResultsColumn column, bool ofActivePorts)
{
    const Tables tables = columnRows()[std::size_t(column)].tables;
    return tables == Tables::Both || (tables == Tables::ActivePorts) == ofActivePorts;
}

ResultsColumn lengthColumn(int pair)
{
    return ResultsColumn(int(ResultsColumn::Length12) + pair);
}

const QVector<DetailColumn> &detailColumns()
{
    using F = TestDetailsFields;
    static const QVector<DetailColumn> columns{
        {ResultsColumn::Operator, &F::operatorName},
        {ResultsColumn::Limit, &F::limit},
        {ResultsColumn::Standard, &F::standard},
        {ResultsColumn::LinkType, &F::linkType},
        {ResultsColumn::Nvp, &F::nvp},
        {ResultsColumn::Temperature, &F::temperature},
    };
    return columns;
}

const QVector<ParameterColumn> &parameterColumns()
{
    using P = TestParameter;
    static const QVector<ParameterColumn> columns{
        {QStringLiteral("m:"), &P::margin, true},    {QStringLiteral("v:"), &P::value, true},
        {QStringLiteral("f:"), &P::frequency, true}, {QStringLiteral("p:"), &P::pair, false},
        {QStringLiteral("e:"), &P::end, false},
    };
    return columns;
}

} // namespace cabledoc
