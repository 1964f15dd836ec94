#pragma once

#include "scene.h"

#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <functional>
#include <optional>
#include <variant>

/// The parts of a report, before it is known what kind of file it becomes.
namespace cabledoc {

/// A line above what follows.
struct HeadingBlock
{
    enum Level {
        Title,   ///< of the report
        Chapter, ///< of a part of the report
        Subject, ///< of a cable or table
        Minor,   ///< of a table that belongs to a subject
    };

    QString text;
    Level level = Chapter;
    QString verdict = {}; ///< what stands at the end of the line, in the colour of the verdict, or empty
};

/// A text, which is broken into lines.
struct ParagraphBlock
{
    QString text;
};

/// Names with their values, and perhaps a picture beside them.
struct FactsBlock
{
    QVector<QPair<QString, QString>> facts;
    std::optional<Scene> picture = {};
    int columns = 1; ///< how many stand side by side
};

/// A column of a table.
struct ReportColumn
{
    QString heading;
    enum Kind {
        Text,
        Number,  ///< is set to the right
        Verdict, ///< has the colour of the verdict
        Page,    ///< the pages of the targets. Only reports with pages have the column.
    };
    Kind kind = Text;
};

/// A field of a table.
struct ReportCell
{
    QString text;
    QString target = {}; ///< anchor of the group to which the field leads, or empty
};

using ReportRow = QVector<ReportCell>;

/// A table. Its rows are made when they are needed.
struct TableBlock
{
    QVector<ReportColumn> columns;
    int rowCount = 0;
    std::function<ReportRow(int row)> row;
};

/// A picture of its own. Its size is that of the scene.
struct FigureBlock
{
    Scene scene;
};

using ReportBlock = std::variant<HeadingBlock, ParagraphBlock, FactsBlock, TableBlock, FigureBlock>;

/// Blocks that stay together on a page if they fit on one.
struct ReportGroup
{
    QString anchor;          ///< name of the group, to which fields of tables can lead, or empty
    bool startsPage = false; ///< whether the group begins on a new page
    QVector<ReportBlock> blocks;
};

/// A place in the outline of a report.
struct ReportOutlineEntry
{
    QString title;
    QString anchor;
    int level = 0; ///< 0 for the entries that are always seen
};

/// Takes the groups of a report, one after the other.
using ReportSink = std::function<void(const ReportGroup &group)>;

/// Returns the colour of a verdict.
QColor verdictColor(const QString &verdict);

} // namespace cabledoc
