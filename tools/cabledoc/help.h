#pragma once

#include "command.h"

/// Returns the help of the command with whose name the words begin. If they are the first word of several commands,
/// returns the list of these. Without words, returns the help of the program. Returns an empty text if there is no such
/// command.
QString helpOn(const QStringList &words);
/// Prints a message about words that do not begin with the name of a command, and which one may be meant. Returns
/// WrongUsage.
ExitCode unknownCommand(const QStringList &words);
