#pragma once

#include "command.h"

/// Prints the table of commands as JSON. The manual pages and the completion of shells are made of it.
ExitCode printUsage();
