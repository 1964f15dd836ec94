#include "scalesettings.h"

#include "numbers.h"
#include "predefinedscales.h"

namespace {

enum ScaleStyle {
    Predefined = 1,
    Custom = 2,
};

} // namespace

ScaleSettings::ScaleSettings(const Fields &fields)
    : Record(fields)
{
}

ScaleSettings::ScaleSettings(const QString &predefinedStyle, const QString &predefinedScale, int widthUnits,
                             int heightUnits, double customWidth, double customHeight, int style)
    : Record(Fields{predefinedStyle, predefinedScale, widthUnits, heightUnits, customWidth, customHeight, style})
{
}

int ScaleSettings::scale() const
{
    if (style() == Custom)
        return cabledoc::truncated(customHeight());
    return cabledoc::scaleFactor(predefinedScale());
}

bool ScaleSettings::isMetric() const
{
    switch (style()) {
    case Predefined:
        return predefinedStyle() != cabledoc::SettingsStrings::english();
    case Custom:
        return heightUnits() == 1 || heightUnits() == 2;
    default:
        return false;
    }
}
