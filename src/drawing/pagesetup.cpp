#include "pagesetup.h"

#include "drawingtext.h"
#include "drawingtime.h"
#include "papersizes.h"
#include "titleblock.h"
#include "units.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QImage>

namespace cabledoc {

namespace {

constexpr int portrait = 0; // as settings store it

/// Returns the size in millimetres of the paper with the given name, in portrait. The name has the size, without the
/// rounding of the inches that documents reckon with.
QSizeF paperSize(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("([\\d.]+) (mm|in)\\. x ([\\d.]+) (?:mm|in)\\.$"));
    const QRegularExpressionMatch match = form.match(name);
    const double unit = match.captured(2) == QLatin1String("in") ? millimetersInAnInch : 1.0;
    return QSizeF(match.captured(1).toDouble(), match.captured(3).toDouble()) * unit;
}

QSizeF oriented(const QSizeF &size, DrawingOptions::Orientation orientation)
{
    const bool isUpright = size.height() > size.width();
    return isUpright == (orientation == DrawingOptions::Portrait) ? size : size.transposed();
}

DrawingOptions::Orientation orientationOf(int setting)
{
    return setting == portrait ? DrawingOptions::Portrait : DrawingOptions::Landscape;
}

/// Returns the size of the sheet that the settings of a job give, or an empty size if they give none.
QSizeF sheetOfSettings(const JobSnapshot &job, const QString &settings)
{
    const PageSettingsFields page = job.pageSettings().value(settings);
    if (page.pageSizeStyle == 1)
        return oriented(paperSize(page.pageSize), orientationOf(page.orientation));
    if (page.pageSizeStyle == 2)
        return QSizeF(page.customWidth, page.customHeight) * millimetersInAnInch;
    const PrintSettingsFields print = job.printSettings().value(settings);
    return oriented(paperSize(print.paperSize), orientationOf(print.orientation));
}

/// Returns the size of the sheet, or an empty size if there is no such paper.
QSizeF sheetSize(const JobSnapshot &job, const DrawingOptions &options, const QString &settings)
{
    const QSizeF size =
        options.paper.isEmpty() ? sheetOfSettings(job, settings) : paperSize(paperSizeNamed(options.paper));
    if (options.orientation)
        return oriented(size, *options.orientation);
    return options.paper.isEmpty() ? size : oriented(size, DrawingOptions::Landscape);
}

QString joined(const QStringList &words)
{
    QStringList known = words;
    known.removeAll(QString());
    return known.join(QLatin1String(", "));
}

QString problemOf(const QSizeF &paper, const DrawingOptions &options)
{
    if (!options.paper.isEmpty() && paper.isEmpty())
        return DrawingText::tr("There is no paper size \"%1\".").arg(options.paper);
    constexpr double smallest = 30.0;
    constexpr double largest = 5000.0;
    // A side that is not a number is not within the limits.
    const auto isPossible = [](double side) { return side >= smallest && side <= largest; };
    if (!isPossible(paper.width()) || !isPossible(paper.height()))
        return DrawingText::tr("The page settings of the job give no sheet that can be drawn. Choose a paper.");
    return {};
}

} // namespace

QString titleOf(const JobSnapshot &job, const QString &title)
{
    return joined({job.site().company, title});
}

PageSetup::PageSetup(const JobSnapshot &job, const DrawingOptions &options, const QString &settings)
    : m_job(job)
    , m_options(options)
    , m_paper(sheetSize(job, options, settings))
    , m_problem(problemOf(m_paper, options))
{
}

void PageSetup::complete(DrawingResult *result, const QString &kind, const QStringList &subjects,
                         const QStringList &scales) const
{
    const TextMeasure measure;
    QVector<Scene> &pages = result->drawing.pages;
    TitleBlock block;
    const SiteDataFields &site = m_job.site();
    block.contractor = m_job.contractor().company;
    block.logo = logo(&result->warnings);
    block.site = joined({site.company, site.address.fields().city, site.jobID});
    block.kind = kind;
    block.date = (m_options.date.isValid() ? m_options.date : drawingTime().date()).toString(Qt::ISODate);
    block.revision = m_options.revision;
    for (int i = 0; i < pages.size(); ++i) {
        const QString number = QStringLiteral("%1/%2").arg(i + 1).arg(pages.size());
        block.subject = subjects.at(i);
        block.scale = scales.at(i);
        block.sheet = m_options.sheetNumber.isEmpty() ? number
                      : pages.size() == 1             ? m_options.sheetNumber
                                                      : m_options.sheetNumber + QLatin1Char('-') + number;
        addTitleBlock(&pages[i], block, measure);
    }
    result->drawing.author = block.contractor;
}

QByteArray PageSetup::logo(QStringList *warnings) const
{
    const QString name = m_job.contractor().logo;
    QFile file(QDir(m_options.folder).filePath(name));
    if (name.isEmpty())
        return {};
    const QByteArray data = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (!QImage::fromData(data).isNull())
        return data;
    warnings->append(DrawingText::tr("the logo %1 cannot be read").arg(name));
    return {};
}

} // namespace cabledoc
