#pragma once

#include "activeport.h"
#include "bkxmleditor.h"
#include "cable.h"
#include "cabledoc_export.h"
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

#include <QtCore/QMap>
#include <QtCore/QPoint>
#include <QtCore/QPointF>
#include <QtCore/QStringList>

#include <memory>

class BktEditor;

namespace cabledoc {
class JobEditorPrivate;
} // namespace cabledoc

/// The job document: the one open job file of the process.
///
/// **Tags and ids.** An element of a job has two names. Its tag is the name of the XML element. A tag is generated, is
/// unique among the elements of its kind in the whole job, and never changes. Its id is the name that the user sees,
/// and can be changed.
///
/// An operation on a tag or id that does not exist does nothing, and returns an empty or default value as described at
/// each operation. Where several elements have the same tag, the first one in document order counts.
///
/// **Modes.** The operations that add an element end with a mode. It says which of the given names are used:
///
///     mode             tag            id
///     0 and others     generated      generated from the given id
///     1                generated      the given id
///     2                the given tag  the given id
///     3                the given tag  generated from the given id
///
/// A generated id is the given id followed by a number. A given name is used even if another element already has it:
/// checking that is up to the caller. A given tag must be a valid XML name of Latin-1 characters without a colon.
/// Otherwise nothing is added, and error() tells why.
///
/// **Changes.** Every operation that edits the job marks it as changed, see fileChanged(). Some operations that read
/// the job also change it: they add what an older file lacks. Their descriptions say so. All other operations that read
/// leave the job as it is.
///
/// **Characters.** Texts may hold any character, but files are Latin-1. Characters that a file cannot hold are saved as
/// "?", or as references if setCharacterReferences() is on.
class CABLEDOC_EXPORT JobEditor : public BKXMLEditor
{
    Q_OBJECT
    Q_DISABLE_COPY(JobEditor)

public:
    /// @name The instance
    /// @{

    /// Returns the job document of the process. The first call creates it as an empty document.
    static JobEditor &Instance();
    /// Deletes the job document of the process, including all changes that are not saved. Does nothing if there is
    /// none.
    static void Destroy();
    /// Creates an empty document that is separate from Instance().
    JobEditor();
    /// Creates a document and loads the given file, or makes a new job with that name if the file does not exist. If
    /// the name is that of a directory, the document is empty and error() tells why. Ends the process with exit status
    /// -1 if the file exists but cannot be loaded.
    explicit JobEditor(const QString &filename);
    /// @}

    /// @name Creating, loading and saving
    /// The operations that return a bool return true if they succeed. Otherwise they return false, and error() tells
    /// why.
    /// @{

    /// Makes a new job in the directory for new jobs (see BKUtils::NewJobDirectory) and returns its path. The name is
    /// the first of "Untitled1.job", "Untitled2.job" and so on that does not exist there. The file is not written yet.
    /// Returns an empty string, and leaves the document as it is, if a job is open: call Unload() first.
    QString New();
    /// Makes a new job with the given file name. Appends ".job" to a name without this extension. The new job has one
    /// floor and one sheet and is not marked as changed. The file is not written yet. Fails for a null name, and if a
    /// job is open: the open job stays as it is.
    virtual bool New(const QString &filename);
    /// Replaces the document by the content of the given file. The job is not marked as changed afterwards.
    ///
    /// An older job is converted to version 3.0 in memory. Its file stays as it is until the job is saved, and the
    /// conversion does not mark the job as changed.
    ///
    /// Fails in these cases:
    ///
    /// - The name is empty. The document stays as it is.
    /// - The file does not exist, is larger than maximumFileSize(), or cannot be opened. The document keeps its
    ///   content, but has the new name.
    /// - The file is not valid XML. The document is empty.
    /// - The version of the file is not supported. The document holds the file as it was read.
    virtual bool Load(const QString &filename);
    /// Empties the document, clears its file name, and sets error() to "Unloading". Existence tests and lists of names
    /// still answer for the unloaded job until the next New() or Load().
    virtual void Unload();
    /// Writes the document to its file and clears the mark of a change. Creates the file again if it has been removed.
    ///
    /// Fails in these cases, in which the file stays as it is and the document stays marked as changed:
    ///
    /// - The document has no name or no content.
    /// - The name is that of a device or a pipe.
    /// - The last Load() failed, and neither New(), saveAs() nor a Load() has succeeded since.
    /// - Another program has changed the file since it was read or written. See saveAnyway().
    /// - The file cannot be written.
    ///
    /// A process that may reach a limit on the size of files must ignore SIGXFSZ. Otherwise the signal ends the
    /// process.
    virtual bool save();
    /// Writes the document to another file, which is the document's file from then on. Replaces an existing file. Does
    /// not append ".job". If this fails, neither the file nor the document changes.
    virtual bool saveAs(const QString &filename);
    /// Writes the document to its file like save(), but replaces the file even if another program has changed it.
    bool saveAnyway();

    /// Returns whether the document has been changed since it was last created, loaded or saved.
    using BKXMLEditor::fileChanged;
    /// Sets whether the document is marked as changed.
    using BKXMLEditor::setDirty;
    /// Returns whether the file name has the extension "job", in upper or lower case.
    static bool checkJobExtension(const QString &filename);
    /// Returns whether the file name, without its path, begins with "untitled", in upper or lower case.
    static bool checkUntitledJob(const QString &filename);
    /// @}

    /// @name Templates
    /// Elements are copied as they are, including empty texts. Test definitions and bundles are compared by their
    /// names. Those that the target already has stay as they are.
    /// @{

    /// Copies the contractor and the settings of a template to the job, and adds the test definitions and bundles that
    /// the job lacks. Adds settings that the template lacks to the template. Does nothing for a null pointer.
    void Import(BktEditor *bkt);
    /// Adds those built-in test definitions, and all those bundles, of a template that the job lacks. Does nothing for
    /// a null pointer.
    void ImportMissingDefaultCableTypes(BktEditor *bkt);
    /// Writes the contractor, the settings, the test definitions and the bundles of the job to a file as a new
    /// template. Returns true if this succeeds.
    ///
    /// The new template replaces the one in BktEditor::Instance() and stays open there. Settings that the job lacks are
    /// added to the job with their default values.
    ///
    /// Returns false, and error() tells why, if the file cannot be written, or if the name is empty, that of a
    /// directory, or that of the job's own file. If the name is the reason, the open template stays as it is.
    bool Export(const QString &filename);
    /// Sets the path of the default template. Does nothing for an empty path. The path is not part of the document.
    void setDefaultBktFile(const QString &filename);
    /// Returns the path of the default template, or an empty string if none has been set.
    const QString &defaultBktFile() const;
    /// Returns the number set with setRelease(), or 0 if none has been set.
    int getRelease() const;
    /// Sets a number for the application's own use. It is not part of the document.
    void setRelease(int release);
    /// @}

    /// @name Rebuilding the indexes
    /// The operations of this class keep the indexes up to date. Only a caller that has changed elements of the tree
    /// directly, such as those that getToCableList() returns, needs to rebuild them. These operations do not change the
    /// document. Each of them also makes later removals look again for the elements that refer to a removed one.
    /// @{

    /// Rebuilds all indexes and lists from the tree.
    void updateAllInternalLists();
    /// Rebuilds the lists of all cables and of the cables of each type.
    void populateCurrentCablesLists();
    /// Rebuilds the index of cables.
    void populateCableMap();
    /// Rebuilds the lists of all cables and of the cables of each type, like populateCurrentCablesLists().
    void populateCableTypeMap();
    /// Rebuilds the index of connections.
    void populateConnectionMap();
    /// Rebuilds the index of sheets.
    void populateSheetMap();
    /// Rebuilds the index of devices.
    void populateDeviceMap();
    /// Rebuilds the index of bends.
    void populateVerticeMap();
    /// Rebuilds the index of texts on sheets.
    void populateFreeTextMap();
    /// Rebuilds the index of floors.
    void populateFloorMap();
    /// Rebuilds the index of rooms.
    void populateRoomMap();
    /// Rebuilds the index of ports.
    void populatePortMap();
    /// Rebuilds the index of active ports.
    void populateActivePortMap();
    /// Rebuilds the index of vertical runs.
    void populateVerticalRunMap();
    /// Rebuilds the index of points on floor plans.
    void populatePointMap();
    /// Rebuilds the index of texts on floor plans.
    void populateFloorFreeTextMap();
    /// @}

    /// @name Existence
    /// @{

    /// Returns whether a cable has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool cableExists(const QString &text, bool byTag) const;
    /// Returns whether a connection has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool connectionExists(const QString &text, bool byTag) const;
    /// Returns whether a floor has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool floorExists(const QString &text, bool byTag) const;
    /// Returns whether a sheet has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool sheetExists(const QString &text, bool byTag) const;
    /// Returns whether a room on any floor has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool roomExists(const QString &text, bool byTag) const;
    /// Returns whether a port has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool portExists(const QString &text, bool byTag) const;
    /// Returns whether a vertical run has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool vertRunExists(const QString &text, bool byTag) const;
    /// Returns whether a port or a vertical run has the given text as its tag (byTag is true) or as its id (byTag is
    /// false).
    bool portOrVertRunExists(const QString &text, bool byTag) const;
    /// Returns whether a device has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool deviceExists(const QString &text, bool byTag) const;
    /// Returns whether a bend has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool verticeExists(const QString &text, bool byTag) const;
    /// Returns whether a point on a floor plan has the given text as its tag (byTag is true) or as its id (byTag is
    /// false).
    bool pointExists(const QString &text, bool byTag) const;
    /// Returns whether a text on a sheet has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool freeTextExists(const QString &text, bool byTag) const;
    /// Returns whether a text on a floor plan has the given text as its tag (byTag is true) or as its id (byTag is
    /// false).
    bool floorFreeTextExists(const QString &text, bool byTag) const;
    /// Returns whether an active port has the given text as its tag (byTag is true) or as its id (byTag is false).
    bool activePortExists(const QString &text, bool byTag) const;
    /// Returns whether a room on the given floor has the given text as its tag (byTag is true) or as its id (byTag is
    /// false).
    ///
    /// The two texts may also be given in the other order. The second text is the floor if it is the tag of a floor.
    /// Otherwise the first one is.
    bool roomExistsOnFloor(const QString &room, const QString &floorTag, bool byTag) const;
    /// @}

    /// @name Lists and names
    /// @{

    /// Returns the tags of all floors in string order.
    QStringList getFloorTags() const;
    /// Returns the tags of all sheets in string order.
    QStringList getSheetTags() const;
    /// Returns the ids of all floors, in the order of getFloorTags().
    QStringList getFloorIds() const;
    /// Returns the ids of all sheets, in the order of getSheetTags().
    QStringList getSheetIds() const;
    /// Returns the id of the floor with the given tag, or an empty string if there is none.
    QString getFloorIdByTag(const QString &tag) const;
    /// Returns the id of the sheet with the given tag, or an empty string if there is none.
    QString getSheetIdByTag(const QString &tag) const;
    /// Returns the tag of the floor with the given id, or an empty string if there is none. Of several floors, the one
    /// whose tag is first in string order counts.
    QString getFloorTagById(const QString &id) const;
    /// Returns the tag of the sheet with the given id, or an empty string if there is none. Of several sheets, the one
    /// whose tag is first in string order counts.
    QString getSheetTagById(const QString &id) const;

    /// Returns the tags (byTag is true) or the ids (byTag is false) of all cables in document order.
    QStringList getCables(bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of all connections in document order.
    QStringList getConnections(bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of all active ports in document order.
    QStringList getActivePorts(bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of the rooms on a floor in document order,
    /// including the room "Undefined". Returns an empty list if there is no such floor.
    QStringList getRooms(const QString &floorTag, bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of the ports in a room in document order. Returns
    /// an empty list if there is no such floor or room.
    QStringList getPorts(const QString &floorTag, const QString &roomTag, bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of the vertical runs in a room in document order.
    /// Returns an empty list if there is no such floor or room.
    QStringList getVertRuns(const QString &floorTag, const QString &roomTag, bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of the points on a floor plan in document order.
    /// Returns an empty list if there is no such floor.
    QStringList getPoints(const QString &floorTag, bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of the texts on a floor plan in document order.
    /// Returns an empty list if there is no such floor.
    QStringList getFloorFreeTexts(const QString &floorTag, bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of the devices on a sheet in document order.
    /// Returns an empty list if there is no such sheet.
    QStringList getDevices(const QString &sheetTag, bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of the bends on a sheet in document order. Returns
    /// an empty list if there is no such sheet.
    QStringList getVertices(const QString &sheetTag, bool byTag) const;
    /// Returns the tags (byTag is true) or the ids (byTag is false) of the texts on a sheet in document order. Returns
    /// an empty list if there is no such sheet.
    QStringList getFreeTexts(const QString &sheetTag, bool byTag) const;
    /// @}

    /// @name The containers of the tree
    /// The returned elements are handles into the tree. After changing the tree through them, call
    /// updateAllInternalLists() and setDirty().
    /// @{

    /// Returns the element that holds the cables, or a null element if there is none.
    QDomElement getToCableList() const;
    /// Returns the element that holds the connections, or a null element if there is none.
    QDomElement getToConnectionList() const;
    /// Returns the element that holds the active ports, or a null element if there is none.
    QDomElement getToActivePortList() const;
    /// Returns the element that holds the rooms of a floor, or a null element if there is none.
    QDomElement getToRoomList(const QString &floorTag) const;
    /// Returns the element that holds the ports of a room, or a null element if there is none.
    QDomElement getToPortList(const QString &floorTag, const QString &roomTag) const;
    /// Returns the element that holds the vertical runs of a room, or a null element if there is none.
    QDomElement getToVertRunList(const QString &floorTag, const QString &roomTag) const;
    /// Returns the element that holds the points on a floor plan, or a null element if there is none.
    QDomElement getToPointList(const QString &floorTag) const;
    /// Returns the element that holds the texts on a floor plan, or a null element if there is none.
    QDomElement getToFloorFreeTextList(const QString &floorTag) const;
    /// Returns the element that holds the devices of a sheet, or a null element if there is none.
    QDomElement getToDeviceList(const QString &sheetTag) const;
    /// Returns the element that holds the texts of a sheet, or a null element if there is none.
    QDomElement getToFreeTextList(const QString &sheetTag) const;
    /// Returns the element that holds the bends of a sheet, or a null element if there is none.
    QDomElement getToVerticeList(const QString &sheetTag) const;
    /// @}

    /// @name Floors
    /// @{

    /// Adds a floor after all others, with the room "Undefined", and returns its tag. ceilingHeight is in the job's
    /// length unit. pic is the path of the background picture, or empty for none. See the class description for the
    /// mode. Returns "Bad Floor" and changes nothing if the document has no list of floors or the given tag is not
    /// valid.
    QString addFloor(const QString &tag, const QString &id, double ceilingHeight, const QString &pic, int mode);
    /// Adds a floor from a record and returns its tag. Returns "Bad Floor" and changes nothing if the document has no
    /// list of floors or the record's tag is to be used and is not valid.
    QString addFloor(const Floor &floor, int mode);
    /// Removes the floor with the given tag and everything on it. Also removes the cables that end on the floor and the
    /// active ports that refer to its ports. Takes its points, ports and vertical runs out of the paths of other
    /// cables. Does nothing if there is no such floor.
    void removeFloor(const QString &tag);
    /// Removes the floor with the record's tag, like removeFloor(const QString &).
    void removeFloor(const Floor &floor);

    /// Copies everything on one floor to another one. Does nothing if one of the floors does not exist.
    ///
    /// The copies get generated tags. Otherwise they are equal to the originals, except for these ids:
    ///
    /// - Points and texts get generated ids.
    /// - A port or vertical run "12" gets the first free id of "12", "12A", "12B", ..., "12Z", "12[", "12AA" and so on.
    /// - If the target floor already has a room with the id of a copied one, the contents are copied into that room.
    ///
    /// The cables that end on the source floor are copied too. Their ends and paths name the copies where there are
    /// any. The copied cables are untested. If useCableIds is true, a copied cable gets the id that cableIds holds for
    /// the id of its original. A cable without such an id gets a generated one. The copied cables of one bundle group
    /// form a new group, with the first free number.
    void copyFloor(const QString &srcTag, const QString &dstTag, const QMap<QString, QString> &cableIds,
                   bool useCableIds);

    /// Returns the floor with the given tag, or a default floor if there is none. Adds a missing ceiling height to the
    /// document, with the value 8. Other missing values have their defaults in the returned record only.
    Floor getFloor(const QString &tag);
    /// Sets the id of the floor with the given tag. Does nothing if there is no such floor.
    void setFloorId(const QString &tag, const QString &id);
    /// Sets the ids of several floors. The keys of the map are tags, the values are the new ids. Tags that do not exist
    /// are ignored.
    void setAllFloorIds(const QMap<QString, QString> &idsByTag);
    /// Returns the ceiling height of a floor in the job's length unit, or 8.0 if there is no such floor. Adds a missing
    /// ceiling height to the document, with the value 8.
    double getFloorCeilingHeight(const QString &tag);
    /// Sets the ceiling height of a floor in the job's length unit. Does nothing if there is no such floor.
    void setFloorCeilingHeight(const QString &tag, double height);

    /// Returns the path of a floor's background picture, or an empty string if there is no such floor or picture.
    QString getFloorBackgroundPic(const QString &tag) const;
    /// Sets the path of a floor's background picture and the horizontal position x of its origin, in pixels. Sets the
    /// vertical position y only if the floor has none yet: it keeps the value that it got first. Does nothing if there
    /// is no such floor.
    void setFloorBackgroundPic(const QString &tag, const QString &pic, int x, int y);
    /// Returns the origin of a floor's background picture in pixels, or (0, 0) if there is no such floor. Adds a
    /// missing coordinate to the document, with the value 0.
    QPoint getFloorBackgroundOrigin(const QString &tag);
    /// Returns how a floor's background picture is shown, or an empty string if there is no such floor. The application
    /// assigns the meaning. Adds a missing value to the document, which is then "Center".
    QString getBackgroundOption(const QString &tag);
    /// Sets how a floor's background picture is shown. The application assigns the meaning. Does nothing if there is no
    /// such floor.
    void setBackgroundOption(const QString &tag, const QString &option);

    /// Returns the number in the tag of a floor, such as "03" for "FFloor_3". It is the part between the first and the
    /// second "_", with at least two digits. Returns "00" if that part is not a number, and "1" for an empty tag. The
    /// number is not the position of the floor in the job.
    static QString getFloorNumber(const QString &tag);
    /// @}

    /// @name Sheets
    /// @{

    /// Adds a sheet after all others and returns its tag. See the class description for the mode. Returns "Bad Sheet"
    /// and changes nothing if the document has no list of sheets or the given tag is not valid.
    QString addSheet(const QString &tag, const QString &id, int mode);
    /// Adds a sheet from a record and returns its tag. Returns "Bad Sheet" and changes nothing if the document has no
    /// list of sheets or the record's tag is to be used and is not valid.
    QString addSheet(const Sheet &sheet, int mode);
    /// Removes the sheet with the given tag and everything on it, and the connections that end on it. Does nothing if
    /// there is no such sheet.
    void removeSheet(const QString &tag);

    /// Copies the devices, bends and texts of one sheet to another one. The copies get generated ids. Connections are
    /// not copied. Does nothing if one of the sheets does not exist.
    void copySheet(const QString &srcTag, const QString &dstTag);

    /// Returns the sheet with the given tag, or a default sheet if there is none.
    Sheet getSheet(const QString &tag) const;
    /// Sets the id of the sheet with the given tag. Does nothing if there is no such sheet.
    void setSheetID(const QString &tag, const QString &id);
    /// Sets the ids of several sheets. The keys of the map are tags, the values are the new ids. Tags that do not exist
    /// are ignored.
    void setAllSheetIDs(const QMap<QString, QString> &idsByTag);
    /// Returns the number in the tag of a sheet, such as "03" for "SSheet_3". It is the part between the first and the
    /// second "_", with at least two digits. Returns "00" if that part is not a number.
    static QString getSheetNumber(const QString &tag);
    /// @}

    /// @name Rooms
    /// Positions and sizes are in plan pixels. The setters find a room by its id on its floor. Of several rooms with
    /// that id, the first one in document order counts. The setters do nothing if there is no such room.
    /// @{

    /// Adds a room to a floor and returns its tag. See the class description for the mode. A generated id is unique on
    /// its floor. If the floor already has a room with that tag, returns the tag and changes nothing. Returns an empty
    /// string and changes nothing if the floor does not exist or has no list of rooms, or if the given tag is not
    /// valid.
    QString addRoom(const QString &floorTag, int x, int y, int width, int height, const QString &tag, const QString &id,
                    int nameX, int nameY, int showDimensions, int showName, int layer, int mode);
    /// Adds a room from a record and returns its tag, like the operation with single values. The coordinates lose their
    /// fractions.
    QString addRoom(const Room &room, int mode);
    /// Removes a room. Its ports and vertical runs move to the room "Undefined" of the floor, which is created if it is
    /// missing. Does nothing for the room "Undefined" itself, or if there is no such room.
    void removeRoom(const QString &floorTag, const QString &tag);
    /// Removes the room with the floor and the tag of the record, like removeRoom(const QString &, const QString &).
    void removeRoom(const Room &room);

    /// Returns the room with the given tag on the given floor, or a default room if there is none. Adds a missing layer
    /// and missing display flags to the document, with the value 3. For the tag "Undefined", always returns a default
    /// room with this tag and id.
    Room getRoomByTag(const QString &floorTag, const QString &tag);
    /// Returns the room with the given tag on any floor, or a default room if there is none. Adds a missing layer and
    /// missing display flags to the document, with the value 3. For the tag "Undefined", always returns a default room
    /// with this tag and id.
    Room getRoomByTag(const QString &tag);
    /// Returns the room with the given id on the given floor, or a default room if there is none. Adds a missing layer
    /// and missing display flags to the document, with the value 3. For the id "Undefined", always returns a default
    /// room with this tag and id.
    Room getRoomById(const QString &floorTag, const QString &id);

    /// Sets the position and size of a room.
    void setRoomPos(const QString &floorTag, const QString &id, int x, int y, int width, int height);
    /// Sets the id of a room.
    void setRoomName(const QString &floorTag, const QString &id, const QString &newId);

    /// Sets the position of the label with the room's name. Adds a missing layer and missing display flags, except to
    /// the room "Undefined".
    void setRoomNamePos(const QString &floorTag, const QString &id, const QPoint &position);
    /// Sets the drawing layer of a room. Adds missing display flags, except to the room "Undefined".
    void setRoomLayer(const QString &floorTag, const QString &id, int layer);
    /// Sets whether and how the name of a room is shown. The application assigns the meaning. Adds a missing layer and
    /// missing display flags, except to the room "Undefined".
    void setShowRoomName(const QString &floorTag, const QString &id, int show);
    /// Sets whether and how the dimensions of a room are shown. The application assigns the meaning. Adds a missing
    /// layer and missing display flags, except to the room "Undefined".
    void setShowRoomDimensions(const QString &floorTag, const QString &id, int show);
    /// @}

    /// @name Ports
    /// Positions are in plan pixels, drop heights in feet. Tags are unique in the whole job. The setters create an
    /// attribute that an older file lacks, and do nothing if there is no port with the given tag.
    /// @{

    /// Adds a port to a room and returns its tag. See the class description for the mode. Creates the room's list of
    /// ports if it is missing. Returns an empty string and changes nothing if the floor or room does not exist, or if
    /// the given tag is not valid.
    QString addPort(const QString &floorTag, const QString &roomTag, double x, double y, const QString &tag,
                    const QString &id, const QString &use, double iconScale, double dropHeight, int mode);
    /// Adds a port from a record to the room and floor named in it, and returns its tag. Returns an empty string and
    /// changes nothing if the floor or room does not exist, or if the record's tag is to be used and is not valid.
    QString addPort(const Port &port, int mode);
    /// Removes the port with the given tag, the cables that end at it and the active ports that refer to it. Takes it
    /// out of the paths of other cables. Does nothing if there is no such port.
    void removePort(const QString &tag);
    /// Removes the port with the record's tag, like removePort(const QString &).
    void removePort(const Port &port);
    /// Returns the port with the given tag, or a default port if there is none.
    Port getPortByTag(const QString &tag) const;
    /// Returns the port with the given id, or a default port if there is none. Of several ports, the one whose tag is
    /// first in string order counts.
    Port getPortById(const QString &id) const;
    /// Returns the id of the port with the given tag, or an empty string if there is none.
    QString getPortIdByTag(const QString &tag) const;
    /// Returns the tag of the port with the given id, or an empty string if there is none. Of several ports, the one
    /// whose tag is first in string order counts.
    QString getPortTagById(const QString &id) const;
    /// Returns the position of a port, or (-1.0, -1.0) if there is none with the given tag.
    QPointF getPortPos(const QString &tag) const;
    /// Returns what a port is used for, or an empty string if there is none with the given tag.
    QString getPortUse(const QString &tag) const;
    /// Returns the icon scale of a port, or 1.0 if there is none with the given tag.
    double getPortIconScale(const QString &tag) const;
    /// Returns the drop height of a port, or 0.0 if there is none with the given tag.
    double getPortDropHeight(const QString &tag) const;
    /// Returns the tag of the room that a port is in, or an empty string if there is no port with the given tag.
    QString getPortRoom(const QString &tag) const;
    /// Returns the tag of the floor that a port is on, or an empty string if there is no port with the given tag.
    QString getPortFloor(const QString &tag) const;
    /// Sets the id of a port.
    void setPortID(const QString &tag, const QString &id);
    /// Sets the position of a port.
    void setPortPos(const QString &tag, double x, double y);
    /// Sets what a port is used for, usually a word of cabledoc::Vocabulary::portUses().
    void setPortUse(const QString &tag, const QString &use);
    /// Sets the icon scale of a port, where 1.0 is the usual size.
    void setPortIconScale(const QString &tag, double scale);
    /// Sets the drop height of a port: the height in feet from the ceiling down to it.
    void setPortDropHeight(const QString &tag, double feet);
    /// Moves a port to another room on any floor, after the ports that are there. Does nothing if the port, the floor
    /// or the room does not exist, or if the port is already in the room.
    void setPortRoom(const QString &tag, const QString &floorTag, const QString &roomTag);
    /// @}

    /// @name Vertical runs
    /// Positions are in plan pixels, drop heights in feet. Tags are unique in the whole job. The setters create an
    /// attribute that an older file lacks, and do nothing if there is no vertical run with the given tag.
    /// @{

    /// Adds a vertical run to a room and returns its tag. connected and disconnected are the tags of the cables that
    /// pass it. See the class description for the mode. Creates the room's list of vertical runs if it is missing.
    /// Returns an empty string and changes nothing if the floor or room does not exist, or if the given tag is not
    /// valid.
    QString addVertRun(const QString &floorTag, const QString &roomTag, double x, double y, const QString &tag,
                       const QString &id, const QString &use, double iconScale, double dropHeight,
                       const QStringList &connected, const QStringList &disconnected, int mode);
    /// Adds a vertical run from a record to the room and floor named in it, and returns its tag. Returns an empty
    /// string and changes nothing if the floor or room does not exist, or if the record's tag is to be used and is not
    /// valid.
    QString addVertRun(const VertRun &vertRun, int mode);
    /// Removes the vertical run with the given tag and the cables that end at it. Takes it out of the paths of other
    /// cables. Does nothing if there is no such vertical run.
    void removeVertRun(const QString &tag);
    /// Removes the vertical run with the record's tag, like removeVertRun(const QString &).
    void removeVertRun(const VertRun &vertRun);
    /// Returns the vertical run with the given tag, or a default one if there is none.
    VertRun getVertRunByTag(const QString &tag) const;
    /// Returns the vertical run with the given id, or a default one if there is none. Of several vertical runs, the one
    /// whose tag is first in string order counts.
    VertRun getVertRunById(const QString &id) const;
    /// Returns the id of the vertical run with the given tag, or an empty string if there is none.
    QString getVertRunIdByTag(const QString &tag) const;
    /// Returns the tag of the vertical run with the given id, or an empty string if there is none. Of several vertical
    /// runs, the one whose tag is first in string order counts.
    QString getVertRunTagById(const QString &id) const;
    /// Returns the position of a vertical run, or (-1.0, -1.0) if there is none with the given tag.
    QPointF getVertRunPos(const QString &tag) const;
    /// Returns what a vertical run is used for, or an empty string if there is none with the given tag.
    QString getVertRunUse(const QString &tag) const;
    /// Returns the icon scale of a vertical run, or 1.0 if there is none with the given tag.
    double getVertRunIconScale(const QString &tag) const;
    /// Returns the drop height of a vertical run, or 0.0 if there is none with the given tag.
    double getVertRunDropHeight(const QString &tag) const;
    /// Returns the tag of the room that a vertical run is in, or an empty string if there is no vertical run with the
    /// given tag.
    QString getVertRunRoom(const QString &tag) const;
    /// Returns the tag of the floor that a vertical run is on, or an empty string if there is no vertical run with the
    /// given tag.
    QString getVertRunFloor(const QString &tag) const;
    /// Returns the tags of the cables that pass a vertical run and are connected, or an empty list if there is no
    /// vertical run with the given tag.
    QStringList getVertRunConnected(const QString &tag) const;
    /// Returns the tags of the cables that pass a vertical run and are not connected, or an empty list if there is no
    /// vertical run with the given tag.
    QStringList getVertRunDisconnected(const QString &tag) const;
    /// Sets the id of a vertical run.
    void setVertRunID(const QString &tag, const QString &id);
    /// Sets the position of a vertical run.
    void setVertRunPos(const QString &tag, double x, double y);
    /// Sets what a vertical run is used for, usually a word of cabledoc::Vocabulary::portUses().
    void setVertRunUse(const QString &tag, const QString &use);
    /// Sets the icon scale of a vertical run, where 1.0 is the usual size.
    void setVertRunIconScale(const QString &tag, double scale);
    /// Sets the drop height of a vertical run: the height in feet from the ceiling down to it.
    void setVertRunDropHeight(const QString &tag, double feet);
    /// Moves a vertical run to another room on any floor, after the vertical runs that are there. Does nothing if the
    /// vertical run, the floor or the room does not exist, or if the vertical run is already in the room.
    void setVertRunRoom(const QString &tag, const QString &floorTag, const QString &roomTag);
    /// Sets the tags of the cables that pass a vertical run and are connected. The other list stays as it is.
    void setVertRunConnected(const QString &tag, const QStringList &cableTags);
    /// Sets the tags of the cables that pass a vertical run and are not connected. The other list stays as it is.
    void setVertRunDisconnected(const QString &tag, const QStringList &cableTags);
    /// Returns whether the cable passes the vertical run, connected or not.
    bool isCableInVertRun(const QString &cableTag, const QString &tag) const;
    /// Puts a cable into the list of connected cables of a vertical run, and takes it out of the other list. Does
    /// nothing if the cable or the vertical run does not exist.
    void connectCableToVertRun(const QString &cableTag, const QString &tag);
    /// Puts a cable into the list of cables that are not connected to a vertical run, and takes it out of the other
    /// list. Does nothing if the cable or the vertical run does not exist.
    void disconnectCableFromVertRun(const QString &cableTag, const QString &tag);
    /// Takes a cable out of both lists of a vertical run. Does nothing if it is in neither, or if the vertical run does
    /// not exist.
    void removeCableFromVertRun(const QString &cableTag, const QString &tag);
    /// @}

    /// @name Points on floor plans
    /// Cables pass points on their way. Positions are in plan pixels. Tags are unique in the whole job. The setters do
    /// nothing if there is no point with the given tag.
    /// @{

    /// Adds a point to a floor plan and returns its tag. See the class description for the mode. Creates the floor's
    /// list of points if it is missing. Returns an empty string and changes nothing if the floor does not exist or the
    /// given tag is not valid.
    QString addPoint(const QString &floorTag, double x, double y, const QString &tag, const QString &id, int mode);
    /// Adds a point from a record to the floor named in it, and returns its tag. Returns an empty string and changes
    /// nothing if the floor does not exist, or if the record's tag is to be used and is not valid.
    QString addPoint(const Point &point, int mode);
    /// Removes the point with the given tag and takes it out of the paths of cables. Does nothing if there is no such
    /// point.
    void removePoint(const QString &tag);
    /// Removes the point with the record's tag, like removePoint(const QString &).
    void removePoint(const Point &point);
    /// Returns the point with the given tag, or a default point if there is none.
    Point getPointByTag(const QString &tag) const;
    /// Returns the point with the given id, or a default point if there is none. Of several points, the one whose tag
    /// is first in string order counts.
    Point getPointById(const QString &id) const;
    /// Returns the id of the point with the given tag, or an empty string if there is none.
    QString getPointIdByTag(const QString &tag) const;
    /// Returns the tag of the point with the given id, or an empty string if there is none. Of several points, the one
    /// whose tag is first in string order counts.
    QString getPointTagById(const QString &id) const;
    /// Returns the position of a point, or (-1.0, -1.0) if there is none with the given tag.
    QPointF getPointPos(const QString &tag) const;
    /// Returns the tag of the floor that a point is on, or an empty string if there is no point with the given tag.
    QString getPointFloor(const QString &tag) const;
    /// Sets the id of a point.
    void setPointID(const QString &tag, const QString &id);
    /// Sets the position of a point. Creates coordinates that an older file lacks.
    void setPointPos(const QString &tag, double x, double y);
    /// @}

    /// @name Devices on sheets
    /// Positions are in pixels. Tags are unique in the whole job. The setters create an attribute that an older file
    /// lacks, and do nothing if there is no device with the given tag.
    /// @{

    /// Adds a device to a sheet and returns its tag. See the class description for the mode. Creates the sheet's list
    /// of devices if it is missing. Returns an empty string and changes nothing if the sheet does not exist or the
    /// given tag is not valid.
    QString addDevice(const QString &sheetTag, const QString &type, double x, double y, double iconScale,
                      const QString &info, const QString &tag, const QString &id, int mode);
    /// Adds a device from a record to the sheet named in it, and returns its tag. Returns an empty string and changes
    /// nothing if the sheet does not exist, or if the record's tag is to be used and is not valid.
    QString addDevice(const Device &device, int mode);
    /// Removes the device with the given tag and the connections that end at it. Does nothing if there is no such
    /// device.
    void removeDevice(const QString &tag);
    /// Removes the device with the record's tag, like removeDevice(const QString &).
    void removeDevice(const Device &device);
    /// Returns the device with the given tag, or a default device if there is none.
    Device getDeviceByTag(const QString &tag) const;
    /// Returns the device with the given id, or a default device if there is none. Of several devices, the one whose
    /// tag is first in string order counts.
    Device getDeviceById(const QString &id) const;
    /// Returns the id of the device with the given tag, or an empty string if there is none.
    QString getDeviceIdByTag(const QString &tag) const;
    /// Returns the tag of the device with the given id, or an empty string if there is none. Of several devices, the
    /// one whose tag is first in string order counts.
    QString getDeviceTagById(const QString &id) const;
    /// Returns the type of a device, or an empty string if there is none with the given tag.
    QString getDeviceType(const QString &tag) const;
    /// Returns the position of a device, or (-1.0, -1.0) if there is none with the given tag.
    QPointF getDevicePos(const QString &tag) const;
    /// Returns the icon scale of a device, or 1.0 if there is none with the given tag.
    double getDeviceIconScale(const QString &tag) const;
    /// Returns the notes of the user about a device, or an empty string if there is none with the given tag.
    QString getDeviceInfo(const QString &tag) const;
    /// Returns the tag of the sheet that a device is on, or an empty string if there is no device with the given tag.
    QString getDeviceSheet(const QString &tag) const;
    /// Sets the id of a device.
    void setDeviceID(const QString &tag, const QString &id);
    /// Sets the type of a device, usually a word of cabledoc::Vocabulary::deviceTypes().
    void setDeviceType(const QString &tag, const QString &type);
    /// Sets the position of a device.
    void setDevicePos(const QString &tag, double x, double y);
    /// Sets the icon scale of a device, where 1.0 is the usual size.
    void setDeviceIconScale(const QString &tag, double scale);
    /// Sets the notes of the user about a device.
    void setDeviceInfo(const QString &tag, const QString &info);
    /// @}

    /// @name Bends of connections on sheets
    /// Positions are in pixels. Tags are unique in the whole job. The setters do nothing if there is no bend with the
    /// given tag.
    /// @{

    /// Adds a bend to a sheet and returns its tag. See the class description for the mode. Creates the sheet's list of
    /// bends if it is missing. Returns an empty string and changes nothing if the sheet does not exist or the given tag
    /// is not valid.
    QString addVertice(const QString &sheetTag, double x, double y, const QString &tag, const QString &id, int mode);
    /// Adds a bend from a record to the sheet named in it, and returns its tag. Returns an empty string and changes
    /// nothing if the sheet does not exist, or if the record's tag is to be used and is not valid.
    QString addVertice(const Vertice &vertice, int mode);
    /// Removes the bend with the given tag and the connections that end at it. Does nothing if there is no such bend.
    void removeVertice(const QString &tag);
    /// Removes the bend with the record's tag, like removeVertice(const QString &).
    void removeVertice(const Vertice &vertice);
    /// Returns the bend with the given tag, or a default bend if there is none.
    Vertice getVerticeByTag(const QString &tag) const;
    /// Returns the bend with the given id, or a default bend if there is none. Of several bends, the one whose tag is
    /// first in string order counts.
    Vertice getVerticeById(const QString &id) const;
    /// Returns the id of the bend with the given tag, or an empty string if there is none.
    QString getVerticeIdByTag(const QString &tag) const;
    /// Returns the tag of the bend with the given id, or an empty string if there is none. Of several bends, the one
    /// whose tag is first in string order counts.
    QString getVerticeTagById(const QString &id) const;
    /// Returns the position of a bend, or (-1.0, -1.0) if there is none with the given tag.
    QPointF getVerticePos(const QString &tag) const;
    /// Returns the tag of the sheet that a bend is on, or an empty string if there is no bend with the given tag.
    QString getVerticeSheet(const QString &tag) const;
    /// Sets the id of a bend.
    void setVerticeID(const QString &tag, const QString &id);
    /// Sets the position of a bend. Creates coordinates that an older file lacks.
    void setVerticePos(const QString &tag, double x, double y);
    /// @}

    /// @name Texts on sheets
    /// Positions are in pixels, font sizes in points. Tags are unique in the whole job. The setters create an attribute
    /// that an older file lacks, and do nothing if there is no text with the given tag.
    /// @{

    /// Adds a text to a sheet and returns its tag. See the class description for the mode. Creates the sheet's list of
    /// texts if it is missing. Returns an empty string and changes nothing if the sheet does not exist or the given tag
    /// is not valid.
    QString addFreeText(const QString &sheetTag, const QString &text, double x, double y, const QString &fontFamily,
                        double fontSize, bool bold, bool italic, const QString &color, const QString &tag,
                        const QString &id, int mode);
    /// Adds a text from a record to the sheet named as its parent, and returns its tag. Returns an empty string and
    /// changes nothing if the sheet does not exist, or if the record's tag is to be used and is not valid.
    QString addFreeText(const FreeText &text, int mode);
    /// Removes the text with the given tag from its sheet. Does nothing if there is no such text.
    void removeFreeText(const QString &tag);
    /// Removes the text with the record's tag from its sheet. Does nothing if there is no such text.
    void removeFreeText(const FreeText &text);
    /// Returns the text with the given tag, or a default text if there is none.
    FreeText getFreeTextByTag(const QString &tag) const;
    /// Returns the text with the given id, or a default text if there is none. Of several texts, the one whose tag is
    /// first in string order counts.
    FreeText getFreeTextById(const QString &id) const;
    /// Returns the id of the text with the given tag, or an empty string if there is none.
    QString getFreeTextIdByTag(const QString &tag) const;
    /// Returns the tag of the text with the given id, or an empty string if there is none. Of several texts, the one
    /// whose tag is first in string order counts.
    QString getFreeTextTagById(const QString &id) const;
    /// Returns the characters of a text, or an empty string if there is none with the given tag.
    QString getFreeTextText(const QString &tag) const;
    /// Returns the position of a text, or (-1.0, -1.0) if there is none with the given tag.
    QPointF getFreeTextPos(const QString &tag) const;
    /// Returns the font family of a text. Returns an empty string for the application's own font, or if there is no
    /// text with the given tag.
    QString getFreeTextFontFamily(const QString &tag) const;
    /// Returns the font size of a text in points, or 12.0 if there is none with the given tag.
    double getFreeTextFontSize(const QString &tag) const;
    /// Returns whether the font of a text is bold, or false if there is none with the given tag.
    bool getFreeTextBold(const QString &tag) const;
    /// Returns whether the font of a text is italic, or false if there is none with the given tag.
    bool getFreeTextItalic(const QString &tag) const;
    /// Returns the name of a text's colour, or "#000000" if there is none with the given tag.
    QString getFreeTextColor(const QString &tag) const;
    /// Returns the tag of the sheet that a text is on, or an empty string if there is no text with the given tag.
    QString getFreeTextSheet(const QString &tag) const;
    /// Sets the id of a text.
    void setFreeTextID(const QString &tag, const QString &id);
    /// Sets the characters of a text.
    void setFreeTextText(const QString &tag, const QString &text);
    /// Sets the position of a text.
    void setFreeTextPos(const QString &tag, double x, double y);
    /// Sets the font family of a text. An empty family stands for the application's own font.
    void setFreeTextFontFamily(const QString &tag, const QString &family);
    /// Sets the font size of a text in points.
    void setFreeTextFontSize(const QString &tag, double points);
    /// Sets whether the font of a text is bold.
    void setFreeTextBold(const QString &tag, bool bold);
    /// Sets whether the font of a text is italic.
    void setFreeTextItalic(const QString &tag, bool italic);
    /// Sets the colour of a text, given by a name such as "#000000".
    void setFreeTextColor(const QString &tag, const QString &color);
    /// @}

    /// @name Texts on floor plans
    /// Positions are in plan pixels, font sizes in points. Tags are unique in the whole job. The setters create an
    /// attribute that an older file lacks, and do nothing if there is no text with the given tag.
    /// @{

    /// Adds a text to a floor plan and returns its tag. See the class description for the mode. Creates the floor's
    /// list of texts if it is missing. Returns an empty string and changes nothing if the floor does not exist or the
    /// given tag is not valid.
    QString addFloorFreeText(const QString &floorTag, const QString &text, double x, double y,
                             const QString &fontFamily, double fontSize, bool bold, bool italic, const QString &color,
                             const QString &tag, const QString &id, int mode);
    /// Adds a text from a record to the floor named as its parent, and returns its tag. Returns an empty string and
    /// changes nothing if the floor does not exist, or if the record's tag is to be used and is not valid.
    QString addFloorFreeText(const FreeText &text, int mode);
    /// Removes the text with the given tag from its floor plan. Does nothing if there is no such text.
    void removeFloorFreeText(const QString &tag);
    /// Removes the text with the record's tag from its floor plan. Does nothing if there is no such text.
    void removeFloorFreeText(const FreeText &text);
    /// Returns the text with the given tag, or a default text if there is none.
    FreeText getFloorFreeTextByTag(const QString &tag) const;
    /// Returns the text with the given id, or a default text if there is none. Of several texts, the one whose tag is
    /// first in string order counts.
    FreeText getFloorFreeTextById(const QString &id) const;
    /// Returns the id of the text with the given tag, or an empty string if there is none.
    QString getFloorFreeTextIdByTag(const QString &tag) const;
    /// Returns the tag of the text with the given id, or an empty string if there is none. Of several texts, the one
    /// whose tag is first in string order counts.
    QString getFloorFreeTextTagById(const QString &id) const;
    /// Returns the characters of a text, or an empty string if there is none with the given tag.
    QString getFloorFreeTextText(const QString &tag) const;
    /// Returns the position of a text, or (-1.0, -1.0) if there is none with the given tag.
    QPointF getFloorFreeTextPos(const QString &tag) const;
    /// Returns the font family of a text. Returns an empty string for the application's own font, or if there is no
    /// text with the given tag.
    QString getFloorFreeTextFontFamily(const QString &tag) const;
    /// Returns the font size of a text in points, or 12.0 if there is none with the given tag.
    double getFloorFreeTextFontSize(const QString &tag) const;
    /// Returns whether the font of a text is bold, or false if there is none with the given tag.
    bool getFloorFreeTextBold(const QString &tag) const;
    /// Returns whether the font of a text is italic, or false if there is none with the given tag.
    bool getFloorFreeTextItalic(const QString &tag) const;
    /// Returns the name of a text's colour, or "#000000" if there is none with the given tag.
    QString getFloorFreeTextColor(const QString &tag) const;
    /// Returns the tag of the floor that a text is on, or an empty string if there is no text with the given tag.
    QString getFloorFreeTextFloor(const QString &tag) const;
    /// Sets the id of a text.
    void setFloorFreeTextID(const QString &tag, const QString &id);
    /// Sets the characters of a text.
    void setFloorFreeTextText(const QString &tag, const QString &text);
    /// Sets the position of a text.
    void setFloorFreeTextPos(const QString &tag, double x, double y);
    /// Sets the font family of a text. An empty family stands for the application's own font.
    void setFloorFreeTextFontFamily(const QString &tag, const QString &family);
    /// Sets the font size of a text in points.
    void setFloorFreeTextFontSize(const QString &tag, double points);
    /// Sets whether the font of a text is bold.
    void setFloorFreeTextBold(const QString &tag, bool bold);
    /// Sets whether the font of a text is italic.
    void setFloorFreeTextItalic(const QString &tag, bool italic);
    /// Sets the colour of a text, given by a name such as "#000000".
    void setFloorFreeTextColor(const QString &tag, const QString &color);
    /// @}

    /// @name Active ports
    /// An active port holds the results of the tests of one port in the working network. Tags are unique in the whole
    /// job.
    /// @{

    /// Adds an active port without results for the port with the tag portTag, and returns its own tag. See the class
    /// description for the mode. portTag is not checked. Returns an empty string and changes nothing if the document
    /// has no element for active ports or the given tag is not valid.
    QString addActivePort(const QString &portTag, const QString &tag, const QString &id, int mode);
    /// Adds an active port with its results from a record, and returns its tag. Returns an empty string and changes
    /// nothing if the document has no element for active ports, or if the record's tag is to be used and is not valid.
    QString addActivePort(const ActivePort &activePort, int mode);
    /// Removes the active port with the given tag and its results. Does nothing if there is no such active port.
    void removeActivePort(const QString &tag);
    /// Removes the active port with the record's tag and its results. Does nothing if there is no such active port.
    void removeActivePort(const ActivePort &activePort);
    /// Returns the active port with the given tag and its results, or a default active port if there is none.
    ActivePort getActivePortByTag(const QString &tag) const;
    /// Returns the active port with the given id and its results, or a default active port if there is none. Of several
    /// active ports, the one whose tag is first in string order counts.
    ActivePort getActivePortById(const QString &id) const;
    /// Returns the id of the active port with the given tag, or an empty string if there is none.
    QString getActivePortIdByTag(const QString &tag) const;
    /// Returns the tag of the active port with the given id, or an empty string if there is none. Of several active
    /// ports, the one whose tag is first in string order counts.
    QString getActivePortTagById(const QString &id) const;
    /// Returns the tag of the port that was tested, or an empty string if there is no active port with the given tag.
    QString getActivePortPort(const QString &tag) const;
    /// Sets the id of an active port. Does nothing if there is none with the given tag.
    void setActivePortID(const QString &tag, const QString &id);
    /// Sets the tag of the port that was tested. portTag is not checked. Does nothing if there is no active port with
    /// the given tag.
    void setActivePortPort(const QString &tag, const QString &portTag);
    /// Returns the results of an active port in the order in which they were added, or an empty vector if there is no
    /// active port with the given tag.
    QVector<ActiveTestResult> getActiveTestResults(const QString &tag) const;
    /// Adds a result after the other results of an active port. Does nothing if there is no active port with the given
    /// tag.
    void addActiveTestResult(const QString &tag, const ActiveTestResult &result);
    /// Removes the first result of an active port that has the given time. Does nothing if there is none.
    void removeActiveTestResult(const QString &tag, const QString &time);
    /// Returns whether an active port has a result with the given time.
    bool activePortTestResultExists(const QString &tag, const QString &time) const;
    /// @}

    /// @name Cables
    /// The setters change an attribute that the cable has, and do not create a missing one. They do nothing if there is
    /// no cable with the given tag.
    /// @{

    /// Adds a cable after all others and returns its id. See the class description for the mode.
    ///
    /// A generated id is the translated word "Cable" followed by a number of at least three digits. The given id does
    /// not count for it. If color is not the name of a colour, the cable gets the colour of the type's test definition,
    /// or "#000000" if there is none. The use "cable_box" is stored as "TV". The ends, the type and the path are not
    /// checked.
    ///
    /// Returns an empty string and changes nothing if the document has no list of cables or the given tag is not valid.
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
                     const QString &type, const QString &bundleName, const QString &bundleNum,
                     const QString &bundleGroupNum, const QString &color, const QStringList &path,
                     const TestResults &testResults, int mode);
    /// Adds a cable without a bundle and a path, and returns its id. The cable gets the colour of the type's test
    /// definition. Returns an empty string and changes nothing if the document has no list of cables or the given tag
    /// is not valid.
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
                     const QString &type, const TestResults &testResults, int mode);
    /// Adds an untested cable without a bundle and a path, and returns its id. The cable gets the colour of the type's
    /// test definition. Returns an empty string and changes nothing if the document has no list of cables or the given
    /// tag is not valid.
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
                     const QString &type, int mode);
    /// Adds an untested cable with two ends, but without a type, a bundle and a path, and returns its id. Returns an
    /// empty string and changes nothing if the document has no list of cables or the given tag is not valid.
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
                     int mode);
    /// Adds an untested cable with one end, but without a type, a bundle and a path, and returns its id. Returns an
    /// empty string and changes nothing if the document has no list of cables or the given tag is not valid.
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, int mode);
    /// Adds an untested cable without ends, a type, a bundle and a path, and returns its id. Returns an empty string
    /// and changes nothing if the document has no list of cables or the given tag is not valid.
    QString addCable(const QString &tag, const QString &id, const QString &use, int mode);
    /// Adds an untested cable without a use, ends, a type, a bundle and a path, and returns its id. Returns an empty
    /// string and changes nothing if the document has no list of cables or the given tag is not valid.
    QString addCable(const QString &tag, const QString &id, int mode);
    /// Adds a cable from a record and returns its id. The record's default-type flag is not stored. Returns an empty
    /// string and changes nothing if the document has no list of cables, or if the record's tag is to be used and is
    /// not valid.
    QString addCable(const Cable &cable, int mode);
    /// Removes the cable with the given tag, also from the lists of vertical runs. Does nothing if there is no such
    /// cable.
    void removeCable(const QString &tag);
    /// Removes the cable with the record's tag, also from the lists of vertical runs. Does nothing if there is no such
    /// cable.
    void removeCable(const Cable &cable);

    /// Returns the cable with the given tag, or a default cable if there is none. Adds to the document what its test
    /// results lack, like getCableTestResults().
    Cable getCable(const QString &tag);
    /// Returns the cable with the given id, or a default cable if there is none. Of several cables, the one whose tag
    /// is first in string order counts. Adds to the document what its test results lack, like getCableTestResults().
    Cable getCableById(const QString &id);
    /// Returns the given tag if a cable has it, or an empty string if there is none.
    QString getCableElement(const QString &tag) const;

    /// Returns the id of the cable with the given tag, or an empty string if there is none.
    QString getCableID(const QString &tag) const;
    /// Returns what a cable is used for, or an empty string if there is none with the given tag.
    QString getCableUse(const QString &tag) const;
    /// Returns the tag of the port or vertical run at which a cable ends, or an empty string if there is no cable with
    /// the given tag.
    QString getCableTo(const QString &tag) const;
    /// Returns the tag of the port or vertical run at which a cable begins, or an empty string if there is no cable
    /// with the given tag.
    QString getCableFrom(const QString &tag) const;
    /// Returns the type of a cable, which is the name of its test definition, or an empty string if there is no cable
    /// with the given tag.
    QString getCableType(const QString &tag) const;
    /// Returns the tags of the points, ports and vertical runs that a cable passes, or an empty list if there is no
    /// cable with the given tag.
    QStringList getCablePath(const QString &tag) const;
    /// Returns the name of a cable's bundle. Returns an empty string if the cable is not in a bundle, or if there is no
    /// cable with the given tag.
    QString getCableBundleName(const QString &tag) const;
    /// Returns the number of a cable in its bundle, or an empty string if there is no cable with the given tag.
    QString getCableBundleNum(const QString &tag) const;
    /// Returns the number of a cable's bundle group, or an empty string if there is no cable with the given tag.
    QString getCableBundleGroupNum(const QString &tag) const;
    /// Returns the name of a cable's colour, or an empty string if there is no cable with the given tag.
    QString getCableColor(const QString &tag) const;
    /// Returns whether the type of a cable is marked as a built-in one, or false if there is no cable with the given
    /// tag.
    bool getCableDefaultType(const QString &tag) const;
    /// Sets the id of a cable.
    void setCableID(const QString &tag, const QString &id);
    /// Sets what a cable is used for. The text is stored as it is, including "cable_box".
    void setCableUse(const QString &tag, const QString &use);
    /// Sets the port or vertical run at which a cable ends, given by its tag.
    void setCableTo(const QString &tag, const QString &to);
    /// Sets the port or vertical run at which a cable begins, given by its tag.
    void setCableFrom(const QString &tag, const QString &from);
    /// Sets the type of a cable, which is the name of its test definition.
    void setCableType(const QString &tag, const QString &type);
    /// Sets the points, ports and vertical runs that a cable passes, given by their tags.
    void setCablePath(const QString &tag, const QStringList &path);
    /// Sets the name of a cable's bundle. An empty name takes the cable out of its bundle.
    void setCableBundleName(const QString &tag, const QString &name);
    /// Sets the number of a cable in its bundle.
    void setCableBundleNum(const QString &tag, const QString &number);
    /// Sets the number of a cable's bundle group. Cables that are pulled together have the same number.
    void setCableBundleGroupNum(const QString &tag, const QString &number);
    /// Sets the colour of a cable, given by a name such as "#000000".
    void setCableColor(const QString &tag, const QString &color);
    /// Sets whether the type of a cable is marked as a built-in one. Does nothing for a cable without this attribute,
    /// which new cables do not have.
    void setCableDefaultType(const QString &tag, bool isDefault);

    /// Returns whether a cable is in a bundle, which is the case if its bundle has a name. Returns false if there is no
    /// cable with the given tag.
    bool cableIsInBundle(const QString &tag) const;
    /// @}

    /// @name Finding cables
    /// The time that these operations take grows with the number of cables, except for getCablesByType().
    /// @{

    /// Returns whether a cable has the given bundle group number.
    bool bundleGroupNumExists(const QString &bundleGroupNum) const;

    /// Returns the tags of the cables of the given type in document order.
    QStringList getCablesByType(const QString &type) const;
    /// Returns the tags of the cables with the given use in document order.
    QStringList getCablesByUse(const QString &use) const;
    /// Returns the tags of the cables with the given bundle name in document order.
    QStringList getCablesByBundle(const QString &bundleName) const;
    /// Returns the tags of the cables with the given bundle group number in document order.
    QStringList getCablesByBundleGroup(const QString &bundleGroupNum) const;
    /// Returns the tags of the cables with an end at the given port or vertical run in document order.
    QStringList getCablesByPort(const QString &tag) const;
    /// Returns the tags of the cables with an end at a port or vertical run on the given floor in document order.
    QStringList getCablesByFloor(const QString &floorTag) const;
    /// Returns the tags of the cables with the given test status in document order. See getCableStatus() for the
    /// status.
    QStringList getCablesByStatus(const QString &status) const;
    /// @}

    /// @name Test results of cables
    /// Except for getCableStatus(), these operations take the tag of a cable or, if no cable has that tag, its id as
    /// addCable() returns it. Of several cables with that id, the one that getCableById() finds counts.
    /// @{

    /// Stores the test results of a cable. If an older file lacks the attributes for the tester's software version and
    /// serial number, they are created. Other missing attributes are not created here, but by getCableTestResults().
    /// Does nothing if the cable does not exist or has no element for test results.
    void setCableTestResults(const QString &cable, const TestResults &results);
    /// Returns the test results of a cable, or default results if there is none. Adds to the document what an older
    /// file lacks, except for the status and the time, with its default values.
    TestResults getCableTestResults(const QString &cable);
    /// Returns what is known of the current test of a cable beyond its results. Returns empty details if there are
    /// none, or if they belong to a test at another time.
    TestDetails getCableTestDetails(const QString &cable) const;
    /// Stores what is known of the current test of a cable. An element for it is created or removed as needed. Does
    /// nothing if the cable does not exist or has no element for test results.
    ///
    /// setCableTestResults() keeps the details. They no longer count if it changes the time of the test.
    void setCableTestDetails(const QString &cable, const TestDetails &details);
    /// Returns the earlier tests of a cable in the order in which they became earlier ones. Returns an empty vector if
    /// there are none.
    QVector<cabledoc::CableTest> getCableTestHistory(const QString &cable) const;
    /// Adds a test after all other earlier tests of a cable. Does nothing if the cable does not exist.
    void addEarlierCableTest(const QString &cable, const cabledoc::CableTest &test);
    /// Makes a test the current one of a cable. The test that was current before is added to the earlier ones, unless
    /// CableTest::isEmpty() holds for it. Does nothing if the cable does not exist.
    void setCurrentCableTest(const QString &cable, const cabledoc::CableTest &test);
    /// Returns the test status of the cable with the given tag, or an empty string if there is none. Returns "UNTESTED"
    /// if the cable has no test results or no status in them.
    QString getCableStatus(const QString &tag) const;
    /// Returns the measured length of a pair (0 to 3) in metres (metric is true), rounded to the nearest half, or in
    /// feet, rounded to the nearest tenth.
    ///
    /// The length in feet is the length reading of the pair divided by the length constant, in pF per foot, of the
    /// cable type's test definition. Returns 0 for any other pair. Adds to the document what the test results lack,
    /// like getCableTestResults().
    float getRoundedCableLength(const QString &cable, int pair, bool metric);
    /// Returns the measured length of a cable, which is the length of its shortest measured pair.
    ///
    /// If uncorrected is false, the length is calculated and rounded like that of getRoundedCableLength(). The reading
    /// of a cable without a measured pair counts as -1 then, so that the result is not greater than 0.
    ///
    /// If uncorrected is true, the reading itself counts as the length in feet. The result is in whole metres without a
    /// fraction (metric is true) or in feet. It is 0 for a cable without a measured pair.
    ///
    /// Adds to the document what the test results lack, like getCableTestResults().
    float getMaxRoundedCableLength(const QString &cable, bool metric, bool uncorrected);
    /// @}

    /// @name Lengths from the plan
    /// @{

    /// Returns the estimated length of the cable with the given tag in metres (metric is true) or in feet. It is the
    /// sum of these lengths:
    ///
    /// - The straight lines from end to end along the path. The scale is that of the floor plan, in the settings
    ///   "FloorPlan_Settings". 96 pixels are an inch of the drawing.
    /// - The drop heights of both ends, from the ceiling down.
    /// - The way between the floors. Cables run along ceilings, so the way from one floor to another one is the sum of
    ///   the ceiling heights of the floors above the lower one, up to and including the upper one. From floor 1 to
    ///   floor 2 it is the ceiling height of floor 2. Floors that the job lacks do not count.
    ///
    /// Returns -1.0 if there is no such cable, if the floor plan has no scale, if an end or an entry of the path does
    /// not exist, or if the path leads to another floor without a vertical run. Adds missing settings to the document.
    double estimateCableLength(const QString &tag, bool metric);
    /// Returns the estimated lengths of all cables by their tags, each as estimateCableLength() gives it. Adds missing
    /// settings to the document.
    QMap<QString, double> estimateCableLengths(bool metric);
    /// @}

    /// @name Connections of devices
    /// The setters change an attribute that the connection has, and do not create a missing one. They do nothing if
    /// there is no connection with the given tag.
    /// @{

    /// Adds a connection after all others and returns its id. to and from are tags of devices or bends, which are not
    /// checked. See the class description for the mode. Returns an empty string and changes nothing if the document has
    /// no list of connections or the given tag is not valid.
    QString addConnection(const QString &tag, const QString &id, const QString &to, const QString &from,
                          const QString &type, int mode);
    /// Adds a connection whose type is given as a number, and returns its id. Returns an empty string and changes
    /// nothing if the document has no list of connections or the given tag is not valid.
    QString addConnection(const QString &tag, const QString &id, const QString &to, const QString &from, int type,
                          int mode);
    /// Adds a connection from a record and returns its id. Returns an empty string and changes nothing if the document
    /// has no list of connections, or if the record's tag is to be used and is not valid.
    QString addConnection(const DeviceConnection &connection, int mode);
    /// Removes the connection with the given tag. Does nothing if there is no such connection.
    void removeConnection(const QString &tag);
    /// Removes the connection with the record's tag. Does nothing if there is no such connection.
    void removeConnection(const DeviceConnection &connection);
    /// Returns the connection with the given tag, or a default connection if there is none.
    DeviceConnection getConnection(const QString &tag) const;
    /// Returns the tag of the connection with the given id, or an empty string if there is none. Of several
    /// connections, the one whose tag is first in string order counts.
    QString getConnectionTagById(const QString &id) const;
    /// Returns the tag of the device or bend at which a connection ends, or an empty string if there is no connection
    /// with the given tag.
    QString getConnectionTo(const QString &tag) const;
    /// Returns the tag of the device or bend at which a connection begins, or an empty string if there is no connection
    /// with the given tag.
    QString getConnectionFrom(const QString &tag) const;
    /// Returns the type of a connection as a number. Returns 0 if the type is not a number, or if there is no
    /// connection with the given tag.
    int getConnectionType(const QString &tag) const;
    /// Sets the device or bend at which a connection ends, given by its tag.
    void setConnectionTo(const QString &tag, const QString &to);
    /// Sets the device or bend at which a connection begins, given by its tag.
    void setConnectionFrom(const QString &tag, const QString &from);
    /// Sets the type of a connection as text.
    void setConnectionType(const QString &tag, const QString &type);
    /// Sets the type of a connection as a number.
    void setConnectionType(const QString &tag, int type);
    /// @}

    /// @name The site
    /// The setters mark the document as changed even if the value stays the same, and create an attribute that an older
    /// file lacks. If the document has no element for the site, they store nothing, and the getters return empty
    /// values.
    /// @{

    /// Sets the name of the contact person at the site.
    void setSiteContact(const QString &contact);
    /// Sets the id of the job.
    void setSiteJobID(const QString &jobID);
    /// Sets the name of the company at the site.
    void setSiteCompany(const QString &company);
    /// Sets the telephone number of the site.
    void setSitePhone(const QString &phone);
    /// Sets the email address of the site.
    void setSiteEmail(const QString &email);
    /// Sets the postal address of the site.
    void setSiteAddress(const Address &address);
    /// Sets all data of the site from a record.
    void setSiteData(const SiteData &data);
    /// Sets all data of the site from single values.
    void setSiteData(const QString &contact, const QString &jobID, const QString &company, const QString &phone,
                     const QString &email, const Address &address);
    /// Returns the name of the contact person at the site.
    QString getSiteContact() const;
    /// Returns the id of the job.
    QString getSiteJobID() const;
    /// Returns the name of the company at the site.
    QString getSiteCompany() const;
    /// Returns the telephone number of the site.
    QString getSitePhone() const;
    /// Returns the email address of the site.
    QString getSiteEmail() const;
    /// Returns the postal address of the site.
    Address getSiteAddress() const;
    /// Returns all data of the site.
    SiteData getSiteData() const;
    /// @}

    /// @name Releases and notes
    /// @{

    /// Stores a value under a name, and replaces the value that the name had before. The name must be a valid XML name
    /// of Latin-1 characters without a colon, and a job holds at most 4096 names. Otherwise nothing is stored, and
    /// error() tells why.
    void addRelease(const QString &name, const QString &value);
    /// Returns the value stored under the given name, or an empty string if there is none.
    QString getRelease(const QString &name) const;
    /// Removes the given name and its value. Marks the document as changed even if there is no such name.
    void removeRelease(const QString &name);
    /// Sets the notes of the job. Changes the document only if the notes differ. Creates the element for notes if it is
    /// missing. Does nothing in a document without content.
    void setJobNotesText(const QString &text);
    /// Returns the notes of the job, or an empty string if there are none.
    QString getJobNotesText() const;
    /// Returns the element that holds the connections. If it is missing, it is created and the document is marked as
    /// changed. Returns a null element for a document without content. The name of this operation is kept for callers
    /// that use it.
    QDomElement getToJobNotesList();
    /// @}

private:
    friend class cabledoc::JobEditorPrivate;

    ~JobEditor() override;

    const std::unique_ptr<cabledoc::JobEditorPrivate> d;
};
