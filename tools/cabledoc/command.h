#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCommandLineParser>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// How the program ends. The numbers are part of its interface.
enum ExitCode {
    Done = 0,
    WrongUsage = 2,
    CannotLoad = 3,
    CannotSave = 4, ///< or cannot write to standard output
};

/// The command line of one command. It takes one file name.
class Command
{
public:
    /// Prepares for a command such as "info", described in one sentence.
    Command(const QString &name, const QString &description);

    void addOption(const QCommandLineOption &option) { m_parser.addOption(option); }
    /// Reads the words behind the program's name. False when they are wrong: usageError() was called, or
    /// help was shown, and exitCode() says which.
    bool parse(const QStringList &arguments);
    /// Reports wrong usage to standard error.
    ExitCode usageError(const QString &message) const;

    /// Loads the file into the job document. False when it cannot be: that was said, and exitCode() is
    /// CannotLoad.
    bool loadJob();

    ExitCode exitCode() const { return m_exitCode; }
    QString fileName() const { return m_parser.positionalArguments().constFirst(); }
    bool isSet(const QString &option) const { return m_parser.isSet(option); }
    QString value(const QString &option) const { return m_parser.value(option); }

private:
    QString m_name;
    QCommandLineParser m_parser;
    ExitCode m_exitCode = Done;
};

/// Writes a message for the user to standard error, with the program's name before it.
void printMessage(const QString &message);
/// The same about a file, whose name is put before a text that does not hold it.
void printMessage(const QString &fileName, const QString &message);
/// Writes data to standard output. When that fails, says so and returns CannotSave.
ExitCode printData(const QByteArray &data);

// The commands. Each takes the words behind the program's name and returns how the program ends.
ExitCode runNew(const QStringList &arguments);
ExitCode runInfo(const QStringList &arguments);
ExitCode runCables(const QStringList &arguments);
