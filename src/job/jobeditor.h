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
/// Elements are named by two texts. The tag is the name of the XML element: generated, unique among the
/// elements of a kind in the whole job, never changed. The id is the name that the user sees. Operations
/// on a tag or id that does not exist do nothing and return the empty or default value that they name.
///
/// Operations that add an element end with a mode, which says whose names count:
///
///     mode            tag            id
///     0 and others    generated      generated from the given id
///     1               generated      the given id
///     2               the given tag  the given id
///     3               the given tag  generated from the given id
///
/// Given names are not checked for being taken; that is up to the caller. A given tag that is no XML name
/// of Latin-1 characters without a colon is refused: the operation fails, and error() says why. A
/// generated id is the given id followed by a number.
///
/// Every editing operation marks the document as changed. Text may hold any character, but files are
/// Latin-1: what they cannot hold becomes "?" on saving, or a reference, see setCharacterReferences().
class CABLEDOC_EXPORT JobEditor : public BKXMLEditor
{
    Q_OBJECT
    Q_DISABLE_COPY(JobEditor)

public:
    // The instance

    /// The job document of the process, created empty on the first call.
    static JobEditor &Instance();
    /// Deletes the instance, if there is one, with everything that was not saved.
    static void Destroy();
    /// An empty document.
    JobEditor();
    /// Loads the file when it exists, and otherwise makes a new job of that name. The name of a directory
    /// leaves the document empty, with a text in error(). A file that cannot be loaded ends the process
    /// with exit status -1.
    explicit JobEditor(const QString &filename);

    // Creating, loading and saving

    /// Makes a new job named after the first of "Untitled1.job", "Untitled2.job", ... that does not exist
    /// in the directory for new jobs, and returns its path. Nothing is written yet. When a job is open
    /// (Unload() first), returns an empty string, with a text in error(), and leaves it as it was.
    QString New();
    /// Makes a new job to be saved under that name, to which ".job" is added where it lacks it. The job
    /// has one floor and one sheet and is unchanged. False, with a text in error(), for a null name and
    /// when a job is open, which stays as it was.
    virtual bool New(const QString &filename);
    /// Replaces the document by the content of a file. The job is unchanged afterwards. False, with a text
    /// in error(), when the name is empty (nothing changes), or the file is missing, above maximumFileSize(), cannot be
    /// opened (the open job is as it was, under the new name), is no XML (the document is empty) or has a version that
    /// is not supported (the document holds it as it was read). An older job is brought to version 3.0; its file stays
    /// as it is until the job is saved, and the conversion does not count as a change.
    virtual bool Load(const QString &filename);
    /// Empties the document and its name and sets error() to "Unloading". Tags and ids are still known to
    /// existence tests and lists until the next New() or Load().
    virtual void Unload();
    /// Writes the document to its file, and clears the mark of a change. Returns false, with a text in error(), if the
    /// document has no name or no content, if the name is that of a device or a pipe, if the last Load() failed (until
    /// New(), saveAs() or a Load() succeeds), if another program has changed the file since it was read or written, or
    /// if the file cannot be written. The file is then as it was, and the document stays changed. A file that was taken
    /// away is created again. A process that may run into a file-size limit has to ignore SIGXFSZ to get this answer.
    virtual bool save();
    /// Writes the document to another file, which it belongs to from then on. An existing file is
    /// replaced; ".job" is not added. On a failure nothing changes, as with save().
    virtual bool saveAs(const QString &filename);
    /// Does what save() does, but replaces the file even if another program has changed it.
    bool saveAnyway();

    /// Whether the document was changed since it was last created, loaded or saved.
    using BKXMLEditor::fileChanged;
    using BKXMLEditor::setDirty;
    /// Whether the file name has the extension "job", in any case.
    static bool checkJobExtension(const QString &filename);
    /// Whether the file name begins with "untitled", in any case, before its first dot.
    static bool checkUntitledJob(const QString &filename);

    // Templates. What a job has is copied as it is, empty texts included; definitions and bundles are known by
    // their names, and those that the target has stay as they are. A null pointer stands for nothing to take.

    /// Takes over the contractor and the settings of a template, and the test definitions and bundles that the
    /// job lacks.
    void Import(BktEditor *bkt);
    /// Takes over those default test definitions, and those bundles, of a template that the job lacks.
    void ImportMissingDefaultCableTypes(BktEditor *bkt);
    /// Writes contractor, settings, test definitions and bundles to a file as a new template, which replaces the
    /// one in the template document and stays open there. False, with a text in error(), when the name is empty, that
    /// of a directory or that of the job's own file (the open template is as it was), or the file cannot be written.
    /// Entries of the settings that the job lacks are added to it with their defaults.
    bool Export(const QString &filename);
    /// The file of the default template. Setting an empty path changes nothing. Not part of the document.
    void setDefaultBktFile(const QString &filename);
    const QString &defaultBktFile() const;
    /// A number for the application's use; initially 0. Not part of the document.
    int getRelease() const;
    void setRelease(int release);

    // Index: rebuilding

    /// Rebuilds all indexes from the tree. The document's own operations keep them in step; a caller needs
    /// this only after changing elements that the navigation operations returned.
    void updateAllInternalLists();
    /// Each rebuilds one index, and lets removals see anew what elements name. Of elements that share a tag the first
    /// in document order counts.
    void populateCurrentCablesLists();
    void populateCableMap();
    void populateCableTypeMap();
    void populateConnectionMap();
    void populateSheetMap();
    void populateDeviceMap();
    void populateVerticeMap();
    void populateFreeTextMap();
    void populateFloorMap();
    void populateRoomMap();
    void populatePortMap();
    void populateActivePortMap();
    void populateVerticalRunMap();
    void populatePointMap();
    void populateFloorFreeTextMap();

    // Index: existence

    /// Whether an element of the kind has that text as its tag (byTag) or as its id.
    bool cableExists(const QString &text, bool byTag) const;
    bool connectionExists(const QString &text, bool byTag) const;
    bool floorExists(const QString &text, bool byTag) const;
    bool sheetExists(const QString &text, bool byTag) const;
    bool roomExists(const QString &text, bool byTag) const;
    bool portExists(const QString &text, bool byTag) const;
    bool vertRunExists(const QString &text, bool byTag) const;
    bool portOrVertRunExists(const QString &text, bool byTag) const;
    bool deviceExists(const QString &text, bool byTag) const;
    bool verticeExists(const QString &text, bool byTag) const;
    bool pointExists(const QString &text, bool byTag) const;
    bool freeTextExists(const QString &text, bool byTag) const;
    bool floorFreeTextExists(const QString &text, bool byTag) const;
    bool activePortExists(const QString &text, bool byTag) const;
    /// Whether one of the rooms of a floor has that text as its tag (byTag) or as its id. The floor is given by its
    /// tag. It may come first as well: of the two texts the one that is a floor's tag is the floor, and the second if
    /// both are.
    bool roomExistsOnFloor(const QString &room, const QString &floorTag, bool byTag) const;

    // Index: lists and names

    /// All tags, in string order.
    QStringList getFloorTags() const;
    QStringList getSheetTags() const;
    /// All ids, in the order of their tags.
    QStringList getFloorIds() const;
    QStringList getSheetIds() const;
    /// The id of a tag; empty when there is none.
    QString getFloorIdByTag(const QString &tag) const;
    QString getSheetIdByTag(const QString &tag) const;
    /// The first tag, in string order, that has the id; empty when there is none.
    QString getFloorTagById(const QString &id) const;
    QString getSheetTagById(const QString &id) const;

    /// The tags (byTag) or ids of the elements of a container, in document order; an empty list when there
    /// is no such container. Rooms include "Undefined".
    QStringList getCables(bool byTag) const;
    QStringList getConnections(bool byTag) const;
    QStringList getActivePorts(bool byTag) const;
    QStringList getRooms(const QString &floorTag, bool byTag) const;
    QStringList getPorts(const QString &floorTag, const QString &roomTag, bool byTag) const;
    QStringList getVertRuns(const QString &floorTag, const QString &roomTag, bool byTag) const;
    QStringList getPoints(const QString &floorTag, bool byTag) const;
    QStringList getFloorFreeTexts(const QString &floorTag, bool byTag) const;
    QStringList getDevices(const QString &sheetTag, bool byTag) const;
    QStringList getVertices(const QString &sheetTag, bool byTag) const;
    QStringList getFreeTexts(const QString &sheetTag, bool byTag) const;

    // Navigation: the containers of the tree. Null when a step of the way is missing. The elements are
    // handles into the tree: see updateAllInternalLists() before changing them.

    QDomElement getToCableList() const;
    QDomElement getToConnectionList() const;
    QDomElement getToActivePortList() const;
    QDomElement getToRoomList(const QString &floorTag) const;
    QDomElement getToPortList(const QString &floorTag, const QString &roomTag) const;
    QDomElement getToVertRunList(const QString &floorTag, const QString &roomTag) const;
    QDomElement getToPointList(const QString &floorTag) const;
    QDomElement getToFloorFreeTextList(const QString &floorTag) const;
    QDomElement getToDeviceList(const QString &sheetTag) const;
    QDomElement getToFreeTextList(const QString &sheetTag) const;
    QDomElement getToVerticeList(const QString &sheetTag) const;

    // Floors

    /// Adds a floor behind the others, with the room "Undefined", and returns its tag. See above for the
    /// mode. ceilingHeight is in the job's length unit; pic is the path of the background picture, empty
    /// for none. "Bad Floor", and nothing changes, in a document without a list of floors.
    QString addFloor(const QString &tag, const QString &id, double ceilingHeight, const QString &pic, int mode);
    /// The same from a record.
    QString addFloor(const Floor &floor, int mode);
    /// Removes a floor with all that is on it, the cables that end there and the active ports that name its ports, and
    /// takes its points, ports and vertical runs out of the paths of other cables.
    void removeFloor(const QString &tag);
    void removeFloor(const Floor &floor);

    /// Copies what is on a floor to another one, as it is but for these names: points and texts get new ones,
    /// ports and vertical runs the first free of "12A", "12B", ..., "12Z", "12[", "12AA", ... after "12". A room
    /// whose name the other floor has stands for its copy. The cables that end on the floor are copied too, with
    /// the copies for their ends and paths where there are any, untested, and, if useCableIds, under the ids
    /// that cableIds gives for theirs; cables without one get a generated id. Cables of one bundle group form
    /// a new group, with the first free number. Nothing when one of the floors does not exist.
    void copyFloor(const QString &srcTag, const QString &dstTag, const QMap<QString, QString> &cableIds,
                   bool useCableIds);

    /// Returns the floor with the given tag, or an empty record if there is none. Adds a missing ceiling height of 8 to
    /// the document. What else the element lacks has its default in the record only.
    Floor getFloor(const QString &tag);
    /// Renames a floor.
    void setFloorId(const QString &tag, const QString &id);
    /// Renames floors, given as tag and new id.
    void setAllFloorIds(const QMap<QString, QString> &idsByTag);
    /// Ceiling height in the job's length unit; 8.0 for an unknown floor. A floor that lacks the attribute
    /// gets it, with that value.
    double getFloorCeilingHeight(const QString &tag);
    void setFloorCeilingHeight(const QString &tag, double height);

    /// Path of the background picture; empty when there is none.
    QString getFloorBackgroundPic(const QString &tag) const;
    /// Sets the picture and the horizontal origin x, in pixels. The vertical origin y is set only on a
    /// floor that has none yet: it keeps the value that it was first given.
    void setFloorBackgroundPic(const QString &tag, const QString &pic, int x, int y);
    /// Origin of the background picture, in pixels; (0, 0) for an unknown floor. A floor that lacks a
    /// coordinate gets it, with 0.
    QPoint getFloorBackgroundOrigin(const QString &tag);
    /// How the background is shown; the application assigns the meaning. Empty for an unknown floor. A
    /// floor that lacks the attribute gets it, with "Center".
    QString getBackgroundOption(const QString &tag);
    void setBackgroundOption(const QString &tag, const QString &option);

    /// The number in a tag, "03" for "FFloor_3": what stands between the first and the second "_", with
    /// two digits at least; "00" when that is no number, "1" for an empty tag. Not the floor's place in
    /// the job.
    static QString getFloorNumber(const QString &tag);

    // Sheets

    /// Adds a sheet behind the others and returns its tag. See above for the mode. "Bad Sheet", and nothing
    /// changes, in a document without a list of sheets.
    QString addSheet(const QString &tag, const QString &id, int mode);
    /// The same from a record.
    QString addSheet(const Sheet &sheet, int mode);
    /// Removes a sheet with all that is on it, and the connections that end there.
    void removeSheet(const QString &tag);

    /// Copies the devices, bends and texts of a sheet to another one, under new names; connections are not
    /// copied. Nothing when one of the sheets does not exist.
    void copySheet(const QString &srcTag, const QString &dstTag);

    /// The sheet of that tag; an empty record when there is none.
    Sheet getSheet(const QString &tag) const;
    /// Renames a sheet.
    void setSheetID(const QString &tag, const QString &id);
    /// Renames sheets, given as tag and new id.
    void setAllSheetIDs(const QMap<QString, QString> &idsByTag);
    /// The number in a tag, as with getFloorNumber(); "00" for an empty tag.
    static QString getSheetNumber(const QString &tag);

    // Rooms. Positions and sizes are in plan pixels. The setters address a room by its id on its floor and
    // take the first in document order.

    /// Adds a room to a floor and returns its tag. See above for the mode; generated ids are unique on
    /// their floor. When the floor has a room of that tag, returns it and changes nothing. An empty
    /// string, and nothing changes, for a floor that does not exist or has no list of rooms.
    QString addRoom(const QString &floorTag, int x, int y, int width, int height, const QString &tag, const QString &id,
                    int nameX, int nameY, int showDimensions, int showName, int layer, int mode);
    /// The same from a record, whose coordinates lose their fractions.
    QString addRoom(const Room &room, int mode);
    /// Removes a room. Its ports and vertical runs move to the room "Undefined" of the floor, which itself
    /// cannot be removed.
    void removeRoom(const QString &floorTag, const QString &tag);
    void removeRoom(const Room &room);

    /// The room of that tag, on that floor or anywhere; a default room when there is none. A room that lacks
    /// its layer or display flags gets them, with the value 3. The tag "Undefined" is answered without
    /// looking: a default room with that tag and id.
    Room getRoomByTag(const QString &floorTag, const QString &tag);
    Room getRoomByTag(const QString &tag);
    /// The same by id.
    Room getRoomById(const QString &floorTag, const QString &id);

    /// Sets position and size.
    void setRoomPos(const QString &floorTag, const QString &id, int x, int y, int width, int height);
    /// Renames a room.
    void setRoomName(const QString &floorTag, const QString &id, const QString &newId);
    // The following find the room as getRoomById() does, and like it add the layer and the display flags that it lacks.

    /// Sets the position of the name's label.
    void setRoomNamePos(const QString &floorTag, const QString &id, const QPoint &position);
    void setRoomLayer(const QString &floorTag, const QString &id, int layer);
    void setShowRoomName(const QString &floorTag, const QString &id, int show);
    void setShowRoomDimensions(const QString &floorTag, const QString &id, int show);

    // Ports and vertical runs. Positions are in plan pixels, drop heights in feet. They, and the points, bends,
    // texts, devices and active ports below, are known by tags that are unique in the whole job. The operations
    // that add one take names and mode as said above and return the tag; an empty string, and nothing changes,
    // when what shall hold it does not exist. A list that its holder lacks is created. Readers of a tag or id
    // that does not exist give a default record or value. Setters create an attribute that is missing.

    QString addPort(const QString &floorTag, const QString &roomTag, double x, double y, const QString &tag,
                    const QString &id, const QString &use, double iconScale, double dropHeight, int mode);
    QString addPort(const Port &port, int mode);
    /// Removes a port, the cables that end there and the active ports that name it, and takes it out of the paths
    /// of other cables.
    void removePort(const QString &tag);
    void removePort(const Port &port);
    Port getPortByTag(const QString &tag) const;
    /// The first, in the order of the tags, that has the id.
    Port getPortById(const QString &id) const;
    QString getPortIdByTag(const QString &tag) const;
    QString getPortTagById(const QString &id) const;
    QPointF getPortPos(const QString &tag) const;
    QString getPortUse(const QString &tag) const;
    double getPortIconScale(const QString &tag) const;
    double getPortDropHeight(const QString &tag) const;
    /// The tags of the room and of the floor.
    QString getPortRoom(const QString &tag) const;
    QString getPortFloor(const QString &tag) const;
    void setPortID(const QString &tag, const QString &id);
    void setPortPos(const QString &tag, double x, double y);
    void setPortUse(const QString &tag, const QString &use);
    void setPortIconScale(const QString &tag, double scale);
    void setPortDropHeight(const QString &tag, double feet);
    /// Moves a port to another room, on any floor, behind the ports there.
    void setPortRoom(const QString &tag, const QString &floorTag, const QString &roomTag);

    QString addVertRun(const QString &floorTag, const QString &roomTag, double x, double y, const QString &tag,
                       const QString &id, const QString &use, double iconScale, double dropHeight,
                       const QStringList &connected, const QStringList &disconnected, int mode);
    QString addVertRun(const VertRun &vertRun, int mode);
    /// Removes a vertical run and the cables that end there, and takes it out of the paths of others.
    void removeVertRun(const QString &tag);
    void removeVertRun(const VertRun &vertRun);
    VertRun getVertRunByTag(const QString &tag) const;
    VertRun getVertRunById(const QString &id) const;
    QString getVertRunIdByTag(const QString &tag) const;
    QString getVertRunTagById(const QString &id) const;
    QPointF getVertRunPos(const QString &tag) const;
    QString getVertRunUse(const QString &tag) const;
    double getVertRunIconScale(const QString &tag) const;
    double getVertRunDropHeight(const QString &tag) const;
    QString getVertRunRoom(const QString &tag) const;
    QString getVertRunFloor(const QString &tag) const;
    /// The tags of the cables that pass it and are, or are not, connected.
    QStringList getVertRunConnected(const QString &tag) const;
    QStringList getVertRunDisconnected(const QString &tag) const;
    void setVertRunID(const QString &tag, const QString &id);
    void setVertRunPos(const QString &tag, double x, double y);
    void setVertRunUse(const QString &tag, const QString &use);
    void setVertRunIconScale(const QString &tag, double scale);
    void setVertRunDropHeight(const QString &tag, double feet);
    void setVertRunRoom(const QString &tag, const QString &floorTag, const QString &roomTag);
    void setVertRunConnected(const QString &tag, const QStringList &cableTags);
    void setVertRunDisconnected(const QString &tag, const QStringList &cableTags);
    /// Whether the cable passes it, connected or not.
    bool isCableInVertRun(const QString &cableTag, const QString &tag) const;
    /// Put a cable into one of the two lists, and take it out of the other; nothing for an unknown cable.
    void connectCableToVertRun(const QString &cableTag, const QString &tag);
    void disconnectCableFromVertRun(const QString &cableTag, const QString &tag);
    /// Takes a cable out of both lists.
    void removeCableFromVertRun(const QString &cableTag, const QString &tag);

    // Points on floor plans, which cables pass, in plan pixels

    QString addPoint(const QString &floorTag, double x, double y, const QString &tag, const QString &id, int mode);
    QString addPoint(const Point &point, int mode);
    /// Removes a point, also from the paths of cables.
    void removePoint(const QString &tag);
    void removePoint(const Point &point);
    Point getPointByTag(const QString &tag) const;
    Point getPointById(const QString &id) const;
    QString getPointIdByTag(const QString &tag) const;
    QString getPointTagById(const QString &id) const;
    QPointF getPointPos(const QString &tag) const;
    QString getPointFloor(const QString &tag) const;
    void setPointID(const QString &tag, const QString &id);
    void setPointPos(const QString &tag, double x, double y);

    // Devices and bends of their connections on sheets, in pixels

    QString addDevice(const QString &sheetTag, const QString &type, double x, double y, double iconScale,
                      const QString &info, const QString &tag, const QString &id, int mode);
    QString addDevice(const Device &device, int mode);
    /// Removes a device and the connections that end there.
    void removeDevice(const QString &tag);
    void removeDevice(const Device &device);
    Device getDeviceByTag(const QString &tag) const;
    Device getDeviceById(const QString &id) const;
    QString getDeviceIdByTag(const QString &tag) const;
    QString getDeviceTagById(const QString &id) const;
    QString getDeviceType(const QString &tag) const;
    QPointF getDevicePos(const QString &tag) const;
    double getDeviceIconScale(const QString &tag) const;
    QString getDeviceInfo(const QString &tag) const;
    QString getDeviceSheet(const QString &tag) const;
    void setDeviceID(const QString &tag, const QString &id);
    void setDeviceType(const QString &tag, const QString &type);
    void setDevicePos(const QString &tag, double x, double y);
    void setDeviceIconScale(const QString &tag, double scale);
    void setDeviceInfo(const QString &tag, const QString &info);

    QString addVertice(const QString &sheetTag, double x, double y, const QString &tag, const QString &id, int mode);
    QString addVertice(const Vertice &vertice, int mode);
    /// Removes a bend and the connections that end there.
    void removeVertice(const QString &tag);
    void removeVertice(const Vertice &vertice);
    Vertice getVerticeByTag(const QString &tag) const;
    Vertice getVerticeById(const QString &id) const;
    QString getVerticeIdByTag(const QString &tag) const;
    QString getVerticeTagById(const QString &id) const;
    QPointF getVerticePos(const QString &tag) const;
    QString getVerticeSheet(const QString &tag) const;
    void setVerticeID(const QString &tag, const QString &id);
    void setVerticePos(const QString &tag, double x, double y);

    // Texts on sheets and on floor plans. Positions are in pixels, font sizes in points.

    QString addFreeText(const QString &sheetTag, const QString &text, double x, double y, const QString &fontFamily,
                        double fontSize, bool bold, bool italic, const QString &color, const QString &tag,
                        const QString &id, int mode);
    QString addFreeText(const FreeText &text, int mode);
    void removeFreeText(const QString &tag);
    void removeFreeText(const FreeText &text);
    FreeText getFreeTextByTag(const QString &tag) const;
    FreeText getFreeTextById(const QString &id) const;
    QString getFreeTextIdByTag(const QString &tag) const;
    QString getFreeTextTagById(const QString &id) const;
    QString getFreeTextText(const QString &tag) const;
    QPointF getFreeTextPos(const QString &tag) const;
    QString getFreeTextFontFamily(const QString &tag) const;
    double getFreeTextFontSize(const QString &tag) const;
    bool getFreeTextBold(const QString &tag) const;
    bool getFreeTextItalic(const QString &tag) const;
    QString getFreeTextColor(const QString &tag) const;
    QString getFreeTextSheet(const QString &tag) const;
    void setFreeTextID(const QString &tag, const QString &id);
    void setFreeTextText(const QString &tag, const QString &text);
    void setFreeTextPos(const QString &tag, double x, double y);
    void setFreeTextFontFamily(const QString &tag, const QString &family);
    void setFreeTextFontSize(const QString &tag, double points);
    void setFreeTextBold(const QString &tag, bool bold);
    void setFreeTextItalic(const QString &tag, bool italic);
    void setFreeTextColor(const QString &tag, const QString &color);

    QString addFloorFreeText(const QString &floorTag, const QString &text, double x, double y,
                             const QString &fontFamily, double fontSize, bool bold, bool italic, const QString &color,
                             const QString &tag, const QString &id, int mode);
    QString addFloorFreeText(const FreeText &text, int mode);
    void removeFloorFreeText(const QString &tag);
    void removeFloorFreeText(const FreeText &text);
    FreeText getFloorFreeTextByTag(const QString &tag) const;
    FreeText getFloorFreeTextById(const QString &id) const;
    QString getFloorFreeTextIdByTag(const QString &tag) const;
    QString getFloorFreeTextTagById(const QString &id) const;
    QString getFloorFreeTextText(const QString &tag) const;
    QPointF getFloorFreeTextPos(const QString &tag) const;
    QString getFloorFreeTextFontFamily(const QString &tag) const;
    double getFloorFreeTextFontSize(const QString &tag) const;
    bool getFloorFreeTextBold(const QString &tag) const;
    bool getFloorFreeTextItalic(const QString &tag) const;
    QString getFloorFreeTextColor(const QString &tag) const;
    QString getFloorFreeTextFloor(const QString &tag) const;
    void setFloorFreeTextID(const QString &tag, const QString &id);
    void setFloorFreeTextText(const QString &tag, const QString &text);
    void setFloorFreeTextPos(const QString &tag, double x, double y);
    void setFloorFreeTextFontFamily(const QString &tag, const QString &family);
    void setFloorFreeTextFontSize(const QString &tag, double points);
    void setFloorFreeTextBold(const QString &tag, bool bold);
    void setFloorFreeTextItalic(const QString &tag, bool italic);
    void setFloorFreeTextColor(const QString &tag, const QString &color);

    // Ports in the working network, and the results of their tests

    QString addActivePort(const QString &portTag, const QString &tag, const QString &id, int mode);
    QString addActivePort(const ActivePort &activePort, int mode);
    void removeActivePort(const QString &tag);
    void removeActivePort(const ActivePort &activePort);
    ActivePort getActivePortByTag(const QString &tag) const;
    ActivePort getActivePortById(const QString &id) const;
    QString getActivePortIdByTag(const QString &tag) const;
    QString getActivePortTagById(const QString &id) const;
    /// The tag of the port that was tested.
    QString getActivePortPort(const QString &tag) const;
    void setActivePortID(const QString &tag, const QString &id);
    void setActivePortPort(const QString &tag, const QString &portTag);
    /// The results in the order in which they were added.
    QVector<ActiveTestResult> getActiveTestResults(const QString &tag) const;
    void addActiveTestResult(const QString &tag, const ActiveTestResult &result);
    /// Removes the first result of that time.
    void removeActiveTestResult(const QString &tag, const QString &time);
    /// Whether the active port has a result of that time.
    bool activePortTestResultExists(const QString &tag, const QString &time) const;

    // Cables. A tag that no cable has makes setters do nothing and getters return an empty text or list or a
    // default record. The setter of a single field changes an attribute that the cable has and creates none.

    /// Adds a cable behind the others and returns its id. See above for the mode; a generated id is the
    /// translated "Cable" and a number of three digits at least, whatever id is given. A colour that is no
    /// colour name is replaced by that of the type's test definition; the use "cable_box" is stored as
    /// "TV". What the shorter forms leave out is empty, and the cable untested. A record's default-type flag
    /// is not stored. An empty string, and nothing changes, in a document without a list of cables.
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
                     const QString &type, const QString &bundleName, const QString &bundleNum,
                     const QString &bundleGroupNum, const QString &color, const QStringList &path,
                     const TestResults &testResults, int mode);
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
                     const QString &type, const TestResults &testResults, int mode);
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
                     const QString &type, int mode);
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, const QString &from,
                     int mode);
    QString addCable(const QString &tag, const QString &id, const QString &use, const QString &to, int mode);
    QString addCable(const QString &tag, const QString &id, const QString &use, int mode);
    QString addCable(const QString &tag, const QString &id, int mode);
    QString addCable(const Cable &cable, int mode);
    /// Removes a cable, also from the lists of vertical runs.
    void removeCable(const QString &tag);
    void removeCable(const Cable &cable);

    /// The whole cable. Test results that an older file left short are completed, as with
    /// getCableTestResults().
    Cable getCable(const QString &tag);
    /// The same of the first cable, in the order of the tags, that has the id.
    Cable getCableById(const QString &id);
    /// The tag itself when there is such a cable.
    QString getCableElement(const QString &tag) const;

    QString getCableID(const QString &tag) const;
    QString getCableUse(const QString &tag) const;
    QString getCableTo(const QString &tag) const;
    QString getCableFrom(const QString &tag) const;
    QString getCableType(const QString &tag) const;
    QStringList getCablePath(const QString &tag) const;
    QString getCableBundleName(const QString &tag) const;
    QString getCableBundleNum(const QString &tag) const;
    QString getCableBundleGroupNum(const QString &tag) const;
    QString getCableColor(const QString &tag) const;
    bool getCableDefaultType(const QString &tag) const;
    void setCableID(const QString &tag, const QString &id);
    void setCableUse(const QString &tag, const QString &use);
    void setCableTo(const QString &tag, const QString &to);
    void setCableFrom(const QString &tag, const QString &from);
    void setCableType(const QString &tag, const QString &type);
    void setCablePath(const QString &tag, const QStringList &path);
    void setCableBundleName(const QString &tag, const QString &name);
    void setCableBundleNum(const QString &tag, const QString &number);
    void setCableBundleGroupNum(const QString &tag, const QString &number);
    void setCableColor(const QString &tag, const QString &color);
    /// New cables have no such attribute, and this does not create it.
    void setCableDefaultType(const QString &tag, bool isDefault);

    /// Whether the cable's bundle has a name.
    bool cableIsInBundle(const QString &tag) const;
    /// Whether a cable has that bundle group number. Looks at all cables.
    bool bundleGroupNumExists(const QString &bundleGroupNum) const;

    /// The tags of the cables of a type, in document order.
    QStringList getCablesByType(const QString &type) const;
    /// The tags of the cables of that use, bundle or bundle group, in document order. These and the
    /// following look at all cables.
    QStringList getCablesByUse(const QString &use) const;
    QStringList getCablesByBundle(const QString &bundleName) const;
    QStringList getCablesByBundleGroup(const QString &bundleGroupNum) const;
    /// The tags of the cables with an end at that port or vertical run.
    QStringList getCablesByPort(const QString &tag) const;
    /// The tags of the cables with an end at a port or vertical run on that floor.
    QStringList getCablesByFloor(const QString &floorTag) const;
    /// Returns the tags of the cables that have this status, as getCableStatus() gives it.
    QStringList getCablesByStatus(const QString &status) const;

    // Test results of cables. But for getCableStatus(), these take a cable's tag and, if no cable has that tag, its id:
    // what addCable() returns. Of several cables with an id it is the one that getCableById() finds.

    /// Stores the results. Of the attributes that an older file lacks, only the tester's version and serial
    /// number are created; getCableTestResults() creates the others.
    void setCableTestResults(const QString &cable, const TestResults &results);
    /// The results; a default record for an unknown cable. What an older file lacks but for status and time
    /// is added with its default.
    TestResults getCableTestResults(const QString &cable);
    /// Returns the status alone: "UNTESTED" if the cable has no test results or they lack a status, empty if there is
    /// no cable with that tag.
    QString getCableStatus(const QString &tag) const;
    /// The measured length of a pair (0 to 3): its reading divided by the length constant, in pF per foot,
    /// of the type's test definition. To the nearest half metre (metric) or tenth of a foot. 0 for another
    /// pair. Reads, and may complete, the results.
    float getRoundedCableLength(const QString &cable, int pair, bool metric);
    /// The measured length of the cable, that of its shortest measured pair, likewise; when none was
    /// measured, a reading of -1 counts, so that the length is no more than 0. Uncorrected, the reading itself counts
    /// as feet: whole metres (metric, cut off) or feet, 0 when none was measured.
    float getMaxRoundedCableLength(const QString &cable, bool metric, bool uncorrected);

    // Lengths from the plan

    /// Returns the estimated length of a cable in feet, or in metres (metric). It is the sum of
    ///
    ///   - the straight lines from end to end along the path, at the scale of the floor plan ("FloorPlan_Settings"; 96
    ///     pixels are an inch of the drawing),
    ///   - the drop heights of both ends, from the ceiling down,
    ///   - for each way between two floors, the ceiling heights of the floors above the lower one, up to and including
    ///     the upper one, as far as the job has them. Cables run along ceilings, and the ceiling of the upper floor is
    ///     that many storeys above that of the lower one: from floor 1 to floor 2 it is the height of floor 2.
    ///
    /// Returns -1.0 if the plan has no scale, if an end or an entry of the path does not exist, or if the way leads to
    /// another floor without a vertical run. Adds settings that an older file lacks.
    double estimateCableLength(const QString &tag, bool metric);
    /// The lengths of all cables, by tag.
    QMap<QString, double> estimateCableLengths(bool metric);

    // Connections of devices

    /// Adds a connection behind the others and returns its id. See above for the mode. An empty string, and
    /// nothing changes, in a document without a list of connections.
    QString addConnection(const QString &tag, const QString &id, const QString &to, const QString &from,
                          const QString &type, int mode);
    QString addConnection(const QString &tag, const QString &id, const QString &to, const QString &from, int type,
                          int mode);
    QString addConnection(const DeviceConnection &connection, int mode);
    void removeConnection(const QString &tag);
    void removeConnection(const DeviceConnection &connection);
    /// The connection of that tag; an empty record when there is none.
    DeviceConnection getConnection(const QString &tag) const;
    /// The first tag, in string order, that has the id; empty when there is none.
    QString getConnectionTagById(const QString &id) const;
    QString getConnectionTo(const QString &tag) const;
    QString getConnectionFrom(const QString &tag) const;
    /// The type read as a number; 0 when it is none.
    int getConnectionType(const QString &tag) const;
    void setConnectionTo(const QString &tag, const QString &to);
    void setConnectionFrom(const QString &tag, const QString &from);
    void setConnectionType(const QString &tag, const QString &type);
    void setConnectionType(const QString &tag, int type);

    // The site, releases and notes. Setters of the site mark the document as changed, also when the value is
    // the same, and create an attribute that an older file lacks. Without the element nothing is stored, and
    // the getters return empty values.

    void setSiteContact(const QString &contact);
    void setSiteJobID(const QString &jobID);
    void setSiteCompany(const QString &company);
    void setSitePhone(const QString &phone);
    void setSiteEmail(const QString &email);
    void setSiteAddress(const Address &address);
    void setSiteData(const SiteData &data);
    void setSiteData(const QString &contact, const QString &jobID, const QString &company, const QString &phone,
                     const QString &email, const Address &address);
    QString getSiteContact() const;
    QString getSiteJobID() const;
    QString getSiteCompany() const;
    QString getSitePhone() const;
    QString getSiteEmail() const;
    Address getSiteAddress() const;
    SiteData getSiteData() const;

    /// Stores a value under a name. A name that is no XML name is refused, with a text in error(), and so is
    /// one more than 4096.
    void addRelease(const QString &name, const QString &value);
    /// The value of a name; empty when there is none.
    QString getRelease(const QString &name) const;
    /// Marks the document as changed even when there is no such name.
    void removeRelease(const QString &name);
    /// Stores the notes; the document changes only when they differ. Their element is created when an older
    /// file lacks it.
    void setJobNotesText(const QString &text);
    QString getJobNotesText() const;
    /// The list of connections, which is created when it is missing. The name is kept for callers that know
    /// it under this one.
    QDomElement getToJobNotesList();

private:
    friend class cabledoc::JobEditorPrivate;

    ~JobEditor() override;

    const std::unique_ptr<cabledoc::JobEditorPrivate> d;
};
