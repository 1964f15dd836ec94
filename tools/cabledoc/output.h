#pragma once

#include "command.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>

#include <functional>

/// The name that stands for standard input or standard output.
constexpr QLatin1String standardStream{"-"};

/// Where a command writes its result.
struct Output
{
    QString fileName;        ///< empty or "-" for standard output
    bool mayReplace = false; ///< whether the file may exist

    bool isStandard() const { return fileName.isEmpty() || fileName == standardStream; }
};

/// An object to be printed as JSON. Its last member may be an array. The elements of the array are made one by one, so
/// that a million of them need no more memory than one.
struct JsonObject
{
    JsonObject(const QJsonObject &first = {}, const QString &array = {}, int size = 0,
               const std::function<JsonObject(int number)> &elementOf = {})
        : members(first)
        , arrayName(array)
        , count(size)
        , element(elementOf)
    {
    }

    QJsonObject members;
    QString arrayName; ///< empty if there is no array
    int count;
    std::function<JsonObject(int number)> element;
};

/// Replaces the characters that control a terminal.
QString printable(QString text);
/// Prints a message to standard error, with the name of the program before it.
void printMessage(const QString &message);
/// Prints a message about a file and returns the exit code. If the message does not contain the name of the file, the
/// name is printed before it.
ExitCode fail(ExitCode code, const QString &fileName, const QString &message);

/// Suppresses messages that are not errors.
void beQuiet();
/// Returns whether messages that are not errors are suppressed.
bool isQuiet();

/// Prints a message and returns CannotSave if the output is a file that must not be replaced.
ExitCode refuseOutput(const Output &output);

// Each of these functions writes the whole result of a command. A file is written whole or not at all. If this fails,
// they print a message and return CannotSave, or CannotPrint for standard output.

/// Writes data.
ExitCode printData(const Output &output, const QByteArray &data);
/// Writes a text in the encoding of the locale.
ExitCode printText(const Output &output, const QString &text);
/// Writes an object as JSON. The members "form", with the given name and version of its form, and "program", with the
/// version of the program, come before the others.
ExitCode printJson(const Output &output, const char *form, const JsonObject &object);

/// Returns the first 50 of the lines about a file, and a last line with the number of the others.
QString firstLines(const QString &fileName, int count, const std::function<QString(int)> &line);
