#include "help.h"

#include "commandline.h"

ExitCode runHelp(const CommandLine &line)
{
    const QString help = helpOn(line.arguments());
    return help.isEmpty() ? unknownCommand(line.arguments()) : printText({}, help);
}
