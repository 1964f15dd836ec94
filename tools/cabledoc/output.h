#pragma once

#include "command.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>

#include <functional>

/// Prints a message to standard error, with the name of the program before it.
void printMessage(const QString &message);
/// Prints a message about a file and returns the exit code. If the message does not contain the name of the file, the
/// name is printed before it.
ExitCode fail(ExitCode code, const QString &fileName, const QString &message);

/// Prints data to standard output. Prints a message and returns CannotPrint if that fails.
ExitCode printData(const QByteArray &data);
/// Prints a text to standard output, in the encoding of the locale.
ExitCode printText(const QString &text);
/// Prints the object as JSON.
ExitCode printJson(const QJsonObject &object);
/// Prints the object as JSON, with an array of the given name after its other members. The elements of the array are
/// made one by one, so that a million of them need no more memory than one.
ExitCode printJson(const QJsonObject &object, const QString &arrayName, int count,
                   const std::function<QJsonObject(int)> &element);

/// Returns the first 50 of the lines about a file, and a last line with the number of the others.
QString firstLines(const QString &fileName, int count, const std::function<QString(int)> &line);
