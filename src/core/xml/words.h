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

// Generated tags: one of these and a number
inline const QString TestDefTagPrefix = QStringLiteral("TestDef");
inline const QString BundledCableTagPrefix = QStringLiteral("BundledCable");
inline const QString BundledCableTypeTagPrefix = QStringLiteral("BundledCableType");

// Attributes of test definitions that only some versions of the file have
inline const QString Expected = QStringLiteral("expected");
inline const QString LengthConstant = QStringLiteral("length_constant");
inline const QString Comment = QStringLiteral("comment");

// Attributes of several kinds of elements
inline const QString Color = QStringLiteral("color");
inline const QString DefaultType = QStringLiteral("default_type");

// Attribute with the name that the user sees
inline const QString Id = QStringLiteral("id");

} // namespace cabledoc::words
