#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>

namespace cabledoc {

/// A flag for each of the four pairs of a cable.
using PairFlags = bool[4];

template <typename Value, std::size_t size> bool sameArray(const Value (&a)[size], const Value (&b)[size])
{
    return std::equal(std::begin(a), std::end(a), std::begin(b));
}

} // namespace cabledoc

/// One cable's wire map and pair measurements, as the tester's record lays them out in memory. Can be copied from and
/// to that record with memcpy(). What the codes mean belongs to the tester; they are stored and moved as they are.
struct cable_struct
{
    quint8 flag_bytes[4];
    qint32 word_group_a[4]; ///< 16 bits each
    /// Entries 1 to 4: to which far-end pair (0 to 3) near-end pairs 0 to 3 are wired, any other value to
    /// itself. In a test definition entries 5 to 8 hold the care codes of pairs 0 to 3, see TestDef.
    quint8 wire_map[9];
    quint8 map_flag;
    /// Length reading of each pair, 16 bits; 60000 and more: not measured. Divided by a test definition's
    /// length constant in pF per foot it gives feet.
    qint32 pair_length[4];
    quint8 byte_c;
    quint8 byte_d;
    qint32 word_group_c[4]; ///< 16 bits each, -1 for 0xFFFF
    qint32 word_group_d[4]; ///< likewise

    /// What an untested cable has: 0xFF in every one-byte field and -1 in every other.
    static cable_struct untested()
    {
        cable_struct block;
        std::memset(&block, 0xFF, sizeof block);
        return block;
    }

    friend bool operator==(const cable_struct &a, const cable_struct &b)
    {
        // Not memcmp(): there are filler bytes.
        using cabledoc::sameArray;
        return sameArray(a.flag_bytes, b.flag_bytes) && sameArray(a.word_group_a, b.word_group_a)
               && sameArray(a.wire_map, b.wire_map) && a.map_flag == b.map_flag
               && sameArray(a.pair_length, b.pair_length) && a.byte_c == b.byte_c && a.byte_d == b.byte_d
               && sameArray(a.word_group_c, b.word_group_c) && sameArray(a.word_group_d, b.word_group_d);
    }
    friend bool operator!=(const cable_struct &a, const cable_struct &b) { return !(a == b); }
};
static_assert(sizeof(cable_struct) == 84, "the layout is the tester's");

/// One response curve of a cable (NEXT, echo or channel).
struct TRUEPHY_PLOT_DATA
{
    static constexpr int sampleCount = 257;

    qint32 header[321];         ///< of the tester; never stored in a file
    qint32 plot_a[sampleCount]; ///< first series of samples
    qint32 plot_b[sampleCount]; ///< second series
    qint32 count;               ///< samples in each series: 257, or 0 for an empty curve

    friend bool operator==(const TRUEPHY_PLOT_DATA &a, const TRUEPHY_PLOT_DATA &b)
    {
        using cabledoc::sameArray;
        return sameArray(a.header, b.header) && sameArray(a.plot_a, b.plot_a) && sameArray(a.plot_b, b.plot_b)
               && a.count == b.count;
    }
    friend bool operator!=(const TRUEPHY_PLOT_DATA &a, const TRUEPHY_PLOT_DATA &b) { return !(a == b); }
};
static_assert(sizeof(TRUEPHY_PLOT_DATA) == 3344, "the layout is the tester's");
