#include "portrows.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <tuple>

namespace cabledoc {

namespace {

constexpr double farthestNeighbour = 6.0; // millimetres
constexpr double sameHeight = 0.3;        // in parts of the size of a symbol
constexpr int shortestRow = 3;

/// A name that ends in a number.
struct CountedName
{
    explicit CountedName(const QString &name)
    {
        int digits = 0;
        constexpr int mostDigits = 9;
        while (digits < std::min(int(name.size()), mostDigits) && isDigit(name.at(int(name.size()) - 1 - digits)))
            ++digits;
        hasNumber = digits > 0;
        number = name.right(digits).toInt();
        prefix = name.chopped(digits);
    }

    bool isBefore(const CountedName &next) const
    {
        return hasNumber && next.hasNumber && prefix == next.prefix && number + 1 == next.number;
    }

    static bool isDigit(QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); }

    QString prefix;
    int number = 0;
    bool hasNumber = false;
};

/// Sorts the numbers of symbols by rooms, and then as people read.
void sortByPlace(QVector<int> *numbers, const QVector<SymbolPlace> &symbols, const QVector<int> &rooms)
{
    const auto place = [&](int i) {
        const QPointF &center = symbols.at(i).center;
        return std::make_tuple(rooms.at(i), center.y(), center.x(), i);
    };
    std::sort(numbers->begin(), numbers->end(), [&place](int a, int b) { return place(a) < place(b); });
}

} // namespace

QVector<double> distancesInRow(const QVector<SymbolPlace> &symbols, const QVector<int> &rooms)
{
    QVector<int> numbers(symbols.size());
    std::iota(numbers.begin(), numbers.end(), 0);
    sortByPlace(&numbers, symbols, rooms);
    QVector<double> distances(symbols.size(), std::numeric_limits<double>::infinity());
    for (int i = 0; i + 1 < numbers.size(); ++i) {
        const int here = numbers.at(i);
        const int next = numbers.at(i + 1);
        const QPointF distance = symbols.at(next).center - symbols.at(here).center;
        const bool isBeside = rooms.at(here) == rooms.at(next) && distance.x() >= 0.0
                              && std::abs(distance.y()) <= symbols.at(here).size * sameHeight;
        if (!isBeside)
            continue;
        distances[here] = std::min(distances.at(here), distance.x());
        distances[next] = std::min(distances.at(next), distance.x());
    }
    return distances;
}

QVector<QVector<int>> symbolRows(const QVector<SymbolPlace> &symbols, const QVector<int> &rooms,
                                 const QVector<bool> &areCrowded)
{
    QVector<int> crowded;
    QVector<QVector<int>> alone;
    for (int i = 0; i < symbols.size(); ++i) {
        if (areCrowded.at(i))
            crowded.append(i);
        else
            alone.append(QVector<int>{i});
    }
    sortByPlace(&crowded, symbols, rooms);
    const auto isNeighbour = [&](int a, int b) {
        const QPointF distance = symbols.at(b).center - symbols.at(a).center;
        return rooms.at(a) == rooms.at(b) && distance.x() >= 0.0 && distance.x() <= farthestNeighbour
               && std::abs(distance.y()) <= symbols.at(a).size * sameHeight;
    };
    QVector<QVector<int>> rows;
    for (int first = 0; first < crowded.size();) {
        int end = first + 1;
        while (end < crowded.size() && isNeighbour(crowded.at(end - 1), crowded.at(end)))
            ++end;
        if (end - first >= shortestRow) {
            rows.append(crowded.mid(first, end - first));
        } else {
            for (int i = first; i < end; ++i)
                alone.append(QVector<int>{crowded.at(i)});
        }
        first = end;
    }
    return rows + alone;
}

QString shortList(const QStringList &names)
{
    constexpr int shortestRange = 3;
    QStringList parts;
    for (int first = 0; first < names.size();) {
        int last = first;
        while (last + 1 < names.size() && CountedName(names.at(last)).isBefore(CountedName(names.at(last + 1))))
            ++last;
        if (last - first + 1 >= shortestRange) {
            parts.append(names.at(first) + QChar(0x2013) + names.at(last));
            first = last + 1;
        } else {
            parts.append(names.at(first++));
        }
    }
    return parts.join(QLatin1String(", "));
}

} // namespace cabledoc
