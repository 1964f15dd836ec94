#pragma once

#include "cabledoc_export.h"
#include "record.h"
#include "settingsstrings.h"

#include <QtCore/QString>

namespace cabledoc {

/// The fields of a ScaleSettings.
struct ScaleSettingsFields
{
    /// Family of the predefined scale, one of SettingsStrings::scaleStyles().
    QString predefinedStyle = SettingsStrings::english();
    /// Name of the predefined scale, one of SettingsStrings::predefinedScales().
    QString predefinedScale = SettingsStrings::twentyFeetToTheInch();
    /// Unit code of the custom width. It has no effect on the scale.
    int widthUnits = 0;
    /// Unit code of the custom height. 1 and 2 make the custom scale metric, 0 and all other values make it English.
    int heightUnits = 0;
    /// Width of the custom scale. It has no effect on the scale.
    double customWidth = 1.0;
    /// Height of the custom scale. Its integer part is the factor of the scale.
    double customHeight = 1.0;
    /// Which scale counts: 1 is the predefined scale, 2 is the custom scale, 0 stands for no scale.
    int style = 0;
};

/// Returns all fields. Records are compared by them.
inline auto members(const ScaleSettingsFields &fields)
{
    const auto &[predefinedStyle, predefinedScale, widthUnits, heightUnits, customWidth, customHeight, style] = fields;
    return std::tie(predefinedStyle, predefinedScale, widthUnits, heightUnits, customWidth, customHeight, style);
}

} // namespace cabledoc

/// The scale in which a view is drawn. See cabledoc::Record for how records are copied and compared.
class CABLEDOC_EXPORT ScaleSettings : public cabledoc::Record<cabledoc::ScaleSettingsFields>
{
    Q_OBJECT

public:
    /// Creates settings without a scale (style 0). The predefined scale is the English 20 feet to the inch, the custom
    /// scale is 1.0 by 1.0 in unit code 0.
    ScaleSettings() = default;
    /// Creates settings with the given fields.
    explicit ScaleSettings(const Fields &fields);
    /// Creates settings from their parts.
    ScaleSettings(const QString &predefinedStyle, const QString &predefinedScale, int widthUnits, int heightUnits,
                  double customWidth, double customHeight, int style);

    /// Returns the family of the predefined scale: "English" or "Metric".
    const QString &predefinedStyle() const { return m_fields.predefinedStyle; }
    /// Sets the family of the predefined scale, one of SettingsStrings::scaleStyles().
    void setPredefinedStyle(const QString &style) { m_fields.predefinedStyle = style; }
    /// Returns the name of the predefined scale.
    const QString &predefinedScale() const { return m_fields.predefinedScale; }
    /// Sets the predefined scale, given by one of the names in SettingsStrings::predefinedScales().
    void setPredefinedScale(const QString &scale) { m_fields.predefinedScale = scale; }
    /// Returns the unit code of the custom width.
    int widthUnits() const { return m_fields.widthUnits; }
    /// Sets the unit code of the custom width. It has no effect on the scale.
    void setWidthUnits(int units) { m_fields.widthUnits = units; }
    /// Returns the unit code of the custom height.
    int heightUnits() const { return m_fields.heightUnits; }
    /// Sets the unit code of the custom height. 1 and 2 make the custom scale metric.
    void setHeightUnits(int units) { m_fields.heightUnits = units; }
    /// Returns the width of the custom scale.
    double customWidth() const { return m_fields.customWidth; }
    /// Sets the width of the custom scale. It has no effect on the scale.
    void setCustomWidth(double width) { m_fields.customWidth = width; }
    /// Returns the height of the custom scale.
    double customHeight() const { return m_fields.customHeight; }
    /// Sets the height of the custom scale. Its integer part is the factor of the scale.
    void setCustomHeight(double height) { m_fields.customHeight = height; }
    /// Returns which scale counts: 1 for the predefined scale, 2 for the custom scale, other values for no scale.
    int style() const { return m_fields.style; }
    /// Sets which scale counts: 1 for the predefined scale, 2 for the custom scale, 0 for no scale.
    void setStyle(int style) { m_fields.style = style; }

    /// Returns the factor of the scale. It is the number of feet that an inch stands for in an English scale, and the
    /// denominator of the ratio in a metric one.
    ///
    /// Style 2 gives the integer part of the custom height. All other styles give the factor of the predefined scale,
    /// or 10 if the name of that scale is unknown.
    int scale() const;

    /// Returns whether the scale is metric. In style 1 this is true if the predefined style is not "English". In style
    /// 2 it is true if the unit code of the custom height is 1 or 2. In all other styles it is false.
    bool isMetric() const;
};
