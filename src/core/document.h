#pragma once

#include "documenttree.h"
#include "knownfiles.h"
#include "xmlfile.h"

#include <QtCore/QCoreApplication>

#include <memory>

class Address;
class BKXMLEditor;

namespace cabledoc {

/// The parts of a document: its tree, the file that it belongs to, and the text of its last failure.
class Document
{
    Q_DECLARE_TR_FUNCTIONS(BKXMLEditor)

public:
    explicit Document(std::unique_ptr<DocumentTree> tree);
    /// Creates a document that shares the other's tree and has its file, error text and settings. It is not marked as
    /// changed.
    Document(const Document &other);
    /// Shares the other's tree, and takes its file and error text. Keeps the settings and the mark of a change.
    Document &operator=(const Document &other);

    /// Returns the inside of a document.
    static Document &of(const BKXMLEditor &editor);

    DocumentTree &tree() const { return *m_tree; }

    // Contractor and site

    /// Adds an element with empty attributes and an empty "Address" to the parent. If the element exists, adds only the
    /// attributes and the address that it lacks.
    void addInfo(const QString &tagName, const AttributeList &attributes, const QDomElement &parent);
    /// Writes an attribute of a child of the root. Does nothing if there is no such child.
    void writeInfo(const QString &tagName, const QString &attribute, const QString &value);
    /// Returns an attribute of a child of the root, or a null text if one of them is missing.
    QString readInfo(const QString &tagName, const QString &attribute) const;
    /// Writes the "Address" in a child of the root. Does nothing if there is none.
    void writeInfoAddress(const QString &tagName, const Address &address);
    Address readInfoAddress(const QString &tagName) const;

    // Files. Operations that return whether they succeeded set the error text if they fail.

    /// The messages of a load that fails. "%1" is the file name. "%2", "%3" and "%4" are the line, the column and the
    /// message of the parser.
    struct LoadTexts
    {
        QString noName;
        QString missing;
        QString badAtPosition;
        QString bad; ///< if there is no position
    };
    /// Gives a new document its name. Fails if no file can have that name.
    bool takeName(const QString &name);
    /// Takes the name, and replaces the tree with the content of the file. Fails if the file cannot be read or is not
    /// XML. If it is not XML, the tree is empty. Does not check the version. Fails for an empty name and keeps the old
    /// name and tree.
    bool read(const QString &name, const QString &documentTypeName, const LoadTexts &texts);
    /// Must be called if the content that read() has read cannot be used. save() then fails until takeName(), read() or
    /// write() succeeds.
    void rejectFile();
    enum class Replace {
        ExpectedFile, ///< a known file only if its content is the one that the document knows
        AnyFile,      ///< a known file with any content
    };
    /// Writes the tree to a file, as xmlfile::save() does. Keeps the mark of a change.
    bool write(const QString &name, const xmlfile::AttributeOrder &order, Replace replace);
    /// Writes the tree to the document's own file and clears the mark of a change. Fails, with the given text, if the
    /// name of the document is not a name for saving. Fails if the last load failed.
    bool save(const QString &extension, const xmlfile::AttributeOrder &order, Replace replace,
              const QString &noNameText);
    /// Gives the document the name of the file that it was written to.
    void changeName(const QString &name);
    /// Returns whether the name leads to the document's own file. The name may be a link, or differ in spelling.
    bool isOwnFile(const QString &name) const;

    /// Returns whether the file name has that extension, in upper or lower case.
    static bool hasExtension(const QString &name, const QString &extension);
    /// Returns whether a file can be saved under that name. The name must not be empty, and not be the extension alone.
    static bool isSaveName(const QString &name, const QString &extension);

    QString filename = QLatin1String("");
    QString error = QLatin1String("");

    qint64 maximumFileSize;
    xmlfile::LineNumbers lineNumbers = xmlfile::LineNumbers::Leave; ///< of the nodes that read() makes
    ListNotes notes;                                                ///< what read() notes
    qint64 replacedCharacters = 0;                                  ///< of the last write
    bool writesReferences = false;
    bool replacesUnknownFiles = true;

private:
    bool mayBeFileName(const QString &name);

    std::unique_ptr<DocumentTree> m_tree;
    KnownFiles m_files;
    bool m_isLoadFailed = false;
};

/// Largest number of cable types that a bundle keeps in a file.
constexpr int maximumTypesOfBundle = 8;

/// Replaces the cable types of a bundle by the first of the given ones.
void writeBundleTypes(DocumentTree *tree, const QDomElement &bundle, const QStringList &types);

} // namespace cabledoc
