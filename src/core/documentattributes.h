#pragma once

#include "address.h"
#include "attributetable.h"
#include "bundledcable.h"
#include "contractordata.h"
#include "pagesettings.h"
#include "printsettings.h"
#include "scalesettings.h"
#include "testdef.h"
#include "xmlfile.h"

#include <QtCore/QMap>

namespace cabledoc {

/// Returns the attributes of the contractor. The address is an element of its own.
const AttributeTable<ContractorDataFields> &contractorInfoAttributes();
const AttributeTable<AddressFields> &addressAttributes();
const AttributeTable<TestDefFields> &testDefAttributes();

/// Returns the attributes of bundles. The cable types of a bundle are elements of their own.
const AttributeTable<BundledCableFields> &bundledCableAttributes();

/// Returns the entries that have print settings, in the order in which a new document has them.
const QStringList &printSettingsEntries();
/// Returns the entries that also have page and scale settings.
const QStringList &drawingSettingsEntries();
/// Returns the print settings of an entry in a new document.
PrintSettings initialPrintSettings(const QString &entry);
const AttributeTable<PrintSettingsFields> &printSettingsAttributes();
const AttributeTable<PageSettingsFields> &pageSettingsAttributes();
const AttributeTable<ScaleSettingsFields> &scaleSettingsAttributes();

/// The attributes of the elements in a file.
struct FileAttributes
{
    QMap<QString, const AttributeList *> inList;    ///< attributes of the elements in a list, by the name of the list
    QMap<QString, const AttributeList *> ofElement; ///< attributes of other elements, by their names
};
/// Returns the attributes of all elements that both documents have.
const FileAttributes &documentFileAttributes();
/// Returns the order of the given attributes.
xmlfile::AttributeOrder attributeOrder(const FileAttributes &attributes);

} // namespace cabledoc
