#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

/// A text of ours as the test's language has it.
inline QString translated(const char *context, const QString &text)
{
    return QCoreApplication::translate(context, text.toUtf8().constData());
}

/// A text with the names that the library generates, "Cable001" or "Floor_1", as the test's language has them.
QByteArray withGeneratedNames(const QByteArray &text);

/// From here on the test has the language of the locale, whatever it was started with.
void useLanguage(const QLocale &locale);
