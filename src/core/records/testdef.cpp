#include "testdef.h"

#include "numbers.h"
#include "qtcompat.h"

#include <algorithm>
#include <array>

using namespace cabledoc;

namespace {

constexpr int pairCount = 4;
constexpr int mappingOfFirstPair = 1; // place in wire_map
constexpr int careOfFirstPair = 5;    // place in wire_map

bool isPair(int pair)
{
    return pair >= 0 && pair < pairCount;
}

/// The conditions in the rules of a test definition.
class Conditions
{
public:
    explicit Conditions(const TestDef &definition)
        : m_definition(definition)
    {
    }

    bool inUse(int firstPairs) const
    {
        for (int pair = 0; pair < firstPairs; ++pair) {
            if (!m_definition.pair_in_use()[pair])
                return false;
        }
        return true;
    }

    bool anySplit(int firstPairs) const
    {
        for (int pair = 0; pair < firstPairs; ++pair) {
            if (m_definition.carePair(pair, 1) == 1)
                return true;
        }
        return false;
    }

    /// Returns whether all pairs are straight, only pairs 0 and 1 are crossed, or both pairs 0 and 1 and pairs 2 and 3
    /// are crossed.
    bool allPairsWired() const
    {
        return firstPairsWired() && (isWired(2, 2, 3) || (!isWired(0, 0, 1) && isWired(2, 3, 2)));
    }
    /// Returns whether pairs 0 and 1 are straight or crossed.
    bool firstPairsWired() const { return isWired(0, 0, 1) || isWired(0, 1, 0); }

    bool lengthConstantInRange() const
    {
        const float constant = m_definition.fields().lengthConstant;
        return !(constant < 1000.0F) && !(constant > 6500.0F);
    }

    bool snrGood() const { return m_definition.SNR() != 0 && m_definition.SNR() >= 200; }
    bool skewGood() const { return m_definition.skew() != 0 && m_definition.skew() <= 500; }

    bool farPairsDistinct() const
    {
        std::array<bool, pairCount> taken{};
        for (int pair = 0; pair < pairCount; ++pair) {
            bool &isTaken = taken[m_definition.getPairTo(pair)];
            if (isTaken)
                return false;
            isTaken = true;
        }
        return true;
    }

private:
    /// Returns whether a pair and the next one are wired to the given far-end pairs.
    bool isWired(int pair, int far, int nextFar) const
    {
        return m_definition.getPairTo(pair) == far && m_definition.getPairTo(pair + 1) == nextFar;
    }

    const TestDef &m_definition;
};

} // namespace

TestDef::TestDef(const Fields &fields)
    : Record(fields)
{
}

TestDef::TestDef(const QString &id)
{
    m_fields.id = id;
}

TestDef::TestDef(const QString &id, const cable_struct &expected, const bool *pairsInUse, int dataRate, int snr,
                 int skew, bool shield, float lengthConstant, float maxLength, const QString &comment,
                 int cableCategory, bool defaultType, const QString &color)
    : Record({id,
              expected,
              {pairsInUse[0], pairsInUse[1], pairsInUse[2], pairsInUse[3]},
              dataRate,
              snr,
              skew,
              shield,
              lengthConstant,
              maxLength,
              comment,
              cableCategory,
              defaultType,
              color})
{
}

void TestDef::setPairInUse(const bool *flags)
{
    std::copy(flags, flags + pairCount, m_fields.pairInUse);
}

int TestDef::length_constant() const
{
    return truncated(double(m_fields.lengthConstant));
}

int TestDef::max_length() const
{
    return truncated(double(m_fields.maxLength));
}

int TestDef::getPairTo(int pair) const
{
    if (!isPair(pair))
        return pair;
    const int far = m_fields.expected.wire_map[mappingOfFirstPair + pair];
    return isPair(far) ? far : pair;
}

void TestDef::setPairMapping(int near, int far)
{
    if (isPair(near))
        m_fields.expected.wire_map[mappingOfFirstPair + near] = quint8(far);
}

int TestDef::carePair(int pair, int side) const
{
    if (!isPair(pair) || side < 0 || side > 1)
        return 0;
    const int code = (m_fields.expected.wire_map[careOfFirstPair + pair] >> (4 * side)) & 0xF;
    return code == 1 || code == 2 ? code : 0;
}

void TestDef::setPairCare(int pair, int side, int code)
{
    if (!isPair(pair) || side < 0 || side > 1 || code < 0 || code > 2)
        return;
    quint8 &codes = m_fields.expected.wire_map[careOfFirstPair + pair];
    const int kept = codes & (side == 0 ? 0xF0 : 0x0F);
    codes = quint8(kept | (code << (4 * side)));
}

// The messages differ in details from rule to rule. They must stay as they are, because translations are keyed on them.
QString TestDef::validDef() const
{
    const Conditions is(*this);
    const bool *pairs = pair_in_use();
    if (std::none_of(pairs, pairs + pairCount, [](bool inUse) { return inUse; }))
        return tr("Cable has no pairs please\n specify which pairs are in use.");

    if (data_rate() == 1000) {
        if (!is.inUse(4))
            return tr("1 Gbit/s requires\nall 4 pairs be in use.");
        if (is.anySplit(4))
            return tr("1 Gbit/s requires\nno splits.");
        if (!is.allPairsWired())
            return tr("Invalid pair-mapping\nnot a valid straight through or\ncrossover cable can't run 1 Gbit/s.");
        if (!is.lengthConstantInRange())
            return tr("1 Gbit/s requires that length constant\nis between 10.0 and 65.0 (pF/ft) or 32.8 and 213.2 "
                      "(pF/m)");
        if (!is.skewGood())
            return tr("1 Gbit/s requires that skew must be measured\nand be at most 50ns.");
        if (!is.snrGood())
            return tr("1 Gbit/s requires that SNR must be measured\nand be at least 20dB.");
    } else if (data_rate() == 100) {
        if (!is.inUse(2))
            return tr("100 Mbits/s requires pairs\n 1-2 and 3-6 be in use.");
        if (is.anySplit(2))
            return tr("100 Mbits/s requires no \nsplits on pairs 1-2 and 3-6.");
        if (!is.firstPairsWired())
            return tr("Invalid pair-mapping\nnot a valid straight through or\ncrossover cable can't run 100 Mbits/s.");
        if (!is.lengthConstantInRange())
            return tr("100 Mbits/s requires that length constant\nis between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 "
                      "(pF/m)");
        if (!is.snrGood())
            return tr("100 Mbits/s requires that SNR must be measured\nand be at least 20dB.");
    }

    if (skew() != 0) {
        if (!is.inUse(4))
            return tr("Skew test requires\nall 4 pairs be in use.");
        if (is.anySplit(4))
            return tr("Skew test requires\nno splits.");
        if (!is.allPairsWired())
            return tr("Invalid pair-mapping\nnot a valid straight through or\ncrossover cable can't run Skew test.");
        if (!is.lengthConstantInRange())
            return tr("Skew test requires that length constant\nis between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 "
                      "(pF/m)");
    }

    if (SNR() != 0) {
        if (!is.inUse(2))
            return tr("SNR test requires pairs\n 1-2 and 3-6 be in use.");
        if (is.anySplit(2))
            return tr("SNR test requires no \nsplits on pairs 1-2 and 3-6.");
        if (!is.firstPairsWired())
            return tr("Invalid pair-mapping\nnot a valid straight through or\ncrossover cable can't run SNR test.");
        if (!is.lengthConstantInRange())
            return tr("SNR test requires that length constant\nis between 10.0 and 65.0(pF/ft) or 32.8 and 213.2 "
                      "(pF/m).");
    }

    if (!is.farPairsDistinct())
        return tr("Can't map 2 pairs on near end to\nsame pair on far end.");
    if (!qtcompat::isColorName(color()))
        return tr("Invalid color.");
    // This is only a warning. It is reported if there is no error.
    if (m_fields.maxLength == -1.0F || m_fields.maxLength > 330.0F)
        return tr("SNR and BERT tests may fail with\ncable length greater than 330ft (100m).");
    // The word is not translated, because callers compare it.
    return QStringLiteral("GOOD");
}
