#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class CommandLine;

/// How the program ends. The numbers are part of its interface.
enum ExitCode {
    Done = 0,
    HasFindings = 1, ///< "check" found something wrong
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
///     [FLOOR]             an argument that may be left out; it comes after those that must be given
///     [--json]            an option
///     [--max-size SIZE]   an option with a value
///     -o, --output NEW    an option that must be given, with a short and a long name
struct Parameter
{
    Parameter(const char *syntax, const QString &description);

    bool isOption() const { return !names.isEmpty(); }

    QString usage;    ///< what a usage line shows, such as "[FLOOR]" or "-o NEW"
    QString text;     ///< the syntax without brackets
    QString sentence; ///< what the parameter means
    bool isRequired;
    QStringList names; ///< the names of an option without dashes; empty for an argument
    QString valueName; ///< the value of an option, such as "NEW"; empty if it has none
};

/// Returns the option --help, which every command has.
Parameter helpOption();

struct Command
{
    const char *name; ///< one word, or two words such as "schedule import"
    QVector<Parameter> parameters;
    QString sentence; ///< what the command does; the list of commands shows it
    QString details;  ///< further sentences, or none; only the help of the command shows them
    ExitCode (*run)(const CommandLine &line);
};

/// Returns the table of commands, in the order in which help lists them.
const QVector<Command> &commands();
