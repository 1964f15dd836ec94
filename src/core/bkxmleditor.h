#pragma once

#include "bundledcable.h"
#include "cabledoc_export.h"
#include "contractordata.h"
#include "pagesettings.h"
#include "printsettings.h"
#include "scalesettings.h"
#include "testdata.h"
#include "testdef.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtXml/QDomDocument>

#include <functional>
#include <memory>

namespace cabledoc {
class Document;
} // namespace cabledoc

/// The common base of the job document and the template document. It holds an XML tree in memory, the name of its file,
/// the text of the last failure, and whether the tree has been changed since it was last created, loaded or saved.
///
/// Failures are values: an operation that fails returns false or an empty value and, where its description says so,
/// leaves a text in error(). No operation throws an exception to report a failure.
///
/// A document, and the elements that it returns, must be used by one thread at a time.
class CABLEDOC_EXPORT BKXMLEditor : public QObject
{
    Q_OBJECT

public:
    /// @name The document
    /// @{

    /// Creates an empty document that is not changed and has no file name.
    explicit BKXMLEditor(const QString &documentTypeName);
    /// Creates a document that shares the tree of other. The file name, the text in error(), the settings for files and
    /// the parent are those of other. The new document is not marked as changed.
    BKXMLEditor(BKXMLEditor &other);
    /// Makes this document share the tree of other, and takes over its file name and the text in error(). Whether this
    /// document is marked as changed, and its settings for files, stay as they are.
    BKXMLEditor &operator=(const BKXMLEditor &other);
    /// Destroys the document. The tree remains as long as other documents or elements refer to it. Changes are not
    /// saved.
    ~BKXMLEditor() override;

    /// Returns a reference to the path of the document's file, through which it can be changed. The path is empty if
    /// the document has no file.
    QString &filename();
    /// Sets the path of the document's file. The path is not checked, and the document is not marked as changed.
    void setFilename(const QString &filename);
    /// Returns a reference to the text of the last failure, through which it can be changed. The text is meant for the
    /// user, or is a status such as "Unloading". It is empty if nothing has failed.
    QString &error();
    /// @}

    /// @name Settings for files
    /// These settings belong to the document object and are not saved.
    /// @{

    /// Sets whether a save writes characters beyond Latin-1 as numeric references, which every XML reader understands.
    /// This is off by default, and such characters become "?". In comments and CDATA sections, which cannot hold
    /// references, they become "?" in any case.
    void setCharacterReferences(bool on);
    /// Returns whether a save writes characters beyond Latin-1 as references.
    bool characterReferences() const;
    /// Returns whether a save keeps all characters of the text.
    bool canHold(const QString &text) const;
    /// Returns how many characters the last successful save wrote as "?".
    qint64 replacedCharacters() const;
    /// Default of maximumFileSize(): 4 GiB.
    static constexpr qint64 defaultMaximumFileSize = qint64(4) << 30;
    /// Sets the size in bytes above which a file is not read. A document needs about forty times the size of its file
    /// in memory.
    void setMaximumFileSize(qint64 bytes);
    /// Returns the size in bytes above which a file is not read.
    qint64 maximumFileSize() const;
    /// Sets whether a save may replace a file that the document was neither read from nor written to. This is on by
    /// default. If it is off, a save only creates such a file and fails if the file exists. If two programs create it
    /// at the same time, one of them fails.
    void setReplacesUnknownFiles(bool on);
    /// Returns whether a save may replace a file that the document was neither read from nor written to.
    bool replacesUnknownFiles() const;
    /// @}

    /// @name Print, page and scale settings
    /// There is one entry of print settings for each report or view: "JobInfo_Settings", "NetView_Settings",
    /// "Inventory_Settings", "FloorPlan_Settings", "TestSched_Settings", "DetailedCable_Settings", "JobNotes_Settings"
    /// and "ActiveNetworkTestResults_Settings". Page and scale settings exist only for "NetView_Settings" and
    /// "FloorPlan_Settings".
    ///
    /// The setters create a missing entry, and change the document only where the new settings differ from the stored
    /// ones. They do nothing for an unknown name, or in a document without a list of settings.
    ///
    /// The getters return default settings for an unknown name, or in a document without a list of settings. They add a
    /// missing entry or attribute to the document, with its default value.
    /// @{

    /// Stores the print settings of the report or view with the given name.
    void setPrintSettings(const PrintSettings &settings, const QString &name);
    /// Stores the page settings of the view with the given name.
    void setPageSettings(const PageSettings &settings, const QString &name);
    /// Stores the scale settings of the view with the given name.
    void setScaleSettings(const ScaleSettings &settings, const QString &name);

    /// Returns the print settings of the report or view with the given name.
    PrintSettings getPrintSettings(const QString &name);
    /// Returns the page settings of the view with the given name.
    PageSettings getPageSettings(const QString &name);
    /// Returns the scale settings of the view with the given name.
    ScaleSettings getScaleSettings(const QString &name);

    /// Adds the default settings of all reports and views and an empty element for notes to parent, and marks the
    /// document as changed. What parent already has stays as it is, so this also completes an older document. Does
    /// nothing for a null pointer or a null element.
    void addSettingsList(QDomElement *parent);
    /// @}

    /// @name Test definitions
    /// Each cable type has one test definition, which has the name of the type. In a document without a list of
    /// definitions, nothing is stored and nothing is found.
    /// @{

    /// Adds a definition. Does nothing if there is already one with its name. The length constant and the maximum
    /// length are stored without their fractions.
    void addTestDef(const TestDef &definition);
    /// Adds those definitions whose names are not in the list yet. This is faster than adding them one by one.
    void addTestDefs(const QVector<TestDef> &definitions);
    /// Renames the definition with the given name. The new name is not checked. Does nothing if there is no such
    /// definition.
    void renameTestDef(const QString &oldName, const QString &newName);
    /// Removes the definition with the given name. Does nothing if there is none.
    void removeTestDef(const QString &name);
    /// Returns the definition with the given name, or a default definition with that name if there is none.
    TestDef getTestDef(const QString &name) const;
    /// Returns all definitions that have a name, in document order. Of several with the same name, only the first is
    /// returned.
    QVector<TestDef> getTestDefs() const;
    /// Returns whether there is a definition with the given name.
    bool testDefExists(const QString &name) const;
    /// Returns whether there is a definition whose element has the given tag.
    bool testDefElementExists(const QString &tag) const;
    /// Returns the tags of all definitions in document order.
    QStringList getTestDefElements() const;
    /// Returns the names of all definitions in document order.
    QStringList getTestDefNames() const;
    /// @}

    /// @name Bundles
    /// A bundle names the cable types that are pulled together. In a document without a list of bundles, nothing is
    /// stored and nothing is found.
    /// @{

    /// Adds a bundle with the given name. Does nothing if there is already one with this name. Types after the eighth
    /// are not stored.
    void addBundledCableType(const QString &id, const QStringList &types, const QString &color,
                             const bool &defaultType);
    /// Adds a bundle from a record. The record's tag does not count, because tags are generated. Does nothing if there
    /// is already a bundle with the record's name.
    void addBundledCableType(const BundledCable &bundle);
    /// Adds those bundles whose names are not in the list yet. This is faster than adding them one by one.
    void addBundledCableTypes(const QVector<BundledCable> &bundles);
    /// Renames the bundle with the given name. The new name is not checked. Does nothing if there is no such bundle.
    void renameBundledCableType(const QString &oldName, const QString &newName);
    /// Removes the bundle with the given tag. Does nothing if there is none.
    void removeBundledCableTypeByTag(const QString &tag);
    /// Returns the bundle with the given name, or a record with the id "error" if there is none.
    BundledCable getBundledCableType(const QString &name) const;
    /// Returns all bundles that have a name, in document order. Of several with the same name, only the first is
    /// returned.
    QVector<BundledCable> getBundledCableTypes() const;
    /// Returns the name of the bundle with the given tag, or an empty string if there is none.
    QString getBundledCableTypeIdByTag(const QString &tag) const;
    /// Returns the tag of the bundle with the given name, or an empty string if there is none.
    QString getBundledCableTypeTagById(const QString &id) const;
    /// Returns the tags of all bundles in document order.
    QStringList getBundledCableTypeTags() const;
    /// Returns the names of all bundles in document order.
    QStringList getBundledCableTypeIds() const;
    /// Returns whether there is a bundle with the given tag.
    bool bundledCableTypeTagExists(const QString &tag) const;
    /// Returns whether there is a bundle with the given name.
    bool bundledCableTypeIdExists(const QString &id) const;
    /// @}

    /// @name The contractor
    /// The setters mark the document as changed even if the value stays the same, and create an attribute that an older
    /// file lacks. If the document has no element for the contractor, they store nothing, and the getters return empty
    /// values.
    /// @{

    /// Sets the name of the person who tested the cables.
    void setContractorTester(const QString &tester);
    /// Sets the name of the contractor's company.
    void setContractorCompany(const QString &company);
    /// Sets the contractor's email address.
    void setContractorEmail(const QString &email);
    /// Sets the contractor's telephone number.
    void setContractorPhone(const QString &phone);
    /// Sets the path or name of the picture with the contractor's logo.
    void setContractorLogo(const QString &logo);
    /// Sets the contractor's postal address.
    void setContractorAddress(const Address &address);
    /// Sets all data of the contractor from a record.
    void setContractorData(const ContractorData &data);
    /// Sets all data of the contractor from single values.
    void setContractorData(const QString &tester, const QString &company, const QString &email, const QString &phone,
                           const QString &logo, const Address &address);
    /// Returns the name of the person who tested the cables.
    QString getContractorTester() const;
    /// Returns the name of the contractor's company.
    QString getContractorCompany() const;
    /// Returns the contractor's email address.
    QString getContractorEmail() const;
    /// Returns the contractor's telephone number.
    QString getContractorPhone() const;
    /// Returns the path or name of the picture with the contractor's logo.
    QString getContractorLogo() const;
    /// Returns the contractor's postal address.
    Address getContractorAddress() const;
    /// Returns all data of the contractor.
    ContractorData getContractorData() const;
    /// @}

    /// @name The text forms of test data
    /// Files store test data in these forms. None of these operations reads or changes a document.
    /// @{

    /// Returns the text of a block: its fields in their order as 96 upper-case hexadecimal digits. Only the lower 16
    /// bits of a 32-bit field are used.
    static QString dataToString(const cable_struct &block);
    /// Returns the block that a text of dataToString() stands for. 0xFFFF becomes -1 in word_group_c and word_group_d,
    /// and 65535 in the other groups. Only upper-case digits are read correctly. Fields that are missing at the end of
    /// the text have the values of an untested block.
    static cable_struct stringToData(const QString &text);
    /// Returns the text of a curve: its samples and their number, each followed by a comma. The header is left out.
    /// Returns an empty string for a curve that does not hold 257 samples.
    static QString responseDataToString(const TRUEPHY_PLOT_DATA &curve);
    /// Returns the curve that a text of responseDataToString() stands for. Numbers that are missing or cannot be read
    /// are 0, and so is the header.
    static TRUEPHY_PLOT_DATA responseStringToData(const QString &text);
    /// @}

protected:
    /// @name The mark of a change
    /// @{

    /// Returns whether the tree has been changed since it was last created, loaded or saved.
    bool fileChanged() const;
    /// Sets whether the document is marked as changed.
    void setDirty(bool dirty);
    /// @}

    /// @name Finding elements
    /// The returned elements are handles into the tree and are valid as long as it exists.
    /// @{

    /// Returns a handle to the tree. A change through it does not mark the document as changed.
    QDomDocument document() const;

    /// Returns the first child of the root element, or a null node if there is none. The first child of the document
    /// counts as the root, even if it is not an element.
    QDomNode getDomNodeFirstChild() const;
    /// Returns the first element with the given tag name among start and the siblings after it, or a null element if
    /// there is none. Children are not searched.
    static QDomElement getChildElement(const QString &tagName, const QDomNode &start);
    /// Returns whether start or a sibling after it is an element with the given tag name.
    static bool hasChildElement(const QString &tagName, const QDomNode &start);
    /// Returns the first child of the root with the given tag name, or a null element if there is none.
    QDomElement getElement(const QString &tagName) const;
    /// @}

    /// @name Reading and writing attributes
    /// None of these operations marks the document as changed.
    /// @{

    /// Returns the value of an attribute, or a null string if the element is null or lacks the attribute.
    static QString getChildAttr(const QString &attribute, const QDomElement &element);
    /// Sets the value of an attribute that the element has. A missing attribute is deliberately not created: elements
    /// get all their attributes when they are added. Does nothing for a null element.
    void setChildAttr(const QString &attribute, const QString &value, QDomElement &element);
    /// Returns the value of the attribute "id", or a null string if the element is null or lacks it.
    static QString getElementId(const QDomElement &element);
    /// Sets the value of the attribute "id" if the element has it.
    void setElementId(const QString &id, QDomElement &element);
    /// @}

    /// @name Containers of both documents
    /// @{

    /// Returns the element that holds the test definitions, or a null element if there is none.
    QDomElement getToTestDefList() const;
    /// Returns the element that holds the bundles, or a null element if there is none.
    QDomElement getToBundledCableTypeList() const;
    /// Returns the element that holds the print settings, or a null element if there is none.
    QDomElement getToPrintSettingsList() const;
    /// Returns the element that holds the page settings, or a null element if there is none.
    QDomElement getToPageSettingsList() const;
    /// Returns the element that holds the scale settings, or a null element if there is none.
    QDomElement getToScaleSettingsList() const;
    /// @}

    /// @name Flags as text
    /// @{

    /// Returns the text of four flags: "0" or "1" for each, in their order.
    static QString boolArrayToString(const bool *flags);
    /// Reads four flags from a text and returns true. Returns false at the first character that is missing or is
    /// neither "0" nor "1". The flags before it are written, the others stay as they are.
    static bool stringToBoolArray(const QString &text, bool *flags);
    /// @}

    /// @name Converting older files
    /// Each step converts the tree from one version to the next and returns true. It sets the version and adds what the
    /// newer version has and the file lacks. Both arguments of a step are the root. No step saves the file.
    /// @{

    /// Converts a tree of version 1.1 to version 1.4: adds an empty logo to the contractor, and does what
    /// convert12To14() does.
    bool convert11To14(QDomElement *root, QDomNode *rootNode);
    /// Converts a tree of version 1.2 to version 1.4: divides the length constants by ten, because their unit has
    /// changed, gives the test definitions new tags, and lengthens their expected blocks.
    bool convert12To14(QDomElement *root, QDomNode *rootNode);
    /// Converts a tree of version 1.3 to version 1.4 like convert12To14(), but keeps the length constants, which
    /// already have the newer unit.
    bool convert13To14(QDomElement *root, QDomNode *rootNode);
    /// Converts a tree of version 1.4 to version 2.1: adds the test definition "RG-59" and the settings of reports and
    /// views.
    bool convert14To21(QDomElement *root, QDomNode *rootNode);
    /// Converts a tree of version 2.1 to version 2.2: gives the test definitions unique tags and colours, appends their
    /// connectors to their comments, and adds the built-in bundles and the print settings of the inventory.
    bool convert21To22(QDomElement *root, QDomNode *rootNode);
    /// Converts a tree of version 2.2 to version 2.3, which differ only in the version itself.
    bool convert22To23(QDomElement *root, QDomNode *rootNode);
    /// Converts a tree of version 2.3 to version 3.0: adds the test definitions of crossed cables, and turns the print
    /// settings "NetworkDevices_Settings" into "Inventory_Settings" with default values.
    bool convert23To30(QDomElement *root, QDomNode *rootNode);
    /// Takes the tree through all steps from its version to the current one. Calls stepDone after each step, and stops
    /// if it returns false. Returns true if the tree has the current version afterwards.
    bool convertToCurrentVersion(const std::function<bool()> &stepDone);
    /// Returns the version named in the tree, or an empty string if there is none.
    QString version() const;
    /// @}

    /// @name The inside, for the classes of this library
    /// @{

    /// Creates a document that is made of the given inside.
    explicit BKXMLEditor(std::unique_ptr<cabledoc::Document> inside);
    /// Returns the inside: the tree, the file and the error text.
    cabledoc::Document &inside() const { return *m_inside; }
    /// @}

private:
    friend class cabledoc::Document;

    const std::unique_ptr<cabledoc::Document> m_inside;
};
