#include "testlanguage.h"

#include "translations.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>

#include <clocale>

namespace {

/// Is asked for what the language files lack: ends the test when that is a text of ours.
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

/// The language of the locale for a test that is run once more in another language.
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
    // Tags are the same in all languages, and so are those of lists.
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
