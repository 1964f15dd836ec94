#include "testlanguage.h"

#include "translations.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>

#include <clocale>

namespace {

/// Receives the texts that the language files do not translate. Ends the test if one of them is a text of cabledoc.
class LackingTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        const QByteArray name(context);
        if (!name.startsWith('Q') || name == "QObject")
            qFatal("not translated: %s, \"%s\", \"%s\"", context, source, comment == nullptr ? "" : comment);
        return QString();
    }
};

QTranslator &lackingTexts()
{
    static LackingTexts translator;
    return translator;
}

/// Sets the language of the locale if a test runs again in another language.
void setUpLanguage()
{
    if (!qEnvironmentVariableIsSet("CABLEDOC_TEST_LOCALE"))
        return;
    if (*std::localeconv()->decimal_point != ',' || QLocale().toString(1.5) != "1,5")
        qFatal("the locale has no decimal comma");
    useLanguage(QLocale());
}

} // namespace

QByteArray withGeneratedNames(const QByteArray &text)
{
    QString names = QString::fromLatin1(text);
    // Tags of elements and lists are the same in all languages.
    names.replace(QRegularExpression("(?<![</\\w])Cable(?=[0-9]{3})"), translated("JobEditor", "Cable"));
    names.replace(QRegularExpression("(?<![\\w])Floor_(?=[0-9])"), translated("JobEditor", "Floor_"));
    names.replace(QRegularExpression("(?<![\\w])Sheet_(?=[0-9])"), translated("JobEditor", "Sheet_"));
    return names.toLatin1();
}

void useLanguage(const QLocale &locale)
{
    QCoreApplication::removeTranslator(&lackingTexts());
    if (!cabledoc::installTranslations(locale) || locale.language() == QLocale::English
        || locale.language() == QLocale::C)
        return;
    // The translator that was installed last is asked first.
    QCoreApplication::installTranslator(&lackingTexts());
    cabledoc::installTranslations(locale);
}

Q_COREAPP_STARTUP_FUNCTION(setUpLanguage)
