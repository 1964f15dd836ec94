#include "columnwidths.h"

#include <algorithm>
#include <numeric>

namespace cabledoc {

namespace {

/// Returns the widths of the texts in each column at the size 1.
QVector<double> textWidths(const TableBlock &table, const TextMeasure &measure)
{
    constexpr int measuredRows = 2000; // later rows that are wider are broken into lines
    QVector<double> widths;
    for (const ReportColumn &column : table.columns)
        widths.append(measure.width(column.heading, 1.0, true));
    const double pageWidth = measure.width(QStringLiteral("00000"), 1.0);
    for (int row = 0; row < std::min(table.rowCount, measuredRows); ++row) {
        const ReportRow cells = table.row(row);
        for (int i = 0; i < widths.size(); ++i) {
            const bool isPage = table.columns.at(i).kind == ReportColumn::Page;
            const bool isBold = table.columns.at(i).kind == ReportColumn::Verdict;
            const double needed = isPage ? pageWidth : measure.width(cells.value(i).text, 1.0, isBold);
            widths[i] = std::max(widths.at(i), needed);
        }
    }
    return widths;
}

} // namespace

TableMeasures measuresOf(const TableBlock &table, double size, double smallestSize, double padding, double width,
                         const TextMeasure &measure)
{
    QVector<double> widths = textWidths(table, measure);
    const double sum = std::accumulate(widths.cbegin(), widths.cend(), 0.0);
    const double room = width - double(widths.size()) * padding;
    if (sum * size > room)
        size = std::max(smallestSize, room / sum);
    for (double &column : widths)
        column = column * size + padding;
    QVector<int> order(widths.size());
    for (int i = 0; i < order.size(); ++i)
        order[i] = i;
    std::sort(order.begin(), order.end(), [&widths](int a, int b) { return widths.at(a) < widths.at(b); });
    double left = width;
    for (int i = 0; i < order.size(); ++i) {
        const double share = left / double(order.size() - i);
        double &column = widths[order.at(i)];
        column = std::min(column, share);
        left -= column;
    }
    return {size, widths};
}

} // namespace cabledoc
