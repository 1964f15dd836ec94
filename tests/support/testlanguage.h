#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

/// Returns the translation of a text of cabledoc in the language of the test.
inline QString translated(const char *context, const QString &text)
{
    return QCoreApplication::translate(context, text.toUtf8().constData());
}

/// Returns the text with generated names, such as "Cable001" or "Floor_1", in the language of the test.
QByteArray withGeneratedNames(const QByteArray &text);

/// Sets the language of the test to that of the locale.
void useLanguage(const QLocale &locale);
