#include "plandrawing.h"

#include "drawingtext.h"
#include "drawingtime.h"
#include "floorplan.h"
#include "papersizes.h"
#include "sheetlayout.h"
#include "units.h"
#include "words.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>
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

QSizeF oriented(const QSizeF &size, PlanOptions::Orientation orientation)
{
    const bool isUpright = size.height() > size.width();
    return isUpright == (orientation == PlanOptions::Portrait) ? size : size.transposed();
}

PlanOptions::Orientation orientationOf(int setting)
{
    return setting == portrait ? PlanOptions::Portrait : PlanOptions::Landscape;
}

/// Returns the size of the sheet that the settings of a job give, or an empty size if they give none.
QSizeF sheetOfSettings(const JobSnapshot &job)
{
    const PageSettingsFields page = job.pageSettings().value(words::FloorPlanSettings);
    if (page.pageSizeStyle == 1)
        return oriented(paperSize(page.pageSize), orientationOf(page.orientation));
    if (page.pageSizeStyle == 2)
        return QSizeF(page.customWidth, page.customHeight) * millimetersInAnInch;
    const PrintSettingsFields print = job.printSettings().value(words::FloorPlanSettings);
    return oriented(paperSize(print.paperSize), orientationOf(print.orientation));
}

/// Returns the size of the sheet, or an empty size if there is no such paper.
QSizeF sheetSize(const JobSnapshot &job, const PlanOptions &options)
{
    const QSizeF size = options.paper.isEmpty() ? sheetOfSettings(job) : paperSize(paperSizeNamed(options.paper));
    if (options.orientation)
        return oriented(size, *options.orientation);
    return options.paper.isEmpty() ? size : oriented(size, PlanOptions::Landscape);
}

QString joined(const QStringList &words)
{
    QStringList known = words;
    known.removeAll(QString());
    return known.join(QLatin1String(", "));
}

/// Draws the floor plans of a job.
class PlanBuilder
{
public:
    PlanBuilder(const JobSnapshot &job, const PlanOptions &options)
        : m_job(job)
        , m_options(options)
        , m_paper(sheetSize(job, options))
        , m_ownScale(DrawingScale::of(job.scaleSettings().value(words::FloorPlanSettings)))
        , m_scale(options.scale.value_or(m_ownScale))
        , m_palette(job, options.colors)
    {
    }

    PlanDrawing build()
    {
        m_drawing.error = problem();
        for (int floor = 0; floor < m_job.floors().size() && m_drawing.error.isEmpty(); ++floor) {
            if (m_options.floor.isEmpty() || m_options.floor == m_job.floors().at(floor).element)
                addFloor(floor);
        }
        if (!m_drawing.error.isEmpty())
            m_drawing.drawing.pages.clear();
        addTitleBlocks();
        m_drawing.drawing.title = joined({m_job.site().company, DrawingText::tr("Floor plans")});
        m_drawing.drawing.author = m_job.contractor().company;
        return std::move(m_drawing);
    }

private:
    /// Returns why nothing can be drawn, or an empty string.
    QString problem() const
    {
        if (!m_options.paper.isEmpty() && m_paper.isEmpty())
            return DrawingText::tr("There is no paper size \"%1\".").arg(m_options.paper);
        constexpr double smallest = 30.0;
        constexpr double largest = 5000.0;
        const double shortSide = std::min(m_paper.width(), m_paper.height());
        const double longSide = std::max(m_paper.width(), m_paper.height());
        if (!(shortSide >= smallest && longSide <= largest))
            return DrawingText::tr("The page settings of floor plans give no sheet that can be drawn. Choose a paper.");
        if (!m_options.floor.isEmpty() && m_job.positionOfTag(ElementKind::Floors, m_options.floor) < 0)
            return DrawingText::tr("There is no floor with the tag \"%1\".").arg(m_options.floor);
        return {};
    }

    void addFloor(int floor)
    {
        const double enlargement = m_ownScale.exists() && m_scale.exists() ? m_ownScale.factor / m_scale.factor : 1.0;
        const FloorPlan plan = planOf(
            {m_job, m_options, m_palette, m_measure, m_scale, millimetersInAnInch / pixelsInAnInch * enlargement},
            floor);
        const PlanSheets sheets = sheetsWith(plan, {m_measure, m_paper, m_options.overflow, m_scale, m_options.north},
                                             int(m_drawing.drawing.pages.size()));
        m_drawing.error = sheets.error;
        m_drawing.warnings += plan.warnings;
        m_drawing.drawing.pages += sheets.pages;
        for (int i = 0; i < sheets.pages.size(); ++i)
            m_floorOfPage.append(floor);
    }

    void addTitleBlocks()
    {
        QVector<Scene> &pages = m_drawing.drawing.pages;
        TitleBlock block;
        const SiteDataFields &site = m_job.site();
        block.contractor = m_job.contractor().company;
        block.logo = logo();
        block.site = joined({site.company, site.address.fields().city, site.jobID});
        block.scale = m_scale.exists() ? m_scale.text() : DrawingText::tr("None");
        block.date = (m_options.date.isValid() ? m_options.date : drawingTime().date()).toString(Qt::ISODate);
        block.revision = m_options.revision;
        for (int i = 0; i < pages.size(); ++i) {
            const QString number = QStringLiteral("%1/%2").arg(i + 1).arg(pages.size());
            block.floor = m_job.floors().at(m_floorOfPage.at(i)).id;
            block.sheet = m_options.sheetNumber.isEmpty() ? number
                          : pages.size() == 1             ? m_options.sheetNumber
                                                          : m_options.sheetNumber + QLatin1Char('-') + number;
            addTitleBlock(&pages[i], block, m_measure);
        }
    }

    QByteArray logo()
    {
        const QString name = m_job.contractor().logo;
        QFile file(QDir(m_options.folder).filePath(name));
        if (name.isEmpty())
            return {};
        const QByteArray data = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (QImage::fromData(data).isNull())
            m_drawing.warnings.append(DrawingText::tr("the logo %1 cannot be read").arg(name));
        return data;
    }

    const JobSnapshot &m_job;
    const PlanOptions &m_options;
    const QSizeF m_paper;
    const DrawingScale m_ownScale;
    const DrawingScale m_scale;
    const CablePalette m_palette;
    const TextMeasure m_measure;
    PlanDrawing m_drawing;
    QVector<int> m_floorOfPage;
};

} // namespace

PlanDrawing drawFloorPlans(const JobSnapshot &job, const PlanOptions &options)
{
    const QString fontError = loadDrawingFonts();
    return fontError.isEmpty() ? PlanBuilder(job, options).build() : PlanDrawing{{}, fontError, {}};
}

} // namespace cabledoc
