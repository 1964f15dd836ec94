#pragma once

#include "activeport.h"
#include "bkxmleditor.h"
#include "cable.h"
#include "cabledoc_export.h"
#include "device.h"
#include "deviceconnection.h"
#include "elementkind.h"
#include "floor.h"
#include "freetext.h"
#include "point.h"
#include "port.h"
#include "room.h"
#include "sheet.h"
#include "sitedata.h"
#include "testdetails.h"

#include <QtCore/QMap>
#include <QtCore/QPoint>
#include <QtCore/QVector>

#include <memory>

namespace cabledoc {

class FlatTree;
struct CableRoute;
enum class RouteDirection;

/// The elements of a JobSnapshot. They are plain values. A position is the number of an element in the list of its
/// kind. The first element has the position 0. An element that does not exist has the position -1.
namespace snapshot {

/// An element: the fields of its record, and its place in the job.
template <typename FieldsType> struct Element : FieldsType
{
    /// The fields of the record.
    using Fields = FieldsType;

    /// Line of the file in which the element begins. Not positive if the file does not have the element as it is.
    int line = 0;
    /// Position of the room, floor or sheet that holds the element, or -1 if the job itself holds it.
    int holder = -1;
};

/// Elements of a kind that follow one another. They are held by the same element.
struct Range
{
    /// Position of the first element.
    int first = 0;
    /// Number of elements.
    int count = 0;

    /// Returns the position after the last element.
    int end() const { return first + count; }
};

/// An element that another one names by its tag.
struct Target
{
    /// Kind of the element, or ElementKind::None if the job does not have it.
    ElementKind kind = ElementKind::None;
    /// Position of the element.
    int position = -1;

    /// Returns whether the job has the element.
    bool exists() const { return position >= 0; }
};

/// A floor.
struct Floor : Element<FloorFields>
{
    /// Place of the background picture, in plan pixels.
    QPoint picturePosition;
    /// How the background picture is placed, such as "Center".
    QString pictureOption;
    Range rooms;  ///< rooms of the floor
    Range points; ///< points on the floor
    Range texts;  ///< texts on the floor
};

/// A room. Its holder is the floor.
struct Room : Element<RoomFields>
{
    Range ports;        ///< ports in the room
    Range verticalRuns; ///< vertical runs in the room
};

/// A port. Its holder is the room.
using Port = Element<PortFields>;

/// A vertical run. Its holder is the room.
struct VerticalRun : Element<VertRunElementFields>
{
    /// Positions of the connected cables, in the order of their tags.
    QVector<int> connectedCables;
    /// Positions of the disconnected cables, in the order of their tags.
    QVector<int> disconnectedCables;
};

/// A point. Its holder is the floor.
using Point = Element<PointFields>;

/// A text. Its holder is the floor or the sheet.
using FreeText = Element<FreeTextFields>;

/// A sheet with network devices.
struct Sheet : Element<SheetFields>
{
    Range devices; ///< network devices on the sheet
    Range bends;   ///< bends of connections on the sheet
    Range texts;   ///< texts on the sheet
};

/// A network device. Its holder is the sheet.
using Device = Element<DeviceFields>;

/// A bend of a connection. Its holder is the sheet.
using Bend = Element<PointFields>;

/// A connection between network devices.
struct Connection : Element<DeviceConnectionFields>
{
    Target fromTarget; ///< device or bend at which the connection begins
    Target toTarget;   ///< device or bend at which the connection ends
};

/// A cable.
struct Cable : Element<PlannedCableFields>
{
    /// Results of the test, without the response curves. See JobSnapshot::testResults() for all of them.
    MeasurementFields test;
    Target fromTarget;           ///< port or vertical run at which the cable begins
    Target toTarget;             ///< port or vertical run at which the cable ends
    QVector<Target> pathTargets; ///< points, ports and vertical runs that the cable passes, in the order of their tags
    int definition = -1;         ///< position of the test definition of the cable's type
    int bundle = -1;             ///< position of the bundle
};

/// A test of a port in the working network.
struct ActivePort : Element<ActivePortFields>
{
    /// Position of the port.
    int portPosition = -1;
};

/// A test definition.
using Definition = Element<TestDefFields>;

/// A bundle.
using Bundle = Element<BundledCableFields>;

} // namespace snapshot

/// All that a job holds, at one moment, as plain values.
///
/// A snapshot is made from a file in a small part of the time and memory that JobEditor::Load() takes, or from an open
/// document. Later changes of the file or the document do not change it. Copies share their memory. Several threads
/// may read a snapshot at the same time.
///
/// A snapshot has the elements that JobEditor can find, in the order of the file, and for attributes that are missing
/// the defaults. If several elements of a kind share a tag, it has all of them, and a search finds the first one. Only
/// the first of several floors, rooms or sheets with one tag in a list holds elements.
class CABLEDOC_EXPORT JobSnapshot
{
public:
    /// Makes a snapshot without elements.
    JobSnapshot();
    /// Reads a job file. A file of an older version is converted as JobEditor::Load() converts it. The file is not
    /// changed. If the file cannot be read, or is not a job, the snapshot is empty and has an error(). Files above the
    /// given size in bytes are not read.
    static JobSnapshot read(const QString &fileName, qint64 maximumFileSize = BKXMLEditor::defaultMaximumFileSize);
    /// Makes a snapshot of a job or template. It is empty if no file is open. That of a template only has the
    /// contractor, the settings, the test definitions and the bundles.
    explicit JobSnapshot(const BKXMLEditor &document);

    /// Returns why the file could not be read, or an empty string if it was read.
    const QString &error() const;

    // All elements of a kind, in the order of the file. The elements that a room, floor or sheet holds follow one
    // another.

    /// Returns the floors.
    const QVector<snapshot::Floor> &floors() const;
    /// Returns the rooms of all floors.
    const QVector<snapshot::Room> &rooms() const;
    /// Returns the ports of all rooms.
    const QVector<snapshot::Port> &ports() const;
    /// Returns the vertical runs of all rooms.
    const QVector<snapshot::VerticalRun> &verticalRuns() const;
    /// Returns the points of all floors.
    const QVector<snapshot::Point> &points() const;
    /// Returns the texts of all floors.
    const QVector<snapshot::FreeText> &floorTexts() const;
    /// Returns the sheets.
    const QVector<snapshot::Sheet> &sheets() const;
    /// Returns the network devices of all sheets.
    const QVector<snapshot::Device> &devices() const;
    /// Returns the bends of connections of all sheets.
    const QVector<snapshot::Bend> &bends() const;
    /// Returns the texts of all sheets.
    const QVector<snapshot::FreeText> &sheetTexts() const;
    /// Returns the connections between network devices.
    const QVector<snapshot::Connection> &connections() const;
    /// Returns the cables.
    const QVector<snapshot::Cable> &cables() const;
    /// Returns the tests of ports in the working network.
    const QVector<snapshot::ActivePort> &activePorts() const;

    // What the elements share

    /// Returns the test definitions. If several have the same name, a search finds the first one.
    const QVector<snapshot::Definition> &definitions() const;
    /// Returns the bundles. If several have the same name, a search finds the first one.
    const QVector<snapshot::Bundle> &bundles() const;
    /// Returns the contractor.
    const ContractorDataFields &contractor() const;
    /// Returns the site.
    const SiteDataFields &site() const;
    /// Returns the notes.
    const QString &notes() const;
    /// Returns the values of the releases, by their names.
    const QMap<QString, QString> &releases() const;
    /// Returns the print settings, by their names. Settings that the file lacks are missing here too.
    const QMap<QString, PrintSettingsFields> &printSettings() const;
    /// Returns the page settings, by their names. Settings that the file lacks are missing here too.
    const QMap<QString, PageSettingsFields> &pageSettings() const;
    /// Returns the scale settings, by their names. Settings that the file lacks are missing here too.
    const QMap<QString, ScaleSettingsFields> &scaleSettings() const;

    // Searches

    /// Returns the position of the first element of the kind with the given tag, or -1 if there is none.
    int positionOfTag(ElementKind kind, const QString &tag) const;
    /// Returns whether several elements of the kind have the same tag, as in damaged files. Every floor has a room with
    /// the tag "Undefined".
    bool hasRepeatedTags(ElementKind kind) const;
    /// Returns the position of the element of the kind with the given id, or -1 if there is none. If several elements
    /// have the id, returns the one whose tag comes first in string order.
    int positionOfId(ElementKind kind, const QString &id) const;
    /// Returns the position of the test definition with the given name, or -1 if there is none.
    int definitionOfName(const QString &name) const;
    /// Returns the position of the bundle with the given name, or -1 if there is none.
    int bundleOfName(const QString &name) const;
    /// Returns the positions of the cables that end at a port or vertical run, in the order of the file.
    QVector<int> cablesAt(const snapshot::Target &end) const;
    /// Returns the number of cables that end at a port or vertical run.
    int cableCountAt(const snapshot::Target &end) const;

    // Tests of cables

    /// Returns all results of the cable at the given position, with the response curves.
    TestResults testResults(int cable) const;
    /// Returns what is known of the current test of the cable at the given position beyond its results, as
    /// JobEditor::getCableTestDetails() does.
    TestDetails testDetails(int cable) const;
    /// Returns the number of earlier tests of the cable at the given position.
    int earlierTestCount(int cable) const;
    /// Returns the earlier tests of the cable at the given position, as JobEditor::getCableTestHistory() does.
    QVector<CableTest> testHistory(int cable) const;
    /// Returns the shortest measured length of the cable at the given position, as
    /// JobEditor::getMaxRoundedCableLength() does: corrected by the length constant of the cable's type, in feet
    /// rounded to tenths or in metres rounded to halves. Returns a negative number if no length was measured.
    float measuredLength(int cable, bool metric) const;

    // Lengths from the plan

    /// Returns the length of the cable at the given position as JobEditor::estimateCableLength() estimates it from the
    /// plan, in metres (metric is true) or in feet. Returns -1.0 if the length is unknown. routeOf() tells which part
    /// of it is unknown.
    double estimatedLength(int cable, bool metric) const;
    friend CABLEDOC_EXPORT CableRoute routeOf(const JobSnapshot &job, int cable, RouteDirection direction);

    /// Returns whether all fields of all elements are equal. Lines are not compared.
    friend CABLEDOC_EXPORT bool operator==(const JobSnapshot &a, const JobSnapshot &b);
    /// Returns whether at least one field differs.
    friend bool operator!=(const JobSnapshot &a, const JobSnapshot &b) { return !(a == b); }

private:
    struct Data;
    class Builder;

    /// Returns the data of the job in a tree. The root must be that of a job of the current version, or be missing.
    static std::shared_ptr<const Data> dataOf(FlatTree tree);

    explicit JobSnapshot(std::shared_ptr<const Data> data)
        : d(std::move(data))
    {
    }

    std::shared_ptr<const Data> d;
};

} // namespace cabledoc
