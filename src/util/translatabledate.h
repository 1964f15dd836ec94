#pragma once

#include "cabledoc_export.h"

#include <QtCore/QCalendar>
#include <QtCore/QDate>
#include <QtCore/QString>

/// A date whose month and day names come from the application's translations, not from the system's locale.
class CABLEDOC_EXPORT TranslatableDate : public QDate
{
public:
    /// An invalid date.
    TranslatableDate() = default;
    TranslatableDate(int year, int month, int day)
        : QDate(year, month, day)
    {
    }
    TranslatableDate(const QDate &date)
        : QDate(date)
    {
    }
    TranslatableDate &operator=(const QDate &date)
    {
        QDate::operator=(date);
        return *this;
    }

    /// The date in a format of QDate::toString(), with the names of "ddd", "dddd", "MMM" and "MMMM" translated,
    /// even in quotes. Empty for an invalid date.
    QString toString(const QString &format) const;
    /// The other forms of QDate::toString(), which do not translate.
    using QDate::toString;
    QString toString(const QString &format, QCalendar calendar) const { return QDate::toString(format, calendar); }

    /// The translated name of a month (1 to 12) or of a day of the week (1, Monday, to 7); empty for another
    /// number.
    static QString longMonthName(int month);
    static QString longDayName(int dayOfWeek);
    /// The first three characters of the translated name.
    static QString shortMonthName(int month);
    static QString shortDayName(int dayOfWeek);
    /// The month (1 to 12) that the text is the translation of "Jan", "Feb", ... of; 0 when it is none. These
    /// are translated by themselves: shortMonthName() may give others.
    static int shortMonthToNumber(const QString &text);
};
