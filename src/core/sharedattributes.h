#pragma once

#include "address.h"
#include "attributetable.h"
#include "testdef.h"
#include "xmlfile.h"

namespace cabledoc {

/// Attributes of the contractor's element in the order of the file.
const QStringList &contractorInfoAttributes();
const AttributeTable<AddressFields> &addressAttributes();
const AttributeTable<TestDefFields> &testDefAttributes();

/// The order of the attributes of all elements that both documents have.
xmlfile::AttributeOrder sharedAttributeOrder();

} // namespace cabledoc
