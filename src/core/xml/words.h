#pragma once

#include <QtCore/QString>

/// The fixed words of both kinds of files. Each element name and attribute name is here once.
namespace cabledoc::words {

// The template file
inline const QString Bkt = QStringLiteral("Bkt");
inline const QString BktExtension = QStringLiteral("bkt");

// The version
inline const QString Version = QStringLiteral("Version");
inline const QString Number = QStringLiteral("number");
inline const QString CurrentVersion = QStringLiteral("3.0");
inline const QString Release = QStringLiteral("Release");

// The contractor, the site and the notes
inline const QString ContractorInfo = QStringLiteral("Contractor_Info");
inline const QString SiteInfo = QStringLiteral("Site_Info");
inline const QString Address = QStringLiteral("Address");
inline const QString JobNotesText = QStringLiteral("JobNotes_Text");
inline const QString Text = QStringLiteral("text");

// Attributes of the contractor and the site
inline const QString Tester = QStringLiteral("tester");
inline const QString Company = QStringLiteral("company");
inline const QString Email = QStringLiteral("email");
inline const QString Phone = QStringLiteral("phone");
inline const QString Logo = QStringLiteral("logo");

// Containers in both documents
inline const QString TestDefList = QStringLiteral("TestDef_List");
inline const QString BundledCableList = QStringLiteral("BundledCable_List");
inline const QString BundledCableTypeList = QStringLiteral("BundledCableType_List");
inline const QString SettingsList = QStringLiteral("Settings_List");
inline const QString PrintSettingsList = QStringLiteral("PrintSettings_List");
inline const QString PageSettingsList = QStringLiteral("PageSettings_List");
inline const QString ScaleSettingsList = QStringLiteral("ScaleSettings_List");

// Settings entries: one for each report or view
inline const QString JobInfoSettings = QStringLiteral("JobInfo_Settings");
inline const QString NetViewSettings = QStringLiteral("NetView_Settings");
inline const QString InventorySettings = QStringLiteral("Inventory_Settings");
inline const QString FloorPlanSettings = QStringLiteral("FloorPlan_Settings");
inline const QString TestSchedSettings = QStringLiteral("TestSched_Settings");
inline const QString DetailedCableSettings = QStringLiteral("DetailedCable_Settings");
inline const QString JobNotesSettings = QStringLiteral("JobNotes_Settings");
inline const QString ActiveNetworkTestResultsSettings = QStringLiteral("ActiveNetworkTestResults_Settings");
/// Name of the settings of the inventory in versions up to 2.3.
inline const QString NetworkDevicesSettings = QStringLiteral("NetworkDevices_Settings");

// Generated tags: one of these and a number
inline const QString TestDefTagPrefix = QStringLiteral("TestDef");
inline const QString BundledCableTagPrefix = QStringLiteral("BundledCable");
inline const QString BundledCableTypeTagPrefix = QStringLiteral("BundledCableType");

// Attributes of addresses
inline const QString Address1 = QStringLiteral("address1");
inline const QString Address2 = QStringLiteral("address2");
inline const QString City = QStringLiteral("city");
inline const QString State = QStringLiteral("state");
inline const QString Zipcode = QStringLiteral("zipcode");
inline const QString Country = QStringLiteral("country");

// Attributes of test definitions. Versions up to 2.1 had a connector.
inline const QString Expected = QStringLiteral("expected");
inline const QString LengthConstant = QStringLiteral("length_constant");
inline const QString Comment = QStringLiteral("comment");
inline const QString Connector = QStringLiteral("connector");
inline const QString InUse = QStringLiteral("in_use");
inline const QString DataRate = QStringLiteral("data_rate");
inline const QString Snr = QStringLiteral("SNR");
inline const QString Skew = QStringLiteral("skew");
inline const QString Shield = QStringLiteral("shield");
inline const QString MaxLength = QStringLiteral("max_length");
inline const QString CableCategory = QStringLiteral("cable_category");

// Attributes of print settings
inline const QString PaperSize = QStringLiteral("paper_size");
inline const QString Orientation = QStringLiteral("orientation");
inline const QString PrintZoom = QStringLiteral("print_zoom");
inline const QString FitToAcross = QStringLiteral("fit_to_across");
inline const QString FitToDown = QStringLiteral("fit_to_down");
inline const QString PrintZoomStyle = QStringLiteral("print_zoom_style");

// Attributes of page settings
inline const QString PageSize = QStringLiteral("page_size");
inline const QString PageStandard = QStringLiteral("page_standard");
inline const QString PageSizeStyle = QStringLiteral("page_size_style");
inline const QString PageUnits = QStringLiteral("page_units");
inline const QString CustomHeight = QStringLiteral("custom_height");
inline const QString CustomWidth = QStringLiteral("custom_width");

// Attributes of scale settings
inline const QString PredefinedScale = QStringLiteral("predefined_scale");
inline const QString PredefinedStyle = QStringLiteral("predefined_style");
inline const QString WidthUnits = QStringLiteral("width_units");
inline const QString HeightUnits = QStringLiteral("height_units");
inline const QString ScaleStyle = QStringLiteral("style");

// Attributes of several kinds of elements
inline const QString Color = QStringLiteral("color");
inline const QString DefaultType = QStringLiteral("default_type");

// Attribute with the name that the user sees
inline const QString Id = QStringLiteral("id");

} // namespace cabledoc::words
