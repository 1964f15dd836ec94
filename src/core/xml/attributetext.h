#pragma once

#include <QtCore/QStringList>

/// How values become the text of an attribute, and back. Nothing here depends on the locale.
namespace cabledoc {

inline QString toText(const QString &value)
{
    return value;
}
QString toText(int value);
/// "1" or "0".
QString toText(bool value);
/// The number in the form of C's "%g", with as many digits as it takes to read back the same value, but never fewer
/// than six: "8", "9.5", "100000", "1.2e+06", "1234567".
QString toText(double value);
/// The entries, separated by commas.
QString toText(const QStringList &entries);

inline void fromText(const QString &text, QString *value)
{
    *value = text;
}
/// 0 for a text that is no number.
void fromText(const QString &text, int *value);
void fromText(const QString &text, float *value);
void fromText(const QString &text, double *value);
/// True for "1" and nothing else.
void fromText(const QString &text, bool *value);

/// Whether the text is empty, or a value of that kind can hold the number that it says. Texts and lists hold anything.
bool holdsNumber(const QString &text, const int *);
bool holdsNumber(const QString &text, const float *);
bool holdsNumber(const QString &text, const double *);
inline bool holdsNumber(const QString &, const void *)
{
    return true;
}

/// Returns the entries of a list, which are separated by commas. An empty text has none.
QStringList entriesIn(const QString &text);
inline void fromText(const QString &text, QStringList *entries)
{
    *entries = entriesIn(text);
}

} // namespace cabledoc
