#include "testlanguage.h"

#include "fieldvalidators.h"
#include "jobeditorprobe.h"
#include "translations.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>
#include <QtTest/QtTest>

namespace {

const QString Languages[] = {"en", "de", "es", "fr"};

struct Message
{
    QString source;
    QString translation;
};

/// Returns the messages of a language file.
QVector<Message> messages(const QString &language)
{
    QFile file(QString(CABLEDOC_LANGUAGE_FILES "/cabledoc_%1.ts").arg(language));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QVector<Message> all;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            all.append({reader.readElementText(), QString()});
        else if (reader.isStartElement() && reader.name() == QLatin1String("translation"))
            all.last().translation = reader.readElementText();
    }
    return all;
}

/// Returns the places for values in a text, in the order of their numbers.
QStringList placesIn(const QString &text)
{
    QStringList places;
    auto found = QRegularExpression("%[0-9]").globalMatch(text);
    while (found.hasNext())
        places.append(found.next().captured());
    places.sort();
    return places;
}

} // namespace

/// Tests the translations, and the behaviour of the library in each language.
class TranslationsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;

private Q_SLOTS:
    void cleanupTestCase() { JobEditor::Destroy(); }

    void languageOfALocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<bool>("isThere");
        QTest::addColumn<QString>("monday");
        QTest::newRow("German") << QLocale("de_AT") << true << "Montag";
        QTest::newRow("Spanish") << QLocale("es_MX") << true << "lunes";
        QTest::newRow("none") << QLocale("da_DK") << false << "Monday";
        QTest::newRow("French") << QLocale("fr_CA") << true << "lundi";
        QTest::newRow("English") << QLocale("en_AU") << true << "Monday";
        QTest::newRow("again") << QLocale("de_DE") << true << "Montag";
        QTest::newRow("no locale") << QLocale::c() << true << "Monday";
    }

    /// Each call of installTranslations() replaces the language of the one before.
    void languageOfALocale()
    {
        QFETCH(QLocale, locale);
        useLanguage(QLocale::c());
        QTEST(cabledoc::installTranslations(locale), "isThere");
        QTEST(QObject::tr("Monday", "TranslatableDate::longDayName()"), "monday");
    }

    /// A value would be lost if its place were missing in a translation. A missing line break would join two messages.
    void translationsKeepValuesAndLineEnds()
    {
        for (const QString &language : {Languages[1], Languages[2], Languages[3]}) {
            const QVector<Message> all = messages(language);
            QVERIFY(all.size() > 200);
            for (const Message &message : all) {
                QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(language + ": " + message.source));
                QCOMPARE(placesIn(message.translation), placesIn(message.source));
                QCOMPARE(message.translation.endsWith('\n'), message.source.endsWith('\n'));
            }
        }
    }

    void behaviour_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("cableId");
        QTest::addColumn<QString>("floorId");
        QTest::addColumn<QString>("sheetId");
        QTest::newRow("English") << "en"
                                 << "Cable001"
                                 << "Floor_1"
                                 << "Sheet_1";
        QTest::newRow("German") << "de"
                                << "Kabel001"
                                << "Etage_1"
                                << "Blatt_1";
        QTest::newRow("Spanish") << "es"
                                 << "Cable001"
                                 << "Planta_1"
                                 << "Hoja_1";
        QTest::newRow("French") << "fr" << QString::fromUtf8("C\u00e2ble001") << QString::fromUtf8("\u00c9tage_1")
                                << "Feuille_1";
    }

    /// Tests the translated words that change the behaviour of the library.
    void behaviour()
    {
        QFETCH(QString, language);
        useLanguage(QLocale(language));
        JobEditor::Destroy();
        JobEditor &job = JobEditor::Instance();
        // The name of an untitled job is not translated, because checkUntitledJob() only knows "Untitled".
        const QString untitled = job.New();
        QVERIFY2(untitled.endsWith("Untitled1.job") && JobEditor::checkUntitledJob(untitled), qPrintable(untitled));
        QTEST(job.getFloorIds().value(0), "floorId");
        QTEST(job.getSheetIds().value(0), "sheetId");
        QTEST(job.addCable("", "", "cable_box", "", 0), "cableId");
        QCOMPARE(job.getCableUse("Cable1"), QString("TV"));
        // Names that were generated in another language stay as they are, also after a load.
        useLanguage(QLocale("de"));
        QCOMPARE(job.addCable("", "", 0), QString(language == "de" ? "Kabel002" : "Kabel001"));
        QVERIFY(job.saveAs(m_directory.filePath(language + ".job")));
        QVERIFY(job.Load(job.filename()));
        useLanguage(QLocale(language));
        QTEST(job.getCableID("Cable1"), "cableId");
        QTEST(job.getFloorIds().value(0), "floorId");
        // Removing a floor removes its cables, whatever the word for "all" is.
        const QString port = job.addPort("FFloor_1", "Undefined", 1, 1, "", "", "", 1, 1, 0);
        job.addCable("", "", "", port, 0);
        job.addFloor("", "", 8, "", 0);
        job.removeFloor("FFloor_1");
        QCOMPARE(job.getCables(true), QStringList({"Cable1", "Cable2"}));

        int position = 0;
        for (const QString digits : {"1234567890", "12a"}) {
            QString text = digits;
            const bool isAccepted = LengthValidator(nullptr).validate(text, position) == QValidator::Acceptable;
            QCOMPARE(isAccepted, digits != "12a");
        }
        for (const QChar character : QString(";<>|&?$*\"")) {
            QString text = QString("a%1b").arg(character);
            QCOMPARE(int(FileValidator(nullptr).validate(text, position)), int(QValidator::Invalid));
        }
    }
};

QTEST_GUILESS_MAIN(TranslationsTest)
#include "tst_translations.moc"
