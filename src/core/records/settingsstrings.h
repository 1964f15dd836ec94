#pragma once

#include "cabledoc_export.h"

#include <QtCore/QStringList>

/// The texts in print, page and scale settings from which a user interface lets the user choose. Documents store them
/// as they are. Only network() is translated.
namespace cabledoc::SettingsStrings {

/// Returns the names of all paper sizes, in the order in which a user interface offers them.
CABLEDOC_EXPORT QStringList paperSizes();
/// Returns the names of all page standards.
CABLEDOC_EXPORT QStringList pageStandards();
/// Returns the families of predefined scales: "English" and "Metric".
CABLEDOC_EXPORT QStringList scaleStyles();
/// Returns the names of all predefined scales. The English ones come first.
CABLEDOC_EXPORT QStringList predefinedScales();
/// Returns the translated word "Network".
CABLEDOC_EXPORT QString network();

/// Returns the paper size "Letter: 8.5 in. x 11 in.", the default of PrintSettings and PageSettings.
CABLEDOC_EXPORT QString letter();
/// Returns the page standard "Standard", the default of PageSettings.
CABLEDOC_EXPORT QString standard();
/// Returns the family of scales "English", the default of ScaleSettings.
CABLEDOC_EXPORT QString english();
/// Returns the scale "1" = 20'0"", the default of ScaleSettings.
CABLEDOC_EXPORT QString twentyFeetToTheInch();

} // namespace cabledoc::SettingsStrings
