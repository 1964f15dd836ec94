#include "help.h"

#include <QtCore/QPair>
#include <QtCore/QRegularExpression>

#include <algorithm>

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

} // namespace

QString commandList(const QString &firstWord)
{
    QVector<Row> rows;
    for (const Command &command : commands()) {
        if (firstWord.isEmpty() || QString::fromLatin1(command.name).startsWith(firstWord + QLatin1Char(' ')))
            rows.append({synopsis(command), command.sentence});
    }
    return section(Program::tr("Commands:"), rows);
}

QString programHelp()
{
    const Parameter help = helpOption();
    const QVector<Row> options{{QStringLiteral("COMMAND --help"), Program::tr("Show the help of a command.")},
                               {help.text, help.sentence},
                               {QStringLiteral("--version"), Program::tr("Show the version.")}};
    const QVector<Row> exitCodes{
        {QString::number(Done), Program::tr("The command did its work.")},
        {QString::number(HasFindings), Program::tr("\"check\" found something wrong.")},
        {QString::number(WrongUsage), Program::tr("The command line is wrong.")},
        {QString::number(CannotLoad), Program::tr("A file could not be loaded.")},
        {QString::number(CannotSave), Program::tr("A file could not be saved.")},
        {QString::number(CannotPrint),
         Program::tr("The command did its work, but standard output could not be written.")},
    };
    return joined({Program::tr("Usage: cabledoc COMMAND ...\n"), commandList(),
                   section(Program::tr("Options:"), options), section(Program::tr("Exit codes:"), exitCodes)});
}

QString commandHelp(const Command &command)
{
    QVector<Row> arguments;
    QVector<Row> options;
    for (const Parameter &parameter : command.parameters)
        (parameter.isOption() ? options : arguments).append({parameter.text, parameter.sentence});
    options.append({helpOption().text, helpOption().sentence});
    const QString usage = synopsis(command, QLatin1Char(' ') + Program::tr("[options]"));
    return joined({Program::tr("Usage: cabledoc %1\n").arg(usage),
                   wrapped(command.sentence + QLatin1Char(' ') + command.details, 0) + QLatin1Char('\n'),
                   section(Program::tr("Arguments:"), arguments), section(Program::tr("Options:"), options)});
}
