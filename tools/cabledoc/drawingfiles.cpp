#include "drawingfiles.h"

#include "commandline.h"
#include "documents.h"
#include "output.h"
#include "suggestion.h"

#include <cabledoc/drawingwriters.h>
#include <cabledoc/settingsstrings.h>

#include <QtCore/QFileInfo>

using cabledoc::DrawingOptions;
using cabledoc::DrawingResult;

namespace {

// Each of these functions reads an option. It returns what is wrong with the option, or an empty text.

QString readOrientation(const CommandLine &line, DrawingOptions *options)
{
    static const QVector<Choice<DrawingOptions::Orientation>> orientations{
        {QStringLiteral("portrait"), DrawingOptions::Portrait},
        {QStringLiteral("landscape"), DrawingOptions::Landscape}};
    if (!line.isSet("orientation"))
        return {};
    options->orientation = chosen(orientations, line.value("orientation"));
    return options->orientation
               ? QString()
               : Program::tr("\"%1\" is neither \"portrait\" nor \"landscape\"").arg(line.value("orientation"));
}

QString readPaper(const CommandLine &line, DrawingOptions *options)
{
    options->paper = line.value("paper");
    if (!line.isSet("paper"))
        return {};
    QStringList names;
    for (const QString &paper : cabledoc::SettingsStrings::paperSizes()) {
        const QString name = paper.section(QLatin1Char(':'), 0, 0);
        for (const QString &known : {name, paper}) {
            if (known.compare(options->paper, Qt::CaseInsensitive) == 0)
                return {};
        }
        names.append(name);
    }
    return withSuggestion(Program::tr("there is no paper size \"%1\"").arg(options->paper),
                          nearest(options->paper, names));
}

QString readDpi(const CommandLine &line, int *dpi)
{
    constexpr int usual = 150;
    constexpr int least = 10;
    constexpr int most = 1200;
    bool isNumber = true;
    *dpi = line.isSet("dpi") ? line.value("dpi").toInt(&isNumber) : usual;
    return isNumber && *dpi >= least && *dpi <= most
               ? QString()
               : Program::tr("\"%1\" is not a number of dots to the inch from 10 to 1200").arg(line.value("dpi"));
}

QString write(const cabledoc::Drawing &drawing, DrawingFormat format, int dpi, const QString &fileName,
              QStringList *warnings)
{
    if (format == DrawingFormat::Pdf)
        return cabledoc::writePdf(drawing, fileName, warnings);
    const cabledoc::Scene &page = drawing.pages.constFirst();
    return format == DrawingFormat::Svg ? cabledoc::writeSvg(page, fileName)
                                        : cabledoc::writePng(page, fileName, dpi, warnings);
}

} // namespace

DrawingFormat formatOf(const Output &output)
{
    static const QVector<Choice<DrawingFormat>> formats{{QStringLiteral("svg"), DrawingFormat::Svg},
                                                        {QStringLiteral("pdf"), DrawingFormat::Pdf},
                                                        {QStringLiteral("png"), DrawingFormat::Png}};
    if (output.isStandard())
        return DrawingFormat::Svg;
    return chosen(formats, QFileInfo(output.fileName).suffix().toLower()).value_or(DrawingFormat::Unknown);
}

QString readPage(const CommandLine &line, DrawingOptions *options)
{
    options->revision = line.value("revision");
    options->folder = QFileInfo(line.argument(0)).path();
    const QString problem = readPaper(line, options);
    return problem.isEmpty() ? readOrientation(line, options) : problem;
}

QString readDrawingOptions(const CommandLine &line, DrawingOptions *options, int *dpi)
{
    if (formatOf(line.output()) == DrawingFormat::Unknown)
        return Program::tr("the name of the drawing ends in .pdf, .svg or .png");
    options->sheetNumber = line.value("sheet-number");
    const QString problem = readPage(line, options);
    return problem.isEmpty() ? readDpi(line, dpi) : problem;
}

ExitCode writeDrawing(const CommandLine &line, const DrawingResult &result, int dpi)
{
    if (!result.error.isEmpty())
        return fail(CannotSave, line.output().fileName, result.error);
    QStringList warnings = result.warnings;
    const ExitCode written = saveDocument(line.output(), [&](const QString &fileName) {
        return write(result.drawing, formatOf(line.output()), dpi, fileName, &warnings);
    });
    printWarnings(line, warnings);
    return written;
}

void printWarnings(const CommandLine &line, const QStringList &warnings)
{
    if (isQuiet())
        return;
    for (const QString &warning : warnings)
        printMessage(line.argument(0) + QLatin1String(": ") + warning);
}

QVector<Parameter> paperParameters()
{
    return {
        {"[--paper NAME]", Program::tr("The paper size, such as A1 or Tabloid. By default, it is that of the job.")},
        {"[--orientation NAME]", Program::tr("How the paper lies: portrait or landscape.")},
    };
}

QVector<Parameter> drawingParameters()
{
    return paperParameters()
           + QVector<Parameter>{
               {"[--dpi N]",
                Program::tr("The dots to the inch of a PNG file, from 10 to 1200. By default, it is 150.")},
               {"[--revision TEXT]", Program::tr("The revision in the title block.")},
               {"[--sheet-number TEXT]", Program::tr("The number of the sheet in the title block.")},
           };
}
