#pragma once

#include "cabledoc_export.h"

#include <QtCore/QCalendar>
#include <QtCore/QDate>
#include <QtCore/QString>

/// A date whose month and day names come from the application's translations instead of the system's locale.
class CABLEDOC_EXPORT TranslatableDate : public QDate
{
public:
    /// Creates an invalid date.
    TranslatableDate() = default;
    /// Creates a date from its year, month and day. The date is invalid if there is no such day.
    TranslatableDate(int year, int month, int day)
        : QDate(year, month, day)
    {
    }
    /// Creates a date that is equal to the given one.
    TranslatableDate(const QDate &date)
        : QDate(date)
    {
    }
    /// Makes this date equal to the given one.
    TranslatableDate &operator=(const QDate &date)
    {
        QDate::operator=(date);
        return *this;
    }

    /// Returns the date in a format of QDate::toString(). The names that "ddd", "dddd", "MMM" and "MMMM" stand for are
    /// translated, even inside quotation marks. Returns an empty string for an invalid date.
    QString toString(const QString &format) const;
    /// Offers the other forms of QDate::toString(), which do not translate names.
    using QDate::toString;
    /// Returns the date in a format of QDate::toString() and in the given calendar. The names are not translated.
    QString toString(const QString &format, QCalendar calendar) const { return QDate::toString(format, calendar); }

    /// Returns the translated name of a month (1 to 12), or an empty string for any other number.
    static QString longMonthName(int month);
    /// Returns the translated name of a day of the week (1 for Monday to 7), or an empty string for any other number.
    static QString longDayName(int dayOfWeek);
    /// Returns the first three characters of longMonthName().
    static QString shortMonthName(int month);
    /// Returns the first three characters of longDayName().
    static QString shortDayName(int dayOfWeek);
    /// Returns the month (1 to 12) whose translated short name is the given text, or 0 if there is none. The short
    /// names "Jan", "Feb" and so on are translated separately, and may differ from those of shortMonthName().
    static int shortMonthToNumber(const QString &text);
};
