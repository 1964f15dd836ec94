#include "xmlnames.h"

#include <algorithm>

namespace {

bool startsName(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_'
           || (c >= 0xC0 && c <= 0xFF && c != 0xD7 && c != 0xF7);
}

bool continuesName(char16_t c)
{
    return startsName(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.' || c == 0xB7;
}

/// Moves the position past a character, which may be a surrogate pair. Returns whether a file can hold the character.
bool takeCharacter(const QString &text, int *position, bool withReferences)
{
    const QChar first = text.at((*position)++);
    char32_t character = first.unicode();
    if (first.isHighSurrogate() && *position < text.size() && text.at(*position).isLowSurrogate())
        character = QChar::surrogateToUcs4(first, text.at((*position)++));
    return cabledoc::isStorable(first.unicode()) || (withReferences && cabledoc::isReferable(character));
}

} // namespace

bool cabledoc::isXmlName(const QString &text)
{
    return !text.isEmpty() && text.size() <= maximumNameLength && startsName(text.at(0).unicode())
           && std::all_of(text.cbegin(), text.cend(), [](QChar c) { return continuesName(c.unicode()); });
}

QString cabledoc::firstLostCharacter(const QString &text, bool withReferences)
{
    for (int end = 0; end < text.size();) {
        const int begin = end;
        if (!takeCharacter(text, &end, withReferences))
            return text.mid(begin, end - begin);
    }
    return QString();
}

QString cabledoc::savedText(const QString &text, bool withReferences)
{
    QString saved;
    for (int end = 0; end < text.size();) {
        const int begin = end;
        if (takeCharacter(text, &end, withReferences))
            saved.append(text.constData() + begin, end - begin);
        else
            saved.append(QLatin1Char('?'));
    }
    return saved;
}
