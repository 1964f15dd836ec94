#include "networkdrawing.h"

#include "drawingtext.h"
#include "networksheet.h"
#include "pagesetup.h"
#include "sheetlayout.h"
#include "words.h"

#include <algorithm>
#include <cmath>

namespace cabledoc {

namespace {

/// Draws the sheets of a job.
class NetworkBuilder
{
public:
    NetworkBuilder(const JobSnapshot &job, const NetworkOptions &options)
        : m_job(job)
        , m_options(options)
        , m_setup(job, options, words::NetViewSettings)
    {
    }

    DrawingResult build()
    {
        m_result.error = m_setup.problem();
        if (m_result.error.isEmpty() && !m_options.sheet.isEmpty()
            && m_job.positionOfTag(ElementKind::Sheets, m_options.sheet) < 0)
            m_result.error = DrawingText::tr("There is no sheet with the tag \"%1\".").arg(m_options.sheet);
        if (!m_result.error.isEmpty())
            return std::move(m_result);
        for (int sheet = 0; sheet < m_job.sheets().size(); ++sheet) {
            if (m_options.sheet.isEmpty() || m_options.sheet == m_job.sheets().at(sheet).element)
                addSheet(sheet);
        }
        m_result.drawing.title = titleOf(m_job, DrawingText::tr("Network"));
        m_setup.complete(&m_result, DrawingText::tr("Network"), m_subjects, m_scales);
        return std::move(m_result);
    }

private:
    void addSheet(int sheet)
    {
        double factor = 1.0;
        PlanContent content = networkSheet(m_job, sheet, factor, m_measure);
        constexpr int attempts = 8;
        for (int i = 0; i < attempts && !fits(content); ++i) {
            factor *= reductionOf(content);
            content = networkSheet(m_job, sheet, factor, m_measure);
        }
        const QString percent = QStringLiteral("%1 %").arg(std::lround(factor * 100.0));
        if (factor < 1.0)
            m_result.warnings.append(
                DrawingText::tr("%1 is reduced to %2, because it is larger than the paper").arg(content.name, percent));
        const PlanSheets sheets = sheetsWith(content, {m_measure, m_setup.paper(), PlanOptions::Grow, {}, {}},
                                             int(m_result.drawing.pages.size()));
        m_result.drawing.pages += sheets.pages;
        for (int i = 0; i < sheets.pages.size(); ++i) {
            m_subjects.append(content.name);
            m_scales.append(DrawingText::tr("None (%1)").arg(percent));
        }
    }

    QSizeF room() const { return roomForPlan(m_setup.paper()); }

    bool fits(const PlanContent &content) const
    {
        return content.bounds.width() <= room().width() && content.bounds.height() <= room().height();
    }

    /// Returns by how much the content has to become smaller. Labels keep their size, so this is a bit less than what
    /// the sizes say.
    double reductionOf(const PlanContent &content) const
    {
        constexpr double reserve = 0.98;
        return reserve
               * std::min({1.0, room().width() / content.bounds.width(), room().height() / content.bounds.height()});
    }

    const JobSnapshot &m_job;
    const NetworkOptions &m_options;
    const PageSetup m_setup;
    const TextMeasure m_measure;
    DrawingResult m_result;
    QStringList m_subjects;
    QStringList m_scales;
};

} // namespace

DrawingResult drawNetwork(const JobSnapshot &job, const NetworkOptions &options)
{
    const QString fontError = loadDrawingFonts();
    return fontError.isEmpty() ? NetworkBuilder(job, options).build() : DrawingResult{{}, fontError, {}};
}

} // namespace cabledoc
