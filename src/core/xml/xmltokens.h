#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace cabledoc {

/// Returns whether both texts have the same characters.
inline bool isEqual(const QString &text, std::string_view latin1)
{
    if (std::size_t(text.size()) != latin1.size())
        return false;
    const auto isSame = [](QChar character, char byte) { return character.unicode() == quint8(byte); };
    return std::equal(text.cbegin(), text.cend(), latin1.begin(), isSame);
}

/// A piece of an XML text: a value or characters.
struct XmlPiece
{
    std::string_view bytes;
    bool hasReferences = false;

    /// Returns the characters, with references replaced by what they mean.
    QString toString() const;
};

/// Reads an XML text in the form of a save, token by token. It refuses everything that Qt's parser refuses. It also
/// stops, with the token Unknown, at what a save rarely writes: document types, CDATA sections, processing
/// instructions, carriage returns, names beyond ASCII, and blanks in unusual places. Then Qt's parser has to read the
/// text, or tell what is wrong with it.
class XmlTokens
{
public:
    enum Token {
        StartElement,
        EndElement, ///< also follows the start of an empty element
        Characters, ///< the characters between two tags, if they are not blanks only
        Comment,
        End, ///< the whole text was read
        Unknown,
    };

    struct Attribute
    {
        std::string_view name;
        XmlPiece value;
    };

    /// The text must live as long as the object.
    explicit XmlTokens(const QByteArray &text);

    /// Reads the next token. After End and Unknown there is none.
    Token next();

    // What the present token holds

    /// Returns the name of the element that starts.
    std::string_view name() const { return m_name; }
    /// Returns the attributes of the element that starts.
    const std::vector<Attribute> &attributes() const { return m_attributes; }
    /// Returns the characters or the comment.
    const XmlPiece &piece() const { return m_piece; }

private:
    Token markup();
    Token startTag();
    Token endTag();
    Token comment();
    Token characters();
    bool readName(std::string_view *name);
    bool readAttribute();
    std::optional<char32_t> readReference();
    bool hasRepeatedAttribute();
    void skipBlanks();
    bool skip(char mark);
    bool skip(std::string_view mark);

    const char *m_position;
    const char *m_end;
    bool m_isEmptyElement = false;
    bool m_hasRoot = false;
    std::string_view m_name;
    std::vector<Attribute> m_attributes;
    std::vector<std::string_view> m_sortedNames;
    std::vector<std::string_view> m_openElements;
    XmlPiece m_piece;
};

} // namespace cabledoc
