#pragma once

#include <QtCore/QStringList>

/// Returns names in scripts that documents have to bear: all characters of Latin-1, from right to left, and a long one.
inline QStringList strangeIds()
{
    QStringList ids;
    constexpr int charactersOfAnId = 16;
    for (int first = 0x20; first < 0x100; first += charactersOfAnId) {
        QString id("x");
        for (int character = first; character < first + charactersOfAnId; ++character) {
            if (QChar(character).isPrint())
                id += QChar(character);
        }
        ids.append(id + 'x');
    }
    ids.removeAll("xx"); // control characters only
    return ids + QStringList{QString::fromUtf8("קומה 2/חדר 7"), QString::fromUtf8("غرفة ٣"), QString(120, 'L')};
}

/// Returns a text as a value in a job file.
inline QByteArray escaped(const QString &text)
{
    QByteArray value;
    for (const uint character : text.toUcs4())
        value += "&#" + QByteArray::number(character) + ';';
    return value;
}
