#pragma once

#include "activeport.h"
#include "attributetable.h"
#include "cable.h"
#include "device.h"
#include "deviceconnection.h"
#include "floor.h"
#include "freetext.h"
#include "point.h"
#include "port.h"
#include "room.h"
#include "sheet.h"
#include "xmlfile.h"

namespace cabledoc {

/// What the element of a vertical run holds.
struct VertRunElementFields : PortFields, VertRunFields
{
};

const AttributeTable<FloorFields> &floorAttributes();
const AttributeTable<SheetFields> &sheetAttributes();
const AttributeTable<RoomFields> &roomAttributes();
const AttributeTable<CableFields> &cableAttributes();
const AttributeTable<TestResultsFields> &testResultsAttributes();
const AttributeTable<DeviceConnectionFields> &connectionAttributes();
const AttributeTable<PortFields> &portAttributes();
const AttributeTable<VertRunElementFields> &vertRunAttributes();
/// Of points on floors and of bends on sheets.
const AttributeTable<PointFields> &pointAttributes();
const AttributeTable<FreeTextFields> &freeTextAttributes();
const AttributeTable<DeviceFields> &deviceAttributes();
/// But for the results, which are elements of their own.
const AttributeTable<ActivePortFields> &activePortAttributes();
/// But for the values, which are elements of their own.
const AttributeTable<ActiveTestResultFields> &activeTestResultAttributes();
/// The status of a cable's test; "UNTESTED" for a cable that has no results or whose results lack a status.
QString testStatus(const QDomElement &cable);
const QStringList &siteInfoAttributes();
/// What a new cable's use is stored as.
QString storedCableUse(const QString &use);

} // namespace cabledoc
