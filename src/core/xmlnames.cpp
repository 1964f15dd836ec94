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

} // namespace

bool cabledoc::isXmlName(const QString &text)
{
    return !text.isEmpty() && text.size() <= maximumNameLength && startsName(text.at(0).unicode())
           && std::all_of(text.cbegin(), text.cend(), [](QChar c) { return continuesName(c.unicode()); });
}

QString cabledoc::firstLostCharacter(const QString &text)
{
    const auto *lost =
        std::find_if(text.begin(), text.end(), [](QChar character) { return !isStorable(character.unicode()); });
    if (lost == text.end())
        return QString();
    const bool isPair = lost->isHighSurrogate() && lost + 1 != text.end() && (lost + 1)->isLowSurrogate();
    return QString(lost, isPair ? 2 : 1);
}
