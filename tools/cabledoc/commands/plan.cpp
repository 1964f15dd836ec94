#include "commandline.h"
#include "documents.h"
#include "drawingfiles.h"
#include "suggestion.h"

#include <cabledoc/jobsnapshot.h>
#include <cabledoc/networkdrawing.h>
#include <cabledoc/plandrawing.h>
#include <cabledoc/riserdrawing.h>

using cabledoc::CableColors;
using cabledoc::DrawingOptions;
using cabledoc::DrawingScale;
using cabledoc::JobSnapshot;
using cabledoc::Layer;
using cabledoc::NetworkOptions;
using cabledoc::PlanOptions;

namespace {

// Each of these functions reads an option. It returns what is wrong with the option, or an empty text.

QString readScale(const CommandLine &line, PlanOptions *options)
{
    if (!line.isSet("scale"))
        return {};
    options->scale = DrawingScale::read(line.value("scale"));
    return options->scale ? QString()
                          : Program::tr("\"%1\" is not a scale such as 1:100 or 1in=20ft").arg(line.value("scale"));
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

/// Returns what is wrong with the options of floor plans, or an empty text.
QString readPlanOptions(const CommandLine &line, PlanOptions *options)
{
    for (const auto read : {readScale, readLayers, readColors, readNorth}) {
        const QString problem = read(line, options);
        if (!problem.isEmpty())
            return problem;
    }
    return {};
}

/// Returns which options cannot be used together, or an empty text.
QString wrongCombination(const CommandLine &line)
{
    const QVector<const char *> subjects{"floor", "sheet", "sheets", "riser"};
    QStringList given;
    for (const char *subject : subjects) {
        if (line.isSet(subject))
            given.append(QLatin1String("--") + QLatin1String(subject));
    }
    if (given.size() > 1)
        return Program::tr("%1 and %2 do not go together").arg(given.at(0), given.at(1));
    const bool isFloorPlan = given.isEmpty() || line.isSet("floor");
    for (const char *option : {"scale", "layers", "color-by", "north"}) {
        if (line.isSet(option) && !isFloorPlan)
            return Program::tr("--%1 is for floor plans only").arg(QLatin1String(option));
    }
    return {};
}

/// Finds the floor or sheet with the name that an option has. Leaves the tag as it is without the option. Returns what
/// is wrong with the choice, or an empty text.
template <typename Element>
QString choose(const CommandLine &line, const char *option, const QVector<Element> &elements, QString *tag)
{
    if (!line.isSet(option))
        return {};
    QStringList names;
    for (const Element &element : elements) {
        names.append(element.id);
        if (element.id == line.value(option))
            *tag = element.element;
    }
    return tag->isEmpty()
               ? withSuggestion(Program::tr("there is no %1 \"%2\"").arg(QLatin1String(option), line.value(option)),
                                nearest(line.value(option), names))
               : QString();
}

/// Returns a message if a file that has one page would have to have several.
template <typename Element>
QString tooMany(const CommandLine &line, const QString &tag, const char *option, const QVector<Element> &elements)
{
    if (elements.isEmpty())
        return Program::tr("the job has nothing to draw");
    if (!tag.isEmpty() || elements.size() == 1 || formatOf(line.output()) == DrawingFormat::Pdf)
        return {};
    QStringList names;
    for (const Element &element : elements)
        names.append(element.id);
    return Program::tr("only a PDF file can have several pages; choose one with --%1: %2")
        .arg(QLatin1String(option), names.join(QLatin1String(", ")));
}

ExitCode drawFloors(const CommandLine &line, const JobSnapshot &job, PlanOptions options, int dpi)
{
    QString problem = choose(line, "floor", job.floors(), &options.floor);
    if (problem.isEmpty())
        problem = tooMany(line, options.floor, "floor", job.floors());
    if (!problem.isEmpty())
        return fail(WrongUsage, line.argument(0), problem);
    return writeDrawing(line, cabledoc::drawFloorPlans(job, options), dpi);
}

ExitCode drawSheets(const CommandLine &line, const JobSnapshot &job, const DrawingOptions &general, int dpi)
{
    NetworkOptions options;
    static_cast<DrawingOptions &>(options) = general;
    QString problem = choose(line, "sheet", job.sheets(), &options.sheet);
    if (problem.isEmpty())
        problem = tooMany(line, options.sheet, "sheet", job.sheets());
    if (!problem.isEmpty())
        return fail(WrongUsage, line.argument(0), problem);
    return writeDrawing(line, cabledoc::drawNetwork(job, options), dpi);
}

} // namespace

ExitCode runPlan(const CommandLine &line)
{
    PlanOptions options;
    int dpi = 0;
    QString wrong = readDrawingOptions(line, &options, &dpi);
    if (wrong.isEmpty())
        wrong = readPlanOptions(line, &options);
    if (wrong.isEmpty())
        wrong = wrongCombination(line);
    if (!wrong.isEmpty())
        return line.usageError(wrong);
    options.overflow = formatOf(line.output()) == DrawingFormat::Pdf ? PlanOptions::Tile : PlanOptions::Grow;
    JobSnapshot job;
    if (const ExitCode error = readJob(line, &job))
        return error;
    if (line.isSet("riser"))
        return writeDrawing(line, cabledoc::drawRiser(job, options), dpi);
    if (line.isSet("sheet") || line.isSet("sheets"))
        return drawSheets(line, job, options, dpi);
    return drawFloors(line, job, options, dpi);
}
