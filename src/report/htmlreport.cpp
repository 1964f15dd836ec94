#include "htmlreport.h"

#include "reportcontent.h"
#include "svgfigure.h"

#include <QtCore/QLocale>

#include <utility>

namespace cabledoc {

namespace {

/// Returns a text with the characters that have a meaning in HTML replaced. Control characters, which HTML does not
/// allow, become blanks.
QString escaped(const QString &text)
{
    QString allowed = text;
    for (QChar &character : allowed) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return allowed.toHtmlEscaped();
}

/// Returns an element with a text.
QString element(const QString &name, const QString &text, const QString &attributes = {})
{
    return QStringLiteral("<%1%2>").arg(name, attributes) + escaped(text) + QStringLiteral("</%1>").arg(name);
}

QString colored(const QString &verdict)
{
    return QStringLiteral(" style=\"color:%1;font-weight:bold\"").arg(verdictColor(verdict).name());
}

QString htmlOf(const HeadingBlock &heading)
{
    const QString name = QLatin1Char('h') + QString::number(int(heading.level) + 1);
    QString text = escaped(heading.text);
    if (!heading.verdict.isEmpty())
        text += element(QStringLiteral("span"), heading.verdict,
                        QStringLiteral(" class=\"verdict\"") + colored(heading.verdict));
    return QStringLiteral("<%1>%2</%1>\n").arg(name, text);
}

QString htmlOf(const ParagraphBlock &paragraph)
{
    return element(QStringLiteral("p"), paragraph.text) + QLatin1Char('\n');
}

QString htmlOf(const FigureBlock &figure)
{
    return QString::fromUtf8(svgFigure(figure.scene)) + QLatin1Char('\n');
}

QString htmlOf(const FactsBlock &block)
{
    QString html = QStringLiteral("<div class=\"facts\"><dl style=\"columns:%1\">\n").arg(block.columns);
    for (const auto &[name, value] : block.facts)
        html += QStringLiteral("<div>") + element(QStringLiteral("dt"), name) + element(QStringLiteral("dd"), value)
                + QStringLiteral("</div>\n");
    html += QStringLiteral("</dl>\n");
    if (block.picture)
        html += htmlOf(FigureBlock{*block.picture});
    return html + QStringLiteral("</div>\n");
}

QString htmlOfCell(const ReportColumn &column, const ReportCell &cell)
{
    constexpr int mostInALine = 16; // characters; browsers would divide names and dates at their hyphens
    QStringList classes;
    if (column.kind == ReportColumn::Number)
        classes.append(QStringLiteral("number"));
    if (cell.text.size() <= mostInALine)
        classes.append(QStringLiteral("short"));
    QString attributes = QStringLiteral(" class=\"%1\"").arg(classes.join(QLatin1Char(' ')));
    if (column.kind == ReportColumn::Verdict)
        attributes += colored(cell.text);
    if (cell.target.isEmpty())
        return element(QStringLiteral("td"), cell.text, attributes);
    const QString link =
        element(QStringLiteral("a"), cell.text, QStringLiteral(" href=\"#%1\"").arg(escaped(cell.target)));
    return QStringLiteral("<td%1>%2</td>").arg(attributes, link);
}

QString htmlOf(const TableBlock &table)
{
    QString html = QStringLiteral("<table>\n<thead><tr>");
    for (const ReportColumn &column : table.columns) {
        if (column.kind != ReportColumn::Page)
            html += element(QStringLiteral("th"), column.heading,
                            column.kind == ReportColumn::Number ? QStringLiteral(" class=\"number\"") : QString());
    }
    html += QStringLiteral("</tr></thead>\n<tbody>\n");
    for (int row = 0; row < table.rowCount; ++row) {
        const ReportRow cells = table.row(row);
        html += QStringLiteral("<tr>");
        for (int i = 0; i < table.columns.size(); ++i) {
            if (table.columns.at(i).kind != ReportColumn::Page)
                html += htmlOfCell(table.columns.at(i), cells.value(i));
        }
        html += QStringLiteral("</tr>\n");
    }
    return html + QStringLiteral("</tbody></table>\n");
}

QString styleSheet(const QSizeF &paper)
{
    return QStringLiteral(R"(
@page { size: %1mm %2mm; margin: 14mm; }
body { font: 10pt/1.4 "DejaVu Sans", sans-serif; max-width: 66em; margin: 2em auto; padding: 0 1em; color: #000; }
h1 { font-size: 2.2em; margin: 0 0 0.6em; }
h2 { font-size: 1.5em; }
h3 { font-size: 1.15em; border-top: 1.5px solid #404040; padding-top: 0.4em; margin: 1.4em 0 0.4em; }
h4 { font-size: 1em; margin: 1em 0 0.3em; }
section { break-inside: avoid; }
section.page { break-before: page; break-inside: auto; }
.verdict { float: right; }
.logo { float: right; max-width: 45mm; max-height: 18mm; }
.facts { display: flex; gap: 2em; align-items: flex-start; margin-bottom: 0.8em; }
dl { flex: 1; margin: 0; }
dl div { display: flex; gap: 1em; break-inside: avoid; }
dt { flex: 0 0 7em; color: #5a5a5a; }
dd { margin: 0; overflow-wrap: anywhere; }
td, dd, h3 { white-space: pre-wrap; } /* names may have several blanks */
table { border-collapse: collapse; margin: 0.6em 0 1em; font-size: 0.92em; }
th { text-align: left; border-bottom: 1.5px solid #404040; }
th, td { padding: 0.15em 0.7em; vertical-align: top; overflow-wrap: anywhere; }
.short { white-space: pre; }
td { border-bottom: 1px solid #c8c8c8; }
.number { text-align: right; }
a { color: #1f4e8c; text-decoration: none; }
svg { max-width: 100%; height: auto; }
@media print { body { font-size: 8pt; max-width: none; margin: 0; padding: 0; } }
footer { color: #5a5a5a; margin-top: 2em; font-size: 0.85em; }
)")
        .arg(paper.width())
        .arg(paper.height());
}

} // namespace

HtmlReport::HtmlReport(const HtmlStyle &style, Output output)
    : m_style(style)
    , m_output(std::move(output))
{
    const QString language = QLocale().name().section(QLatin1Char('_'), 0, 0);
    write(QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n<meta charset=\"utf-8\">\n"
                         "<meta name=\"viewport\" content=\"width=device-width\">\n")
              .arg(language == QLatin1String("C") ? QStringLiteral("en") : language));
    write(element(QStringLiteral("title"), m_style.subject) + QStringLiteral("\n<style>") + styleSheet(m_style.paper)
          + QStringLiteral("</style>\n</head>\n<body>\n"));
    if (!m_style.logo.isEmpty())
        write(QStringLiteral("<img class=\"logo\" alt=\"\" src=\"%1\">\n").arg(dataAddress(m_style.logo)));
}

void HtmlReport::add(const ReportGroup &group)
{
    write(QStringLiteral("<section%1%2>\n")
              .arg(group.anchor.isEmpty() ? QString() : QStringLiteral(" id=\"%1\"").arg(escaped(group.anchor)),
                   group.startsPage ? QStringLiteral(" class=\"page\"") : QString()));
    for (const ReportBlock &block : group.blocks)
        write(std::visit([](const auto &actual) { return htmlOf(actual); }, block));
    write(QStringLiteral("</section>\n"));
}

void HtmlReport::finish()
{
    write(element(QStringLiteral("footer"), m_style.date) + QStringLiteral("\n</body>\n</html>\n"));
}

} // namespace cabledoc
