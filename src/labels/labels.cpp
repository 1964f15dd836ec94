#include "labels.h"

#include "elementtable.h"
#include "labelface.h"
#include "labelpattern.h"
#include "labeltext.h"
#include "texthash.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace cabledoc {

namespace {

bool hasColumn(const ElementTable &table, const char *name)
{
    return table.columnOf(QLatin1String(name)) >= 0;
}

bool hasEnds(const ElementTable &table)
{
    return hasColumn(table, "from_port");
}

/// Returns the name with another beginning, if it is one of an end.
QString withBeginning(const QString &name, const char *before, const char *after)
{
    const QLatin1String beginning(before);
    return name.startsWith(beginning) ? QLatin1String(after) + name.mid(beginning.size()) : name;
}

/// Returns the column that a field stands for on the label of an end.
QString columnOf(const QString &field, int end)
{
    const QString near = withBeginning(field, "near_", end == 1 ? "from_" : "to_");
    return withBeginning(near, "far_", end == 1 ? "to_" : "from_");
}

/// Makes and checks labels.
class LabelMaker
{
public:
    LabelMaker(const ElementTable &table, const LabelOptions &options)
        : m_table(table)
        , m_options(options)
        , m_fields(labelFields(table))
        , m_pattern(options.pattern.isEmpty() ? defaultLabelPattern(table) : options.pattern)
        , m_codePattern(options.codePattern.isEmpty() ? defaultCodePattern(table) : options.codePattern)
        , m_check(options.check, QRegularExpression::MultilineOption)
    {
    }

    LabelResult make(const QVector<int> &rows)
    {
        LabelResult result;
        result.error = wrongOptions();
        if (!result.error.isEmpty())
            return result;
        for (const int row : rows) {
            for (int end = 1; end <= (m_options.bothEnds ? 2 : 1); ++end)
                result.labels.append({row, end, m_pattern.lines(valueOf(row, end)),
                                      m_codePattern.lines(valueOf(row, end)).join(QLatin1Char('\n'))});
        }
        checkTexts(&result);
        if (m_options.format)
            draw(&result);
        return result;
    }

private:
    std::function<QString(const QString &)> valueOf(int row, int end) const
    {
        return [this, row, end](const QString &field) {
            return m_table.text(row, m_table.columnOf(columnOf(field, end)));
        };
    }

    QString wrongOptions() const
    {
        for (const LabelPattern *pattern : {&m_pattern, &m_codePattern}) {
            if (!pattern->error().isEmpty())
                return pattern->error();
            for (const QString &field : pattern->fields()) {
                if (!m_fields.contains(field))
                    return LabelText::tr("there is no field \"%1\"").arg(field);
            }
        }
        if (!m_check.isValid())
            return LabelText::tr("\"%1\" is not a regular expression").arg(m_options.check);
        if (m_options.bothEnds && !hasEnds(m_table))
            return LabelText::tr("only cables have two ends");
        const int places = m_options.format ? m_options.format->labelsOnSheet() : 1;
        if (m_options.start < 1 || (m_options.format && m_options.start > places))
            return LabelText::tr("a sheet has the places 1 to %1").arg(places);
        return {};
    }

    void addProblem(LabelResult *result, const ElementLabel &label, const QString &message) const
    {
        const LabelProblem problem{m_table.name(label.row), message};
        // The labels of both ends often have the same problem.
        const bool isKnown = !result->problems.isEmpty() && result->problems.constLast().element == problem.element
                             && result->problems.constLast().message == problem.message;
        if (!isKnown)
            result->problems.append(problem);
    }

    void checkTexts(LabelResult *result) const
    {
        TextMap<int> rowOfText;
        TextMap<int> rowOfCode;
        for (const ElementLabel &label : std::as_const(result->labels)) {
            const QString text = label.lines.join(QLatin1Char('\n'));
            if (text.isEmpty()) {
                addProblem(result, label, LabelText::tr("the label has no text"));
                continue;
            }
            const int first = rowOfText.try_emplace(text, label.row).first->second;
            const int firstCode = rowOfCode.try_emplace(label.code, label.row).first->second;
            if (first != label.row)
                addProblem(result, label,
                           LabelText::tr("\"%1\" has a label with the same text").arg(m_table.name(first)));
            else if (m_options.code != LabelCode::None && firstCode != label.row)
                addProblem(result, label, LabelText::tr("\"%1\" has the same code").arg(m_table.name(firstCode)));
            if (!m_check.match(text).hasMatch())
                addProblem(result, label, LabelText::tr("\"%1\" does not have the form %2").arg(text, m_options.check));
        }
    }

    /// Lays the labels out. Adds the sheets if there are no problems.
    void draw(LabelResult *result) const
    {
        result->sheets.error = loadDrawingFonts();
        if (!result->sheets.error.isEmpty())
            return;
        const LabelFaces layout(*m_options.format, m_options.code);
        QVector<LabelFace> faces;
        faces.reserve(result->labels.size());
        for (const ElementLabel &label : std::as_const(result->labels)) {
            if (label.lines.isEmpty())
                continue;
            faces.append(layout.face(label));
            for (const QString &problem : faces.constLast().problems)
                addProblem(result, label, problem);
        }
        if (result->problems.isEmpty())
            addSheets(result->labels, faces, &result->sheets.drawing);
    }

    void addSheets(const QVector<ElementLabel> &labels, const QVector<LabelFace> &faces, Drawing *drawing) const
    {
        drawing->title = LabelText::tr("Labels");
        const LabelFormat &format = *m_options.format;
        int place = m_options.start - 1;
        for (int i = 0; i < faces.size(); ++i) {
            for (int copy = 0; copy < std::max(1, m_options.copies); ++copy) {
                if (drawing->pages.isEmpty() || place == format.labelsOnSheet()) {
                    place = drawing->pages.isEmpty() ? place : 0;
                    const QSizeF paper = format.isTape() ? faces.at(i).size : format.paper;
                    drawing->pages.append({m_table.name(labels.at(i).row), paper, QRectF(QPointF(), paper), {}});
                }
                addFace(faces.at(i), format.place(place).topLeft(), &drawing->pages.last());
                ++place;
            }
        }
    }

    void addFace(const LabelFace &face, const QPointF &corner, Scene *page) const
    {
        static const LineStyle thin{QColor(0x80, 0x80, 0x80), 0.1, LineStyle::Solid};
        const QRectF edge(corner, face.size);
        if (m_options.outlines) {
            addToSheet(page, rectangle(edge, QColor(), thin));
            addToSheet(page, rectangle(m_options.format->printedPart().translated(corner) & edge, QColor(), thin));
        }
        for (const SceneShape &shape : face.shapes) {
            addToSheet(page, shape);
            moveBy(&page->items.last(), corner);
        }
    }

    const ElementTable &m_table;
    const LabelOptions &m_options;
    const QStringList m_fields;
    const LabelPattern m_pattern;
    const LabelPattern m_codePattern;
    const QRegularExpression m_check;
};

} // namespace

QStringList labelFields(const ElementTable &table)
{
    QStringList fields;
    QStringList ends;
    for (const ElementTable::Column &column : table.columns()) {
        fields.append(column.name);
        const QString near = withBeginning(column.name, "from_", "near_");
        const QString end = withBeginning(near, "to_", "far_");
        if (hasEnds(table) && end != column.name)
            ends.append(end);
    }
    return fields + ends;
}

QString defaultLabelPattern(const ElementTable &table)
{
    QString pattern = QStringLiteral("{id}");
    for (const char *name : {"room", "floor", "sheet"}) {
        if (hasColumn(table, name))
            pattern += QStringLiteral("\\n{%1}").arg(QLatin1String(name));
    }
    return pattern;
}

QString defaultCodePattern(const ElementTable &table)
{
    QString pattern;
    for (const char *name : {"sheet", "floor", "room"}) {
        if (hasColumn(table, name))
            pattern += QStringLiteral("{%1}/").arg(QLatin1String(name));
    }
    return pattern + QLatin1String("{id}");
}

LabelResult makeLabels(const ElementTable &table, const QVector<int> &rows, const LabelOptions &options)
{
    return LabelMaker(table, options).make(rows);
}

QByteArray labelsToCsv(const ElementTable &table, const QVector<ElementLabel> &labels, const QVector<int> &columns,
                       const CsvStyle &style)
{
    int lineCount = 1;
    for (const ElementLabel &label : labels)
        lineCount = std::max(lineCount, int(label.lines.size()));
    QStringList fields;
    for (int line = 1; line <= lineCount; ++line)
        fields.append(QStringLiteral("line_%1").arg(line));
    fields += {QStringLiteral("code"), QStringLiteral("end")};
    for (const int column : columns)
        fields.append(table.columns().at(column).name);
    QByteArray csv = csvBeginning(style) + csvLine(fields, style);
    for (const ElementLabel &label : labels) {
        fields = label.lines;
        while (fields.size() < lineCount)
            fields.append(QString());
        fields += {label.code, QString::number(label.end)};
        for (const int column : columns)
            fields.append(table.text(label.row, column));
        csv += csvLine(fields, style);
    }
    return csv;
}

} // namespace cabledoc
