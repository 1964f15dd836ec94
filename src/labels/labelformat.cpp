#include "labelformat.h"

#include "units.h"

#include <algorithm>

namespace cabledoc {

namespace {

constexpr QSizeF a4(210.0, 297.0);
constexpr QSizeF letter(8.5 * millimetersInAnInch, 11.0 * millimetersInAnInch);

LabelFormat sheet(const char *name, const QSizeF &paper, int columns, int rows, const QSizeF &label,
                  const QPointF &first, const QSizeF &pitch, const QRectF &printed = {})
{
    return {QString::fromLatin1(name), paper, label, columns, rows, first, pitch, printed};
}

/// Returns a format whose lengths are in inches.
LabelFormat sheetInInches(const char *name, int columns, int rows, const QSizeF &label, const QPointF &first,
                          const QSizeF &pitch, double printedHeight = 0.0)
{
    constexpr double inch = millimetersInAnInch;
    return sheet(name, letter, columns, rows, label * inch, first * inch, pitch * inch,
                 QRectF(0.0, 0.0, label.width() * inch, printedHeight * inch));
}

/// Returns a tape. Printers leave a margin at its edges.
LabelFormat tape(const char *name, double width, double printedWidth)
{
    constexpr double longest = 150.0;
    return {QString::fromLatin1(name),
            {},
            {longest, width},
            1,
            1,
            {},
            {},
            {0.0, (width - printedWidth) / 2, longest, printedWidth}};
}

} // namespace

QRectF LabelFormat::place(int number) const
{
    const int row = number / columns;
    const int column = number % columns;
    const QPointF distance(column * pitch.width(), row * pitch.height());
    return {first + distance, label};
}

const QVector<LabelFormat> &labelFormats()
{
    // The columns: paper, columns, rows, size of a label, left upper corner of the first one, distance to the next
    static const QVector<LabelFormat> formats{
        sheet("a4-2x7", a4, 2, 7, {99.1, 38.1}, {4.65, 15.15}, {101.6, 38.1}),
        sheet("a4-3x7", a4, 3, 7, {63.5, 38.1}, {7.2, 15.15}, {66.04, 38.1}),
        sheet("a4-3x8", a4, 3, 8, {70.0, 37.0}, {0.0, 0.5}, {70.0, 37.0}),
        sheet("a4-3x8-gap", a4, 3, 8, {63.5, 33.9}, {7.2, 12.9}, {66.04, 33.9}),
        sheet("a4-4x10", a4, 4, 10, {52.5, 29.7}, {0.0, 0.0}, {52.5, 29.7}),
        sheet("a4-4x12", a4, 4, 12, {45.7, 21.2}, {9.75, 21.3}, {48.26, 21.2}),
        sheet("a4-4x16", a4, 4, 16, {48.5, 16.9}, {8.0, 13.3}, {48.5, 16.9}),
        sheet("a4-5x13", a4, 5, 13, {38.1, 21.2}, {4.67, 10.7}, {40.64, 21.2}),
        sheet("a4-7x27", a4, 7, 27, {25.4, 10.0}, {8.6, 13.5}, {27.9, 10.0}),
        sheet("a4-wrap-7x8", a4, 7, 8, {25.4, 33.9}, {8.48, 11.55}, {27.94, 34.29}, {0.0, 0.0, 25.4, 12.7}),
        sheetInInches("letter-2x10", 2, 10, {4.0, 1.0}, {0.15625, 0.5}, {4.1875, 1.0}),
        sheetInInches("letter-3x10", 3, 10, {2.625, 1.0}, {0.1875, 0.5}, {2.75, 1.0}),
        sheetInInches("letter-4x20", 4, 20, {1.75, 0.5}, {0.28125, 0.5}, {2.0625, 0.5}),
        sheetInInches("letter-wrap-7x7", 7, 7, {1.0, 1.333}, {0.45, 0.7}, {1.1, 1.378}, 0.5),
        tape("tape-9", 9.0, 7.0),
        tape("tape-12", 12.0, 9.9),
        tape("tape-18", 18.0, 15.8),
        tape("tape-24", 24.0, 18.0),
    };
    return formats;
}

std::optional<LabelFormat> labelFormatOfName(const QString &name)
{
    const QVector<LabelFormat> &formats = labelFormats();
    const auto found = std::find_if(formats.cbegin(), formats.cend(),
                                    [&name](const LabelFormat &format) { return format.name == name; });
    return found == formats.cend() ? std::nullopt : std::optional<LabelFormat>(*found);
}

} // namespace cabledoc
