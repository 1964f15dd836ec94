#include "curvedrawing.h"

#include "curvediagram.h"
#include "drawingtext.h"
#include "pagesetup.h"
#include "sheetlayout.h"
#include "sheetpen.h"
#include "words.h"

#include <algorithm>

namespace cabledoc {

namespace {

// Millimetres
constexpr double inset = 5.0;
constexpr double numberSize = 2.2;

/// A curve with its title.
struct TitledCurve
{
    QString title;
    TRUEPHY_PLOT_DATA curve;
};

/// Explains the lines and what the cable is, in the column beside the diagrams.
PlanContent columnOf(const snapshot::Cable &cable)
{
    PlanContent content;
    content.name = cable.id;
    constexpr double half = 3.4;
    content.legend.append(ColumnEntry::heading(DrawingText::tr("Legend")));
    const QStringList names{DrawingText::tr("First series"), DrawingText::tr("Second series")};
    for (int i = 0; i < names.size(); ++i)
        content.legend.append(ColumnEntry::explaining(
            {SceneLine{{{-half, 0.0}, {half, 0.0}}, curveLines().at(std::size_t(i))}}, names.at(i)));
    content.legend.append(
        ColumnEntry::listed({}, DrawingText::tr("Values of the tester over the numbers of the samples")));
    content.legend.append(ColumnEntry::heading(DrawingText::tr("Test")));
    const QVector<QPair<QString, QString>> fields{{DrawingText::tr("Type: %1"), cable.type},
                                                  {DrawingText::tr("Time: %1"), cable.test.time},
                                                  {DrawingText::tr("Status: %1"), cable.test.status},
                                                  {DrawingText::tr("Tester: %1"), cable.test.serialNumber},
                                                  {DrawingText::tr("Version: %1"), cable.test.softwareVersion}};
    for (const auto &[form, value] : fields) {
        if (!value.isEmpty())
            content.legend.append(ColumnEntry::listed({}, form.arg(value)));
    }
    return content;
}

} // namespace

DrawingResult drawCurves(const JobSnapshot &job, int cable, const DrawingOptions &options)
{
    const QString fontError = loadDrawingFonts();
    if (!fontError.isEmpty())
        return {{}, fontError, {}};
    const PageSetup setup(job, options, words::DetailedCableSettings);
    if (!setup.problem().isEmpty())
        return {{}, setup.problem(), {}};
    const TestResults results = job.testResults(cable);
    const QVector<TitledCurve> curves{{DrawingText::tr("Near-end crosstalk"), results.next()},
                                      {DrawingText::tr("Echo"), results.echo()},
                                      {DrawingText::tr("Channel"), results.channel()}};
    const snapshot::Cable &fields = job.cables().at(cable);
    if (std::all_of(curves.cbegin(), curves.cend(), [](const TitledCurve &curve) { return curve.curve.count <= 0; }))
        return {{}, DrawingText::tr("The cable \"%1\" has no response curves.").arg(fields.id), {}};
    const TextMeasure measure;
    DrawingResult result;
    result.drawing.pages =
        sheetsWith(columnOf(fields), {measure, setup.paper(), PlanOptions::Grow, {}, {}}, 0).pages.mid(0, 1);
    Scene &page = result.drawing.pages.first();
    const QRectF area = page.window.marginsRemoved({inset, inset, inset, inset});
    const double height = area.height() / double(curves.size());
    for (int i = 0; i < curves.size(); ++i)
        drawCurve(&page, {area.left(), area.top() + i * height, area.width(), height}, curves.at(i).title,
                  curves.at(i).curve, {measure, numberSize});
    result.drawing.title = titleOf(job, DrawingText::tr("Response curves of %1").arg(fields.id));
    setup.complete(&result, DrawingText::tr("Response curves"), {fields.id}, {DrawingText::tr("None")});
    return result;
}

} // namespace cabledoc
