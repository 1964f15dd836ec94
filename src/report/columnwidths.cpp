#include "columnwidths.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// Returns the natural width of each column.
QVector<double> naturalWidths(const TableBlock &table, double size, double padding, const TextMeasure &measure)
{
    constexpr int measuredRows = 2000; // later rows that are wider are broken into lines
    QVector<double> widths;
    for (const ReportColumn &column : table.columns)
        widths.append(measure.width(column.heading, size, true) + padding);
    const double pageWidth = measure.width(QStringLiteral("00000"), size) + padding;
    for (int row = 0; row < std::min(table.rowCount, measuredRows); ++row) {
        const ReportRow cells = table.row(row);
        for (int i = 0; i < widths.size(); ++i) {
            const bool isPage = table.columns.at(i).kind == ReportColumn::Page;
            const bool isBold = table.columns.at(i).kind == ReportColumn::Verdict;
            const double needed = isPage ? pageWidth : measure.width(cells.value(i).text, size, isBold) + padding;
            widths[i] = std::max(widths.at(i), needed);
        }
    }
    return widths;
}

} // namespace

QVector<double> columnWidths(const TableBlock &table, double size, double padding, double width,
                             const TextMeasure &measure)
{
    QVector<double> widths = naturalWidths(table, size, padding, measure);
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
    return widths;
}

} // namespace cabledoc
