#pragma once

#include <QtCore/QString>

namespace cabledoc {

/// Maximum length of a name. The parser refuses names of more than 4,096 characters.
constexpr int maximumNameLength = 4000;

/// Returns whether the text can be the name of an element or attribute in a file. It must be an XML name without a
/// colon that is not too long. It may only have Latin-1 characters, because names cannot be escaped.
bool isXmlName(const QString &text);

/// Returns whether Latin-1 and XML 1.0 both allow the character.
constexpr bool isStorable(char16_t character)
{
    return character <= 0xFF && (character >= 0x20 || character == u'\t' || character == u'\n' || character == u'\r');
}

/// Returns whether a character beyond Latin-1 can be written as a numeric reference. XML 1.0 must allow it, and it must
/// not be a single surrogate.
constexpr bool isReferable(char32_t character)
{
    return character > 0xFF && (character < 0xD800 || character > 0xDFFF) && character != 0xFFFE && character != 0xFFFF;
}

/// Returns the first character of the text that a file cannot hold, with or without numeric references. Returns an
/// empty string if there is none.
QString firstLostCharacter(const QString &text, bool withReferences);

/// Returns the text as it is after a save and a load, with "?" for each character that a file cannot hold.
QString savedText(const QString &text, bool withReferences);

} // namespace cabledoc
