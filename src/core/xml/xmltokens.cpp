#include "xmltokens.h"

#include "xmlnames.h"
#include "xmlscan.h"

#include <algorithm>
#include <array>

namespace cabledoc {

namespace {

// What a byte may be

enum : quint8 {
    StartsName = 1,
    ContinuesName = 2,
    InValue = 4,      ///< may be part of a value as it is. Quotation marks may too, if the other kind encloses it.
    InCharacters = 8, ///< may be between tags as it is
    Blank = 16,
    LooksBlank = 32, ///< a blank for Qt, which drops texts that have no other characters
};

constexpr std::array<quint8, 256> makeClasses()
{
    std::array<quint8, 256> classes{};
    for (int byte = 0; byte < 256; ++byte) {
        quint8 &all = classes[std::size_t(byte)];
        const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_';
        if (isLetter)
            all |= StartsName;
        if (isLetter || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.')
            all |= ContinuesName;
        if (byte == ' ' || byte == '\n' || byte == '\t')
            all |= Blank | LooksBlank;
        if (byte == 0x85 || byte == 0xA0)
            all |= LooksBlank;
        const bool isPlain = byte >= 0x20 && byte != '<' && byte != '&';
        if (isPlain && byte != '"' && byte != '\'')
            all |= InValue;
        if ((isPlain && byte != ']') || (all & Blank) != 0)
            all |= InCharacters;
    }
    return classes;
}

constexpr std::array<quint8, 256> classes = makeClasses();

bool is(char byte, quint8 what)
{
    return (classes[quint8(byte)] & what) != 0;
}

struct NamedReference
{
    std::string_view name;
    char character;
};
constexpr NamedReference namedReferences[] = {
    {"amp;", '&'}, {"lt;", '<'}, {"gt;", '>'}, {"quot;", '"'}, {"apos;", '\''},
};

/// A reference behind its "&".
struct Reference
{
    char32_t character;
    std::size_t length;
};

std::optional<Reference> numericReference(std::string_view text)
{
    const bool isHexadecimal = text.size() > 1 && text[1] == 'x';
    const std::size_t digits = isHexadecimal ? 2 : 1;
    const std::size_t end = text.substr(0, 12).find(';');
    if (end == std::string_view::npos || end == digits)
        return std::nullopt;
    bool isNumber = false;
    const std::string_view number = text.substr(digits, end - digits);
    if (!std::all_of(number.begin(), number.end(), [](char c) { return is(c, ContinuesName) && c != '-' && c != '_'; }))
        return std::nullopt;
    const char32_t character = QByteArray(number.data(), int(number.size())).toUInt(&isNumber, isHexadecimal ? 16 : 10);
    return isNumber && character <= 0x10FFFF ? std::optional<Reference>({character, end + 1}) : std::nullopt;
}

std::optional<Reference> referenceAt(std::string_view text)
{
    if (!text.empty() && text[0] == '#')
        return numericReference(text);
    for (const NamedReference &named : namedReferences) {
        if (text.substr(0, named.name.size()) == named.name)
            return Reference{char32_t(named.character), named.name.size()};
    }
    return std::nullopt;
}

bool mayBeReferred(char32_t character)
{
    return character <= 0xFF ? isStorable(char16_t(character)) : isReferable(character);
}

} // namespace

QString XmlPiece::toString() const
{
    if (!hasReferences)
        return QString::fromLatin1(bytes.data(), int(bytes.size()));
    QString text;
    text.reserve(int(bytes.size()));
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::size_t plain = std::min(rest.find('&'), rest.size());
        text += QLatin1String(rest.data(), int(plain));
        rest.remove_prefix(plain);
        if (rest.empty())
            break;
        const std::optional<Reference> reference = referenceAt(rest.substr(1));
        if (reference->character > 0xFFFF)
            text += QString::fromUcs4(&reference->character, 1);
        else
            text += QChar(ushort(reference->character));
        rest.remove_prefix(1 + reference->length);
    }
    return text;
}

XmlTokens::XmlTokens(const QByteArray &text)
    : m_position(text.constData())
    , m_end(m_position + text.size())
{
}

XmlTokens::Token XmlTokens::next()
{
    if (m_isEmptyElement) {
        m_isEmptyElement = false;
        m_openElements.pop_back();
        return EndElement;
    }
    const char *const start = m_position;
    skipBlanks();
    if (m_position == m_end)
        return m_hasRoot && m_openElements.empty() ? End : Unknown;
    if (*m_position == '<')
        return markup();
    m_position = start;
    return characters();
}

XmlTokens::Token XmlTokens::markup()
{
    if (skip("</"))
        return endTag();
    if (skip("<!--"))
        return comment();
    ++m_position;
    return startTag();
}

XmlTokens::Token XmlTokens::startTag()
{
    const bool isSecondRoot = m_hasRoot && m_openElements.empty();
    if (isSecondRoot || int(m_openElements.size()) == maximumDepth || !readName(&m_name))
        return Unknown;
    m_hasRoot = true;
    m_openElements.push_back(m_name);
    m_attributes.clear();
    for (;;) {
        const char *const end = m_position;
        skipBlanks();
        m_isEmptyElement = skip("/>");
        if (m_isEmptyElement || skip('>'))
            return hasRepeatedAttribute() ? Unknown : StartElement;
        const bool isFollowing = m_position != end && int(m_attributes.size()) < maximumAttributes;
        if (!isFollowing || !readAttribute())
            return Unknown;
    }
}

XmlTokens::Token XmlTokens::endTag()
{
    if (m_openElements.empty() || !skip(m_openElements.back()) || !skip('>'))
        return Unknown;
    m_openElements.pop_back();
    return EndElement;
}

XmlTokens::Token XmlTokens::comment()
{
    const std::string_view rest(m_position, std::size_t(m_end - m_position));
    const std::size_t length = rest.find("--");
    if (length == std::string_view::npos)
        return Unknown;
    const auto isPlain = [](char c) { return is(c, InCharacters) || c == '<' || c == '&' || c == ']'; };
    m_piece = {rest.substr(0, length), false};
    m_position += length;
    return std::all_of(m_piece.bytes.begin(), m_piece.bytes.end(), isPlain) && skip("-->") ? Comment : Unknown;
}

XmlTokens::Token XmlTokens::characters()
{
    const char *const start = m_position;
    bool isBlank = true;
    m_piece.hasReferences = false;
    while (m_position != m_end && *m_position != '<') {
        if (*m_position == '&') {
            const std::optional<char32_t> character = readReference();
            if (!character)
                return Unknown;
            m_piece.hasReferences = true;
            // Qt decides whether the others are blanks.
            isBlank = isBlank && (*character > u'~' || *character <= u' ');
            continue;
        }
        // XML does not allow "]]>" here.
        if (!is(*m_position, InCharacters) && (*m_position != ']' || skip("]]>")))
            return Unknown;
        isBlank = isBlank && is(*m_position, LooksBlank);
        ++m_position;
    }
    m_piece.bytes = {start, std::size_t(m_position - start)};
    return isBlank || m_openElements.empty() ? Unknown : Characters;
}

bool XmlTokens::readName(std::string_view *name)
{
    const char *const start = m_position;
    if (m_position == m_end || !is(*m_position, StartsName))
        return false;
    while (m_position != m_end && is(*m_position, ContinuesName))
        ++m_position;
    *name = {start, std::size_t(m_position - start)};
    return name->size() <= maximumNameLength;
}

bool XmlTokens::readAttribute()
{
    Attribute attribute;
    if (!readName(&attribute.name) || !skip('=') || m_position == m_end)
        return false;
    const char quote = *m_position++;
    if (quote != '"' && quote != '\'')
        return false;
    const char *const start = m_position;
    while (m_position != m_end && *m_position != quote) {
        if (*m_position == '&') {
            if (!readReference())
                return false;
            attribute.value.hasReferences = true;
        } else if (is(*m_position, InValue) || *m_position == '"' || *m_position == '\'') {
            ++m_position;
        } else {
            return false;
        }
    }
    attribute.value.bytes = {start, std::size_t(m_position - start)};
    if (m_position == m_end)
        return false;
    ++m_position;
    m_attributes.push_back(attribute);
    return true;
}

std::optional<char32_t> XmlTokens::readReference()
{
    const std::optional<Reference> reference = referenceAt({m_position + 1, std::size_t(m_end - m_position - 1)});
    if (!reference || !mayBeReferred(reference->character))
        return std::nullopt;
    m_position += 1 + reference->length;
    return reference->character;
}

bool XmlTokens::hasRepeatedAttribute()
{
    constexpr std::size_t few = 24;
    if (m_attributes.size() <= few) {
        // Most names already differ in their lengths, so this takes less time than sorting.
        for (auto attribute = m_attributes.cbegin(); attribute != m_attributes.cend(); ++attribute) {
            const auto isSame = [attribute](const Attribute &other) { return other.name == attribute->name; };
            if (std::any_of(m_attributes.cbegin(), attribute, isSame))
                return true;
        }
        return false;
    }
    m_sortedNames.clear();
    for (const Attribute &attribute : m_attributes)
        m_sortedNames.push_back(attribute.name);
    std::sort(m_sortedNames.begin(), m_sortedNames.end());
    return std::adjacent_find(m_sortedNames.begin(), m_sortedNames.end()) != m_sortedNames.end();
}

void XmlTokens::skipBlanks()
{
    while (m_position != m_end && is(*m_position, Blank))
        ++m_position;
}

bool XmlTokens::skip(char mark)
{
    if (m_position == m_end || *m_position != mark)
        return false;
    ++m_position;
    return true;
}

bool XmlTokens::skip(std::string_view mark)
{
    if (std::string_view(m_position, std::size_t(m_end - m_position)).substr(0, mark.size()) != mark)
        return false;
    m_position += mark.size();
    return true;
}

} // namespace cabledoc
