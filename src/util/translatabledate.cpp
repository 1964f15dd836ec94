#include "translatabledate.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace {

constexpr int lettersOfShortName = 3;

// Placeholders for names while the date formats the other parts.
constexpr QChar shortDay(1);
constexpr QChar longDay(2);
constexpr QChar shortMonth(3);
constexpr QChar longMonth(4);

} // namespace

QString TranslatableDate::toString(const QString &format) const
{
    QString rest = format;
    // The long codes come first, because "dddd" contains "ddd".
    rest.replace(QLatin1String("dddd"), longDay);
    rest.replace(QLatin1String("ddd"), shortDay);
    rest.replace(QLatin1String("MMMM"), longMonth);
    rest.replace(QLatin1String("MMM"), shortMonth);
    QString text = QDate::toString(rest);
    text.replace(shortDay, shortDayName(dayOfWeek()));
    text.replace(longDay, longDayName(dayOfWeek()));
    text.replace(shortMonth, shortMonthName(month()));
    text.replace(longMonth, longMonthName(month()));
    return text;
}

QString TranslatableDate::longMonthName(int month)
{
    switch (month) {
    case 1:
        return QObject::tr("January", "TranslatableDate::longMonthName()");
    case 2:
        return QObject::tr("February", "TranslatableDate::longMonthName()");
    case 3:
        return QObject::tr("March", "TranslatableDate::longMonthName()");
    case 4:
        return QObject::tr("April", "TranslatableDate::longMonthName()");
    case 5:
        return QObject::tr("May", "TranslatableDate::longMonthName()");
    case 6:
        return QObject::tr("June", "TranslatableDate::longMonthName()");
    case 7:
        return QObject::tr("July", "TranslatableDate::longMonthName()");
    case 8:
        return QObject::tr("August", "TranslatableDate::longMonthName()");
    case 9:
        return QObject::tr("September", "TranslatableDate::longMonthName()");
    case 10:
        return QObject::tr("October", "TranslatableDate::longMonthName()");
    case 11:
        return QObject::tr("November", "TranslatableDate::longMonthName()");
    case 12:
        return QObject::tr("December", "TranslatableDate::longMonthName()");
    default:
        return QString();
    }
}

QString TranslatableDate::longDayName(int dayOfWeek)
{
    switch (dayOfWeek) {
    case 1:
        return QObject::tr("Monday", "TranslatableDate::longDayName()");
    case 2:
        return QObject::tr("Tuesday", "TranslatableDate::longDayName()");
    case 3:
        return QObject::tr("Wednesday", "TranslatableDate::longDayName()");
    case 4:
        return QObject::tr("Thursday", "TranslatableDate::longDayName()");
    case 5:
        return QObject::tr("Friday", "TranslatableDate::longDayName()");
    case 6:
        return QObject::tr("Saturday", "TranslatableDate::longDayName()");
    case 7:
        return QObject::tr("Sunday", "TranslatableDate::longDayName()");
    default:
        return QString();
    }
}

QString TranslatableDate::shortMonthName(int month)
{
    return longMonthName(month).left(lettersOfShortName);
}

QString TranslatableDate::shortDayName(int dayOfWeek)
{
    return longDayName(dayOfWeek).left(lettersOfShortName);
}

int TranslatableDate::shortMonthToNumber(const QString &text)
{
    const QStringList months{QObject::tr("Jan"), QObject::tr("Feb"), QObject::tr("Mar"), QObject::tr("Apr"),
                             QObject::tr("May"), QObject::tr("Jun"), QObject::tr("Jul"), QObject::tr("Aug"),
                             QObject::tr("Sep"), QObject::tr("Oct"), QObject::tr("Nov"), QObject::tr("Dec")};
    return int(months.indexOf(text)) + 1;
}
