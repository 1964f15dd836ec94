#pragma once

#include "command.h"

/// Returns the list of all commands, or of those whose names begin with the given word. It is empty if there are none.
QString commandList(const QString &firstWord = QString());
/// Returns the help of the program.
QString programHelp();
/// Returns the help of one command.
QString commandHelp(const Command &command);
