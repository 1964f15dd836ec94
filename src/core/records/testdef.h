#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "testdata.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a TestDef.
struct TestDefFields
{
    /// Name of the definition, which is also the name of the cable type.
    QString id;
    /// Block that a good cable of this type gives. It also holds the pair mapping and the care codes.
    cable_struct expected = cable_struct::untested();
    /// Which of the four pairs are in use. Pair 0 is on pins 1-2, pair 1 on pins 3-6.
    PairFlags pairInUse = {true, true, true, true};
    /// Data rate in Mbit/s for which cables of this type are rated: 1000, 100, or 0 for none.
    int dataRate = 0;
    /// Signal-to-noise ratio in tenths of a dB, or 0 if it is not measured.
    int snr = 0;
    /// Delay skew in tenths of a ns, or 0 if it is not measured.
    int skew = 0;
    /// Whether the cable has a shield.
    bool shield = false;
    /// Length constant in hundredths of pF per foot. The default is outside the range that a rated cable may have,
    /// because a new definition has no rating.
    float lengthConstant = 15000.0F;
    /// Maximum length in feet, or -1.0 for no maximum.
    float maxLength = 330.0F;
    /// Comment on the cable type.
    QString comment;
    /// Category of the cable, or -1 if none is set.
    int cableCategory = -1;
    /// Whether this is one of the built-in types.
    bool defaultType = false;
    /// Name of the colour of cables of this type.
    QString color = QStringLiteral("#000000");
};

/// Returns all fields. Records are compared by them.
inline auto members(const TestDefFields &fields)
{
    const auto &[id, expected, pairInUse, dataRate, snr, skew, shield, lengthConstant, maxLength, comment,
                 cableCategory, defaultType, color] = fields;
    // An array of its own would be compared by its address.
    return std::tie(id, expected, pairInUse[0], pairInUse[1], pairInUse[2], pairInUse[3], dataRate, snr, skew, shield,
                    lengthConstant, maxLength, comment, cableCategory, defaultType, color);
}

} // namespace cabledoc

/// A test definition: what the tester checks in the cables of one type, and what a good cable gives.
///
/// Each cable type of a document has one test definition, whose name is the name of the type. See cabledoc::Record for
/// how records are copied and compared.
class CABLEDOC_EXPORT TestDef : public cabledoc::Record<cabledoc::TestDefFields>
{
    Q_OBJECT

public:
    /// Creates a definition without a name and without a rating. All pairs are in use and wired straight, the maximum
    /// length is 330 feet, and the colour is "#000000".
    TestDef() = default;
    /// Creates a definition with the given fields.
    explicit TestDef(const Fields &fields);
    /// Creates a definition with the given name and without a rating. All other fields have their default values.
    explicit TestDef(const QString &id);
    /// Creates a definition from its parts. pairsInUse must point to four flags.
    TestDef(const QString &id, const cable_struct &expected, const bool *pairsInUse, int dataRate, int snr, int skew,
            bool shield, float lengthConstant, float maxLength, const QString &comment, int cableCategory,
            bool defaultType, const QString &color);

    /// Returns the name of the definition.
    const QString &id() const { return m_fields.id; }
    /// Sets the name of the definition.
    void setID(const QString &id) { m_fields.id = id; }
    /// Returns the block that a good cable of this type gives.
    const cable_struct &expected() const { return m_fields.expected; }
    /// Sets the block that a good cable of this type gives.
    void setExpected(const cable_struct &expected) { m_fields.expected = expected; }
    /// Returns a pointer to the four flags that tell which pairs are in use. The flags can be changed through it.
    bool *pair_in_use() { return m_fields.pairInUse; }
    /// Returns a pointer to the four flags that tell which pairs are in use.
    const bool *pair_in_use() const { return m_fields.pairInUse; }
    /// Sets which pairs are in use. flags must point to four flags.
    void setPairInUse(const bool *flags);
    /// Returns the data rate in Mbit/s for which cables of this type are rated: 1000, 100, or 0 for none.
    int data_rate() const { return m_fields.dataRate; }
    /// Sets the data rate in Mbit/s for which cables of this type are rated: 1000, 100, or 0 for none.
    void setDataRate(int rate) { m_fields.dataRate = rate; }
    /// Returns the signal-to-noise ratio in tenths of a dB, or 0 if it is not measured.
    int SNR() const { return m_fields.snr; }
    /// Sets the signal-to-noise ratio in tenths of a dB. 0 means that it is not measured.
    void setSNR(int tenthsOfDecibel) { m_fields.snr = tenthsOfDecibel; }
    /// Returns the delay skew in tenths of a ns, or 0 if it is not measured.
    int skew() const { return m_fields.skew; }
    /// Sets the delay skew in tenths of a ns. 0 means that it is not measured.
    void setSkew(int tenthsOfNanosecond) { m_fields.skew = tenthsOfNanosecond; }
    /// Returns whether the cable has a shield.
    bool shield() const { return m_fields.shield; }
    /// Sets whether the cable has a shield.
    void setShield(bool shield) { m_fields.shield = shield; }
    /// Returns the length constant in hundredths of pF per foot, without its fraction. Documents store it in this form.
    int length_constant() const;
    /// Sets the length constant in hundredths of pF per foot.
    void setLengthConstant(float constant) { m_fields.lengthConstant = constant; }
    /// Returns the maximum length in feet without its fraction, or -1 if there is no maximum. Documents store it in
    /// this form.
    int max_length() const;
    /// Sets the maximum length in feet. -1.0 means that there is no maximum.
    void setMaxLength(float feet) { m_fields.maxLength = feet; }
    /// Returns the comment on the cable type.
    const QString &comment() const { return m_fields.comment; }
    /// Sets the comment on the cable type.
    void setComment(const QString &comment) { m_fields.comment = comment; }
    /// Returns the category of the cable, or -1 if none is set.
    int cable_category() const { return m_fields.cableCategory; }
    /// Sets the category of the cable.
    void setCableCategory(int category) { m_fields.cableCategory = category; }
    /// Returns whether this is one of the built-in types.
    bool default_type() const { return m_fields.defaultType; }
    /// Sets whether this is one of the built-in types.
    void setDefaultType(bool isDefault) { m_fields.defaultType = isDefault; }
    /// Returns the name of the colour of cables of this type.
    const QString &color() const { return m_fields.color; }
    /// Sets the colour of cables of this type, given by a name such as "#ff8000".
    void setColor(const QString &color) { m_fields.color = color; }

    /// Returns the far-end pair (0 to 3) to which the given near-end pair (0 to 3) is wired. Returns the given pair
    /// itself if the expected block does not name a far-end pair, or if the given pair is not one from 0 to 3.
    int getPairTo(int pair) const;
    /// Wires a near-end pair (0 to 3) to a far-end pair. Does nothing for any other near-end pair.
    void setPairMapping(int near, int far);
    /// Returns the care code of a pair (0 to 3) on a side (0 or 1): 0, 1 or 2. Code 1 on side 1 means that the pair is
    /// split. Returns 0 for any other pair or side.
    ///
    /// The expected block holds the codes in entries 5 to 8 of its wire_map, one entry for each pair. Side 0 is in the
    /// lower half of the byte, side 1 is in the upper half. A half that is neither 1 nor 2 is code 0.
    int carePair(int pair, int side) const;
    /// Sets the care code of a pair (0 to 3) on a side (0 or 1) to 0, 1 or 2. Does nothing for any other pair, side or
    /// code.
    void setPairCare(int pair, int side, int code);

    /// Returns "GOOD" if the definition can be used, or the translated reason why it cannot.
    ///
    /// A maximum length above 330 feet, or none, gives a warning if nothing else is wrong. A data rate of 1000 or 100,
    /// a signal-to-noise ratio or a skew requires a length constant from 1000 to 6500. Both data rates require a
    /// signal-to-noise ratio of at least 200, and 1000 also requires a skew, which must be at most 500.
    QString validDef() const;
};
