#pragma once

#include "words.h"

/// The fixed words of the job file, beside those that it shares with the template file.
namespace cabledoc::words {

inline const QString Job = QStringLiteral("Job");
inline const QString JobExtension = QStringLiteral("job");

// Containers under the root
inline const QString CableList = QStringLiteral("Cable_List");
inline const QString ConnectionList = QStringLiteral("Connection_List");
inline const QString FloorList = QStringLiteral("Floor_List");
inline const QString SheetList = QStringLiteral("Sheet_List");
inline const QString ActiveNetworkTestList = QStringLiteral("ActiveNetworkTest_List");
inline const QString ActivePortList = QStringLiteral("ActivePort_List");

// Containers in floors and rooms
inline const QString RoomList = QStringLiteral("Room_List");
inline const QString PortList = QStringLiteral("Port_List");
inline const QString VerticalRunList = QStringLiteral("VerticalRun_List");
inline const QString PointList = QStringLiteral("Point_List");

// Containers in sheets. Floors have a list of texts too.
inline const QString DeviceList = QStringLiteral("Device_List");
inline const QString VerticeList = QStringLiteral("Vertice_List");
inline const QString FreeTextList = QStringLiteral("FreeText_List");

// Generated tags: one of these and a number
inline const QString FloorTagPrefix = QStringLiteral("FFloor_");
inline const QString SheetTagPrefix = QStringLiteral("SSheet_");
inline const QString RoomTagPrefix = QStringLiteral("Room");
inline const QString CableTagPrefix = QStringLiteral("Cable");
inline const QString ConnectionTagPrefix = QStringLiteral("Connection");
inline const QString PortTagPrefix = QStringLiteral("Port");
inline const QString VertRunTagPrefix = QStringLiteral("VertRun");
inline const QString PointTagPrefix = QStringLiteral("Point");
inline const QString FloorFreeTextTagPrefix = QStringLiteral("TText");
inline const QString DeviceTagPrefix = QStringLiteral("Device");
inline const QString VerticeTagPrefix = QStringLiteral("Vertice");
inline const QString FreeTextTagPrefix = QStringLiteral("Text");
inline const QString ActivePortTagPrefix = QStringLiteral("ActivePort");

/// Tag and id of the room that every floor has for ports and vertical runs outside of drawn rooms.
inline const QString Undefined = QStringLiteral("Undefined");

// Attributes of floors beyond those of the record
inline const QString Picture = QStringLiteral("pic");
inline const QString PictureX = QStringLiteral("pic_x");
inline const QString PictureY = QStringLiteral("pic_y");
inline const QString BackgroundOption = QStringLiteral("option");
inline const QString CeilingHeight = QStringLiteral("ceiling_height");

// Attributes of rooms
inline const QString X = QStringLiteral("x");
inline const QString Y = QStringLiteral("y");
inline const QString Width = QStringLiteral("width");
inline const QString Height = QStringLiteral("height");
inline const QString NameX = QStringLiteral("namex");
inline const QString NameY = QStringLiteral("namey");
inline const QString Layer = QStringLiteral("layer");
inline const QString ShowName = QStringLiteral("show_name");
inline const QString ShowDimensions = QStringLiteral("show_dimensions");

// Attributes of cables and connections
inline const QString Use = QStringLiteral("use");
inline const QString To = QStringLiteral("to");
inline const QString From = QStringLiteral("from");
inline const QString Type = QStringLiteral("type");
inline const QString BundleName = QStringLiteral("bundleName");
inline const QString BundleNum = QStringLiteral("bundleNum");
inline const QString BundleGroupNum = QStringLiteral("bundleGroupNum");
inline const QString Path = QStringLiteral("path");

// Attributes of ports, vertical runs and devices
inline const QString IconScale = QStringLiteral("icon_scale");
inline const QString DropHeight = QStringLiteral("drop_height");
inline const QString Connected = QStringLiteral("connected");
inline const QString Disconnected = QStringLiteral("disconnected");
inline const QString Info = QStringLiteral("info");

// Attributes of texts
inline const QString FontFamily = QStringLiteral("font");
inline const QString FontSize = QStringLiteral("font_size");
inline const QString Bold = QStringLiteral("bold");
inline const QString Italic = QStringLiteral("italic");

// Active ports and their test results
inline const QString Port = QStringLiteral("port");
inline const QString ActiveTestResult = QStringLiteral("ActiveTest_Result");
inline const QString ActiveTestValue = QStringLiteral("Value");
inline const QString Name = QStringLiteral("name");
inline const QString Value = QStringLiteral("value");
inline const QString LinkSpeed = QStringLiteral("link_speed");
inline const QString Duplex = QStringLiteral("duplex");
inline const QString PeerAddress = QStringLiteral("address");

// The results of a test
inline const QString Time = QStringLiteral("time");
inline const QString TestResults = QStringLiteral("Test_Results");
inline const QString Status = QStringLiteral("status");
inline const QString SoftwareVersion = QStringLiteral("software_version");
inline const QString Serial = QStringLiteral("serial");
inline const QString TestData = QStringLiteral("data");
inline const QString BertErrors = QStringLiteral("bert_errors");
inline const QString Echo = QStringLiteral("echo");
inline const QString Next = QStringLiteral("next");
inline const QString Chan = QStringLiteral("chan");

// What other readers of the file do not know. They skip it. docs/file-format.md describes it.
/// A child of the results of a test.
inline const QString TestDetails = QStringLiteral("Test_Details");
inline const QString TestParameter = QStringLiteral("Test_Parameter");
/// A child of a cable, with its earlier tests.
inline const QString TestHistory = QStringLiteral("Test_History");
inline const QString EarlierTest = QStringLiteral("Earlier_Test");
inline const QString Operator = QStringLiteral("operator");
inline const QString Limit = QStringLiteral("limit");
inline const QString Standard = QStringLiteral("standard");
inline const QString LinkType = QStringLiteral("link_type");
inline const QString Nvp = QStringLiteral("nvp");
inline const QString Temperature = QStringLiteral("temperature");
inline const QString WireMap = QStringLiteral("wire_map");
inline const QString Attachment = QStringLiteral("attachment");
inline const QString AttachmentSize = QStringLiteral("attachment_size");
inline const QString AttachmentSha256 = QStringLiteral("attachment_sha256");
inline const QString Margin = QStringLiteral("margin");
inline const QString Frequency = QStringLiteral("frequency");
inline const QString Pair = QStringLiteral("pair");
inline const QString End = QStringLiteral("end");

// Attributes of the site
inline const QString Contact = QStringLiteral("contact");
inline const QString JobID = QStringLiteral("jobid");

} // namespace cabledoc::words
