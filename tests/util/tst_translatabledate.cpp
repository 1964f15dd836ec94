#include "translatabledate.h"

#include <QtCore/QTranslator>
#include <QtTest/QtTest>

namespace {

/// Translates some names, as a language file would.
class SomeNames : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        const QByteArray text = QByteArray(context) + '/' + source + '/' + comment;
        if (text == "QObject/March/TranslatableDate::longMonthName()")
            return QString::fromUtf8("M\u00e4rz");
        if (text == "QObject/Monday/TranslatableDate::longDayName()")
            return "Montag";
        if (text == "QObject/Mar/")
            return "Mrz";
        return QString();
    }
};

} // namespace

class TranslatableDateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("text");
        const QDate monday(2010, 3, 1);
        QTest::newRow("long names") << monday << "dddd d MMMM yyyy"
                                    << "Monday 1 March 2010";
        QTest::newRow("short names") << monday << "ddd MMM"
                                     << "Mon Mar";
        QTest::newRow("both") << monday << "ddd dddd MMM MMMM"
                              << "Mon Monday Mar March";
        QTest::newRow("more letters than a code has") << monday << "dddddddMMMMM"
                                                      << "MondayMonMarch3";
        QTest::newRow("quoted") << monday << "'dddd'"
                                << "Monday";
        QTest::newRow("last of all") << QDate(2023, 12, 31) << "dddd MMMM"
                                     << "Sunday December";
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

    void formatsWithoutNamesAreThoseOfAnyDate()
    {
        const TranslatableDate date(1999, 9, 5);
        for (const char *format : {"d", "dd", "M", "MM", "yy", "yyyy", "dd.MM.yyyy", "d 'of' M", "", "x"})
            QCOMPARE(date.toString(format), QDate(date).toString(QString(format)));
    }

    void names()
    {
        QCOMPARE(TranslatableDate::longMonthName(0) + TranslatableDate::longMonthName(13), QString());
        QCOMPARE(TranslatableDate::longDayName(0) + TranslatableDate::shortDayName(8), QString());
        for (int month = 1; month <= 12; ++month) {
            QCOMPARE(TranslatableDate::longMonthName(month), QLocale::c().monthName(month));
            QCOMPARE(TranslatableDate::shortMonthToNumber(TranslatableDate::shortMonthName(month)), month);
        }
        for (int day = 1; day <= 7; ++day)
            QCOMPARE(TranslatableDate::longDayName(day), QLocale::c().dayName(day));
        QCOMPARE(TranslatableDate::shortMonthToNumber("mar"), 0);
        QCOMPARE(TranslatableDate::shortMonthToNumber("March"), 0);
    }

    void translated()
    {
        SomeNames names;
        QVERIFY(QCoreApplication::installTranslator(&names));
        TranslatableDate date;
        date = QDate(2010, 3, 1);
        QCOMPARE(date.toString("dddd d MMMM"), QString::fromUtf8("Montag 1 M\u00e4rz"));
        QCOMPARE(date.toString("ddd MMM"), QString::fromUtf8("Mon M\u00e4r"));
        // Short names are cut, but read by translations of their own.
        QCOMPARE(TranslatableDate::shortMonthToNumber("Mrz"), 3);
        QCOMPARE(TranslatableDate::shortMonthToNumber("Mar"), 0);
        QCoreApplication::removeTranslator(&names);
    }
};

QTEST_GUILESS_MAIN(TranslatableDateTest)
#include "tst_translatabledate.moc"
