#include "naturalorder.h"

#include <QtCore/QCollator>

#include <algorithm>
#include <vector>

namespace cabledoc {

void sortByText(QVector<int> *numbers, const std::function<QString(int number)> &textOf, SortOrder order)
{
    QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates));
    collator.setNumericMode(true);
    std::vector<std::pair<QCollatorSortKey, int>> keys;
    keys.reserve(std::size_t(numbers->size()));
    for (const int number : std::as_const(*numbers))
        keys.emplace_back(collator.sortKey(textOf(number)), number);
    std::stable_sort(keys.begin(), keys.end(), [order](const auto &a, const auto &b) {
        const int comparison = a.first.compare(b.first);
        return order == SortOrder::Descending ? comparison > 0 : comparison < 0;
    });
    std::transform(keys.begin(), keys.end(), numbers->begin(), [](const auto &key) { return key.second; });
}

} // namespace cabledoc
