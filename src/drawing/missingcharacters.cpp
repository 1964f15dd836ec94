#include "missingcharacters.h"

#include "drawingfonts.h"
#include "drawingtext.h"

namespace cabledoc {

namespace {

/// Returns a character with its number, such as "東" (U+6771), or its number alone if it is not printable.
QString nameOf(uint character)
{
    const QString number = QStringLiteral("U+%1").arg(character, 4, 16, QLatin1Char('0')).toUpper();
    const char32_t whole = character;
    return QChar::isPrint(character) ? QStringLiteral("\"%1\" (%2)").arg(QString::fromUcs4(&whole, 1), number) : number;
}

} // namespace

MissingCharacters::MissingCharacters()
    : m_font(fontOf(SceneText()))
{
}

QString MissingCharacters::firstOf(const QString &text) const
{
    for (const uint character : text.toUcs4()) {
        if (isMissing(character))
            return nameOf(character);
    }
    return {};
}

void MissingCharacters::collect(const Scene &page)
{
    for (const SceneItem &item : page.items) {
        const auto *text = std::get_if<SceneText>(&item.shape);
        if (text == nullptr)
            continue;
        for (const uint character : text->text.toUcs4()) {
            if (isMissing(character))
                m_missing.insert(character);
        }
    }
}

void MissingCharacters::warn(QStringList *warnings) const
{
    constexpr int mostNames = 10;
    QStringList names;
    for (const uint character : m_missing) {
        if (names.size() == mostNames)
            names.append(QString(QChar(0x2026)));
        else if (names.size() < mostNames)
            names.append(nameOf(character));
    }
    if (!names.isEmpty())
        warnings->append(DrawingText::tr("no font has these characters, so they are missing: %1")
                             .arg(names.join(QLatin1String(", "))));
}

bool MissingCharacters::isMissing(uint character) const
{
    const bool isAscii = character >= 0x20 && character < 0x7F; // which all fonts have
    // Marks of the direction of a text are not seen in any font.
    return !isAscii && !QChar::isSpace(character) && QChar::category(character) != QChar::Other_Format
           && !m_font.inFontUcs4(character);
}

} // namespace cabledoc
