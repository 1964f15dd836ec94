#include "command.h"

Parameter::Parameter(const char *syntax, const QString &description)
    : usage(QString::fromLatin1(syntax))
    , text(QString(usage).remove(QLatin1Char('[')).remove(QLatin1Char(']')))
    , sentence(description)
    , isRequired(usage == text)
{
    if (!text.startsWith(QLatin1Char('-')))
        return;
    const QStringList words = QString(text).remove(QLatin1Char(',')).split(QLatin1Char(' '));
    for (const QString &word : words) {
        if (word.startsWith(QLatin1String("--")))
            names.append(word.mid(2));
        else if (word.startsWith(QLatin1Char('-')))
            names.append(word.mid(1));
        else
            valueName = word;
    }
    if (isRequired)
        usage = words.constFirst() + QLatin1Char(' ') + valueName;
}

Parameter helpOption()
{
    return {"[-h, --help]", Program::tr("Show this help.")};
}
