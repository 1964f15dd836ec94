#include "command.h"
#include "drawingfiles.h"

#include <cabledoc/tablekind.h>

// The functions that run the commands. Each file of the folder commands/ has one.
using Run = ExitCode(const CommandLine &line);
Run runCables, runCheck, runConvert, runCopy, runCurves, runExport, runFind, runFree, runGet, runHelp, runImport,
    runInfo, runLabelFormats, runLabels, runList, runNew, runPlan, runReport, runResultsExport, runResultsImport,
    runResultsStatus, runScheduleExport, runScheduleImport, runSet, runTableExport, runTableImport, runTotals, runTrace;

const QVector<Command> &commands()
{
    // Parameters that several commands share
    static const Parameter jobFile{"FILE.job", Program::tr("The job file, or \"-\" for standard input.")};
    static const Parameter json{"[--json]", Program::tr("Print JSON instead of text.")};
    static const Parameter csv{"[--csv]", Program::tr("Print CSV instead of text.")};
    static const Parameter metric{"[--metric]", Program::tr("Print lengths in metres instead of feet.")};
    static const Parameter maximumSize{"[--max-size SIZE]",
                                       Program::tr("The largest file to read, such as 500M; 4G by default.")};
    static const Parameter delimiter{"[--delimiter NAME]",
                                     Program::tr("The delimiter of the fields: comma, semicolon or tab. By default, it "
                                                 "is found in the first row.")};
    static const Parameter encoding{"[--encoding NAME]",
                                    Program::tr("The encoding of the CSV file: UTF-8, UTF-16 or windows-1252. By "
                                                "default, it is UTF-8 or UTF-16.")};
    static const Parameter unprotect{"[--unprotect-formulas]",
                                     Program::tr("Remove the apostrophes that --protect-formulas adds.")};
    static const Parameter newDelimiter{"[--delimiter NAME]",
                                        Program::tr("The delimiter of the fields: comma (the default), semicolon or "
                                                    "tab.")};
    static const Parameter mark{"[--mark]", Program::tr("Begin with a byte order mark, which some spreadsheets need to "
                                                        "recognise UTF-8.")};
    static const Parameter protect{"[--protect-formulas]",
                                   Program::tr("Put an apostrophe before fields that a spreadsheet would run as "
                                               "formulas.")};
    static const Parameter output{"[-o, --output NEW]", Program::tr("Write to this file instead of standard output.")};
    static const Parameter jobOutput{"[-o, --output NEW.job]",
                                     Program::tr("Save the changed job as this file, or to standard output if it is "
                                                 "\"-\". FILE.job stays as it is.")};
    static const Parameter overwrite{"[--overwrite]", Program::tr("Replace the file that is written if it exists.")};
    static const Parameter drawing{"-o, --output NEW",
                                   Program::tr("The drawing to write: a file whose name ends in .pdf, .svg or .png, or "
                                               "\"-\" to write SVG to standard output.")};
    static const QString newFile = Program::tr("The file to write, or \"-\" for standard output.");

    static const Parameter file{"FILE",
                                Program::tr("The job or template file, or \"-\" for a job from standard input.")};
    static const Parameter changedFile{"FILE", Program::tr("The job or template file.")};
    static const Parameter output2{"[-o, --output NEW]",
                                   Program::tr("Save the changed file as this one. FILE stays as it is.")};
    static const Parameter kind{"KIND", Program::tr("The table: ") + cabledoc::tableNames().join(QLatin1String(", "))
                                            + Program::tr(". Templates have the first two.")};
    static const Parameter unit{"[--unit UNIT]",
                                Program::tr("The unit of positions and heights: px (pixels, and feet for heights; the "
                                            "default), ft or m. Positions in ft or m need a scale.")};
    static const Parameter dryRun{"[--dry-run]", Program::tr("Only show what would change.")};
    static const Parameter columns{"[--columns NAMES]", Program::tr("The columns to show, separated by commas.")};
    static const Parameter where{"[--where CONDITION]...",
                                 Program::tr("Only show what fulfils the condition: type=CAT6, type!=CAT6, id~PATTERN "
                                             "or id!~PATTERN, where the pattern is a regular expression. Can be "
                                             "given several times.")};
    static const Parameter sort{"[--sort NAMES]",
                                Program::tr("The columns to sort by, separated by commas. A \"-\" before a name turns "
                                            "its order round.")};

    static const QVector<Command> table{
        {"new",
         {{"NEW", newFile},
          {"[--floor NAME]...", Program::tr("The name of a floor. This option can be given for each floor.")},
          {"[--floors N]", Program::tr("The number of floors without --floor, from 1 (the default) to 1000.")},
          overwrite},
         Program::tr("Make a new job or template."),
         Program::tr("If the name ends in \".bkt\", the file is a template. Otherwise it is a job with one sheet, and "
                     "\".job\" is added to a name that lacks it."),
         runNew},
        {"info",
         {jobFile, json, output, overwrite, maximumSize},
         Program::tr("Show what a job file holds."),
         Program::tr("The floors and sheets are listed in the order of the file. Cables, connections and active "
                     "ports are counted."),
         runInfo},
        {"check",
         {{"FILE...", Program::tr("The job and template files. One of them may be \"-\" for standard input.")},
          json,
          output,
          overwrite,
          maximumSize},
         Program::tr("Report what is wrong with files."),
         Program::tr("Each of the first 50 findings in a file is one line; --json prints all of them. The files are "
                     "not changed. The exit code is that of the worst file."),
         runCheck},
        {"get",
         {file,
          {"[NAME...]", Program::tr("The values to show, such as contractor.company, site or scale.floor-plan. "
                                    "All values by default.")},
          json,
          output,
          overwrite,
          maximumSize},
         Program::tr("Show single values."),
         Program::tr("There are values of the contractor, the site, the notes, the settings and the pictures of "
                     "floors. A single value is printed as it is. Several are printed as NAME=VALUE."),
         runGet},
        {"set",
         {changedFile,
          {"NAME=VALUE...", Program::tr("A name as \"get\" shows it, and its new value.")},
          output2,
          overwrite,
          maximumSize},
         Program::tr("Set single values."),
         Program::tr("A scale is 1:100, \"20 ft\" (to the inch of the drawing) or none. A page is the name of a paper "
                     "size such as A3, \"17 x 11\" (in inches) or none. If one of the values is wrong, nothing is "
                     "changed."),
         runSet},
        {"table export",
         {file,
          kind,
          {"[--tags]", Program::tr("Add a column with the tags, and the elements without a name.")},
          unit,
          newDelimiter,
          mark,
          protect,
          output,
          overwrite,
          maximumSize},
         Program::tr("Print a table as CSV."),
         Program::tr("\"table import\" reads it."),
         runTableExport},
        {"table import",
         {changedFile,
          kind,
          {"FILE.csv", Program::tr("The table, a CSV file, or \"-\" for standard input.")},
          dryRun,
          delimiter,
          encoding,
          unprotect,
          json,
          output2,
          overwrite,
          maximumSize},
         Program::tr("Change elements by a table."),
         Program::tr("Each row names an element by its columns, such as floor, room and id. The column \"action\" says "
                     "what happens to it: add, change, rename (to new_id), move (to new_floor, new_room or new_sheet) "
                     "or remove. Without it, the element is changed, or added if there is none. If the table has a "
                     "problem, nothing is changed. An import can be repeated: the second one changes nothing."),
         runTableImport},
        {"copy",
         {jobFile,
          {"floor|sheet", Program::tr("What is copied.")},
          {"NAME", Program::tr("The floor or sheet.")},
          {"COPY", Program::tr("The name of the copy.")},
          jobOutput,
          overwrite,
          maximumSize},
         Program::tr("Copy a floor or sheet."),
         Program::tr("All that is on it is copied. The cables that end on a floor are copied too. The copies are "
                     "untested and get new names. Ports "
                     "keep their names. The connections of a sheet are not copied."),
         runCopy},
        {"list",
         {file, kind, columns, where, sort, unit, csv, json, output, overwrite, maximumSize},
         Program::tr("List the elements of a kind."),
         Program::tr("The list has the columns of \"table export\", and also the number of cables of ports and the "
                     "status and length of cables. As text, it leaves out empty columns and tags unless --columns "
                     "asks for them."),
         runList},
        {"find",
         {file,
          {"TEXT", Program::tr("The text to look for, in upper or lower case.")},
          json,
          output,
          overwrite,
          maximumSize},
         Program::tr("Find a text in all tables and values."),
         Program::tr("Names, texts, types, uses, colours and tags are searched."),
         runFind},
        {"free",
         {jobFile, columns, where, sort, unit, csv, json, output, overwrite, maximumSize},
         Program::tr("List the ports without a cable."),
         {},
         runFree},
        {"cables",
         {jobFile, metric, json, output, overwrite, maximumSize},
         Program::tr("List the cables of a job."),
         Program::tr("The list shows their ends, the status of their tests and their measured lengths."),
         runCables},
        {"trace",
         {jobFile,
          {"[PORT|CABLE]",
           Program::tr("The name of a port, vertical run or cable. If several ports have the name, give "
                       "ROOM/PORT or FLOOR/ROOM/PORT.")},
          {"[--cable CABLE]", Program::tr("Trace a cable, even if a port has the same name.")},
          {"[--room ROOM]", Program::tr("Trace the cables at all ports of a room, given as ROOM or FLOOR/ROOM.")},
          {"[--device DEVICE]",
           Program::tr("Trace the connections of a network device, given as DEVICE or SHEET/DEVICE.")},
          metric,
          csv,
          json,
          output,
          overwrite,
          maximumSize},
         Program::tr("Show the way of cables from end to end."),
         Program::tr(
             "Each part of the way has its length on the plan: the drops at the ends, the straight ways from "
             "place to place, and the ways between floors. If a length is unknown, the cable has at least the "
             "sum of the others. At a port where exactly two cables end, the way goes on from one to the other. "
             "The same holds for a vertical run, unless one of the cables is not connected to it. Where more "
             "cables end, the way ends, and the others are counted. For a vertical run, the cables that pass "
             "it are traced too."),
         runTrace},
        {"totals",
         {jobFile,
          {"[--spare PERCENT]", Program::tr("Add a percentage to each length of the order, such as 10%.")},
          {"[--coil LENGTH]...",
           Program::tr("The length of the coils, such as 305m or 1000ft, or that of one type or bundle, such as "
                       "CAT6=305m. It can be given several times.")},
          metric,
          csv,
          json,
          output,
          overwrite,
          maximumSize},
         Program::tr("Add up cables and what has to be ordered."),
         Program::tr("The cables are counted by type, use, floor, bundle and test status, with their measured and "
                     "estimated lengths, and the ports by use. Then follows the order: the estimated length of each "
                     "type and the number of coils. Each run is cut from one coil, without a splice: the longest runs "
                     "first, each from the first coil that has enough left (first-fit decreasing). A bundle is ordered "
                     "as such: its cables with the same group number are one run, as long as the longest of them. "
                     "Cables of unknown length and cables that are longer than a coil are listed apart."),
         runTotals},
        {"plan",
         QVector<Parameter>{
             jobFile,
             drawing,
             {"[--floor FLOOR]", Program::tr("The floor to draw. By default, a PDF file has all floors.")},
             {"[--sheet SHEET]", Program::tr("Draw this sheet with its network devices.")},
             {"[--sheets]", Program::tr("Draw all sheets with network devices, each on a page of its own.")},
             {"[--riser]", Program::tr("Draw all floors above each other, with the cables in the vertical runs.")},
             {"[--scale SCALE]",
              Program::tr("The scale, such as 1:100 or 1in=20ft. By default, it is that of the job.")},
             {"[--layers NAMES]",
              Program::tr("The layers to draw, separated by commas: background, rooms, cables, points, "
                          "vertical-runs, ports, texts and labels. All of them by default.")},
             {"[--color-by WHAT]",
              Program::tr("What gives cables their colours: cable, type (the default), use, bundle or status.")},
             {"[--north DEGREES]",
              Program::tr("Draw a north arrow, turned clockwise from the top of the plan by these degrees.")}}
             + drawingParameters() + QVector<Parameter>{overwrite, maximumSize},
         Program::tr("Draw floor plans, sheets or the riser."),
         Program::tr(
             "A floor plan is never fitted to the paper. In a PDF file, a plan that is larger than the paper is "
             "divided among several sheets that overlap, after one with an overview. In an SVG or PNG file, the "
             "sheet becomes larger than the paper. Labels that do not fit are shortened, moved away with a "
             "leader line, or replaced by a number in a list beside the plan. The environment variable "
             "SOURCE_DATE_EPOCH sets the date."),
         runPlan},
        {"curves",
         QVector<Parameter>{jobFile, {"CABLE", Program::tr("The cable, by its name.")}, drawing} + drawingParameters()
             + QVector<Parameter>{overwrite, maximumSize},
         Program::tr("Draw the response curves of a cable."),
         Program::tr("The curves are those of the cable's test: near-end crosstalk, echo and channel."), runCurves},
        {"labels",
         {jobFile,
          {"[KIND]",
           Program::tr("The table with the elements to label, such as cables (the default), ports or rooms.")},
          {"-o, --output NEW",
           Program::tr("The labels to write: a file whose name ends in .pdf, .svg or .csv, or \"-\" to write SVG to "
                       "standard output.")},
          {"[--format NAME]",
           Program::tr("The format of the labels; a4-5x13 by default. \"label formats\" lists them.")},
          {"[--pattern TEXT]", Program::tr("The text of a label, such as \"{id}\\n{far_room|?}\".")},
          {"[--code NAME]", Program::tr("The code beside the text: qr, code128 or none (the default).")},
          {"[--code-pattern TEXT]", Program::tr("The text of the code. By default, it is the name of the element.")},
          {"[--both-ends]", Program::tr("Make a label for each end of a cable.")},
          {"[--copies N]", Program::tr("The number of equal labels; 1 by default.")},
          {"[--start N]", Program::tr("The place of the first label on the first sheet, counted from 1 in rows.")},
          {"[--check PATTERN]",
           Program::tr("A regular expression that each text must match, such as \"^[0-9]+-[A-Z][0-9]+$\".")},
          {"[--outlines]", Program::tr("Draw the edges of the labels, for a test on plain paper.")},
          where,
          sort,
          {"[--columns NAMES]",
           Program::tr("The columns of the table that a CSV file has, separated by commas. By default, it has all.")},
          unit,
          newDelimiter,
          mark,
          protect,
          overwrite,
          maximumSize},
         Program::tr("Print labels."),
         Program::tr(
             "A pattern has the columns of \"list\" as fields. A text after \"|\" takes the place of an empty value, "
             "\"\\n\" begins a new line, and \"{{\" and \"}}\" stand for braces. The fields near_floor, near_room and "
             "near_port are those of the end of the cable for which the label is, and far_floor, far_room and far_port "
             "those of the other end. Texts must differ from element to element. Lines that are too wide are set "
             "smaller, down to 5 points. If a label has a problem, nothing is written, and the exit code is 1. Print "
             "the file in its actual size."),
         runLabels},
        {"label formats",
         {},
         Program::tr("List the formats of labels."),
         Program::tr("Lengths are in millimetres. The list has the sizes of the paper and of a label, the numbers of "
                     "columns and rows, the left upper corner of the first label, the distance from one label to the "
                     "next, and the height of the part that is printed. The rest of a label that is wound around a "
                     "cable is transparent. A label on a tape is as long as its text needs."),
         runLabelFormats},
        {"report",
         QVector<Parameter>{
             jobFile,
             {"-o, --output NEW",
              Program::tr("The report to write: a file whose name ends in .pdf or .html, or \"-\" to "
                          "write HTML to standard output.")},
             {"[--kind KIND]", Program::tr("The kind of report: test (the default), summary, inventory, schedule, "
                                           "notes or active.")},
             {"[--floor FLOOR]", Program::tr("Only the cables with an end on this floor.")},
             {"[--room ROOM]", Program::tr("Only the cables with an end in this room.")},
             where,
             {"[--since DATE]",
              Program::tr("Only the cables whose test is of this day, such as 2026-01-31, or later.")},
             {"[--until DATE]", Program::tr("Only the cables whose test is of this day or earlier.")},
             sort,
             {"[--failures-first]", Program::tr("Begin with the cables that have failed.")},
             metric}
             + paperParameters()
             + QVector<Parameter>{{"[--revision TEXT]", Program::tr("The revision at the bottom of each page.")},
                                  overwrite,
                                  maximumSize},
         Program::tr("Write a report for the customer."),
         Program::tr("The report of tests has a summary, the results of each cable, and an index from cables to "
                     "pages. The cables are in the order of their names unless --sort asks for another one. Each kind "
                     "of report has the paper, the orientation and the zoom of its print settings in the job. The "
                     "options that choose cables are for the kinds test and schedule. The environment variable "
                     "SOURCE_DATE_EPOCH sets the date."),
         runReport},
        {"schedule import",
         {jobFile,
          {"FILE.csv", Program::tr("The cable schedule, a CSV file, or \"-\" for standard input.")},
          {"[--dry-run]", Program::tr("Only show what would change.")},
          delimiter,
          encoding,
          unprotect,
          json,
          jobOutput,
          overwrite,
          maximumSize},
         Program::tr("Bring a job up to a cable schedule."),
         Program::tr(
             "Floors, rooms, ports and cables that the job lacks are added. Cables that differ are changed. If "
             "the schedule has a problem, the job is not changed. Types and uses that are not known, and places "
             "that lose their last cable, are warned of. Each of the first 50 problems or warnings is one "
             "line; --json prints all of them."),
         runScheduleImport},
        {"schedule export",
         {jobFile, newDelimiter, mark, protect, output, overwrite, maximumSize},
         Program::tr("Print the cable schedule of a job as CSV."),
         {},
         runScheduleExport},
        {"results import",
         {jobFile,
          {"FILE.csv", Program::tr("The test results, a CSV file, or \"-\" for standard input.")},
          {"[--map FILE.ini]", Program::tr("A mapping file: how another program names the columns, and gives units, "
                                           "numbers, dates and verdicts.")},
          {"[--retest RULE]", Program::tr("Which of several tests of a cable is the current one: latest (the default) "
                                          "or worst. With refuse, another test of a tested cable is a problem.")},
          {"[--skip-unknown NEW.csv]", Program::tr("Leave out the rows with unknown cables, and write them to this "
                                                   "file.")},
          dryRun,
          delimiter,
          encoding,
          unprotect,
          json,
          jobOutput,
          overwrite,
          maximumSize},
         Program::tr("Add test results to the cables of a job."),
         Program::tr("A later test becomes the current one of its cable. The test before is kept as an earlier one. A "
                     "table with the column \"active_port\" has tests of ports in the working network. If the table "
                     "has a problem, nothing is added. An import can be repeated: the second one changes nothing."),
         runResultsImport},
        {"results export",
         {jobFile,
          {"[--active-ports]", Program::tr("Print the tests of ports in the working network.")},
          metric,
          newDelimiter,
          mark,
          protect,
          output,
          overwrite,
          maximumSize},
         Program::tr("Print the test results of a job as CSV."),
         Program::tr("Each test is one row. Earlier tests have the state \"earlier\". \"results import\" reads the "
                     "table."),
         runResultsExport},
        {"results status",
         {jobFile,
          {"[--older-than DATE]", Program::tr("Also show tests before this day, such as 2026-01-31.")},
          {"[--fail-on KINDS]...",
           Program::tr("End with exit code 1 if there are such cables: untested, failed or both, separated by "
                       "commas.")},
          metric,
          csv,
          json,
          output,
          overwrite,
          maximumSize},
         Program::tr("Show missing, failed and doubtful tests."),
         Program::tr("Cables are shown that are untested, have failed, have a verdict that is not known, or were "
                     "tested more than once, and those that are outside the limits of their test definition: the "
                     "maximum length, the skew and the wiring. A limit is only checked if the job has the limit and "
                     "the measurement. Earlier tests are counted, but --fail-on only looks at the current ones. The "
                     "last line has the numbers of cables."),
         runResultsStatus},
        {"import",
         {jobFile,
          {"--template FILE.bkt", Program::tr("The template. It is not changed.")},
          {"[--missing-only]",
           Program::tr("Only add the default test definitions and the bundles that the job lacks.")},
          jobOutput,
          overwrite,
          maximumSize},
         Program::tr("Apply a template to a job."),
         Program::tr("The contractor and the settings of the job are replaced. Test definitions and bundles that the "
                     "job lacks are added."),
         runImport},
        {"export",
         {jobFile, {"-o, --output NEW.bkt", newFile}, overwrite, maximumSize},
         Program::tr("Make a template of a job."),
         Program::tr("The template gets the contractor, the settings, the test definitions and the bundles of the "
                     "job."),
         runExport},
        {"convert",
         {{"FILE", Program::tr("The job or template file, or \"-\" for standard input.")},
          {"-o, --output NEW", newFile},
          overwrite,
          maximumSize},
         Program::tr("Convert a file of an earlier version."),
         Program::tr("The new file has the current version. FILE is not changed."),
         runConvert},
        {"help",
         {{"[COMMAND...]", Program::tr("The command, such as \"check\" or \"schedule import\".")}},
         Program::tr("Show the help of a command."),
         Program::tr("Without a command, show the help of the program."),
         runHelp},
    };
    return table;
}

const QVector<Parameter> &generalOptions()
{
    static const QVector<Parameter> options{
        {"[-h, --help]", Program::tr("Show this help.")},
        {"[-q, --quiet]", Program::tr("Print no messages except errors.")},
    };
    return options;
}

const QVector<Parameter> &programOptions()
{
    static const QVector<Parameter> options{
        {"[-V, --version]", Program::tr("Show the version.")},
        {"[--usage-json]", Program::tr("Print the commands with their arguments and options as JSON.")},
    };
    return options;
}

const QVector<QPair<ExitCode, QString>> &exitCodes()
{
    static const QVector<QPair<ExitCode, QString>> codes{
        {Done, Program::tr("The command did its work.")},
        {HasFindings, Program::tr("\"check\", \"labels\" or \"results status\" found something wrong.")},
        {WrongUsage, Program::tr("The command line is wrong.")},
        {CannotLoad, Program::tr("A file could not be loaded.")},
        {CannotSave, Program::tr("A file could not be saved.")},
        {CannotPrint, Program::tr("The command did its work, but standard output could not be written.")},
    };
    return codes;
}
