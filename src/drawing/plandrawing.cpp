#include "plandrawing.h"

#include "drawingtext.h"
#include "floorplan.h"
#include "pagesetup.h"
#include "sheetlayout.h"
#include "units.h"
#include "words.h"

namespace cabledoc {

namespace {

/// Draws the floor plans of a job.
class PlanBuilder
{
public:
    PlanBuilder(const JobSnapshot &job, const PlanOptions &options)
        : m_job(job)
        , m_options(options)
        , m_setup(job, options, words::FloorPlanSettings)
        , m_ownScale(DrawingScale::of(job.scaleSettings().value(words::FloorPlanSettings)))
        , m_scale(options.scale.value_or(m_ownScale))
        , m_palette(job, options.colors)
    {
    }

    DrawingResult build()
    {
        m_result.error = m_setup.problem();
        if (m_result.error.isEmpty() && !m_options.floor.isEmpty()
            && m_job.positionOfTag(ElementKind::Floors, m_options.floor) < 0)
            m_result.error = DrawingText::tr("There is no floor with the tag \"%1\".").arg(m_options.floor);
        for (int floor = 0; floor < m_job.floors().size() && m_result.error.isEmpty(); ++floor) {
            if (m_options.floor.isEmpty() || m_options.floor == m_job.floors().at(floor).element)
                addFloor(floor);
        }
        if (!m_result.error.isEmpty()) {
            m_result.drawing.pages.clear();
            return std::move(m_result);
        }
        m_result.drawing.title = titleOf(m_job, DrawingText::tr("Floor plans"));
        m_setup.complete(&m_result, DrawingText::tr("Floor"), m_subjects, m_scales);
        return std::move(m_result);
    }

private:
    void addFloor(int floor)
    {
        const double enlargement = m_ownScale.exists() && m_scale.exists() ? m_ownScale.factor / m_scale.factor : 1.0;
        const PlanContent plan = planOf(
            {m_job, m_options, m_palette, m_measure, m_scale, millimetersInAnInch / pixelsInAnInch * enlargement},
            floor);
        const PlanSheets sheets =
            sheetsWith(plan, {m_measure, m_setup.paper(), m_options.overflow, m_scale, m_options.north},
                       int(m_result.drawing.pages.size()));
        m_result.error = sheets.error;
        m_result.warnings += plan.warnings;
        m_result.drawing.pages += sheets.pages;
        for (int i = 0; i < sheets.pages.size(); ++i) {
            m_subjects.append(m_job.floors().at(floor).id);
            const bool isToScale = m_scale.exists() && !(i == 0 && sheets.hasOverview);
            m_scales.append(isToScale ? m_scale.text() : DrawingText::tr("None"));
        }
    }

    const JobSnapshot &m_job;
    const PlanOptions &m_options;
    const PageSetup m_setup;
    const DrawingScale m_ownScale;
    const DrawingScale m_scale;
    const CablePalette m_palette;
    const TextMeasure m_measure;
    DrawingResult m_result;
    QStringList m_subjects;
    QStringList m_scales;
};

} // namespace

DrawingResult drawFloorPlans(const JobSnapshot &job, const PlanOptions &options)
{
    const QString fontError = loadDrawingFonts();
    return fontError.isEmpty() ? PlanBuilder(job, options).build() : DrawingResult{{}, fontError, {}};
}

} // namespace cabledoc
