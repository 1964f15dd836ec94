#pragma once

#include <QtCore/QStringList>

/// Conversions between values and the texts of attributes. None of them depends on the locale.
namespace cabledoc {

inline QString toText(const QString &value)
{
    return value;
}
QString toText(int value);
/// Returns "1" or "0".
QString toText(bool value);
/// Returns the number in the form of C's "%g". It has as many digits as are needed to read back the same value, but at
/// least six: "8", "9.5", "100000", "1.2e+06", "1234567".
QString toText(double value);
/// Returns the entries, separated by commas.
QString toText(const QStringList &entries);

inline void fromText(const QString &text, QString *value)
{
    *value = text;
}
/// Reads a number. The value is 0 if the text is not a number.
void fromText(const QString &text, int *value);
void fromText(const QString &text, float *value);
void fromText(const QString &text, double *value);
/// Reads a flag. The value is true only if the text is "1".
void fromText(const QString &text, bool *value);

/// Returns whether the text is empty or a number that a value of this kind can hold.
bool holdsNumber(const QString &text, const int *);
bool holdsNumber(const QString &text, const float *);
bool holdsNumber(const QString &text, const double *);

/// Returns the entries of a list, which are separated by commas. An empty text has no entries.
QStringList entriesIn(const QString &text);
inline void fromText(const QString &text, QStringList *entries)
{
    *entries = entriesIn(text);
}

} // namespace cabledoc
