#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "settingsstrings.h"

#include <QtCore/QString>

namespace cabledoc {

struct PrintSettingsFields
{
    QString paperSize = SettingsStrings::letter(); ///< one of SettingsStrings::paperSizes()
    int orientation = 1;                           ///< 0 portrait, 1 landscape
    int printZoom = 100;                           ///< percent
    int fitToAcross = 1;                           ///< pages
    int fitToDown = 1;                             ///< pages
    int printZoomStyle = 0; ///< whether the zoom or the fit counts; the application assigns the meaning

    auto members() const
    {
        const auto &[size, direction, zoom, across, down, style] = *this;
        return std::tie(size, direction, zoom, across, down, style);
    }
};

} // namespace cabledoc

/// How a report or view is printed. See Record for copying and comparing.
class CABLEDOC_EXPORT PrintSettings : public cabledoc::Record<cabledoc::PrintSettingsFields>
{
    Q_OBJECT

public:
    /// Letter paper in landscape, zoom 100 %, fit to one page, zoom style 0.
    PrintSettings() = default;
    explicit PrintSettings(const Fields &fields);
    PrintSettings(const QString &paperSize, int orientation, int printZoom, int fitToAcross, int fitToDown,
                  int printZoomStyle);

    const QString &paperSize() const { return m_fields.paperSize; }
    void setPaperSize(const QString &paperSize) { m_fields.paperSize = paperSize; }
    int orientation() const { return m_fields.orientation; }
    void setOrientation(int orientation) { m_fields.orientation = orientation; }
    int printZoom() const { return m_fields.printZoom; }
    void setPrintZoom(int percent) { m_fields.printZoom = percent; }
    int fitToAcross() const { return m_fields.fitToAcross; }
    void setFitToAcross(int pages) { m_fields.fitToAcross = pages; }
    int fitToDown() const { return m_fields.fitToDown; }
    void setFitToDown(int pages) { m_fields.fitToDown = pages; }
    int printZoomStyle() const { return m_fields.printZoomStyle; }
    void setPrintZoomStyle(int style) { m_fields.printZoomStyle = style; }

    /// Width and height of the paper as it is turned, in inches; -1.0 for an unknown paper size or
    /// orientation.
    double getPageWidthDimension() const;
    double getPageHeightDimension() const;
};
