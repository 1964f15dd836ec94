#include "translations.h"

#include "qtcompat.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTranslator>

// Q_INIT_RESOURCE works only outside of namespaces. Without it, a program that links the objects from an archive would
// leave out the language files, because nothing else refers to them.
static void initLanguageFiles()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

/// Installs a language file until its owner is destroyed. Returns false if there is no such file.
bool install(const QString &fileName, const QString &folder, QObject *owner)
{
    auto *translator = new QTranslator(owner);
    return translator->load(fileName, folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

bool cabledoc::installTranslations(const QLocale &locale)
{
    initLanguageFiles();
    static QPointer<QObject> installed;
    delete installed;
    installed = new QObject(QCoreApplication::instance());

    const QStringList names = locale.uiLanguages();
    for (const QString &name : names) {
        const QString language = name.section(QLatin1Char('-'), 0, 0);
        if (language == QLatin1String("en") || language == QLatin1String("C"))
            return true;
        if (install(QLatin1String("cabledoc_") + language, QStringLiteral(":/cabledoc/translations"), installed)) {
            install(QLatin1String("qtbase_") + language, cabledoc::qtcompat::translationsFolder(), installed);
            return true;
        }
    }
    return false;
}
