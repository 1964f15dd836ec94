#pragma once

#include "xmltokens.h"

#include <QtCore/QString>

#include <array>
#include <string_view>

namespace cabledoc {

/// Short texts that a file repeats, such as the names of attributes. They share their memory.
class SharedTexts
{
public:
    QString text(std::string_view bytes)
    {
        if (bytes.size() > longestShared)
            return QString::fromLatin1(bytes.data(), int(bytes.size()));
        std::size_t hash = bytes.size();
        for (const char byte : bytes)
            hash = hash * 31 + quint8(byte);
        QString &shared = m_texts[hash % m_texts.size()];
        if (shared.isNull() || !isEqual(shared, bytes))
            shared = QString::fromLatin1(bytes.data(), int(bytes.size()));
        return shared;
    }

    QString text(const XmlPiece &piece) { return piece.hasReferences ? piece.toString() : text(piece.bytes); }

private:
    static constexpr std::size_t longestShared = 32;

    std::array<QString, 4096> m_texts;
};

} // namespace cabledoc
