#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "settingsstrings.h"

#include <QtCore/QString>

namespace cabledoc {

struct ScaleSettingsFields
{
    QString predefinedStyle = SettingsStrings::english();             ///< one of SettingsStrings::scaleStyles()
    QString predefinedScale = SettingsStrings::twentyFeetToTheInch(); ///< one of SettingsStrings::predefinedScales()
    int widthUnits = 0;                                               ///< unit code of the custom width
    int heightUnits = 0; ///< unit code of the custom height: 0 is English, 1 and 2 are metric
    double customWidth = 1.0;
    double customHeight = 1.0; ///< its integer part is the custom scale factor
    int style = 0;             ///< 0 none, 1 predefined, 2 custom

    auto members() const
    {
        const auto &[scaleStyle, scale, unitsAcross, unitsDown, width, height, kind] = *this;
        return std::tie(scaleStyle, scale, unitsAcross, unitsDown, width, height, kind);
    }
};

} // namespace cabledoc

/// The scale that a view is drawn in. See Record for copying and comparing.
class CABLEDOC_EXPORT ScaleSettings : public cabledoc::Record<cabledoc::ScaleSettingsFields>
{
    Q_OBJECT

public:
    /// English, 20 feet to the inch, style 0 (no scale), custom scale 1.0 by 1.0.
    ScaleSettings() = default;
    explicit ScaleSettings(const Fields &fields);
    ScaleSettings(const QString &predefinedStyle, const QString &predefinedScale, int widthUnits, int heightUnits,
                  double customWidth, double customHeight, int style);

    const QString &predefinedStyle() const { return m_fields.predefinedStyle; }
    void setPredefinedStyle(const QString &style) { m_fields.predefinedStyle = style; }
    const QString &predefinedScale() const { return m_fields.predefinedScale; }
    void setPredefinedScale(const QString &scale) { m_fields.predefinedScale = scale; }
    int widthUnits() const { return m_fields.widthUnits; }
    void setWidthUnits(int units) { m_fields.widthUnits = units; }
    int heightUnits() const { return m_fields.heightUnits; }
    void setHeightUnits(int units) { m_fields.heightUnits = units; }
    double customWidth() const { return m_fields.customWidth; }
    void setCustomWidth(double width) { m_fields.customWidth = width; }
    double customHeight() const { return m_fields.customHeight; }
    void setCustomHeight(double height) { m_fields.customHeight = height; }
    int style() const { return m_fields.style; }
    void setStyle(int style) { m_fields.style = style; }

    /// Feet to the inch of an English scale, the ratio's denominator of a metric one: for style 2 the
    /// custom height without its fraction, otherwise the factor of the predefined scale, whatever the
    /// style; 10 for a scale of unknown name.
    int scale() const;

    /// For style 1 whether the predefined style is other than "English"; for style 2 whether the height
    /// units are metric (the width units play no part); otherwise false.
    bool isMetric() const;
};
