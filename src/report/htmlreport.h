#pragma once

#include "reportblocks.h"

#include <QtCore/QSizeF>

namespace cabledoc {

/// What is at the top and at the bottom of an HTML report.
struct HtmlStyle
{
    QString subject;
    QString date;
    QSizeF paper; ///< on which the report is printed, in millimetres
    QByteArray logo;
};

/// Writes a report as HTML, piece by piece.
class HtmlReport
{
public:
    using Output = std::function<void(const QByteArray &piece)>;

    HtmlReport(const HtmlStyle &style, Output output);

    void add(const ReportGroup &group);
    void finish();

private:
    void write(const QString &text) { m_output(text.toUtf8()); }

    const HtmlStyle m_style;
    const Output m_output;
};

} // namespace cabledoc
