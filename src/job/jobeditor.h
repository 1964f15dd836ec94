#pragma once

#include "bkxmleditor.h"
#include "cable.h"
#include "cabledoc_export.h"
#include "deviceconnection.h"
#include "floor.h"
#include "room.h"
#include "sheet.h"
#include "sitedata.h"

#include <QtCore/QMap>
#include <QtCore/QPoint>
#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <memory>

class BktEditor;

namespace cabledoc {
struct JobIndex;
}

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
/// Latin-1: what they cannot hold becomes "?" on saving.
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
    /// in error(), when the name is empty, or the file is missing, cannot be opened (the open job is as it
    /// was, under the new name), is no XML (the document is empty) or has a version that is not supported
    /// (the document holds it as it was read). An older job is brought to version 3.0; its file stays as it
    /// is until the job is saved, and the conversion does not count as a change.
    virtual bool Load(const QString &filename);
    /// Empties the document and its name and sets error() to "Unloading". Tags and ids are still known to
    /// existence tests and lists until the next New() or Load().
    virtual void Unload();
    /// Writes the document to its file. False, with a text in error(), when it has no name or no content
    /// or cannot be written; the file is then as it was, and the document stays changed. A process that
    /// may run into a file-size limit has to ignore SIGXFSZ to get this answer.
    virtual bool save();
    /// Writes the document to another file, which it belongs to from then on. An existing file is
    /// replaced; ".job" is not added. On a failure nothing changes, as with save().
    virtual bool saveAs(const QString &filename);

    /// Whether the document was changed since it was last created, loaded or saved.
    using BKXMLEditor::fileChanged;
    using BKXMLEditor::setDirty;
    /// Whether the file name has the extension "job", in any case.
    static bool checkJobExtension(const QString &filename);
    /// Whether the file name begins with "untitled", in any case, before its first dot.
    static bool checkUntitledJob(const QString &filename);

    // Templates. What a job has is copied as it is, empty texts included; definitions and bundles are known by
    // their names, and those that the target has stay as they are.

    /// Takes over the contractor and the settings of a template, and the test definitions and bundles that the
    /// job lacks.
    void Import(BktEditor *bkt);
    /// Takes over those default test definitions, and those bundles, of a template that the job lacks.
    void ImportMissingDefaultCableTypes(BktEditor *bkt);
    /// Writes contractor, settings, test definitions and bundles to a file as a new template, which replaces the
    /// one in the template document and stays open there. False, with a text in error(), when the name is empty
    /// or that of a directory (the open template is as it was), or the file cannot be written. Entries of the
    /// settings that the job lacks are added to it with their defaults.
    bool Export(const QString &filename);
    /// The file of the default template. Setting an empty path changes nothing. Not part of the document.
    void setDefaultBktFile(const QString &filename);
    const QString &defaultBktFile() const { return m_defaultBktFile; }
    /// A number for the application's use; initially 0. Not part of the document.
    int getRelease() const { return m_release; }
    void setRelease(int release) { m_release = release; }

    // Index: rebuilding

    /// Rebuilds all indexes from the tree. The document's own operations keep them in step; a caller needs
    /// this only after changing elements that the navigation operations returned.
    void updateAllInternalLists();
    /// Each rebuilds one index. Of elements that share a tag the first in document order counts.
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
    /// Whether one of the rooms of that floor has that text as its tag (byTag) or as its id.
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
    QString getPortIdByTag(const QString &tag) const;
    QString getVertRunIdByTag(const QString &tag) const;
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
    /// Removes a floor with all that is on it, and the cables that end there.
    void removeFloor(const QString &tag);
    void removeFloor(const Floor &floor);

    /// The floor of that tag; an empty record when there is none. What the element lacks has its default
    /// in the record only.
    Floor getFloor(const QString &tag) const;
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
    /// Removes a sheet with all that is on it.
    void removeSheet(const QString &tag);

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

    void setRoomPos(const QString &floorTag, const QString &id, int x, int y, int width, int height);
    /// Renames a room.
    void setRoomName(const QString &floorTag, const QString &id, const QString &newId);
    /// Position of the name's label.
    void setRoomNamePos(const QString &floorTag, const QString &id, const QPoint &position);
    void setRoomLayer(const QString &floorTag, const QString &id, int layer);
    void setShowRoomName(const QString &floorTag, const QString &id, int show);
    void setShowRoomDimensions(const QString &floorTag, const QString &id, int show);

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
    /// The tags of the cables whose test has that status.
    QStringList getCablesByStatus(const QString &status) const;

    // Test results of cables

    /// Stores the results. Of the attributes that an older file lacks, only the tester's version and serial
    /// number are created; getCableTestResults() creates the others.
    void setCableTestResults(const QString &cableTag, const TestResults &results);
    /// The results; a default record for an unknown cable. What an older file lacks but for status and time
    /// is added with its default.
    TestResults getCableTestResults(const QString &cableTag);
    /// The status alone; empty for a cable without test results.
    QString getCableStatus(const QString &cableTag) const;
    /// The measured length of a pair (0 to 3): its reading divided by the length constant, in pF per foot,
    /// of the type's test definition. To the nearest half metre (metric) or tenth of a foot. 0 for another
    /// pair. Reads, and may complete, the results.
    float getRoundedCableLength(const QString &cableTag, int pair, bool metric);
    /// The measured length of the cable, that of its shortest measured pair, likewise; when none was
    /// measured, a reading of -1 counts, so that the length is no more than 0. Uncorrected, the reading itself counts
    /// as feet: whole metres (metric, cut off) or feet, 0 when none was measured.
    float getMaxRoundedCableLength(const QString &cableTag, bool metric, bool uncorrected);

    // Connections of devices

    /// Adds a connection behind the others and returns its id. See above for the mode. An empty string, and
    /// nothing changes, in a document without a list of connections.
    QString addConnection(const QString &tag, const QString &id, const QString &to, const QString &from,
                          const QString &type, int mode);
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
    friend class JobEditorProbe; // what tests may see

    ~JobEditor() override;

    bool refuseWhenOpen();
    void create(double ceilingHeight);
    void addSkeleton(QDomElement root);
    bool checkVersion();
    bool mayBeName(const QString &name);
    bool mayBeFile(const QString &filename, const QString &extension);
    void changeAttribute(QDomElement element, const QString &attribute, const QString &value);

    QDomElement floorElement(const QString &tag) const;
    QDomElement sheetElement(const QString &tag) const;
    QDomElement roomElement(const QString &floorTag, const QString &tag) const;
    QDomElement roomElementById(const QString &floorTag, const QString &id) const;

    QStringList getFloorsInBetween(const QString &tagA, const QString &tagB) const;
    QString completedFloorAttribute(const QString &tag, const QString &attribute);
    void writeFloorAttribute(const QString &tag, const QString &attribute, const QString &value);
    QDomElement undefinedRoomElement(const QDomElement &roomList);
    void completeNewRoom(const QDomElement &room);
    void addMissingContainers(const QDomElement &root);
    void addRoomContainers(const QDomElement &room);
    void addSheetContainers(const QDomElement &sheet);
    QDomElement cableElement(const QString &tag) const;
    QString newCableTag() const;
    QString newCableId() const;
    QStringList cablesEndingAt(const QSet<QString> &ends) const;
    void forgetCableLists();
    float correctedLength(int reading, const QString &cableTag) const;

    QString newRoomTag() const;
    QString newRoomId(const QString &floorTag, const QString &prefix) const;
    Room readRoom(const QDomElement &element);
    void writeRoomAttributes(const QString &floorTag, const QString &id, const QMap<QString, int> &values);

    static JobEditor *s_instance;

    std::unique_ptr<cabledoc::JobIndex> m_index;
    QString m_defaultBktFile;
    int m_release = 0;
};
