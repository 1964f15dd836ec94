#pragma once

#include "attributetable.h"
#include "cable.h"
#include "deviceconnection.h"
#include "floor.h"
#include "room.h"
#include "sheet.h"
#include "xmlfile.h"

namespace cabledoc {

const AttributeTable<FloorFields> &floorAttributes();
const AttributeTable<SheetFields> &sheetAttributes();
const AttributeTable<RoomFields> &roomAttributes();
const AttributeTable<CableFields> &cableAttributes();
const AttributeTable<TestResultsFields> &testResultsAttributes();
const AttributeTable<DeviceConnectionFields> &connectionAttributes();
const QStringList &siteInfoAttributes();

/// The order of the attributes of all elements of a job file.
const xmlfile::AttributeOrder &jobAttributeOrder();

} // namespace cabledoc
