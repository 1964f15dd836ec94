#include "command.h"

// The functions that run the commands. Each file of the folder commands/ has one.
using Run = ExitCode(const CommandLine &line);
Run runCables, runCheck, runConvert, runExport, runImport, runInfo, runNew, runScheduleExport, runScheduleImport;

const QVector<Command> &commands()
{
    // Parameters that several commands share
    static const Parameter file{"FILE", Program::tr("The job or template file.")};
    static const Parameter jobFile{"FILE.job", Program::tr("The job file.")};
    static const Parameter json{"[--json]", Program::tr("Print JSON instead of text.")};
    static const Parameter maximumSize{"[--max-size SIZE]",
                                       Program::tr("The largest file to read, such as 500M; 4G by default.")};
    static const Parameter delimiter{
        "[--delimiter NAME]", Program::tr("The delimiter of the fields: comma, semicolon or tab. By default, the "
                                          "first row tells.")};
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
    static const QString output = Program::tr("The file to write. An existing file is not replaced.");

    static const QVector<Command> table{
        {"new",
         {{"NEW", Program::tr("The file to make.")},
          {"[--floor NAME]", Program::tr("The name of a floor. This option can be given for each floor.")},
          {"[--floors N]", Program::tr("The number of floors without --floor, from 1 (the default) to 1000.")}},
         Program::tr("Make a new job or template."),
         Program::tr("If the name ends in \".bkt\", the file is a template. Otherwise it is a job with one sheet, and "
                     "\".job\" is added to a name that lacks it. An existing file is not replaced."),
         runNew},
        {"info",
         {jobFile, json, maximumSize},
         Program::tr("Show what a job file holds."),
         Program::tr("The floors and sheets are listed in the order of their tags. Cables, connections and active "
                     "ports are counted."),
         runInfo},
        {"cables",
         {jobFile, {"[--metric]", Program::tr("Print lengths in metres instead of feet.")}, json, maximumSize},
         Program::tr("List the cables of a job."),
         Program::tr("The list shows their ends, the status of their tests and their measured lengths."),
         runCables},
        {"check",
         {file, json, maximumSize},
         Program::tr("Report what is wrong with a file."),
         Program::tr("Each of the first 50 findings is one line; --json prints all of them. The file is not changed."),
         runCheck},
        {"convert",
         {file, {"-o, --output NEW", output}, maximumSize},
         Program::tr("Convert a file of an earlier version."),
         Program::tr("The new file has the current version. FILE is not changed."),
         runConvert},
        {"import",
         {jobFile,
          {"--template FILE.bkt", Program::tr("The template. It is not changed.")},
          {"[--missing-only]",
           Program::tr("Only add the default test definitions and the bundles that the job lacks.")},
          maximumSize},
         Program::tr("Apply a template to a job."),
         Program::tr("The contractor and the settings of the job are replaced. Test definitions and bundles that the "
                     "job lacks are added."),
         runImport},
        {"export",
         {jobFile, {"-o, --output NEW.bkt", output}, maximumSize},
         Program::tr("Make a template of a job."),
         Program::tr("The template gets the contractor, the settings, the test definitions and the bundles of the "
                     "job."),
         runExport},
        {"schedule import",
         {jobFile,
          {"FILE.csv", Program::tr("The cable schedule, a CSV file. It is not changed.")},
          {"[--dry-run]", Program::tr("Only show what would change.")},
          delimiter,
          encoding,
          unprotect,
          json,
          maximumSize},
         Program::tr("Bring a job up to a cable schedule."),
         Program::tr(
             "Floors, rooms, ports and cables that the job lacks are added. Cables that differ are changed. If "
             "the schedule has a problem, the job is not changed. Types and uses that are not known, and places "
             "that lose their last cable, are warned of. Each of the first 50 problems or warnings is one "
             "line; --json prints all of them."),
         runScheduleImport},
        {"schedule export",
         {jobFile, newDelimiter, mark, protect, maximumSize},
         Program::tr("Print the cable schedule of a job as CSV."),
         {},
         runScheduleExport},
    };
    return table;
}
