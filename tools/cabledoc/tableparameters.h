#pragma once

#include "command.h"

#include <cabledoc/tablekind.h>

class CommandLine;

// The parameters of the commands about tables. Each function returns Done, or prints a message about wrong usage.

/// Reads the second argument, which names a table. Templates do not have all tables.
ExitCode readTableKind(const CommandLine &line, cabledoc::TableKind *kind);
/// Reads --unit.
ExitCode readTableUnit(const CommandLine &line, cabledoc::TableUnit *unit);
