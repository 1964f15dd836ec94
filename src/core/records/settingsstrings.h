#pragma once

#include "cabledoc_export.h"

#include <QtCore/QStringList>

/// The texts that print, page and scale settings hold and that a user interface offers for choice.
/// They are stored as they stand; only network() is translated.
namespace cabledoc::SettingsStrings {

/// Names of all paper sizes, in the order in which they are offered.
CABLEDOC_EXPORT QStringList paperSizes();
/// Names of the page standards.
CABLEDOC_EXPORT QStringList pageStandards();
/// The families of predefined scales: "English" and "Metric".
CABLEDOC_EXPORT QStringList scaleStyles();
/// Names of the predefined scales, English ones first.
CABLEDOC_EXPORT QStringList predefinedScales();
/// The translated word "Network".
CABLEDOC_EXPORT QString network();

/// The texts that default-constructed records hold.
CABLEDOC_EXPORT QString letter();
CABLEDOC_EXPORT QString standard();
CABLEDOC_EXPORT QString english();
CABLEDOC_EXPORT QString twentyFeetToTheInch();

} // namespace cabledoc::SettingsStrings
