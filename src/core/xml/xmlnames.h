#pragma once

#include <QtCore/QString>

namespace cabledoc {

/// The parser refuses names of more than 4,096 characters.
constexpr int maximumNameLength = 4000;

/// Whether the text can name an element or attribute of a file: an XML name without a colon, of
/// Latin-1 characters only, since names cannot be escaped, and not too long.
bool isXmlName(const QString &text);

/// Whether the files' encoding and XML 1.0 can both carry the character.
constexpr bool isStorable(char16_t character)
{
    return character <= 0xFF && (character >= 0x20 || character == u'\t' || character == u'\n' || character == u'\r');
}

/// Whether a numeric reference can stand for a character beyond Latin-1: XML 1.0 allows it, and it is not half of one.
constexpr bool isReferable(char32_t character)
{
    return character > 0xFF && (character < 0xD800 || character > 0xDFFF) && character != 0xFFFE && character != 0xFFFF;
}

/// The first character of the text that a file cannot hold, with numeric references or without; empty when it can hold
/// all of it.
QString firstLostCharacter(const QString &text, bool withReferences);

/// The text as it is after a save and a load: "?" stands for what a file cannot hold.
QString savedText(const QString &text, bool withReferences);

} // namespace cabledoc
