#include "commandline.h"
#include "csvparameters.h"
#include "documents.h"
#include "output.h"
#include "problems.h"

#include <cabledoc/jobeditor.h>
#include <cabledoc/jobsnapshot.h>
#include <cabledoc/resultsplan.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <memory>

using namespace cabledoc;

namespace {

/// Reads --retest. Returns Done, or prints a message about wrong usage.
ExitCode readRetestRule(const CommandLine &line, RetestRule *rule)
{
    const QStringList words{QStringLiteral("latest"), QStringLiteral("worst"), QStringLiteral("refuse")};
    const QString word = line.isSet("retest") ? line.value("retest") : words.constFirst();
    const auto number = words.indexOf(word);
    if (number < 0)
        return line.usageError(Program::tr("\"%1\" is not one of %2").arg(word, words.join(QLatin1String(", "))));
    *rule = RetestRule(number);
    return Done;
}

/// Reads the file of --map.
ExitCode readMapping(const CommandLine &line, ResultsMapping *mapping)
{
    if (!line.isSet("map"))
        return Done;
    QByteArray data;
    if (const ExitCode error = readData(line, line.value("map"), &data))
        return error;
    const ResultsMappingReport report = readResultsMapping(data);
    *mapping = report.mapping;
    return report.error.isEmpty() ? Done : fail(CannotLoad, line.value("map"), report.error);
}

/// Returns the path of the job that is saved.
QString savedJob(const CommandLine &line)
{
    return line.isSet("output") ? line.output().fileName : line.argument(0);
}

/// Files that are stored beside a job. Those that were not there before are removed again unless they are kept.
class StoredFiles
{
public:
    StoredFiles() = default;
    Q_DISABLE_COPY(StoredFiles)
    ~StoredFiles()
    {
        for (const QString &file : m_files)
            QFile::remove(file);
        if (!m_files.isEmpty())
            QDir().rmdir(QFileInfo(m_files.constFirst()).path()); // unless it has other files
    }

    ExitCode store(const QVector<TestAttachment> &attachments, const QString &folder)
    {
        for (const TestAttachment &attachment : attachments) {
            const QString name = folder + QLatin1Char('/') + attachment.name;
            // The name has a part of the hash, so the file has the same content.
            if (QFileInfo::exists(name))
                continue;
            QFile source(attachment.source);
            const bool hasFolder = QFileInfo(folder).isDir() || QDir().mkdir(folder);
            if (!hasFolder || !source.copy(name))
                return fail(CannotSave, name,
                            Program::tr("the file cannot be written: %1")
                                .arg(hasFolder ? source.errorString() : qt_error_string()));
            m_files.append(name);
        }
        return Done;
    }

    void keep() { m_files.clear(); }

private:
    QStringList m_files;
};

/// Adds the tests of the plan to the job, which was loaded, and saves it with the files of the tests.
ExitCode apply(const CommandLine &line, const ResultsPlan &plan)
{
    StoredFiles files;
    if (const ExitCode error = files.store(plan.attachments(), attachmentFolder(savedJob(line))))
        return error;
    plan.applyTo(JobEditor::Instance());
    const ExitCode saved = saveChangedJob(line);
    if (saved == Done)
        files.keep();
    return saved;
}

/// Writes the rows that were left out.
ExitCode writeSkippedRows(const CommandLine &line, const ResultsPlan &plan)
{
    if (plan.skippedRows().isEmpty())
        return Done;
    const Output rest{line.value("skip-unknown"), line.output().mayReplace};
    if (const ExitCode error = refuseOutput(rest))
        return error;
    return printData(rest, plan.skippedRows());
}

ExitCode printAsJson(const CommandLine &line, const ResultsPlan &plan)
{
    const ResultsCounts &counts = plan.counts();
    const QJsonObject members{{QStringLiteral("file"), line.argument(0)},
                              {QStringLiteral("results"), line.argument(1)},
                              {QStringLiteral("dryRun"), line.isSet("dry-run")},
                              {QStringLiteral("passed"), counts.passed},
                              {QStringLiteral("passedWithinAccuracy"), counts.passedWithinAccuracy},
                              {QStringLiteral("failed"), counts.failed},
                              {QStringLiteral("others"), counts.others},
                              {QStringLiteral("known"), counts.known},
                              {QStringLiteral("retested"), counts.retested},
                              {QStringLiteral("untested"), counts.untested},
                              {QStringLiteral("skipped"), plan.counts().skipped},
                              {QStringLiteral("problems"), arrayOf(plan.problems())},
                              {QStringLiteral("warnings"), arrayOf(plan.warnings())}};
    return printJson({}, "cabledoc-results-import-1",
                     {members, QStringLiteral("changes"), int(plan.changes().size()), [&plan](int number) {
                          const ResultsChange &change = plan.changes().at(number);
                          return QJsonObject{{QStringLiteral("row"), change.row},
                                             {QStringLiteral("current"), change.isCurrent},
                                             {QStringLiteral("text"), plan.changeText(number)}};
                      }});
}

ExitCode printCounts(const CommandLine &line, const ResultsPlan &plan)
{
    QString text;
    if (line.isSet("dry-run")) {
        for (int index = 0; index < plan.changes().size(); ++index)
            text += printable(plan.changeText(index)) + QLatin1Char('\n');
    }
    if (isQuiet() || isDocumentPrinted(line) || line.value("skip-unknown") == standardStream)
        return printText({}, text);
    const ResultsCounts &counts = plan.counts();
    text += Program::tr("passed %1, passed within accuracy %2, failed %3, others %4\n")
                .arg(counts.passed)
                .arg(counts.passedWithinAccuracy)
                .arg(counts.failed)
                .arg(counts.others);
    text += Program::tr("new %1, of these retests %2; already known %3, left out %4; still untested %5\n")
                .arg(plan.changes().size())
                .arg(counts.retested)
                .arg(counts.known)
                .arg(plan.counts().skipped)
                .arg(counts.untested);
    return printText({}, text);
}

} // namespace

ExitCode runResultsImport(const CommandLine &line)
{
    ResultsOptions options;
    options.skipUnknown = line.isSet("skip-unknown");
    for (const ExitCode error : {readCsvOptions(line, &options.csv), readRetestRule(line, &options.retest),
                                 readMapping(line, &options.mapping)}) {
        if (error != Done)
            return error;
    }
    const QString table = line.argument(1);
    options.folder = table == standardStream ? QStringLiteral(".") : QFileInfo(table).path();
    const bool isDryRun = line.isSet("dry-run");
    if (!isDryRun) {
        if (const ExitCode error = lockForChange(line))
            return error;
    }
    QByteArray csv;
    if (const ExitCode error = readData(line, table, &csv))
        return error;
    std::unique_ptr<const ResultsPlan> plan;
    const auto planJob = [&](const JobSnapshot &job) {
        plan = std::make_unique<const ResultsPlan>(job, csv, options);
        const bool isChanged = !plan->changes().isEmpty() || line.isSet("output");
        return plan->error().isEmpty() && plan->problems().isEmpty() && isChanged && !isDryRun;
    };
    if (const ExitCode error = readAndLoadJob(line, planJob))
        return error;
    if (!plan->error().isEmpty())
        return fail(CannotLoad, table, plan->error());

    const bool printsJson = line.isSet("json");
    if (!printsJson) {
        printProblems(table, plan->problems());
        printWarnings(table, plan->warnings());
    }
    const bool isPossible = plan->problems().isEmpty();
    if (isPossible && !isDryRun) {
        if (!plan->attachments().isEmpty() && isDocumentPrinted(line))
            return line.usageError(Program::tr("the files of the tests cannot be stored beside standard output"));
        // The job is only changed if it is known which rows are left out.
        if (const ExitCode error = writeSkippedRows(line, *plan))
            return error;
        if (!plan->changes().isEmpty() || line.isSet("output")) {
            if (const ExitCode error = apply(line, *plan))
                return error;
        }
    }
    if (printsJson) {
        const ExitCode printed = printAsJson(line, *plan);
        return isPossible ? printed : CannotLoad;
    }
    return isPossible ? printCounts(line, *plan) : CannotLoad;
}
