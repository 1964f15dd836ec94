#include "printsettings.h"

#include "papersizes.h"

PrintSettings::PrintSettings(const Fields &fields)
    : Record(fields)
{
}

PrintSettings::PrintSettings(const QString &paperSize, int orientation, int printZoom, int fitToAcross, int fitToDown,
                             int printZoomStyle)
    : Record(Fields{paperSize, orientation, printZoom, fitToAcross, fitToDown, printZoomStyle})
{
}

double PrintSettings::getPageWidthDimension() const
{
    return cabledoc::paperDimensions(paperSize(), orientation()).width();
}

double PrintSettings::getPageHeightDimension() const
{
    return cabledoc::paperDimensions(paperSize(), orientation()).height();
}
