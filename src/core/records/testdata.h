#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>

namespace cabledoc {

/// One flag for each of the four pairs of a cable.
using PairFlags = bool[4];

/// Returns whether all elements of both arrays are equal.
template <typename Value, std::size_t size> bool sameArray(const Value (&a)[size], const Value (&b)[size])
{
    return std::equal(std::begin(a), std::end(a), std::begin(b));
}

} // namespace cabledoc

/// The wire map and the measurements of the pairs of one cable, in the memory layout of the tester's record.
///
/// The structure has 84 bytes and can be copied from and to the tester's record with memcpy(). The tester defines the
/// meaning of the codes. cabledoc stores them without interpreting them, except where a field says otherwise.
struct cable_struct
{
    /// Four codes of the tester.
    quint8 flag_bytes[4];
    /// Four values of the tester. A file stores the lower 16 bits of each.
    qint32 word_group_a[4];
    /// Codes of the tester. Entries 1 to 4 give the far-end pair (0 to 3) to which near-end pairs 0 to 3 are wired. Any
    /// other value stands for the pair itself. In a test definition, entries 5 to 8 hold the care codes of pairs 0 to
    /// 3, see TestDef::carePair().
    quint8 wire_map[9];
    /// A code of the tester.
    quint8 map_flag;
    /// Length reading of each pair, 16 bits wide. 60000 and above stand for a pair that was not measured. A reading
    /// divided by the length constant of the test definition, in pF per foot, is the length in feet.
    qint32 pair_length[4];
    /// A code of the tester.
    quint8 byte_c;
    /// A code of the tester.
    quint8 byte_d;
    /// Four values of the tester, 16 bits each. 0xFFFF in a file becomes -1.
    qint32 word_group_c[4];
    /// Four values of the tester, 16 bits each. 0xFFFF in a file becomes -1.
    qint32 word_group_d[4];

    /// Returns the block of an untested cable: 0xFF in every one-byte field and -1 in every other field.
    static cable_struct untested()
    {
        cable_struct block;
        std::memset(&block, 0xFF, sizeof block);
        return block;
    }

    /// Returns true if all fields of both blocks are equal.
    friend bool operator==(const cable_struct &a, const cable_struct &b)
    {
        // Not memcmp(): there are filler bytes.
        using cabledoc::sameArray;
        return sameArray(a.flag_bytes, b.flag_bytes) && sameArray(a.word_group_a, b.word_group_a)
               && sameArray(a.wire_map, b.wire_map) && a.map_flag == b.map_flag
               && sameArray(a.pair_length, b.pair_length) && a.byte_c == b.byte_c && a.byte_d == b.byte_d
               && sameArray(a.word_group_c, b.word_group_c) && sameArray(a.word_group_d, b.word_group_d);
    }
    /// Returns true if at least one field of the blocks differs.
    friend bool operator!=(const cable_struct &a, const cable_struct &b) { return !(a == b); }
};
static_assert(sizeof(cable_struct) == 84, "the layout is the tester's");

/// One response curve of a cable (NEXT, echo or channel), in the memory layout of the tester's record of 3344 bytes.
struct TRUEPHY_PLOT_DATA
{
    /// Number of samples in each series of a curve.
    static constexpr int sampleCount = 257;

    /// Header of the tester's record. It is never stored in a file.
    qint32 header[321];
    /// First series of samples.
    qint32 plot_a[sampleCount];
    /// Second series of samples.
    qint32 plot_b[sampleCount];
    /// Number of samples in each series: 257, or 0 for an empty curve.
    qint32 count;

    /// Returns true if all fields of both curves are equal, including their headers.
    friend bool operator==(const TRUEPHY_PLOT_DATA &a, const TRUEPHY_PLOT_DATA &b)
    {
        using cabledoc::sameArray;
        return sameArray(a.header, b.header) && sameArray(a.plot_a, b.plot_a) && sameArray(a.plot_b, b.plot_b)
               && a.count == b.count;
    }
    /// Returns true if at least one field of the curves differs.
    friend bool operator!=(const TRUEPHY_PLOT_DATA &a, const TRUEPHY_PLOT_DATA &b) { return !(a == b); }
};
static_assert(sizeof(TRUEPHY_PLOT_DATA) == 3344, "the layout is the tester's");
