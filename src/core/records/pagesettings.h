#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "settingsstrings.h"

#include <QtCore/QString>

namespace cabledoc {

struct PageSettingsFields
{
    QString pageSize = SettingsStrings::letter();       ///< one of SettingsStrings::paperSizes()
    QString pageStandard = SettingsStrings::standard(); ///< one of SettingsStrings::pageStandards()
    int orientation = 1;                                ///< 0 portrait, 1 landscape
    int pageSizeStyle = 0;                              ///< 0 none, 1 by pageSize, 2 custom, 3 none
    int pageUnits = 0;         ///< unit code of the custom size; the application assigns the meaning
    double customHeight = 8.5; ///< inches
    double customWidth = 11.0; ///< inches

    auto members() const
    {
        const auto &[size, standard, direction, style, units, height, width] = *this;
        return std::tie(size, standard, direction, style, units, height, width);
    }
};

} // namespace cabledoc

/// The drawing sheet of a view. See Record for copying and comparing.
class CABLEDOC_EXPORT PageSettings : public cabledoc::Record<cabledoc::PageSettingsFields>
{
    Q_OBJECT

public:
    /// Letter paper of the page standard "Standard" in landscape, style 0, custom size 11.0 by 8.5.
    PageSettings() = default;
    explicit PageSettings(const Fields &fields);
    /// Width comes before height.
    PageSettings(const QString &pageSize, const QString &pageStandard, int orientation, int pageSizeStyle,
                 int pageUnits, double customWidth, double customHeight);

    const QString &pageSize() const { return m_fields.pageSize; }
    void setPageSize(const QString &pageSize) { m_fields.pageSize = pageSize; }
    const QString &pageStandard() const { return m_fields.pageStandard; }
    void setPageStandard(const QString &pageStandard) { m_fields.pageStandard = pageStandard; }
    int orientation() const { return m_fields.orientation; }
    void setOrientation(int orientation) { m_fields.orientation = orientation; }
    int pageSizeStyle() const { return m_fields.pageSizeStyle; }
    void setPageSizeStyle(int style) { m_fields.pageSizeStyle = style; }
    int pageUnits() const { return m_fields.pageUnits; }
    void setPageUnits(int units) { m_fields.pageUnits = units; }
    double customHeight() const { return m_fields.customHeight; }
    void setCustomHeight(double height) { m_fields.customHeight = height; }
    double customWidth() const { return m_fields.customWidth; }
    void setCustomWidth(double width) { m_fields.customWidth = width; }

    /// Width and height of the sheet: for style 1 those of the page size as it is turned, in inches,
    /// for style 2 the custom size, which no orientation turns; otherwise, and for an unknown page size
    /// or orientation, -1.0.
    double getPageWidthDimension() const;
    double getPageHeightDimension() const;
};
