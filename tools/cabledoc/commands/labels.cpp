#include "commandline.h"
#include "csvparameters.h"
#include "drawingfiles.h"
#include "elementlist.h"
#include "output.h"
#include "suggestion.h"
#include "tableparameters.h"

#include <cabledoc/labelpattern.h>
#include <cabledoc/labels.h>

#include <QtCore/QFileInfo>

#include <cstdio>

using namespace cabledoc;

namespace {

bool isCsv(const CommandLine &line)
{
    return QFileInfo(line.output().fileName).suffix().toLower() == QLatin1String("csv");
}

// Each of these functions reads an option. It returns what is wrong with the option, or an empty text.

QString readFormat(const CommandLine &line, LabelOptions *options)
{
    const QString name = line.isSet("format") ? line.value("format") : QStringLiteral("a4-5x13");
    // A table does not need a format.
    if (isCsv(line) && !line.isSet("format"))
        return {};
    options->format = labelFormatOfName(name);
    QStringList names;
    for (const LabelFormat &format : labelFormats())
        names.append(format.name);
    return options->format
               ? QString()
               : withSuggestion(
                   Program::tr("there is no format \"%1\"; \"cabledoc label formats\" lists them").arg(name),
                   nearest(name, names));
}

QString readCode(const CommandLine &line, LabelOptions *options)
{
    static const QVector<Choice<LabelCode>> codes{{QStringLiteral("none"), LabelCode::None},
                                                  {QStringLiteral("qr"), LabelCode::Qr},
                                                  {QStringLiteral("code128"), LabelCode::Code128}};
    if (!line.isSet("code"))
        return {};
    const std::optional<LabelCode> code = chosen(codes, line.value("code"));
    options->code = code.value_or(LabelCode::None);
    return code ? QString() : Program::tr("\"%1\" is not one of qr, code128 and none").arg(line.value("code"));
}

QString readCount(const CommandLine &line, const char *option, int *count)
{
    constexpr int most = 1000;
    if (!line.isSet(option))
        return {};
    bool isNumber = false;
    *count = line.value(option).toInt(&isNumber);
    return isNumber && *count >= 1 && *count <= most
               ? QString()
               : Program::tr("\"%1\" is not a number from 1 to %2").arg(line.value(option)).arg(most);
}

QString readCounts(const CommandLine &line, LabelOptions *options)
{
    const QString problem = readCount(line, "copies", &options->copies);
    return problem.isEmpty() ? readCount(line, "start", &options->start) : problem;
}

QString readOutput(const CommandLine &line, LabelOptions * /*options*/)
{
    const DrawingFormat format = formatOf(line.output());
    return isCsv(line) || format == DrawingFormat::Pdf || format == DrawingFormat::Svg
               ? QString()
               : Program::tr("the name of the labels ends in .pdf, .svg or .csv");
}

/// Returns what is wrong with the fields of a pattern, or an empty text.
QString wrongField(const QString &pattern, const QStringList &known)
{
    for (const QString &field : LabelPattern(pattern).fields()) {
        if (!known.contains(field))
            return withSuggestion(Program::tr("there is no field \"%1\"").arg(field), nearest(field, known));
    }
    return {};
}

/// Prints what is wrong with labels.
void printProblems(const CommandLine &line, const QVector<LabelProblem> &problems)
{
    const QString fileName = line.argument(0);
    const QString lines = firstLines(fileName, int(problems.size()), [&](int number) {
        const LabelProblem &problem = problems.at(number);
        return QStringLiteral("%1: %2: %3").arg(fileName, problem.element, problem.message);
    });
    std::fputs(qPrintable(printable(lines)), stderr);
}

ExitCode writeSheets(const CommandLine &line, const LabelResult &labels)
{
    const auto pages = labels.sheets.drawing.pages.size();
    if (pages > 1 && formatOf(line.output()) != DrawingFormat::Pdf)
        return fail(WrongUsage, line.argument(0),
                    Program::tr("only a PDF file can have several sheets, and these labels need %1").arg(pages));
    return writeDrawing(line, labels.sheets, 0);
}

} // namespace

ExitCode runLabels(const CommandLine &line)
{
    LabelOptions options;
    for (const auto read : {readOutput, readFormat, readCode, readCounts}) {
        const QString wrong = read(line, &options);
        if (!wrong.isEmpty())
            return line.usageError(wrong);
    }
    options.pattern = line.value("pattern");
    options.codePattern = line.value("code-pattern");
    options.bothEnds = line.isSet("both-ends");
    options.check = line.value("check");
    options.outlines = line.isSet("outlines");
    CsvStyle style;
    if (const ExitCode error = readCsvStyle(line, &style))
        return error;
    TableKind kind = TableKind::Cables;
    if (!line.argument(1).isEmpty()) {
        if (const ExitCode error = readTableKind(line, &kind))
            return error;
    }
    ElementList list;
    const QString usualOrder = kind == TableKind::Cables ? QStringLiteral("id") : QString();
    if (const ExitCode error = list.read(line, kind, usualOrder))
        return error;
    for (const QString &pattern : {options.pattern, options.codePattern}) {
        const QString wrong = wrongField(pattern, labelFields(list.table()));
        if (!wrong.isEmpty())
            return line.usageError(wrong);
    }
    const LabelResult labels = makeLabels(list.table(), list.rows(), options);
    if (!labels.error.isEmpty())
        return line.usageError(labels.error);
    if (labels.labels.isEmpty())
        return fail(WrongUsage, line.argument(0), Program::tr("there is nothing to label"));
    printProblems(line, labels.problems);
    if (!labels.problems.isEmpty())
        return HasFindings;
    return isCsv(line) ? printData(line.output(), labelsToCsv(list.table(), labels.labels, list.columns(), style))
                       : writeSheets(line, labels);
}
