#include "command.h"

#include <algorithm>

Parameter::Parameter(const char *syntax, const QString &description)
    : usage(QString::fromLatin1(syntax))
    , text(QString(usage).remove(QLatin1Char('[')).remove(QLatin1Char(']')))
    , sentence(description)
    , isRequired(usage == text)
    , isRepeated(text.endsWith(QLatin1String("...")))
{
    const QStringList words =
        QString(text).remove(QLatin1Char(',')).remove(QLatin1String("...")).split(QLatin1Char(' '));
    for (const QString &word : words) {
        if (word.startsWith(QLatin1String("--")))
            names.append(word.mid(2));
        else if (word.startsWith(QLatin1Char('-')))
            names.append(word.mid(1));
        else
            valueName = word;
    }
    if (isOption() && isRequired)
        usage = words.constFirst() + QLatin1Char(' ') + valueName;
}

const Command *findCommand(const QStringList &words)
{
    const auto command = std::find_if(commands().cbegin(), commands().cend(), [&words](const Command &candidate) {
        const QStringList name = candidate.words();
        return words.mid(0, name.size()) == name;
    });
    return command == commands().cend() ? nullptr : &*command;
}

QString typedOption(const QString &name)
{
    return QLatin1String(name.size() == 1 ? "-" : "--") + name;
}
