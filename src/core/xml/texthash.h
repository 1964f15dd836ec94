#pragma once

#include <QtCore/QString>

#include <unordered_map>

namespace cabledoc {

/// A hash of texts that nobody can make collide, unlike Qt 5's, where texts that collide once do so with every seed.
/// Names that come from files are therefore kept in a TextMap, or in order (QMap, std::map), never in QHash or QSet.
struct TextHash
{
    std::size_t operator()(const QString &text) const;
};

template <typename Value> using TextMap = std::unordered_map<QString, Value, TextHash>;

} // namespace cabledoc
