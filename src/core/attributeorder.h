#pragma once

#include "xmlfile.h"

#include <QtCore/QStringList>

namespace cabledoc {

/// Attributes of the elements that both documents have from the start, in the order of the file.
const QStringList &contractorInfoAttributes();
const QStringList &addressAttributes();

/// The order of the attributes of all elements that both documents have.
xmlfile::AttributeOrder sharedAttributeOrder();

} // namespace cabledoc
