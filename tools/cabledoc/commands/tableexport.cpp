#include "commandline.h"
#include "csvparameters.h"
#include "documents.h"
#include "output.h"
#include "tableparameters.h"

#include <cabledoc/elementtable.h>
#include <cabledoc/jobsnapshot.h>

ExitCode runTableExport(const CommandLine &line)
{
    cabledoc::TableKind kind = cabledoc::TableKind::Count;
    cabledoc::TableExportOptions options;
    options.tags = line.isSet("tags");
    for (const ExitCode error :
         {readTableKind(line, &kind), readTableUnit(line, &options.unit), readCsvStyle(line, &options.style)}) {
        if (error != Done)
            return error;
    }
    cabledoc::JobSnapshot document;
    if (const ExitCode error = readDocument(line, &document))
        return error;
    const cabledoc::TableExport table = cabledoc::exportTable(document, kind, options);
    if (!table.error.isEmpty())
        return fail(CannotLoad, line.argument(0), table.error);
    const ExitCode printed = printData(line.output(), table.text);
    if (printed == Done && table.leftOut > 0 && !isQuiet())
        printMessage(Program::tr("%1 elements have no name of their own and are left out; --tags exports them too")
                         .arg(table.leftOut));
    return printed;
}
