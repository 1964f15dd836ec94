#pragma once

#include "command.h"

#include <QtCore/QCommandLineParser>

/// The arguments and options that the user gave to a command.
class CommandLine
{
public:
    explicit CommandLine(const Command &command);

    /// Reads the words after the name of the command. Returns what is wrong with them, or an empty text.
    /// Arguments may be missing if help is asked for.
    QString parse(const QStringList &words);

    /// Returns the argument with the given number, counted from 0, or an empty text if it was left out.
    QString argument(int number) const { return m_parser.positionalArguments().value(number); }
    bool isSet(const char *option) const { return m_parser.isSet(QLatin1String(option)); }
    /// Returns the value of an option, or an empty text if the option was left out.
    QString value(const char *option) const { return m_parser.value(QLatin1String(option)); }
    /// Returns the values of an option that can be given several times, in their order.
    QStringList values(const char *option) const { return m_parser.values(QLatin1String(option)); }
    /// Returns the size in bytes above which files are not read.
    qint64 maximumSize() const { return m_maximumSize; }

    /// Prints a message about wrong usage of the command. Returns WrongUsage.
    ExitCode usageError(const QString &message) const;

private:
    /// Returns which argument is missing or too many, or an empty text.
    QString missingOrExcess() const;
    bool readMaximumSize();

    const Command &m_command;
    QCommandLineParser m_parser;
    qint64 m_maximumSize;
};
