#include "elementname.h"

#include <algorithm>

namespace cabledoc {

namespace {

/// Splits a text at the separators that have no backslash before them, and leaves the backslashes in the pieces.
QStringList splitAt(QChar separator, const QString &text)
{
    QStringList pieces{QString()};
    bool isEscaped = false;
    for (const QChar character : text) {
        if (character == separator && !isEscaped)
            pieces.append(QString());
        else
            pieces.last().append(character);
        isEscaped = character == QLatin1Char('\\') && !isEscaped;
    }
    return pieces;
}

QString withoutEscapes(const QString &text)
{
    QString plain;
    bool isEscaped = false;
    for (const QChar character : text) {
        isEscaped = character == QLatin1Char('\\') && !isEscaped;
        if (!isEscaped)
            plain.append(character);
    }
    return plain;
}

bool needsEscape(QChar character)
{
    return character == QLatin1Char('\\') || character == QLatin1Char('/') || character == QLatin1Char(';');
}

QString escaped(const QString &part)
{
    // Most parts need not be copied.
    if (std::none_of(part.cbegin(), part.cend(), needsEscape))
        return part;
    QString text;
    for (const QChar character : part) {
        if (needsEscape(character))
            text.append(QLatin1Char('\\'));
        text.append(character);
    }
    return text;
}

} // namespace

QString nameText(const QStringList &parts)
{
    QStringList texts;
    for (const QString &part : parts)
        texts.append(escaped(part));
    return texts.join(QLatin1Char('/'));
}

QStringList partsOfName(const QString &text)
{
    QStringList parts;
    for (const QString &part : splitAt(QLatin1Char('/'), text))
        parts.append(withoutEscapes(part));
    return parts;
}

QString nameListText(const QStringList &names)
{
    return names.join(QLatin1String("; "));
}

QStringList namesIn(const QString &text)
{
    QStringList names;
    for (const QString &piece : splitAt(QLatin1Char(';'), text)) {
        // The blank after the separator is part of it.
        const QString name = !names.isEmpty() && piece.startsWith(QLatin1Char(' ')) ? piece.mid(1) : piece;
        names.append(name);
    }
    return text.isEmpty() ? QStringList() : names;
}

} // namespace cabledoc
