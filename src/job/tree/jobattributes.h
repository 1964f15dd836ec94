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
#include "sitedata.h"
#include "testdetails.h"
#include "xmlfile.h"

namespace cabledoc {

const AttributeTable<FloorFields> &floorAttributes();
const AttributeTable<SheetFields> &sheetAttributes();
const AttributeTable<RoomFields> &roomAttributes();
const AttributeTable<CableFields> &cableAttributes();
const AttributeTable<PlannedCableFields> &plannedCableAttributes();
const AttributeTable<TestResultsFields> &testResultsAttributes();
const AttributeTable<MeasurementFields> &measurementAttributes();
/// The details of a test as a file has them, with the time of the test to which they belong.
struct StoredTestDetails : TestDetailsFields
{
    QString time;
};
/// Returns the attributes of the details of a test. The parameters are elements of their own.
const AttributeTable<StoredTestDetails> &testDetailsAttributes();
const AttributeTable<TestParameter> &testParameterAttributes();
const AttributeTable<DeviceConnectionFields> &connectionAttributes();
const AttributeTable<PortFields> &portAttributes();
const AttributeTable<VertRunElementFields> &vertRunAttributes();
/// Returns the attributes of points on floors and of bends on sheets.
const AttributeTable<PointFields> &pointAttributes();
const AttributeTable<FreeTextFields> &freeTextAttributes();
const AttributeTable<DeviceFields> &deviceAttributes();
/// Returns the attributes of active ports. Their test results are elements of their own.
const AttributeTable<ActivePortFields> &activePortAttributes();
/// Returns the attributes of the test results of active ports. The values in a result are elements of their own.
const AttributeTable<ActiveTestResultFields> &activeTestResultAttributes();
/// Returns the status of a cable's test. Returns "UNTESTED" if the cable has no results, or if the results lack a
/// status.
QString testStatus(const QDomElement &cable);
/// Returns the attributes of the site. Its address is an element of its own.
const AttributeTable<SiteDataFields> &siteInfoAttributes();
/// Returns the text that is stored for the use of a cable.
QString storedCableUse(const QString &use);

} // namespace cabledoc
