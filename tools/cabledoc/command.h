#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class CommandLine;

/// How the program ends. The numbers are part of its interface. Of several, the greatest is the worst.
enum ExitCode {
    Done = 0,
    HasFindings = 1, ///< "check", "labels" or "results status" found something wrong
    WrongUsage = 2,
    CannotLoad = 3,
    CannotSave = 4,
    CannotPrint = 5, ///< the command did its work, but standard output could not be written
};

/// The translation context of the texts of the program.
struct Program
{
    Q_DECLARE_TR_FUNCTIONS(Program)
};

/// An argument or option of a command. Its syntax is written as in a manual and is the same in all languages:
///
///     FILE.job            an argument
///     FILE...             an argument that may be given several times; it is the last one
///     [FLOOR]             an argument that may be left out; it comes after those that must be given
///     [--json]            an option
///     [--max-size SIZE]   an option with a value
///     -o, --output NEW    an option that must be given, with a short and a long name
///
/// A name that begins with FILE stands for a file that the command reads, and one that begins with NEW for a file that
/// it writes. Both may have an extension, and both may be "-".
struct Parameter
{
    Parameter(const char *syntax, const QString &description);

    bool isOption() const { return !names.isEmpty(); }
    bool isFileToRead() const { return valueName.startsWith(QLatin1String("FILE")); }
    bool isFileToWrite() const { return valueName.startsWith(QLatin1String("NEW")); }
    /// Returns the extension of the file, such as "job". It is empty if there is none.
    QString extension() const { return valueName.section(QLatin1Char('.'), 1); }

    QString usage;    ///< what a usage line shows, such as "[FLOOR]" or "-o NEW"
    QString text;     ///< the syntax without brackets
    QString sentence; ///< what the parameter means
    bool isRequired;
    bool isRepeated;
    QStringList names; ///< the names of an option without dashes; empty for an argument
    QString valueName; ///< the argument or the value of the option, such as "NEW"; empty if the option has none
};

struct Command
{
    const char *name; ///< one word, or two words such as "schedule import"
    QVector<Parameter> parameters;
    QString sentence; ///< what the command does; the list of commands shows it
    QString details;  ///< further sentences, or none; only the help of the command shows them
    ExitCode (*run)(const CommandLine &line);

    QStringList words() const { return QString::fromLatin1(name).split(QLatin1Char(' ')); }
};

/// Returns the table of commands, in the order in which help lists them.
const QVector<Command> &commands();
/// Returns the options that every command has. They may also stand before the name of the command.
const QVector<Parameter> &generalOptions();
/// Returns the options that stand in place of a command.
const QVector<Parameter> &programOptions();
/// Returns the exit codes with their meanings.
const QVector<QPair<ExitCode, QString>> &exitCodes();

/// Returns the command with whose name the words begin, or null if there is none.
const Command *findCommand(const QStringList &words);
/// Returns an option as it is typed, such as "-o" or "--output".
QString typedOption(const QString &name);
