#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "settingsstrings.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a PrintSettings.
struct PrintSettingsFields
{
    /// Name of the paper size, one of SettingsStrings::paperSizes().
    QString paperSize = SettingsStrings::letter();
    /// 0 for portrait, 1 for landscape.
    int orientation = 1;
    /// Zoom in percent.
    int printZoom = 100;
    /// Number of pages side by side on which the print must fit.
    int fitToAcross = 1;
    /// Number of pages one below the other on which the print must fit.
    int fitToDown = 1;
    /// Whether the zoom or the number of pages counts. The application assigns the meaning.
    int printZoomStyle = 0;
};

/// Returns all fields. Records are compared by them.
inline auto members(const PrintSettingsFields &fields)
{
    const auto &[paperSize, orientation, printZoom, fitToAcross, fitToDown, printZoomStyle] = fields;
    return std::tie(paperSize, orientation, printZoom, fitToAcross, fitToDown, printZoomStyle);
}

} // namespace cabledoc

/// How a report or view is printed. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT PrintSettings : public cabledoc::Record<cabledoc::PrintSettingsFields>
{
    Q_OBJECT

public:
    /// Creates settings with letter paper in landscape, a zoom of 100 %, a fit to one page, and zoom style 0.
    PrintSettings() = default;
    /// Creates settings with the given fields.
    explicit PrintSettings(const Fields &fields);
    /// Creates settings from their parts.
    PrintSettings(const QString &paperSize, int orientation, int printZoom, int fitToAcross, int fitToDown,
                  int printZoomStyle);

    /// Returns the name of the paper size.
    const QString &paperSize() const { return m_fields.paperSize; }
    /// Sets the paper size, given by one of the names in SettingsStrings::paperSizes().
    void setPaperSize(const QString &paperSize) { m_fields.paperSize = paperSize; }
    /// Returns the orientation: 0 for portrait, 1 for landscape.
    int orientation() const { return m_fields.orientation; }
    /// Sets the orientation: 0 for portrait, 1 for landscape.
    void setOrientation(int orientation) { m_fields.orientation = orientation; }
    /// Returns the zoom in percent.
    int printZoom() const { return m_fields.printZoom; }
    /// Sets the zoom in percent.
    void setPrintZoom(int percent) { m_fields.printZoom = percent; }
    /// Returns the number of pages side by side on which the print must fit.
    int fitToAcross() const { return m_fields.fitToAcross; }
    /// Sets the number of pages side by side on which the print must fit.
    void setFitToAcross(int pages) { m_fields.fitToAcross = pages; }
    /// Returns the number of pages one below the other on which the print must fit.
    int fitToDown() const { return m_fields.fitToDown; }
    /// Sets the number of pages one below the other on which the print must fit.
    void setFitToDown(int pages) { m_fields.fitToDown = pages; }
    /// Returns whether the zoom or the number of pages counts. The application assigns the meaning.
    int printZoomStyle() const { return m_fields.printZoomStyle; }
    /// Sets whether the zoom or the number of pages counts. The application assigns the meaning.
    void setPrintZoomStyle(int style) { m_fields.printZoomStyle = style; }

    /// Returns the width of the paper in its orientation, in inches, or -1.0 for an unknown paper size or orientation.
    double getPageWidthDimension() const;
    /// Returns the height of the paper in its orientation, in inches, or -1.0 for an unknown paper size or orientation.
    double getPageHeightDimension() const;
};
