#pragma once

#include <QtCore/QtGlobal>

#include <array>

/// One cable's wire map and pair measurements, as the tester's record lays them out in memory. What the
/// codes mean belongs to the tester; they are stored and moved as they are.
struct cable_struct
{
    std::array<quint8, 4> flag_bytes;
    std::array<qint32, 4> word_group_a; ///< 16 bits each
    /// Entries 1 to 4: to which far-end pair (0 to 3) near-end pairs 0 to 3 are wired, any other value to
    /// itself. In a test definition entries 5 to 8 hold the care codes of pairs 0 to 3, see TestDef.
    std::array<quint8, 9> wire_map;
    quint8 map_flag;
    /// Length reading of each pair, 16 bits; 60000 and more: not measured. Divided by a test definition's
    /// length constant in pF per foot it gives feet.
    std::array<qint32, 4> pair_length;
    quint8 byte_c;
    quint8 byte_d;
    std::array<qint32, 4> word_group_c; ///< 16 bits each, -1 for 0xFFFF
    std::array<qint32, 4> word_group_d; ///< likewise

    /// What an untested cable has: 0xFF in every one-byte field and -1 in every other.
    static cable_struct untested()
    {
        cable_struct block{};
        block.flag_bytes.fill(0xFF);
        block.word_group_a.fill(-1);
        block.wire_map.fill(0xFF);
        block.map_flag = 0xFF;
        block.pair_length.fill(-1);
        block.byte_c = 0xFF;
        block.byte_d = 0xFF;
        block.word_group_c.fill(-1);
        block.word_group_d.fill(-1);
        return block;
    }

    friend bool operator==(const cable_struct &a, const cable_struct &b)
    {
        return a.flag_bytes == b.flag_bytes && a.word_group_a == b.word_group_a && a.wire_map == b.wire_map
               && a.map_flag == b.map_flag && a.pair_length == b.pair_length && a.byte_c == b.byte_c
               && a.byte_d == b.byte_d && a.word_group_c == b.word_group_c && a.word_group_d == b.word_group_d;
    }
    friend bool operator!=(const cable_struct &a, const cable_struct &b) { return !(a == b); }
};
static_assert(sizeof(cable_struct) == 84, "the layout is the tester's");

/// One response curve of a cable (NEXT, echo or channel).
struct TRUEPHY_PLOT_DATA
{
    static constexpr int sampleCount = 257;

    std::array<qint32, 321> header;         ///< of the tester; never stored in a file
    std::array<qint32, sampleCount> plot_a; ///< first series of samples
    std::array<qint32, sampleCount> plot_b; ///< second series
    qint32 count;                           ///< samples in each series: 257, or 0 for an empty curve

    friend bool operator==(const TRUEPHY_PLOT_DATA &a, const TRUEPHY_PLOT_DATA &b)
    {
        return a.header == b.header && a.plot_a == b.plot_a && a.plot_b == b.plot_b && a.count == b.count;
    }
    friend bool operator!=(const TRUEPHY_PLOT_DATA &a, const TRUEPHY_PLOT_DATA &b) { return !(a == b); }
};
static_assert(sizeof(TRUEPHY_PLOT_DATA) == 3344, "the layout is the tester's");
