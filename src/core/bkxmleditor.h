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
class KnownFiles;
namespace xmlfile {
struct AttributeOrder;
}
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
    QString &filename() { return m_filename; }
    /// Sets the path without any check. Does not change the document.
    void setFilename(const QString &filename) { m_filename = filename; }
    /// The last failure in words for the user, or a status word; empty when there was none. May be
    /// assigned through.
    QString &error() { return m_error; }

    // Reading and writing files. These settings belong to the document object, not to its content.

    /// Lets a save write characters beyond Latin-1 in texts and values as numeric references, which every XML reader
    /// understands. Off by default: they become "?" then. In comments and CDATA sections, which cannot hold references,
    /// they always do.
    void setCharacterReferences(bool on) { m_writesReferences = on; }
    bool characterReferences() const { return m_writesReferences; }
    /// Returns how many characters the last save or saveAs() wrote as "?".
    qint64 replacedCharacters() const { return m_replacedCharacters; }
    /// The size in bytes above which a file is not read if nothing else is set.
    static constexpr qint64 defaultMaximumFileSize = qint64(4) << 30;
    /// Sets the size in bytes above which a file is not read. A document needs some forty times the size of its file in
    /// memory.
    void setMaximumFileSize(qint64 bytes) { m_maximumFileSize = bytes; }
    qint64 maximumFileSize() const { return m_maximumFileSize; }
    /// Whether a save or saveAs() may replace a file that the document was neither read from nor written to. True by
    /// default. If not, such a file is only ever created, and of two programs that create it at the same time one
    /// fails.
    void setReplacesUnknownFiles(bool on) { m_replacesUnknownFiles = on; }
    bool replacesUnknownFiles() const { return m_replacesUnknownFiles; }

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
    /// Whether the tree was changed since it was last created, loaded or saved.
    bool fileChanged() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }

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
    static void setChildAttr(const QString &attribute, const QString &value, QDomElement &element);
    /// The same for the attribute "id".
    static QString getElementId(const QDomElement &element);
    static void setElementId(const QString &id, QDomElement &element);

    // The containers that both documents have; null when the path to them does not exist.
    QDomElement getToTestDefList() const;
    QDomElement getToBundledCableTypeList() const;
    QDomElement getToPrintSettingsList() const;
    QDomElement getToPageSettingsList() const;
    QDomElement getToScaleSettingsList() const;

    // What a new document holds. What parent has of it already stays as it is, so that these bring an older
    // document up to date too.

    /// Adds an element with empty attributes of these names and an empty "Address" in it.
    void addInfo(const QString &tagName, const QStringList &attributes, const QDomElement &parent);

    /// Writes an attribute of a child of the root, or of the "Address" in it, creating it when it is
    /// missing, and marks the document as changed. Nothing without the child.
    void writeInfo(const QString &elementName, const QString &attribute, const QString &value);
    void writeInfoAddress(const QString &elementName, const Address &address);
    Address readInfoAddress(const QString &elementName) const;

    /// Four flags as "0" and "1", in their order.
    static QString boolArrayToString(const bool *flags);
    /// Reads four flags. False at the first character that is neither "0" nor "1", or missing: the flags
    /// before it are written, the others are not.
    static bool stringToBoolArray(const QString &text, bool *flags);

    // Changing lists of elements. These mark the document as changed, but for appendElement().

    /// Appends a new element to parent.
    QDomElement appendElement(const QString &tagName, QDomNode parent);
    /// The first child element of parent with that name, which is appended when there is none.
    QDomElement ensureElement(const QString &tagName, const QDomNode &parent);
    /// Gives the element another "id"; nothing for a null element.
    void renameElement(QDomElement element, const QString &id);
    /// Takes the element out of the tree; nothing for a null element.
    void removeElement(const QDomElement &element);

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

    // Files

    /// Whether the file name has that extension, in any case.
    static bool hasExtension(const QString &filename, const QString &extension);
    /// Whether the file name says where to save; the extension alone does not.
    static bool namesAFile(const QString &filename, const QString &extension);

    /// What a load that fails tells the user. "%1" stands for the file name, "%2", "%3" and "%4" for the
    /// line, the column and the parser's message.
    struct LoadTexts
    {
        QString noName;
        QString missing;
        QString badAtPosition;
        QString bad; ///< when the parser gave no position
    };
    /// Gives a new document its name. False, with a text in error(), if no file can have it.
    bool takeName(const QString &filename);
    /// Makes filename the document's and replaces the tree by the content of the file; by nothing when it
    /// is no XML. False, with a text in error(), when it cannot be read; the version is not looked at. An empty name
    /// changes nothing.
    bool readFile(const QString &filename, const QString &documentTypeName, const LoadTexts &texts);
    /// To be called when what readFile() read cannot be used after all.
    void rejectFile();
    /// Whether a save must fail since the file was not loaded; sets error() then.
    bool refuseUnloaded();

    enum class Replace {
        ExpectedFile, ///< a file that is as the document knows it
        AnyFile,      ///< whatever another program made of it
    };
    /// Writes the tree to a file. On a failure the file is as it was, the dirty flag too, and error()
    /// says why.
    bool writeFile(const QString &filename, const cabledoc::xmlfile::AttributeOrder &order, Replace replace);
    /// Makes filename the document's after it was written to it.
    void changeName(const QString &filename);
    /// Whether the name leads to the document's own file, in whatever spelling and through whatever link.
    bool isOwnFile(const QString &filename) const;

    QDomDocument m_document;
    QString m_filename;
    QString m_error;
    bool m_dirty = false;

private:
    bool mayBeFileName(const QString &filename);
    QDomElement settingsList(const QString &tagName) const;
    template <typename Settings, typename Kind> void store(const Settings &settings, const QString &name, const Kind &);
    template <typename Settings, typename Kind> Settings fetch(const QString &name, const Kind &);
    template <typename Kind, typename Initial>
    void addEntries(const QDomElement &settings, const Kind &kind, Initial initial);

    std::unique_ptr<cabledoc::KnownFiles> m_files;
    qint64 m_maximumFileSize = defaultMaximumFileSize;
    qint64 m_replacedCharacters = 0;
    bool m_isLoadFailed = false;
    bool m_writesReferences = false;
    bool m_replacesUnknownFiles = true;
};
