#pragma once

#include "attributetable.h"
#include "pagesettings.h"
#include "printsettings.h"
#include "scalesettings.h"

namespace cabledoc {

const AttributeTable<PrintSettingsFields> &printSettingsAttributes();
const AttributeTable<PageSettingsFields> &pageSettingsAttributes();
const AttributeTable<ScaleSettingsFields> &scaleSettingsAttributes();

} // namespace cabledoc
