#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "testdata.h"

#include <QtCore/QString>

namespace cabledoc {

struct TestDefFields
{
    QString id;                                       ///< name, which is the cable type
    cable_struct expected = cable_struct::untested(); ///< what a good cable gives
    PairFlags pairInUse = {true, true, true, true};   ///< pair 0 is on pins 1-2, pair 1 on pins 3-6
    int dataRate = 0;                                 ///< 1000 for 1 Gbit/s, 100 for 100 Mbit/s, 0 for none
    int snr = 0;                                      ///< tenths of a dB; 0: not measured
    int skew = 0;                                     ///< tenths of a ns; 0: not measured
    bool shield = false;
    /// Hundredths of pF per foot. The default lies outside of what rated cables may have: a new definition
    /// is not rated.
    float lengthConstant = 15000.0F;
    float maxLength = 330.0F; ///< feet; -1.0 for no maximum
    QString comment;
    int cableCategory = -1;
    bool defaultType = false; ///< one of the system's built-in types
    QString color = QStringLiteral("#000000");

    auto members() const
    {
        const auto &[name, block, pairs, rate, noise, delay, shielded, constant, length, remark, category, isDefault,
                     colorName] = *this;
        // An array of its own would be compared by its address.
        return std::tie(name, block, pairs[0], pairs[1], pairs[2], pairs[3], rate, noise, delay, shielded, constant,
                        length, remark, category, isDefault, colorName);
    }
};

} // namespace cabledoc

/// What a tester checks of the cables of one type, and what a good one gives. See Record for copying and
/// comparing.
class CABLEDOC_EXPORT TestDef : public cabledoc::Record<cabledoc::TestDefFields>
{
    Q_OBJECT

public:
    TestDef() = default;
    explicit TestDef(const Fields &fields);
    /// A definition of that name for cables without a rating: all pairs in use and straight.
    explicit TestDef(const QString &id);
    /// All fields in their order. pairsInUse points to four flags.
    TestDef(const QString &id, const cable_struct &expected, const bool *pairsInUse, int dataRate, int snr, int skew,
            bool shield, float lengthConstant, float maxLength, const QString &comment, int cableCategory,
            bool defaultType, const QString &color);

    const QString &id() const { return m_fields.id; }
    void setID(const QString &id) { m_fields.id = id; }
    const cable_struct &expected() const { return m_fields.expected; }
    void setExpected(const cable_struct &expected) { m_fields.expected = expected; }
    /// Four flags, which can be written through.
    bool *pair_in_use() { return m_fields.pairInUse; }
    const bool *pair_in_use() const { return m_fields.pairInUse; }
    /// flags points to four flags.
    void setPairInUse(const bool *flags);
    int data_rate() const { return m_fields.dataRate; }
    void setDataRate(int rate) { m_fields.dataRate = rate; }
    int SNR() const { return m_fields.snr; }
    void setSNR(int tenthsOfDecibel) { m_fields.snr = tenthsOfDecibel; }
    int skew() const { return m_fields.skew; }
    void setSkew(int tenthsOfNanosecond) { m_fields.skew = tenthsOfNanosecond; }
    bool shield() const { return m_fields.shield; }
    void setShield(bool shield) { m_fields.shield = shield; }
    /// Without its fraction, as it is stored.
    int length_constant() const;
    void setLengthConstant(float constant) { m_fields.lengthConstant = constant; }
    /// Without its fraction, as it is stored.
    int max_length() const;
    void setMaxLength(float feet) { m_fields.maxLength = feet; }
    const QString &comment() const { return m_fields.comment; }
    void setComment(const QString &comment) { m_fields.comment = comment; }
    int cable_category() const { return m_fields.cableCategory; }
    void setCableCategory(int category) { m_fields.cableCategory = category; }
    bool default_type() const { return m_fields.defaultType; }
    void setDefaultType(bool isDefault) { m_fields.defaultType = isDefault; }
    const QString &color() const { return m_fields.color; }
    void setColor(const QString &color) { m_fields.color = color; }

    /// The far-end pair (0 to 3) that a near-end pair (0 to 3) is wired to; the pair itself when the
    /// expected block names none.
    int getPairTo(int pair) const;
    /// Wires a near-end pair (0 to 3) to a far-end pair; nothing for another near-end pair.
    void setPairMapping(int near, int far);
    /// The care code of a pair (0 to 3) on a side (0 or 1): 0, 1 or 2. On side 1 the code 1 says that the
    /// pair is split. The codes stand in the expected block's wire_map entries 5 to 8, one for each pair,
    /// side 0 in the lower half of the byte and side 1 in the upper; a half that is neither 1 nor 2 is code
    /// 0. They are stored with the block.
    int carePair(int pair, int side) const;
    /// Nothing for another pair, side or code.
    void setPairCare(int pair, int side, int code);

    /// "GOOD", or why the definition cannot be used, translated. A maximum length above 330 feet, or none,
    /// gives a warning when nothing else is wrong. The limits on length constant (1000 to 6500), skew (at
    /// most 500) and SNR (at least 200) apply to what the data rate, SNR and skew ask for.
    QString validDef() const;
};
