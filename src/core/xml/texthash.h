#pragma once

#include <QtCore/QString>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <tsl/ordered_map.h>

namespace cabledoc {

/// A hash function for texts. Nobody can construct texts that collide in it. In Qt 5's own hash function, texts can
/// collide with every seed. Names that come from files are therefore kept in a TextMap or a sorted map (QMap,
/// std::map), never in a QHash or QSet.
struct TextHash
{
    std::size_t operator()(const QString &text) const;
};

/// A map from texts to values. Its entries are in one piece of memory, which makes it several times as fast to fill and
/// to destroy as a std::unordered_map.
template <typename Value> class TextMap
    : public tsl::ordered_map<QString, Value, TextHash, std::equal_to<QString>,
                              std::allocator<std::pair<QString, Value>>, std::vector<std::pair<QString, Value>>>
{
public:
    /// Removes an entry. The last entry takes its place.
    void erase(typename TextMap::iterator entry) { this->unordered_erase(entry); }

    /// Returns whether both maps have the same entries, in any order.
    friend bool operator==(const TextMap &a, const TextMap &b)
    {
        return a.size() == b.size() && std::all_of(a.begin(), a.end(), [&b](const auto &entry) {
                   const auto other = b.find(entry.first);
                   return other != b.end() && other->second == entry.second;
               });
    }
};

} // namespace cabledoc
