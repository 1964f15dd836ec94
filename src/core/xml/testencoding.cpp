#include "testencoding.h"

#include <array>
#include <charconv>
#include <iterator>

namespace cabledoc {

namespace {

constexpr int blockBytes = 48;

/// Calls the two functions with each one-byte and each 32-bit field of a results block, in the order of its text form.
template <typename Block, typename ByteUse, typename WordUse>
void forEachField(Block *block, ByteUse useByte, WordUse useWord)
{
    const auto bytes = [&useByte](auto &fields) {
        for (auto &field : fields)
            useByte(field);
    };
    const auto words = [&useWord](auto &fields) {
        for (auto &field : fields)
            useWord(field);
    };
    bytes(block->flag_bytes);
    words(block->word_group_a);
    bytes(block->wire_map);
    useByte(block->map_flag);
    words(block->pair_length);
    useByte(block->byte_c);
    useByte(block->byte_d);
    words(block->word_group_c);
    words(block->word_group_d);
}

/// Returns the value of a hexadecimal digit in upper case. Files hold no other characters. The result for another
/// character must not change.
int nibble(QChar character)
{
    const int code = character.unicode();
    return code < ':' ? code - '0' : code - '7';
}

/// Reads the numbers of a curve one after the other, without making a list of them.
class NumberReader
{
public:
    explicit NumberReader(const QString &text)
        : m_position(text.constData())
        , m_end(m_position + text.size())
    {
    }

    bool atEnd() const { return m_isAtEnd; }

    /// Returns the number up to the next comma, or 0 if it is not a number.
    qint32 next()
    {
        const QChar *start = m_position;
        const QChar *digits = start != m_end && *start == QLatin1Char('-') ? start + 1 : start;
        const QChar *position = digits;
        quint32 number = 0;
        for (; position != m_end && isDigit(*position); ++position)
            number = number * 10 + (position->unicode() - u'0');
        const bool isPlain =
            position != digits && position - digits <= 9 && (position == m_end || *position == QLatin1Char(','));
        if (!isPlain)
            return oddNumber(start);
        m_position = position;
        skipComma();
        return digits == start ? qint32(number) : -qint32(number);
    }

private:
    static bool isDigit(QChar character) { return unsigned(character.unicode()) - u'0' <= 9U; }

    /// Reads a text that is not one to nine digits with or without a minus. It has more digits, blanks or another sign,
    /// or is not a number.
    qint32 oddNumber(const QChar *start)
    {
        while (m_position != m_end && *m_position != QLatin1Char(','))
            ++m_position;
        const qint64 number = QString(start, int(m_position - start)).toLongLong();
        skipComma();
        return qint32(number);
    }

    void skipComma()
    {
        if (m_position == m_end)
            m_isAtEnd = true;
        else
            ++m_position;
    }

    const QChar *m_position;
    const QChar *m_end;
    bool m_isAtEnd = false;
};

} // namespace

QString toText(const cable_struct &block)
{
    const char digits[] = "0123456789ABCDEF";
    std::array<char, 2 * blockBytes> text{};
    auto next = text.begin();
    const auto useByte = [&](quint8 value) {
        *next++ = digits[value >> 4];
        *next++ = digits[value & 0xF];
    };
    forEachField(&block, useByte, [&](qint32 value) {
        useByte(quint8(quint32(value) >> 8));
        useByte(quint8(value));
    });
    return QString::fromLatin1(text.data(), int(text.size()));
}

void fromText(const QString &text, cable_struct *block)
{
    *block = cable_struct::untested();
    const QChar *next = text.constData();
    const QChar *end = next + text.size();
    const auto takeByte = [&next] {
        const int high = nibble(*next++);
        return quint8(high * 16 + nibble(*next++));
    };
    // Fields that are missing at the end of the text keep their untested values.
    forEachField(
        block,
        [&](quint8 &field) {
            if (end - next >= 2)
                field = takeByte();
        },
        [&](qint32 &field) {
            if (end - next >= 4) {
                const quint8 high = takeByte();
                field = high * 256 + takeByte();
            } else {
                next = end;
            }
        });
    // The lengths and the first group deliberately keep 65535.
    for (auto *group : {&block->word_group_c, &block->word_group_d}) {
        for (qint32 &value : *group)
            value = value > 65534 ? -1 : value;
    }
}

QString toText(const TRUEPHY_PLOT_DATA &curve)
{
    if (curve.count != TRUEPHY_PLOT_DATA::sampleCount)
        return QString();
    constexpr int charactersOfNumber = 12; // "-2147483648,"
    std::array<char, (2 * TRUEPHY_PLOT_DATA::sampleCount + 2) * charactersOfNumber> text;
    char *next = text.data();
    const auto write = [&](qint32 number) {
        next = std::to_chars(next, next + charactersOfNumber, number).ptr;
        *next++ = ',';
    };
    for (const qint32 sample : curve.plot_a)
        write(sample);
    for (const qint32 sample : curve.plot_b)
        write(sample);
    write(curve.count);
    return QString::fromLatin1(text.data(), int(next - text.data()));
}

void fromText(const QString &text, TRUEPHY_PLOT_DATA *curve)
{
    *curve = {};
    NumberReader reader(text);
    for (auto *series : {&curve->plot_a, &curve->plot_b}) {
        for (qint32 &sample : *series) {
            if (reader.atEnd())
                return;
            sample = reader.next();
        }
    }
    if (!reader.atEnd())
        curve->count = reader.next();
}

QString toText(const PairFlags &flags)
{
    QString text;
    for (const bool flag : flags)
        text += QLatin1Char(flag ? '1' : '0');
    return text;
}

bool fromText(const QString &text, PairFlags *flags)
{
    for (int i = 0; i < int(std::size(*flags)); ++i) {
        const QChar character = i < text.size() ? text.at(i) : QChar();
        if (character != QLatin1Char('0') && character != QLatin1Char('1'))
            return false;
        (*flags)[i] = character == QLatin1Char('1');
    }
    return true;
}

} // namespace cabledoc
