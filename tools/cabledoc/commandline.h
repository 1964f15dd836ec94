#pragma once

#include "command.h"
#include "output.h"

#include <QtCore/QCommandLineParser>

/// The arguments and options that the user gave to a command.
class CommandLine
{
public:
    explicit CommandLine(const Command &command);

    /// Reads the words after the name of the command. Returns what is wrong with them, or an empty text.
    /// Arguments may be missing if help is asked for.
    QString parse(const QStringList &words);

    QStringList arguments() const { return m_parser.positionalArguments(); }
    /// Returns the argument with the given number, counted from 0, or an empty text if it was left out.
    QString argument(int number) const { return arguments().value(number); }
    /// Returns whether an option was given. It is not if the command does not have it.
    bool isSet(const char *option) const { return has(option) && m_parser.isSet(QLatin1String(option)); }
    /// Returns the value of an option, or an empty text if the option was left out.
    QString value(const char *option) const
    {
        return isSet(option) ? m_parser.value(QLatin1String(option)) : QString();
    }
    /// Returns the values of an option that can be given several times, in their order.
    QStringList values(const char *option) const { return m_parser.values(QLatin1String(option)); }
    /// Returns the size in bytes above which files are not read.
    qint64 maximumSize() const { return m_maximumSize; }
    /// Returns where the command writes: the file of --output, or standard output.
    Output output() const { return {value("output"), isSet("overwrite")}; }

    /// Prints a message about wrong usage of the command. Returns WrongUsage.
    ExitCode usageError(const QString &message) const;

private:
    bool has(const char *option) const;
    /// Returns what the user gave for an argument or for an option with a value.
    QStringList valuesOf(const Parameter &parameter) const;
    /// Returns which option the command does not have, or an empty text.
    QString unknownOption() const;
    /// Returns which argument is missing or too many, or an empty text.
    QString missingOrExcess() const;
    /// Returns what is wrong with the names of files, or an empty text.
    QString wrongFiles() const;
    bool readMaximumSize();

    const Command &m_command;
    const QVector<Parameter> m_parameters; ///< those of the command, and the general options
    QCommandLineParser m_parser;
    qint64 m_maximumSize;
};
