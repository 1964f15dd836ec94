#include "commandline.h"
#include "documents.h"
#include "output.h"
#include "suggestion.h"

#include <cabledoc/drawingwriters.h>
#include <cabledoc/jobsnapshot.h>
#include <cabledoc/plandrawing.h>

#include <QtCore/QFileInfo>

#include <algorithm>

using cabledoc::CableColors;
using cabledoc::DrawingResult;
using cabledoc::DrawingScale;
using cabledoc::JobSnapshot;
using cabledoc::Layer;
using cabledoc::PlanOptions;

namespace {

/// The kinds of files that can be written.
enum class Format { Unknown, Svg, Pdf, Png };

Format formatOf(const Output &output)
{
    static const QStringList extensions{QStringLiteral("svg"), QStringLiteral("pdf"), QStringLiteral("png")};
    static const QVector<Format> formats{Format::Svg, Format::Pdf, Format::Png};
    if (output.isStandard())
        return Format::Svg;
    const int number = int(extensions.indexOf(QFileInfo(output.fileName).suffix().toLower()));
    return formats.value(number, Format::Unknown);
}

/// A value of an option that is one of several words.
template <typename Value> struct Choice
{
    QString word;
    Value value;
};

template <typename Value> std::optional<Value> chosen(const QVector<Choice<Value>> &choices, const QString &word)
{
    for (const Choice<Value> &choice : choices) {
        if (choice.word == word)
            return choice.value;
    }
    return std::nullopt;
}

// Each of these functions reads an option. It returns what is wrong with the option, or an empty text.

QString readScale(const CommandLine &line, PlanOptions *options)
{
    if (!line.isSet("scale"))
        return {};
    options->scale = DrawingScale::read(line.value("scale"));
    return options->scale ? QString()
                          : Program::tr("\"%1\" is not a scale such as 1:100 or 1in=20ft").arg(line.value("scale"));
}

QString readOrientation(const CommandLine &line, PlanOptions *options)
{
    static const QVector<Choice<PlanOptions::Orientation>> orientations{
        {QStringLiteral("portrait"), PlanOptions::Portrait}, {QStringLiteral("landscape"), PlanOptions::Landscape}};
    if (!line.isSet("orientation"))
        return {};
    options->orientation = chosen(orientations, line.value("orientation"));
    return options->orientation
               ? QString()
               : Program::tr("\"%1\" is neither \"portrait\" nor \"landscape\"").arg(line.value("orientation"));
}

QString readLayers(const CommandLine &line, PlanOptions *options)
{
    QStringList known;
    for (int layer = 0; layer < int(Layer::Sheet); ++layer)
        known.append(cabledoc::layerWord(Layer(layer)));
    const QStringList words = line.isSet("layers") ? line.value("layers").split(QLatin1Char(',')) : QStringList();
    for (const QString &word : words) {
        if (!known.contains(word.trimmed()))
            return withSuggestion(Program::tr("there is no layer \"%1\"").arg(word), nearest(word, known));
        options->layers.append(*cabledoc::layerOfWord(word.trimmed()));
    }
    return {};
}

QString readColors(const CommandLine &line, PlanOptions *options)
{
    static const QVector<Choice<CableColors>> colors{{QStringLiteral("cable"), CableColors::Cable},
                                                     {QStringLiteral("type"), CableColors::Type},
                                                     {QStringLiteral("use"), CableColors::Use},
                                                     {QStringLiteral("bundle"), CableColors::Bundle},
                                                     {QStringLiteral("status"), CableColors::Status}};
    if (!line.isSet("color-by"))
        return {};
    const std::optional<CableColors> color = chosen(colors, line.value("color-by"));
    if (!color)
        return Program::tr("\"%1\" gives cables no colours: cable, type, use, bundle or status")
            .arg(line.value("color-by"));
    options->colors = *color;
    return {};
}

QString readNorth(const CommandLine &line, PlanOptions *options)
{
    if (!line.isSet("north"))
        return {};
    bool isNumber = false;
    options->north = line.value("north").toDouble(&isNumber);
    constexpr double fullCircle = 360.0;
    return isNumber && qAbs(*options->north) <= fullCircle
               ? QString()
               : Program::tr("\"%1\" is not a direction in degrees").arg(line.value("north"));
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

/// Returns what is wrong with the options, or an empty text.
QString readOptions(const CommandLine &line, PlanOptions *options, int *dpi)
{
    options->paper = line.value("paper");
    options->revision = line.value("revision");
    options->sheetNumber = line.value("sheet-number");
    options->folder = QFileInfo(line.argument(0)).path();
    for (const auto read : {readScale, readOrientation, readLayers, readColors, readNorth}) {
        const QString problem = read(line, options);
        if (!problem.isEmpty())
            return problem;
    }
    return readDpi(line, dpi);
}

/// Finds the floor that is drawn. Returns what is wrong with the choice, or an empty text.
QString chooseFloor(const CommandLine &line, const JobSnapshot &job, Format format, PlanOptions *options)
{
    QStringList names;
    for (const cabledoc::snapshot::Floor &floor : job.floors()) {
        names.append(floor.id);
        if (line.isSet("floor") && floor.id == line.value("floor"))
            options->floor = floor.element;
    }
    if (line.isSet("floor") && options->floor.isEmpty())
        return withSuggestion(Program::tr("there is no floor \"%1\"").arg(line.value("floor")),
                              nearest(line.value("floor"), names));
    if (job.floors().isEmpty())
        return Program::tr("the job has no floors");
    if (options->floor.isEmpty() && format != Format::Pdf && names.size() > 1)
        return Program::tr("only a PDF file can have several floors; choose one with --floor: %1")
            .arg(names.join(QLatin1String(", ")));
    return {};
}

QString write(const cabledoc::Drawing &drawing, Format format, int dpi, const QString &fileName)
{
    if (format == Format::Pdf)
        return cabledoc::writePdf(drawing, fileName);
    const cabledoc::Scene &page = drawing.pages.constFirst();
    return format == Format::Svg ? cabledoc::writeSvg(page, fileName) : cabledoc::writePng(page, fileName, dpi);
}

} // namespace

ExitCode runPlan(const CommandLine &line)
{
    const Format format = formatOf(line.output());
    if (format == Format::Unknown)
        return line.usageError(Program::tr("the name of the drawing ends in .pdf, .svg or .png"));
    PlanOptions options;
    options.overflow = format == Format::Pdf ? PlanOptions::Tile : PlanOptions::Grow;
    int dpi = 0;
    const QString wrong = readOptions(line, &options, &dpi);
    if (!wrong.isEmpty())
        return line.usageError(wrong);
    JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    const QString wrongFloor = chooseFloor(line, job, format, &options);
    if (!wrongFloor.isEmpty())
        return fail(WrongUsage, line.argument(0), wrongFloor);
    const DrawingResult plan = cabledoc::drawFloorPlans(job, options);
    for (const QString &warning : plan.warnings) {
        if (!isQuiet())
            printMessage(line.argument(0) + QLatin1String(": ") + warning);
    }
    if (!plan.error.isEmpty())
        return fail(CannotSave, line.output().fileName, plan.error);
    return saveDocument(line.output(),
                        [&](const QString &fileName) { return write(plan.drawing, format, dpi, fileName); });
}
