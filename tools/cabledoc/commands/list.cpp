#include "commandline.h"
#include "elementlist.h"
#include "output.h"
#include "tableparameters.h"

ExitCode runList(const CommandLine &line)
{
    cabledoc::TableKind kind = cabledoc::TableKind::Count;
    if (const ExitCode error = readTableKind(line, &kind))
        return error;
    ElementList list;
    if (const ExitCode error = list.read(line, kind))
        return error;
    return list.print(line, "cabledoc-list-1");
}
