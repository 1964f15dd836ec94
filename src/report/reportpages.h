#pragma once

#include "blocklayout.h"

#include <functional>
#include <memory>

namespace cabledoc {

/// What all pages of a report share.
struct PageStyle
{
    QSizeF paper;         ///< in millimetres
    double zoom = 1.0;    ///< 2.0 makes everything on the paper twice as large
    QString contractor;   ///< stands at the top of each page but the first
    QString subject;      ///< what the report is, at the top of each page but the first
    QString date;         ///< stands at the bottom of each page
    QByteArray logo = {}; ///< content of a picture file for the first page, or empty
};

/// Divides a report among pages. A table is divided between rows, and its heading stands on each page.
///
/// The numbers of the pages are only known when the report has been laid out. A report is therefore laid out twice, and
/// the numbers of the first time are used in the second one.
class ReportPages
{
public:
    using Output = std::function<void(const Scene &page)>;

    /// The numbers have those of the first time. Each page goes to the output.
    ReportPages(const PageStyle &style, const TextMeasure &measure, PageNumbers numbers, Output output);
    ~ReportPages();
    Q_DISABLE_COPY(ReportPages)

    void add(const ReportGroup &group);
    /// Finishes the last page. Returns where the groups are.
    PageNumbers finish();

private:
    struct Data;

    const std::unique_ptr<Data> d;
};

} // namespace cabledoc
