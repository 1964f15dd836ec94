#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "settingsstrings.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a PageSettings.
struct PageSettingsFields
{
    /// Name of the page size, one of SettingsStrings::paperSizes().
    QString pageSize = SettingsStrings::letter();
    /// Name of the page standard, one of SettingsStrings::pageStandards().
    QString pageStandard = SettingsStrings::standard();
    /// 0 for portrait, 1 for landscape.
    int orientation = 1;
    /// What gives the size of the sheet: 1 is the page size, 2 is the custom size. 0 and 3 stand for no size.
    int pageSizeStyle = 0;
    /// Unit code of the custom size. The application assigns the meaning. The size itself is always in inches.
    int pageUnits = 0;
    /// Height of the custom size, in inches.
    double customHeight = 8.5;
    /// Width of the custom size, in inches.
    double customWidth = 11.0;
};

/// Returns all fields. Records are compared by them.
inline auto members(const PageSettingsFields &fields)
{
    const auto &[pageSize, pageStandard, orientation, pageSizeStyle, pageUnits, customHeight, customWidth] = fields;
    return std::tie(pageSize, pageStandard, orientation, pageSizeStyle, pageUnits, customHeight, customWidth);
}

} // namespace cabledoc

/// The size of the drawing sheet of a view. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT PageSettings : public cabledoc::Record<cabledoc::PageSettingsFields>
{
    Q_OBJECT

public:
    /// Creates settings with letter paper in landscape, the page standard "Standard", style 0, unit code 0, and a
    /// custom size of 11.0 by 8.5 inches.
    PageSettings() = default;
    /// Creates settings with the given fields.
    explicit PageSettings(const Fields &fields);
    /// Creates settings from their parts. Note that the width comes before the height.
    PageSettings(const QString &pageSize, const QString &pageStandard, int orientation, int pageSizeStyle,
                 int pageUnits, double customWidth, double customHeight);

    /// Returns the name of the page size.
    const QString &pageSize() const { return m_fields.pageSize; }
    /// Sets the page size, given by one of the names in SettingsStrings::paperSizes().
    void setPageSize(const QString &pageSize) { m_fields.pageSize = pageSize; }
    /// Returns the name of the page standard.
    const QString &pageStandard() const { return m_fields.pageStandard; }
    /// Sets the page standard, given by one of the names in SettingsStrings::pageStandards().
    void setPageStandard(const QString &pageStandard) { m_fields.pageStandard = pageStandard; }
    /// Returns the orientation: 0 for portrait, 1 for landscape.
    int orientation() const { return m_fields.orientation; }
    /// Sets the orientation: 0 for portrait, 1 for landscape.
    void setOrientation(int orientation) { m_fields.orientation = orientation; }
    /// Returns what gives the size of the sheet: 1 for the page size, 2 for the custom size, other values for no size.
    int pageSizeStyle() const { return m_fields.pageSizeStyle; }
    /// Sets what gives the size of the sheet: 1 for the page size, 2 for the custom size.
    void setPageSizeStyle(int style) { m_fields.pageSizeStyle = style; }
    /// Returns the unit code of the custom size, whose meaning the application assigns.
    int pageUnits() const { return m_fields.pageUnits; }
    /// Sets the unit code of the custom size. It has no effect on the size, which is always in inches.
    void setPageUnits(int units) { m_fields.pageUnits = units; }
    /// Returns the height of the custom size, in inches.
    double customHeight() const { return m_fields.customHeight; }
    /// Sets the height of the custom size, in inches.
    void setCustomHeight(double height) { m_fields.customHeight = height; }
    /// Returns the width of the custom size, in inches.
    double customWidth() const { return m_fields.customWidth; }
    /// Sets the width of the custom size, in inches.
    void setCustomWidth(double width) { m_fields.customWidth = width; }

    /// Returns the width of the sheet in inches. Style 1 gives the width of the page size in its orientation, style 2
    /// gives the custom width in any orientation. Returns -1.0 for any other style, and in style 1 for an unknown page
    /// size or orientation.
    double getPageWidthDimension() const;
    /// Returns the height of the sheet in inches. Style 1 gives the height of the page size in its orientation, style 2
    /// gives the custom height in any orientation. Returns -1.0 for any other style, and in style 1 for an unknown page
    /// size or orientation.
    double getPageHeightDimension() const;
};
