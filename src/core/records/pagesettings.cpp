#include "pagesettings.h"

#include "papersizes.h"

namespace {

enum PageSizeStyle {
    Predefined = 1,
    Custom = 2,
};

QSizeF dimensions(const PageSettings &settings)
{
    switch (settings.pageSizeStyle()) {
    case Predefined:
        return cabledoc::paperDimensions(settings.pageSize(), settings.orientation());
    case Custom:
        return {settings.customWidth(), settings.customHeight()};
    default:
        return cabledoc::noDimensions();
    }
}

} // namespace

PageSettings::PageSettings(const Fields &fields)
    : Record(fields)
{
}

PageSettings::PageSettings(const QString &pageSize, const QString &pageStandard, int orientation, int pageSizeStyle,
                           int pageUnits, double customWidth, double customHeight)
    : Record(Fields{pageSize, pageStandard, orientation, pageSizeStyle, pageUnits, customHeight, customWidth})
{
}

double PageSettings::getPageWidthDimension() const
{
    return dimensions(*this).width();
}

double PageSettings::getPageHeightDimension() const
{
    return dimensions(*this).height();
}
