#include "commandline.h"
#include "elementlist.h"
#include "output.h"

ExitCode runFree(const CommandLine &line)
{
    ElementList list;
    if (const ExitCode error = list.read(line, cabledoc::TableKind::Ports))
        return error;
    list.keepOnly(QStringLiteral("cables"), QStringLiteral("0"));
    return list.print(line, "cabledoc-list-1");
}
