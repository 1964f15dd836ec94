#include "testlanguage.h"
#include "translatabledate.h"

#include <QtTest/QtTest>

class TranslatableDateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useLanguage(QLocale::c()); }

    void formats_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("text");
        const QDate monday(2010, 3, 1);
        QTest::newRow("long names") << monday << "dddd d MMMM yyyy"
                                    << "Monday 1 March 2010";
        QTest::newRow("more letters than a code has") << monday << "dddddddMMMMM"
                                                      << "MondayMonMarch3";
        QTest::newRow("quoted") << monday << "'dddd'"
                                << "Monday";
        QTest::newRow("no date") << QDate() << "dddd d MMMM"
                                 << "";
    }

    void formats()
    {
        QFETCH(QDate, date);
        QFETCH(QString, format);
        QFETCH(QString, text);
        QCOMPARE(TranslatableDate(date).toString(format), text);
    }

    void languages_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("English") << QLocale::c();
        QTest::newRow("German") << QLocale("de_DE");
        QTest::newRow("Spanish") << QLocale("es_ES");
        QTest::newRow("French") << QLocale("fr_FR");
    }

    /// Tests every format code on each day of a year. The long names are compared with those of Qt.
    void languages()
    {
        QFETCH(QLocale, locale);
        useLanguage(locale);
        for (QDate day(2023, 1, 1); day.year() == 2023; day = day.addDays(1)) {
            const QString dayName = locale.dayName(day.dayOfWeek());
            const QString monthName = locale.monthName(day.month());
            const TranslatableDate date(day);
            QCOMPARE(date.toString("d dd|ddd|dddd|M MM|MMM|MMMM|yy yyyy"),
                     day.toString("d dd|") + dayName.left(3) + '|' + dayName + day.toString("|M MM|")
                         + monthName.left(3) + '|' + monthName + day.toString("|yy yyyy"));
        }
    }

    void shortMonths_data() { languages_data(); }

    /// Short names are cut from long names. But shortMonthToNumber() compares with translations of short names.
    void shortMonths()
    {
        QFETCH(QLocale, locale);
        useLanguage(locale);
        for (int month = 1; month <= 12; ++month) {
            // In French, the first three letters of June and July are the same.
            const bool isAmbiguous = locale.language() == QLocale::French && (month == 6 || month == 7);
            QCOMPARE(TranslatableDate::shortMonthToNumber(TranslatableDate::shortMonthName(month)),
                     isAmbiguous ? 0 : month);
        }
        QCOMPARE(TranslatableDate::shortMonthToNumber(QObject::tr("Jun")), 6);
        QCOMPARE(TranslatableDate::shortMonthToNumber(QObject::tr("Jul")), 7);
        QCOMPARE(TranslatableDate::shortMonthToNumber(TranslatableDate::shortMonthName(3).toUpper()), 0);
        QCOMPARE(TranslatableDate::shortMonthToNumber(TranslatableDate::longMonthName(4)), 0);
    }

    void formatsWithoutNamesAreThoseOfQt()
    {
        const TranslatableDate date(1999, 9, 5);
        for (const char *format : {"d", "dd", "M", "MM", "yy", "yyyy", "dd.MM.yyyy", "d 'of' M", "", "x"})
            QCOMPARE(date.toString(format), QDate(date).toString(QString(format)));
    }

    void numbersWithoutName()
    {
        QCOMPARE(TranslatableDate::longMonthName(0) + TranslatableDate::longMonthName(13), QString());
        QCOMPARE(TranslatableDate::longDayName(0) + TranslatableDate::shortDayName(8), QString());
    }
};

QTEST_GUILESS_MAIN(TranslatableDateTest)
#include "tst_translatabledate.moc"
