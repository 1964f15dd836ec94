#include "labelcode.h"

#include "labeltext.h"

#include <zint.h>

#include <algorithm>
#include <array>
#include <memory>

namespace cabledoc {

namespace {

constexpr int utf8Interpretation = 26; ///< tells a reader that the text is UTF-8
constexpr int mediumCorrection = 2;    ///< 15 percent of a QR code may be unreadable

struct SymbolDeleter
{
    void operator()(zint_symbol *symbol) const { ZBarcode_Delete(symbol); }
};

bool isAscii(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar character) { return character >= QLatin1Char(' ') && character <= QLatin1Char('~'); });
}

/// Follows the edges between dark and light modules.
class EdgeFollower
{
public:
    explicit EdgeFollower(const CodeGrid &grid)
        : m_grid(grid)
        , m_isDone((grid.columns + 1) * (grid.rows + 1))
    {
    }

    QVector<CodeArea> follow()
    {
        QVector<CodeArea> areas;
        for (int row = 0; row < m_grid.rows; ++row) {
            for (int column = 0; column < m_grid.columns; ++column) {
                // The upper edge of a dark module leads to the right, and the lower edge of a hole does too.
                const bool isUpperEdge = m_grid.isDark(column, row) && !m_grid.isDark(column, row - 1);
                if (isUpperEdge && !isDone(column, row))
                    areas.append(followFrom(column, row));
            }
        }
        // A hole is drawn after what it is in.
        std::stable_sort(areas.begin(), areas.end(), [](const CodeArea &a, const CodeArea &b) {
            return sizeOf(a.corners.boundingRect()) > sizeOf(b.corners.boundingRect());
        });
        return areas;
    }

private:
    static double sizeOf(const QRectF &box) { return box.width() * box.height(); }

    bool &isDone(int column, int row) { return m_isDone[row * (m_grid.columns + 1) + column]; }

    /// Follows the upper edge of a module, and the edges after it until they close. Dark modules are on the right.
    CodeArea followFrom(int column, int row)
    {
        static constexpr std::array<std::array<int, 2>, 4> steps{{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
        CodeArea area;
        double doubleArea = 0.0;
        QPointF before(column, row);
        int x = column;
        int y = row;
        int direction = 0;
        do {
            if (direction == 0)
                isDone(x, y) = true;
            x += steps[std::size_t(direction)][0];
            y += steps[std::size_t(direction)][1];
            const int next = nextDirection(x, y, direction);
            if (next != direction) {
                const QPointF corner(x, y);
                doubleArea += before.x() * corner.y() - corner.x() * before.y();
                area.corners.append(corner);
                before = corner;
            }
            direction = next;
        } while (x != column || y != row || direction != 0);
        area.isDark = doubleArea > 0.0;
        return area;
    }

    /// Returns where the edge goes on from a corner. Dark modules that only touch at a corner are not joined.
    int nextDirection(int x, int y, int direction) const
    {
        // The modules ahead, to the right and to the left of the edge
        static constexpr std::array<std::array<int, 2>, 4> right{{{0, 0}, {-1, 0}, {-1, -1}, {0, -1}}};
        static constexpr std::array<std::array<int, 2>, 4> left{{{0, -1}, {0, 0}, {-1, 0}, {-1, -1}}};
        const auto isDark = [&](const std::array<int, 2> &module) {
            return m_grid.isDark(x + module[0], y + module[1]);
        };
        if (!isDark(right[std::size_t(direction)]))
            return (direction + 1) % 4;
        return isDark(left[std::size_t(direction)]) ? (direction + 3) % 4 : direction;
    }

    const CodeGrid &m_grid;
    QVector<bool> m_isDone; ///< upper edges by their left corners
};

} // namespace

CodeGrid encode(const QString &text, LabelCode code)
{
    CodeGrid grid;
    const bool isBarCode = code == LabelCode::Code128;
    if (isBarCode && !isAscii(text)) {
        grid.error =
            LabelText::tr("Code 128 only holds characters of ASCII, and not \"%1\"; a QR code can hold it").arg(text);
        return grid;
    }
    const std::unique_ptr<zint_symbol, SymbolDeleter> symbol(ZBarcode_Create());
    symbol->symbology = isBarCode ? BARCODE_CODE128 : BARCODE_QRCODE;
    symbol->input_mode = UNICODE_MODE;
    if (!isBarCode) {
        symbol->option_1 = mediumCorrection;
        symbol->eci = isAscii(text) ? 0 : utf8Interpretation;
    }
    const QByteArray utf8 = text.toUtf8();
    const int result = text.isEmpty()
                           ? ZINT_ERROR_INVALID_DATA
                           : ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char *>(utf8.constData()),
                                             int(utf8.size()));
    if (result >= ZINT_ERROR) {
        grid.error = text.isEmpty() ? LabelText::tr("the code is empty")
                                    : LabelText::tr("\"%1\" is too long for a code").arg(text);
        return grid;
    }
    grid.columns = symbol->width;
    grid.rows = symbol->rows;
    grid.modules.reserve(grid.columns * grid.rows);
    constexpr int bitsInAByte = 8;
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column)
            grid.modules.append(symbol->encoded_data[row][column / bitsInAByte] >> column % bitsInAByte & 1);
    }
    return grid;
}

QVector<CodeArea> areasOf(const CodeGrid &grid)
{
    return EdgeFollower(grid).follow();
}

} // namespace cabledoc
