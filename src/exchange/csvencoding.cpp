#include "csvencoding.h"

#include <QtCore/QString>
#include <QtCore/QtEndian>

#include <array>

namespace cabledoc {

namespace {

/// A byte that no UTF-8 text has.
constexpr char invalid = '\xFF';

/// The characters of Windows-1252 from 0x80 to 0x9F, or 0 where it has none. All others are those of Latin-1.
constexpr std::array<char16_t, 32> windows1252{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                               0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

QByteArray fromWindows1252(const QByteArray &text)
{
    QByteArray utf8;
    utf8.reserve(text.size());
    for (const char byte : text) {
        const auto code = std::size_t(uchar(byte));
        const char16_t character = code >= 0x80 && code < 0xA0 ? windows1252[code - 0x80] : char16_t(code);
        if (code < 0x80)
            utf8 += byte;
        else if (character == 0)
            utf8 += invalid;
        else
            utf8 += QString(QChar(character)).toUtf8();
    }
    return utf8;
}

bool isBigEndian(const QByteArray &text)
{
    return text.startsWith("\xFE\xFF") || text.startsWith('\0');
}

/// Returns whether the character is a surrogate without the other half of its pair.
bool isSingle(const QString &text, int position)
{
    const QChar character = text.at(position);
    if (character.isHighSurrogate())
        return position + 1 == text.size() || !text.at(position + 1).isLowSurrogate();
    return character.isLowSurrogate() && (position == 0 || !text.at(position - 1).isHighSurrogate());
}

QByteArray fromUtf16(const QByteArray &text)
{
    QString characters(text.size() / 2, Qt::Uninitialized);
    if (isBigEndian(text))
        qFromBigEndian<quint16>(text.constData(), characters.size(), characters.data());
    else
        qFromLittleEndian<quint16>(text.constData(), characters.size(), characters.data());

    constexpr QChar byteOrderMark(0xFEFF);
    int done = characters.startsWith(byteOrderMark) ? 1 : 0;
    QByteArray utf8;
    for (int i = done; i < characters.size(); ++i) {
        if (!characters.at(i).isSurrogate() || !isSingle(characters, i))
            continue;
        utf8 += characters.mid(done, i - done).toUtf8() + invalid;
        done = i + 1;
    }
    utf8 += characters.mid(done).toUtf8();
    return text.size() % 2 == 0 ? utf8 : utf8 + invalid;
}

} // namespace

CsvEncoding detectedEncoding(const QByteArray &text)
{
    const bool isUtf16 = text.startsWith("\xFE\xFF") || text.startsWith("\xFF\xFE") || text.left(2).contains('\0');
    return isUtf16 ? CsvEncoding::Utf16 : CsvEncoding::Utf8;
}

QByteArray toUtf8(const QByteArray &text, CsvEncoding encoding)
{
    const QByteArray byteOrderMark("\xEF\xBB\xBF");
    switch (encoding) {
    case CsvEncoding::Utf16:
        return fromUtf16(text);
    case CsvEncoding::Windows1252:
        return fromWindows1252(text);
    default:
        return text.startsWith(byteOrderMark) ? text.mid(byteOrderMark.size()) : text;
    }
}

} // namespace cabledoc
