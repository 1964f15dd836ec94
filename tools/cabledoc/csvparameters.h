#pragma once

#include "command.h"

#include <cabledoc/csvoptions.h>

class CommandLine;

// The options of the commands that read or write CSV. Each function returns Done, or prints a message about wrong
// usage.

/// Reads --delimiter, --encoding and --unprotect-formulas.
ExitCode readCsvOptions(const CommandLine &line, cabledoc::CsvOptions *options);
/// Reads --delimiter, --mark and --protect-formulas.
ExitCode readCsvStyle(const CommandLine &line, cabledoc::CsvStyle *style);
