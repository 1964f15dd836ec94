#pragma once

#include "cabledoc_export.h"

#include <QtCore/QString>
#include <QtCore/QVector>

#include <functional>

namespace cabledoc {

/// The direction of an order.
enum class SortOrder {
    Ascending,  ///< the smallest text comes first
    Descending, ///< the largest text comes first
};

/// Sorts numbers, such as positions or rows, by their texts. Numbers in texts are compared by value, so that "A-2"
/// comes before "A-10". The order does not depend on the language of the environment. Numbers with the same text stay
/// in their order.
CABLEDOC_EXPORT void sortByText(QVector<int> *numbers, const std::function<QString(int number)> &textOf,
                                SortOrder order = SortOrder::Ascending);

} // namespace cabledoc
