#include "report.h"

#include "drawingtime.h"
#include "filereplacement.h"
#include "htmlreport.h"
#include "pagesetup.h"
#include "pdffile.h"
#include "reportcontent.h"
#include "reportpages.h"
#include "verdicts.h"
#include "words.h"

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

/// Returns the name of the print settings of a kind of report.
QString settingsOf(ReportKind kind)
{
    switch (kind) {
    case ReportKind::Summary:
        return words::JobInfoSettings;
    case ReportKind::Inventory:
        return words::InventorySettings;
    case ReportKind::Schedule:
        return words::TestSchedSettings;
    case ReportKind::Notes:
        return words::JobNotesSettings;
    case ReportKind::Active:
        return words::ActiveNetworkTestResultsSettings;
    default:
        return words::DetailedCableSettings;
    }
}

QString dateOf(const DrawingOptions &page)
{
    const QString date = (page.date.isValid() ? page.date : drawingTime().date()).toString(Qt::ISODate);
    return page.revision.isEmpty() ? date
                                   : date + QLatin1String(" · ") + ReportText::tr("Revision %1").arg(page.revision);
}

/// Lays a report out. Returns where its groups are.
PageNumbers layOut(const ReportContent &content, const PageStyle &style, const PageNumbers &numbers,
                   const ReportPages::Output &output)
{
    const TextMeasure measure;
    ReportPages pages(style, measure, numbers, output);
    content.writeTo([&pages](const ReportGroup &group) { pages.add(group); });
    return pages.finish();
}

/// Returns whether a report fits on a number of pages.
bool fits(const ReportContent &content, const PageStyle &style, int pageCount)
{
    const TextMeasure measure;
    int count = 0;
    ReportPages pages(style, measure, {}, [&count](const Scene &) { ++count; });
    content.writeTo([&](const ReportGroup &group) {
        if (count <= pageCount)
            pages.add(group);
    });
    pages.finish();
    return count <= pageCount;
}

/// Returns the largest zoom up to 100 % with which a report fits on a number of pages, or the smallest zoom if there is
/// none.
double fittingZoom(const ReportContent &content, PageStyle style, int pageCount)
{
    constexpr double step = 0.95;
    constexpr int mostSteps = 27; // 25 %
    int tooFew = -1;
    int enough = mostSteps;
    for (int steps = 0; tooFew + 1 < enough; steps = (tooFew + enough) / 2) {
        style.zoom = std::pow(step, steps);
        (fits(content, style, pageCount) ? enough : tooFew) = steps;
    }
    return std::pow(step, enough);
}

/// Returns the zoom that the print settings demand.
double zoomOf(const ReportContent &content, const PrintSettingsFields &settings, const PageStyle &style)
{
    constexpr int fitToPages = 1; // the style of the settings; 0 is a zoom in percent
    constexpr double smallest = 0.25;
    constexpr double narrowestPage = 105.0; // millimetres at 100 %
    const double largest = std::min(4.0, std::min(style.paper.width(), style.paper.height()) / narrowestPage);
    if (settings.printZoomStyle != fitToPages)
        return std::clamp(settings.printZoom / 100.0, smallest, largest);
    const int pageCount = std::max(1, settings.fitToAcross) * std::max(1, settings.fitToDown);
    return std::min(largest, fittingZoom(content, style, pageCount));
}

/// Has a report written by a function with the signature
/// QString write(const ReportContent &content, const PageSetup &setup, ReportResult *result). It returns what is wrong.
template <typename Write>
ReportResult writtenReport(const JobSnapshot &job, const ReportOptions &options, const Write &write)
{
    ReportResult result;
    result.error = loadDrawingFonts();
    if (!result.error.isEmpty())
        return result;
    const PageSetup setup(job, options.page, settingsOf(options.kind));
    result.error = setup.problem();
    if (result.error.isEmpty())
        result.error = write(*contentOf(job, options), setup, &result);
    return result;
}

} // namespace

void moveFailuresToFront(const JobSnapshot &job, QVector<int> *cables)
{
    const auto rank = [&job](int cable) {
        const QString &status = job.cables().at(cable).test.status;
        if (status == verdicts::Fail)
            return 0;
        const bool isKnown =
            status == verdicts::Pass || status == verdicts::PassWithinAccuracy || status == verdicts::Untested;
        return isKnown ? 2 : 1;
    };
    std::stable_sort(cables->begin(), cables->end(), [&rank](int a, int b) { return rank(a) < rank(b); });
}

ReportResult writePdfReport(const JobSnapshot &job, const ReportOptions &options, const QString &fileName)
{
    return writtenReport(job, options, [&](const ReportContent &content, const PageSetup &setup, ReportResult *result) {
        const QString subject = titleOf(job, content.title());
        PageStyle style{
            setup.paper(), 1.0, job.contractor().company, subject, dateOf(options.page), setup.logo(&result->warnings)};
        style.zoom = zoomOf(content, job.printSettings().value(settingsOf(options.kind)), style);
        const PageNumbers numbers = layOut(content, style, {}, [](const Scene &) {});
        PdfFile file(subject, job.contractor().company);
        layOut(content, style, numbers, [&file](const Scene &page) { file.addPage(page); });
        QVector<OutlineEntry> outline;
        for (const ReportOutlineEntry &entry : content.outline())
            outline.append({entry.title, std::max(0, numbers.pageOf(entry.anchor)), entry.level});
        file.warn(&result->warnings);
        result->pages = numbers.count;
        return file.save(fileName, outline);
    });
}

ReportResult writeHtmlReport(const JobSnapshot &job, const ReportOptions &options, const QString &fileName)
{
    return writtenReport(job, options, [&](const ReportContent &content, const PageSetup &setup, ReportResult *result) {
        FileReplacement file(fileName);
        QString error = file.open();
        if (!error.isEmpty())
            return error;
        const HtmlStyle style{titleOf(job, content.title()), dateOf(options.page), setup.paper(),
                              setup.logo(&result->warnings)};
        HtmlReport html(style, [&file, &error](const QByteArray &piece) {
            if (error.isEmpty())
                error = file.write(piece);
        });
        content.writeTo([&html](const ReportGroup &group) { html.add(group); });
        html.finish();
        return error.isEmpty() ? file.commit({}) : error;
    });
}

} // namespace cabledoc
