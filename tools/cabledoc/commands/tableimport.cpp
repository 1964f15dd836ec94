#include "commandline.h"
#include "csvparameters.h"
#include "documents.h"
#include "output.h"
#include "problems.h"
#include "tableparameters.h"

#include <cabledoc/bkteditor.h>
#include <cabledoc/jobeditor.h>
#include <cabledoc/jobsnapshot.h>
#include <cabledoc/tableplan.h>

#include <array>
#include <memory>

using namespace cabledoc;

namespace {

/// Returns the word for an action in JSON. It is the word of the column "action".
QString nameOf(TableAction action)
{
    switch (action) {
    case TableAction::Add:
        return QStringLiteral("add");
    case TableAction::Change:
        return QStringLiteral("change");
    case TableAction::Rename:
        return QStringLiteral("rename");
    case TableAction::Move:
        return QStringLiteral("move");
    case TableAction::Remove:
        break;
    }
    return QStringLiteral("remove");
}

ExitCode printAsJson(const CommandLine &line, const TablePlan &plan)
{
    const QJsonObject members{{QStringLiteral("file"), line.argument(0)},
                              {QStringLiteral("kind"), line.argument(1)},
                              {QStringLiteral("table"), line.argument(2)},
                              {QStringLiteral("dryRun"), line.isSet("dry-run")},
                              {QStringLiteral("problems"), arrayOf(plan.problems())},
                              {QStringLiteral("warnings"), arrayOf(plan.warnings())}};
    return printJson({}, "cabledoc-table-import-1",
                     {members, QStringLiteral("changes"), int(plan.changes().size()), [&plan](int number) {
                          const TableChange &change = plan.changes().at(number);
                          return QJsonObject{{QStringLiteral("row"), change.row},
                                             {QStringLiteral("action"), nameOf(change.action)},
                                             {QStringLiteral("text"), plan.changeText(number)}};
                      }});
}

/// Prints what was changed or, after a dry run, each change that an import would make.
ExitCode printChanges(const CommandLine &line, const TablePlan &plan)
{
    if (line.isSet("dry-run")) {
        QString text;
        for (int index = 0; index < plan.changes().size(); ++index)
            text += plan.changeText(index) + QLatin1Char('\n');
        return printText({}, printable(text));
    }
    if (isQuiet() || isDocumentPrinted(line))
        return Done;
    std::array<int, 5> counts{};
    for (const TableChange &change : plan.changes())
        ++counts[std::size_t(change.action)];
    return printText({}, Program::tr("%1 added, %2 changed, %3 renamed, %4 moved, %5 removed\n")
                             .arg(counts[0])
                             .arg(counts[1])
                             .arg(counts[2])
                             .arg(counts[3])
                             .arg(counts[4]));
}

/// What an import does: its parameters, the table, and the changes that it asks for.
struct Import
{
    const CommandLine &line;
    TableKind kind;
    CsvOptions options;
    QByteArray csv;
    std::unique_ptr<const TablePlan> plan;

    void makePlan(const JobSnapshot &document)
    {
        plan = std::make_unique<const TablePlan>(document, kind, csv, options);
    }
    bool isPossible() const { return plan->error().isEmpty() && plan->problems().isEmpty(); }
    /// Returns whether a document is to be saved.
    bool isSaved() const
    {
        const bool isNew = !plan->changes().isEmpty() || line.isSet("output");
        return isPossible() && isNew && !line.isSet("dry-run");
    }
};

/// Reads the table and makes the plan. Also loads the document if it is to be changed.
ExitCode prepare(Import *import)
{
    const CommandLine &line = import->line;
    if (const ExitCode error = readData(line, line.argument(2), &import->csv))
        return error;
    if (isTemplate(line.argument(0))) {
        JobSnapshot document;
        if (const ExitCode error = readDocument(line, &document))
            return error;
        import->makePlan(document);
    } else {
        const auto planJob = [import](const JobSnapshot &job) {
            import->makePlan(job);
            return import->isSaved();
        };
        if (const ExitCode error = readAndLoadJob(line, planJob))
            return error;
    }
    const QString problem = import->plan->error();
    return problem.isEmpty() ? Done : fail(CannotLoad, line.argument(2), problem);
}

/// Makes the changes in the document, which was loaded, and saves it.
ExitCode apply(const Import &import)
{
    if (!import.isSaved())
        return Done;
    if (isTemplate(import.line.argument(0)))
        import.plan->applyTo(BktEditor::Instance());
    else
        import.plan->applyTo(JobEditor::Instance());
    return saveChangedDocument(import.line);
}

} // namespace

ExitCode runTableImport(const CommandLine &line)
{
    TableKind kind = TableKind::Count;
    CsvOptions options;
    for (const ExitCode error : {readTableKind(line, &kind), readCsvOptions(line, &options)}) {
        if (error != Done)
            return error;
    }
    const bool isDryRun = line.isSet("dry-run");
    if (!isDryRun) {
        if (const ExitCode error = lockForChange(line))
            return error;
    }
    Import import{line, kind, options, {}, {}};
    if (const ExitCode error = prepare(&import))
        return error;
    const TablePlan &plan = *import.plan;
    const bool printsJson = line.isSet("json");
    if (!printsJson) {
        printProblems(line.argument(2), plan.problems());
        printWarnings(line.argument(2), plan.warnings());
    }
    if (const ExitCode error = apply(import))
        return error;
    if (printsJson) {
        const ExitCode printed = printAsJson(line, plan);
        return import.isPossible() ? printed : CannotLoad;
    }
    return import.isPossible() ? printChanges(line, plan) : CannotLoad;
}
