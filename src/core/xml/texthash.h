#pragma once

#include <QtCore/QString>

#include <unordered_map>

namespace cabledoc {

/// A hash of texts for which nobody can make collisions. With Qt 5's hash, texts that collide once collide with every
/// seed. Names that come from files are therefore kept in a TextMap or in order (QMap, std::map), never in a QHash or
/// QSet.
struct TextHash
{
    std::size_t operator()(const QString &text) const;
};

template <typename Value> using TextMap = std::unordered_map<QString, Value, TextHash>;

} // namespace cabledoc
