#include "help.h"

#include "output.h"
#include "suggestion.h"

#include <QtCore/QPair>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int lineLength = 80;

using Row = QPair<QString, QString>;

/// Breaks the text into lines. All lines but the first begin with the given number of blanks.
QString wrapped(QString text, int indent)
{
    const QRegularExpression line(QStringLiteral("(.{1,%1}) ").arg(lineLength - indent));
    text.append(QLatin1Char(' ')).replace(line, QLatin1String("\\1\n") + QString(indent, QLatin1Char(' ')));
    return text.trimmed();
}

/// Returns a heading and the rows in two columns below it, or an empty text if there are no rows.
QString section(const QString &heading, const QVector<Row> &rows)
{
    if (rows.isEmpty())
        return {};
    int width = 0;
    for (const Row &row : rows)
        width = std::max(width, int(row.first.size()));
    QString text = heading + QLatin1Char('\n');
    for (const Row &row : rows)
        text += QStringLiteral("  %1  %2\n").arg(row.first.leftJustified(width), wrapped(row.second, width + 4));
    return text;
}

/// Puts the texts below each other, with an empty line between them.
QString joined(QStringList texts)
{
    texts.removeAll(QString());
    return texts.join(QLatin1Char('\n'));
}

/// Returns the command as it is typed, with the given words after its name and without options that may be left out.
QString synopsis(const Command &command, const QString &afterName = QString())
{
    QString text = QString::fromLatin1(command.name) + afterName;
    for (const Parameter &parameter : command.parameters) {
        if (parameter.isRequired || !parameter.isOption())
            text += QLatin1Char(' ') + parameter.usage;
    }
    return text;
}

/// Returns the list of all commands, or of those whose names begin with the given word. It is empty if there are none.
QString commandList(const QString &firstWord = QString())
{
    QVector<Row> rows;
    for (const Command &command : commands()) {
        if (firstWord.isEmpty() || QString::fromLatin1(command.name).startsWith(firstWord + QLatin1Char(' ')))
            rows.append({synopsis(command), command.sentence});
    }
    return section(Program::tr("Commands:"), rows);
}

/// Returns the options, or the arguments, among the parameters.
QVector<Row> rowsOf(const QVector<Parameter> &parameters, bool areOptions)
{
    QVector<Row> rows;
    for (const Parameter &parameter : parameters) {
        if (parameter.isOption() == areOptions)
            rows.append({parameter.text, parameter.sentence});
    }
    return rows;
}

QString programHelp()
{
    const QVector<Row> options = rowsOf(generalOptions() + programOptions(), true);
    QVector<Row> codes;
    for (const auto &code : exitCodes())
        codes.append({QString::number(code.first), code.second});
    return joined({Program::tr("Usage: cabledoc COMMAND ...\n"), commandList(),
                   section(Program::tr("Options:"), options), section(Program::tr("Exit codes:"), codes)});
}

QString commandHelp(const Command &command)
{
    const QVector<Row> arguments = rowsOf(command.parameters, false);
    const QVector<Row> options = rowsOf(command.parameters + generalOptions(), true);
    const QString usage = synopsis(command, QLatin1Char(' ') + Program::tr("[options]"));
    return joined({Program::tr("Usage: cabledoc %1\n").arg(usage),
                   wrapped(command.sentence + QLatin1Char(' ') + command.details, 0) + QLatin1Char('\n'),
                   section(Program::tr("Arguments:"), arguments), section(Program::tr("Options:"), options)});
}

/// Returns the command that is typed most like the words, or the first word of several commands. Returns an empty text
/// if nothing is like the words.
QString nearestCommand(const QStringList &words)
{
    QStringList firstWords;
    for (const Command &command : commands())
        firstWords.append(command.words().constFirst());
    const QString first = nearest(words.value(0), firstWords);
    QStringList secondWords;
    for (const Command &command : commands()) {
        if (command.words().constFirst() == first)
            secondWords += command.words().mid(1);
    }
    const QString second = nearest(words.value(1), secondWords);
    if (!second.isEmpty())
        return first + QLatin1Char(' ') + second;
    return first == words.value(0) ? QString() : first;
}

} // namespace

QString helpOn(const QStringList &words)
{
    if (words.isEmpty())
        return programHelp();
    if (const Command *command = findCommand(words))
        return commandHelp(*command);
    return words.size() == 1 ? commandList(words.constFirst()) : QString();
}

ExitCode unknownCommand(const QStringList &words)
{
    if (words.isEmpty()) {
        printMessage(Program::tr("a command is needed"));
        std::fprintf(stderr, "\n%s", qPrintable(commandList()));
        return WrongUsage;
    }
    // "schedule" is the first word of several commands.
    const QString group = commandList(words.constFirst());
    const QString typed = QStringList(words.mid(0, group.isEmpty() ? 1 : 2)).join(QLatin1Char(' '));
    const QString suggestion = nearestCommand(words);
    printMessage(withSuggestion(Program::tr("there is no command \"%1\"").arg(typed), suggestion));
    if (suggestion.isEmpty())
        std::fprintf(stderr, "\n%s", qPrintable(group.isEmpty() ? commandList() : group));
    return WrongUsage;
}
