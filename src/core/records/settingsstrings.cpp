#include "settingsstrings.h"

#include "papersizes.h"
#include "predefinedscales.h"

#include <QtCore/QCoreApplication>

QStringList cabledoc::SettingsStrings::paperSizes()
{
    return paperSizeNames();
}

QStringList cabledoc::SettingsStrings::pageStandards()
{
    return {standard(), QStringLiteral("Metric (ISO)"), QStringLiteral("ANSI Engineering"),
            QStringLiteral("ANSI Architectural")};
}

QStringList cabledoc::SettingsStrings::scaleStyles()
{
    return {english(), QStringLiteral("Metric")};
}

QStringList cabledoc::SettingsStrings::predefinedScales()
{
    return predefinedScaleNames();
}

QString cabledoc::SettingsStrings::network()
{
    return QCoreApplication::translate("SettingsStrings", "Network");
}

QString cabledoc::SettingsStrings::letter()
{
    return QStringLiteral("Letter: 8.5 in. x 11 in.");
}

QString cabledoc::SettingsStrings::standard()
{
    return QStringLiteral("Standard");
}

QString cabledoc::SettingsStrings::english()
{
    return QStringLiteral("English");
}

QString cabledoc::SettingsStrings::twentyFeetToTheInch()
{
    return QStringLiteral("1\" = 20'0\"");
}
