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

/// What the job document and the template document have in common: one XML tree in memory, the name of
/// its file, the text of the last failure, and whether the tree was changed since it was last created,
/// loaded or saved.
///
/// Failures are values: an operation that fails returns false or an empty value and, where it says so,
/// leaves a text in error(). A document and all that is read from it belong to one thread at a time.
class CABLEDOC_EXPORT BKXMLEditor : public QObject
{
    Q_OBJECT

public:
    /// An empty document, unchanged, without a file name.
    explicit BKXMLEditor(const QString &documentTypeName);
    /// A document that shares the other's tree, file name and error text, with the same parent, and is
    /// unchanged.
    BKXMLEditor(BKXMLEditor &other);
    /// Shares the other's tree and takes its file name and error text. The target stays changed or
    /// unchanged as it was.
    BKXMLEditor &operator=(const BKXMLEditor &other);
    ~BKXMLEditor() override;

    /// Full path of the document's file; empty when there is none. May be assigned through.
    QString &filename();
    /// Sets the path without any check. Does not change the document.
    void setFilename(const QString &filename);
    /// The last failure in words for the user, or a status word; empty when there was none. May be
    /// assigned through.
    QString &error();

    // Reading and writing files. These settings belong to the document object, not to its content.

    /// Lets a save write characters beyond Latin-1 in texts and values as numeric references, which every XML reader
    /// understands. Off by default: they become "?" then. In comments and CDATA sections, which cannot hold references,
    /// they always do.
    void setCharacterReferences(bool on);
    bool characterReferences() const;
    /// Returns how many characters the last save or saveAs() wrote as "?".
    qint64 replacedCharacters() const;
    /// The size in bytes above which a file is not read if nothing else is set.
    static constexpr qint64 defaultMaximumFileSize = qint64(4) << 30;
    /// Sets the size in bytes above which a file is not read. A document needs some forty times the size of its file in
    /// memory.
    void setMaximumFileSize(qint64 bytes);
    qint64 maximumFileSize() const;
    /// Whether a save or saveAs() may replace a file that the document was neither read from nor written to. True by
    /// default. If not, such a file is only ever created, and of two programs that create it at the same time one
    /// fails.
    void setReplacesUnknownFiles(bool on);
    bool replacesUnknownFiles() const;

    // Print, page and scale settings, one entry for each report or view: "JobInfo_Settings",
    // "NetView_Settings", "Inventory_Settings", "FloorPlan_Settings", "TestSched_Settings",
    // "DetailedCable_Settings", "JobNotes_Settings", "ActiveNetworkTestResults_Settings". Page and scale
    // settings exist for "NetView_Settings" and "FloorPlan_Settings" only.

    /// Stores the settings of the named entry, which is created when it is missing. Changes the document
    /// only by what differs from the stored settings; nothing is stored for an unknown name or in a
    /// document without the list of settings.
    void setPrintSettings(const PrintSettings &settings, const QString &name);
    void setPageSettings(const PageSettings &settings, const QString &name);
    void setScaleSettings(const ScaleSettings &settings, const QString &name);

    /// The settings of the named entry; default settings for an unknown name or in a document without
    /// the list of settings. Changes the document when a known entry, or an attribute of it, is missing:
    /// it is added with its default.
    PrintSettings getPrintSettings(const QString &name);
    PageSettings getPageSettings(const QString &name);
    ScaleSettings getScaleSettings(const QString &name);

    /// Adds the default settings to parent, and an empty "JobNotes_Text". What parent has of it already stays as it is,
    /// so that this brings an older document up to date too. Does nothing for a null element.
    void addSettingsList(QDomElement *parent);

    // Test definitions, one for each cable type, known by their names. Without the list of definitions
    // nothing is stored and nothing found.

    /// Adds a definition. One of that name that is there already stays as it is. The length constant and
    /// the maximum length are stored without their fractions.
    void addTestDef(const TestDef &definition);
    /// The same for several, with one walk over the list.
    void addTestDefs(const QVector<TestDef> &definitions);
    /// Nothing when there is none of that name. The new name is not checked.
    void renameTestDef(const QString &oldName, const QString &newName);
    void removeTestDef(const QString &name);
    /// The definition of that name; a default definition with that name when there is none.
    TestDef getTestDef(const QString &name) const;
    /// All definitions in document order: of those that share a name the first, and none without a name. Empty when
    /// there are none.
    QVector<TestDef> getTestDefs() const;
    bool testDefExists(const QString &name) const;
    /// Whether there is a definition whose element has that tag.
    bool testDefElementExists(const QString &tag) const;
    /// The tags, and the names, of all definitions in document order.
    QStringList getTestDefElements() const;
    QStringList getTestDefNames() const;

    // Bundles of cable types. Without the list of bundles nothing is stored and nothing found.

    /// Adds a bundle of that name. One that is there already stays as it is. Types after the eighth are not
    /// stored.
    void addBundledCableType(const QString &id, const QStringList &types, const QString &color,
                             const bool &defaultType);
    /// The same from a record, whose tag does not count.
    void addBundledCableType(const BundledCable &bundle);
    /// The same for several, with one walk over the list.
    void addBundledCableTypes(const QVector<BundledCable> &bundles);
    /// Nothing when there is none of that name, or tag. The new name is not checked.
    void renameBundledCableType(const QString &oldName, const QString &newName);
    void removeBundledCableTypeByTag(const QString &tag);
    /// The bundle of that name; a record whose id is "error" when there is none.
    BundledCable getBundledCableType(const QString &name) const;
    /// All bundles in document order: of those that share a name the first, and none without a name. Empty when there
    /// are none.
    QVector<BundledCable> getBundledCableTypes() const;
    /// The name of a tag and the tag of a name; empty when there is none.
    QString getBundledCableTypeIdByTag(const QString &tag) const;
    QString getBundledCableTypeTagById(const QString &id) const;
    /// All tags, and all names, in document order.
    QStringList getBundledCableTypeTags() const;
    QStringList getBundledCableTypeIds() const;
    bool bundledCableTypeTagExists(const QString &tag) const;
    bool bundledCableTypeIdExists(const QString &id) const;

    // The contractor. Each setter marks the document as changed, also when the value is the same, and
    // creates an attribute that an older file lacks. Without the element nothing is stored, and the getters
    // return empty values.

    void setContractorTester(const QString &tester);
    void setContractorCompany(const QString &company);
    void setContractorEmail(const QString &email);
    void setContractorPhone(const QString &phone);
    void setContractorLogo(const QString &logo);
    void setContractorAddress(const Address &address);
    void setContractorData(const ContractorData &data);
    void setContractorData(const QString &tester, const QString &company, const QString &email, const QString &phone,
                           const QString &logo, const Address &address);
    QString getContractorTester() const;
    QString getContractorCompany() const;
    QString getContractorEmail() const;
    QString getContractorPhone() const;
    QString getContractorLogo() const;
    Address getContractorAddress() const;
    ContractorData getContractorData() const;

    // The text forms of test data. None of these touches the document.

    /// 96 hexadecimal digits: the fields in their order, each 32-bit one by its lower 16 bits.
    static QString dataToString(const cable_struct &block);
    /// Reads them back. word_group_c and word_group_d have -1 for 0xFFFF, the other groups 65535. Only
    /// upper-case digits count. What the text is too short for keeps its untested value.
    static cable_struct stringToData(const QString &text);
    /// The samples of a curve and their count, each followed by a comma; empty for a curve that does not
    /// hold 257. The header is left out.
    static QString responseDataToString(const TRUEPHY_PLOT_DATA &curve);
    /// Reads it back. What is missing or no number is 0, and so is the header.
    static TRUEPHY_PLOT_DATA responseStringToData(const QString &text);

protected:
    /// Creates a document around what it is made of. For the classes of this library.
    explicit BKXMLEditor(std::unique_ptr<cabledoc::Document> inside);
    /// Returns what the document is made of. For the classes of this library.
    cabledoc::Document &inside() const { return *m_inside; }
    /// Returns a handle to the tree. A change that is made through it does not mark the document as changed.
    QDomDocument document() const;

    /// Whether the tree was changed since it was last created, loaded or saved.
    bool fileChanged() const;
    void setDirty(bool dirty);

    // Finding elements. Elements are handles into the tree and live as long as it does.

    /// The first child of the root element. The document's first child is taken for the root, whatever
    /// it is; null when there is none or it is empty.
    QDomNode getDomNodeFirstChild() const;
    /// The first element named tagName among start and the siblings that follow it; null when there is
    /// none. Never looks into children.
    static QDomElement getChildElement(const QString &tagName, const QDomNode &start);
    static bool hasChildElement(const QString &tagName, const QDomNode &start);
    /// The first child of the root named tagName; null when there is none.
    QDomElement getElement(const QString &tagName) const;

    // Reading and writing attributes. None of these sets the dirty flag.

    /// The attribute's value; null for a null element or a missing attribute.
    static QString getChildAttr(const QString &attribute, const QDomElement &element);
    /// Sets an attribute that the element has. A missing attribute is deliberately not created: elements
    /// get all their attributes when they are added.
    void setChildAttr(const QString &attribute, const QString &value, QDomElement &element);
    /// The same for the attribute "id".
    static QString getElementId(const QDomElement &element);
    void setElementId(const QString &id, QDomElement &element);

    // The containers that both documents have; null when the path to them does not exist.
    QDomElement getToTestDefList() const;
    QDomElement getToBundledCableTypeList() const;
    QDomElement getToPrintSettingsList() const;
    QDomElement getToPageSettingsList() const;
    QDomElement getToScaleSettingsList() const;

    /// Four flags as "0" and "1", in their order.
    static QString boolArrayToString(const bool *flags);
    /// Reads four flags. False at the first character that is neither "0" nor "1", or missing: the flags
    /// before it are written, the others are not.
    static bool stringToBoolArray(const QString &text, bool *flags);

    // Bringing an older file up to date. Each step brings the tree of one version to the next: it sets the
    // version, adds what the newer one brought where the file lacks it, and returns true. Both arguments
    // are the root.

    bool convert11To14(QDomElement *root, QDomNode *rootNode);
    bool convert12To14(QDomElement *root, QDomNode *rootNode);
    bool convert13To14(QDomElement *root, QDomNode *rootNode);
    bool convert14To21(QDomElement *root, QDomNode *rootNode);
    bool convert21To22(QDomElement *root, QDomNode *rootNode);
    bool convert22To23(QDomElement *root, QDomNode *rootNode);
    bool convert23To30(QDomElement *root, QDomNode *rootNode);
    /// Takes the tree through all steps that its version needs. After each it calls stepDone, and gives up
    /// when that fails. True when the tree now has the current version.
    bool convertToCurrentVersion(const std::function<bool()> &stepDone);
    /// The version that the tree says it has; empty when it says none.
    QString version() const;

private:
    const std::unique_ptr<cabledoc::Document> m_inside;
};
