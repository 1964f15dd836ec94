#pragma once

#include <QtCore/QString>

#include <unordered_map>

namespace cabledoc {

/// A hash function for texts. Nobody can construct texts that collide in it. In Qt 5's own hash function, texts can
/// collide with every seed. Names that come from files are therefore kept in a TextMap or a sorted map (QMap,
/// std::map), never in a QHash or QSet.
struct TextHash
{
    std::size_t operator()(const QString &text) const;
};

template <typename Value> using TextMap = std::unordered_map<QString, Value, TextHash>;

} // namespace cabledoc
