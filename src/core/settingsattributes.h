#pragma once

#include "attributetable.h"
#include "pagesettings.h"
#include "printsettings.h"
#include "scalesettings.h"

namespace cabledoc {

/// The entries that have print settings, and those that have page and scale settings too, in the order in
/// which a new document has them.
const QStringList &printSettingsEntries();
const QStringList &drawingSettingsEntries();

/// The print settings of an entry in a new document.
PrintSettings initialPrintSettings(const QString &entry);

const AttributeTable<PrintSettingsFields> &printSettingsAttributes();
const AttributeTable<PageSettingsFields> &pageSettingsAttributes();
const AttributeTable<ScaleSettingsFields> &scaleSettingsAttributes();

} // namespace cabledoc
