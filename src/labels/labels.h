#pragma once

#include "cabledoc_export.h"
#include "csvoptions.h"
#include "drawingoptions.h"
#include "labelformat.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

namespace cabledoc {

class ElementTable;

/// The codes that labels can have beside their text.
enum class LabelCode {
    None,    ///< no code
    Qr,      ///< QR code. Texts with other characters than those of ASCII are marked as UTF-8.
    Code128, ///< bar code that holds the characters of ASCII
};

/// How labels are made.
struct LabelOptions
{
    /// Text of a label, a pattern as LabelPattern describes it. If it is empty, defaultLabelPattern() is used. The
    /// first line is bold and larger than the others.
    QString pattern;
    /// Text of the code, a pattern like that of the label. If it is empty, defaultCodePattern() is used.
    QString codePattern;
    /// Code on each label.
    LabelCode code = LabelCode::None;
    /// Whether each element gets a second label, for its other end. Only cables have ends. On the second label, the
    /// fields whose names begin with "near_" and "far_" change places.
    bool bothEnds = false;
    /// Number of equal labels of each kind. A number below 1 counts as 1.
    int copies = 1;
    /// Regular expression that is searched in the text of each label. There, "^" and "$" are the beginning and the end
    /// of a line. If it is empty, nothing is searched.
    QString check;
    /// Format of the labels. Without it, nothing is drawn, and it is not checked whether the texts fit.
    std::optional<LabelFormat> format;
    /// Place of the first label on the first sheet, counted from 1 in rows from left to right.
    int start = 1;
    /// Whether the edges of the labels are drawn, for a test on plain paper.
    bool outlines = false;
};

/// The label of an element.
struct ElementLabel
{
    int row = 0;       ///< row of the element in the table
    int end = 1;       ///< 1 or 2, the end of the cable for which the label is
    QStringList lines; ///< the text line by line
    QString code;      ///< text of the code, which is made also for LabelOptions with no code
};

/// Why labels cannot be printed.
struct LabelProblem
{
    QString element; ///< name of the element, as ElementTable::name() returns it
    QString message; ///< translated description
};

/// The labels of elements.
struct LabelResult
{
    /// Why there are no labels, or an empty string. The options are wrong.
    QString error;
    /// What is wrong with single labels.
    QVector<LabelProblem> problems;
    /// The labels in the order of the rows, without copies.
    QVector<ElementLabel> labels;
    /// The sheets, ready to be written with writePdf() or writeSvg(). There are none if there are problems or no
    /// format, or if the fonts cannot be loaded.
    DrawingResult sheets;
};

/// Returns the names of the fields that patterns can have: the columns of the table. A table with ends also has fields
/// such as "near_port" and "far_port": they are "from_port" and "to_port", or on the label of the second end the other
/// way round.
CABLEDOC_EXPORT QStringList labelFields(const ElementTable &table);
/// Returns the pattern of labels without one: "{id}", and below it the room, floor or sheet if the table has such a
/// column.
CABLEDOC_EXPORT QString defaultLabelPattern(const ElementTable &table);
/// Returns the pattern of codes without one: "{id}", or the whole name of elements that are in a room, on a floor or on
/// a sheet, such as "{floor}/{room}/{id}".
CABLEDOC_EXPORT QString defaultCodePattern(const ElementTable &table);

/// Makes the labels of the elements in the given rows of a table, and checks them. It is a problem if
/// - two elements have the same text or code,
/// - a text is empty or does not have the form of LabelOptions::check,
/// - a text or code does not fit on the label. A line that is too wide is set smaller, but not smaller than 5 points. A
///   QR code has modules of at least 0.25 mm, and Code 128 of at least 0.21 mm,
/// - the code cannot hold its text, or no font has a character.
///
/// A program that gives a format must have a QGuiApplication.
CABLEDOC_EXPORT LabelResult makeLabels(const ElementTable &table, const QVector<int> &rows,
                                       const LabelOptions &options);

/// Returns labels as CSV, for label printers and testers. The columns are "line_1", "line_2" and so on with the text,
/// "code", "end" with 1 or 2, and the given columns of the table. There is a row for each label, without copies.
CABLEDOC_EXPORT QByteArray labelsToCsv(const ElementTable &table, const QVector<ElementLabel> &labels,
                                       const QVector<int> &columns, const CsvStyle &style = {});

} // namespace cabledoc
