#include "symbolsizes.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <vector>

namespace cabledoc {

namespace {

constexpr double smallestSize = 1.0; // millimetres
constexpr double partOfDistance = 0.92;
constexpr std::size_t crowd = 100; // so many symbols in a cell are as small as possible

quint64 cellAt(int column, int row)
{
    return quint64(quint32(column)) << 32 | quint32(row);
}

/// The symbols by the cells of a grid in which neighbours are no farther away than the next cell.
class SymbolGrid
{
public:
    explicit SymbolGrid(const QVector<SymbolPlace> &symbols)
        : m_symbols(symbols)
    {
        for (const SymbolPlace &symbol : symbols)
            m_cellSize = std::max(m_cellSize, symbol.size);
        for (int i = 0; i < symbols.size(); ++i)
            m_cells[cellAt(column(i), row(i))].push_back(i);
    }

    /// Returns how large a symbol may be.
    double sizeFor(int symbol) const
    {
        double size = m_symbols.at(symbol).size;
        for (int x = column(symbol) - 1; x <= column(symbol) + 1; ++x) {
            for (int y = row(symbol) - 1; y <= row(symbol) + 1; ++y)
                size = std::min(size, sizeBeside(symbol, cellAt(x, y)));
        }
        return std::min(m_symbols.at(symbol).size, std::max(size, smallestSize));
    }

private:
    int column(int symbol) const { return int(std::floor(m_symbols.at(symbol).center.x() / m_cellSize)); }
    int row(int symbol) const { return int(std::floor(m_symbols.at(symbol).center.y() / m_cellSize)); }

    double sizeBeside(int symbol, quint64 cell) const
    {
        const auto found = m_cells.find(cell);
        if (found == m_cells.end())
            return m_cellSize;
        if (found->second.size() > crowd)
            return smallestSize;
        double size = m_cellSize;
        for (const int other : found->second) {
            const QPointF distance = m_symbols.at(other).center - m_symbols.at(symbol).center;
            const double free = std::max(std::abs(distance.x()), std::abs(distance.y())) * partOfDistance;
            if (other != symbol)
                size = std::min(size, free);
        }
        return size;
    }

    const QVector<SymbolPlace> &m_symbols;
    double m_cellSize = smallestSize;
    std::unordered_map<quint64, std::vector<int>> m_cells;
};

} // namespace

void shrinkCrowdedSymbols(QVector<SymbolPlace> *symbols)
{
    const QVector<SymbolPlace> wanted = *symbols;
    const SymbolGrid grid(wanted);
    for (int i = 0; i < wanted.size(); ++i)
        (*symbols)[i].size = grid.sizeFor(i);
}

} // namespace cabledoc
