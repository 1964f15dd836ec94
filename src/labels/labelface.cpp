#include "labelface.h"

#include "labelcode.h"
#include "labeltext.h"
#include "units.h"

#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

constexpr double pointsInAnInch = 72.0;
constexpr double smallestText = 5.0 / pointsInAnInch * millimetersInAnInch;
constexpr double usualText = 4.5;       ///< largest size of the first line on a small label
constexpr double textOfHeight = 0.25;   ///< the same on a large label, in parts of the height of its text
constexpr double furtherLines = 0.75;   ///< size of the other lines, in parts of that of the first one
constexpr double lineSpacing = 1.2;     ///< from line to line, in parts of the size of the font
constexpr double baseline = 0.87;       ///< from the top of a line to its baseline, in the same unit
constexpr double padding = 1.5;         ///< between the edge of a label and its content, on sheets
constexpr double tapePadding = 2.0;     ///< the same at the ends of a label on a tape
constexpr double unprintableEdge = 5.0; ///< of a sheet, where many printers cannot print

// Modules are whole dots of a printer with 600 dots to the inch.
constexpr double dot = millimetersInAnInch / 600;
constexpr int leastQrDots = 6;
constexpr int mostQrDots = 12;
constexpr int leastBarDots = 5;
constexpr int mostBarDots = 8;
constexpr double qrQuietZone = 4.0;       ///< the light zone around a QR code, in modules
constexpr double barQuietZone = 10.0;     ///< the light zone at both ends of a bar code, in modules
constexpr double largestQrPart = 1.0 / 3; ///< of the width of a label, unless the smallest QR code is wider
constexpr double barsOfHeight = 0.4;      ///< height of bars, in parts of that of the content
constexpr double leastBars = 3.0;
constexpr double gapAboveBars = 0.6;

QRectF contentOf(const LabelFormat &format)
{
    const QRectF printed = format.printedPart();
    if (format.isTape())
        return printed.adjusted(tapePadding, 0.0, -tapePadding, 0.0);
    const double x = std::max(padding, unprintableEdge - format.first.x());
    const double y = std::max(padding, unprintableEdge - format.first.y());
    return printed.adjusted(x, y, -x, -y);
}

// What is needed is rounded up, and what there is down, so that messages make sense.
constexpr double parts = 10.0;

QString needed(double millimeters)
{
    return QString::number(std::ceil(millimeters * parts) / parts, 'f', 1);
}

QString available(double millimeters)
{
    return QString::number(std::floor(millimeters * parts) / parts, 'f', 1);
}

} // namespace

LabelFaces::LabelFaces(const LabelFormat &format, LabelCode code)
    : m_format(format)
    , m_code(code)
    , m_white(format.isTape() ? QRectF(QPointF(), format.label) : format.printedPart())
    , m_content(contentOf(format))
{
}

LabelFace LabelFaces::face(const ElementLabel &label) const
{
    LabelFace face;
    face.size = m_format.label;
    Layout layout;
    layout.text = m_content;
    CodeGrid grid;
    if (m_code == LabelCode::None) {
        face.problems = fitLines(label.lines, &layout);
    } else {
        grid = encode(label.code, m_code);
        face.problems = grid.error.isEmpty() ? fitWithCode(grid, label.lines, &layout) : QStringList(grid.error);
    }
    if (!face.problems.isEmpty())
        return face;
    if (m_format.isTape())
        shortenTape(&layout, &face);
    face.shapes = shapesOf(grid, layout);
    return face;
}

/// Finds the largest modules with which a code fits on the label beside the lines. Returns what is wrong.
QStringList LabelFaces::fitWithCode(const CodeGrid &grid, const QStringList &lines, Layout *layout) const
{
    const bool isQr = m_code == LabelCode::Qr;
    const int least = isQr ? leastQrDots : leastBarDots;
    QStringList problems{tooLarge(grid)};
    for (int dots = isQr ? mostQrDots : mostBarDots; dots >= least; --dots) {
        Layout tried = *layout;
        if (!(isQr ? placeQr(grid, dots * dot, &tried) : placeBars(grid, dots * dot, &tried)))
            continue;
        problems = fitLines(lines, &tried);
        if (!problems.isEmpty())
            continue;
        *layout = tried;
        if (!isQr)
            layout->code.translate(0.0, (tried.textHeight - tried.text.height()) / 2);
        return {};
    }
    return problems;
}

/// Returns the message about a code that does not fit even with the smallest modules.
QString LabelFaces::tooLarge(const CodeGrid &grid) const
{
    const bool isQr = m_code == LabelCode::Qr;
    const double module = (isQr ? leastQrDots : leastBarDots) * dot;
    const double quiet = (isQr ? qrQuietZone : barQuietZone) * module;
    const double width = std::min(m_white.width(), m_content.width() + 2 * quiet);
    const double height = std::min(m_white.height(), m_content.height() + 2 * quiet);
    return LabelText::tr("the code with its light zone needs %1 mm, and the label has room for %2 mm")
        .arg(needed(grid.columns * module + 2 * quiet), available(isQr ? std::min(width, height) : width));
}

/// Places a QR code at the left of the label. Returns whether it fits.
bool LabelFaces::placeQr(const CodeGrid &grid, double module, Layout *layout) const
{
    const double side = grid.columns * module;
    const double quiet = qrQuietZone * module;
    const double left = std::max(m_content.left(), m_white.left() + quiet);
    const double right = left + side + quiet;
    const bool isSmallest = module < (leastQrDots + 1) * dot;
    const bool leavesRoom = right - m_white.left() <= largestQrPart * m_white.width() || isSmallest;
    if (side > m_content.height() || side + 2 * quiet > m_white.height() || right >= m_content.right() || !leavesRoom)
        return false;
    layout->module = module;
    layout->code = QRectF(left, m_content.center().y() - side / 2, side, side);
    layout->text.setLeft(right);
    return true;
}

/// Places a bar code at the bottom of the label. Returns whether it fits.
bool LabelFaces::placeBars(const CodeGrid &grid, double module, Layout *layout) const
{
    const double width = grid.columns * module;
    if (width > m_content.width() || width + 2 * barQuietZone * module > m_white.width())
        return false;
    const double height = std::max(leastBars, barsOfHeight * m_content.height());
    layout->module = module;
    layout->code = QRectF(m_content.center().x() - width / 2, m_content.bottom() - height, width, height);
    layout->text.setBottom(layout->code.top() - gapAboveBars);
    return true;
}

/// Finds the sizes of the lines. Returns what is wrong with them.
QStringList LabelFaces::fitLines(const QStringList &lines, Layout *layout) const
{
    const int further = int(lines.size()) - 1;
    const double room = layout->text.height() / lineSpacing;
    double first = room / (1.0 + furtherLines * further);
    if (first * furtherLines < smallestText)
        first = room - further * smallestText;
    first = std::min(first, std::max(usualText, textOfHeight * layout->text.height()));
    if (first < smallestText)
        return {LabelText::tr("%1 lines are %2 mm high at 5 points, and the label has room for %3 mm")
                    .arg(QString::number(lines.size()), needed((further + 1) * smallestText * lineSpacing),
                         available(layout->text.height()))};
    QStringList problems;
    for (const QString &text : lines) {
        SceneText line;
        line.text = text;
        line.isBold = layout->lines.isEmpty();
        line.size = line.isBold ? first : std::max(smallestText, first * furtherLines);
        problems.append(fitLine(&line, layout->text.width()));
        layout->lines.append(line);
    }
    problems.removeAll(QString());
    alignSizes(layout);
    return problems;
}

/// Gives all lines after the first one the size of the smallest of them.
void LabelFaces::alignSizes(Layout *layout)
{
    double smallest = usualText;
    for (const SceneText &line : std::as_const(layout->lines))
        smallest = line.isBold ? line.size : std::min(smallest, line.size);
    layout->textHeight = 0.0;
    for (SceneText &line : layout->lines) {
        const double size = line.isBold ? line.size : smallest;
        line.width *= size / line.size;
        line.size = size;
        layout->textHeight += size * lineSpacing;
    }
}

/// Makes a line smaller if it is wider than its room. Returns what is wrong with it, or an empty string.
QString LabelFaces::fitLine(SceneText *line, double width) const
{
    const QString missing = m_missing.firstOf(line->text);
    if (!missing.isEmpty())
        return LabelText::tr("no font has the character %1").arg(missing);
    m_measure.measure(line);
    if (line->width > width) {
        line->size *= width / line->width;
        line->width = width;
    }
    if (line->size >= smallestText)
        return {};
    return LabelText::tr("\"%1\" is %2 mm wide at 5 points, and the label has room for %3 mm")
        .arg(line->text, needed(width * smallestText / line->size), available(width));
}

/// Ends a label of a tape where its text and code end.
void LabelFaces::shortenTape(Layout *layout, LabelFace *face) const
{
    double textWidth = 0.0;
    for (const SceneText &line : layout->lines)
        textWidth = std::max(textWidth, line.width);
    const double right = m_format.label.width() - m_content.right();
    double length = layout->text.left() + textWidth + right;
    if (m_code == LabelCode::Code128)
        length = std::max(length, layout->code.width() + 2 * std::max(right, barQuietZone * layout->module));
    if (m_code == LabelCode::Code128)
        layout->code.moveLeft((length - layout->code.width()) / 2);
    layout->text.setRight(length - right);
    face->size.setWidth(length);
}

QVector<SceneShape> LabelFaces::shapesOf(const CodeGrid &grid, const Layout &layout) const
{
    QVector<SceneShape> shapes;
    const double moduleHeight = m_code == LabelCode::Qr ? layout.module : layout.code.height();
    const QTransform place(layout.module, 0.0, 0.0, moduleHeight, layout.code.left(), layout.code.top());
    const LineStyle none{QColor(), 0.0, LineStyle::Solid};
    for (const CodeArea &area : areasOf(grid))
        shapes.append(SceneArea{place.map(area.corners), area.isDark ? Qt::black : Qt::white, none});
    double top = layout.text.center().y() - layout.textHeight / 2;
    for (SceneText line : layout.lines) {
        const double indent = m_code == LabelCode::Qr ? 0.0 : (layout.text.width() - line.width) / 2;
        line.position = QPointF(layout.text.left() + indent, top + baseline * line.size);
        top += line.size * lineSpacing;
        shapes.append(line);
    }
    return shapes;
}

} // namespace cabledoc
