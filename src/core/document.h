#pragma once

#include "documenttree.h"
#include "knownfiles.h"
#include "xmlfile.h"

#include <QtCore/QCoreApplication>

#include <memory>

class Address;

namespace cabledoc {

/// What a document is made of: its tree, the file that it belongs to, and the text of its last failure.
class Document
{
    Q_DECLARE_TR_FUNCTIONS(BKXMLEditor)

public:
    explicit Document(std::unique_ptr<DocumentTree> tree);
    /// Creates a document that shares the other's tree, file and error text, and is unchanged.
    Document(const Document &other);
    /// Shares the other's tree, file and error text. The mark of a change stays.
    Document &operator=(const Document &other);

    DocumentTree &tree() const { return *m_tree; }

    // Contractor and site

    /// Adds an element with empty attributes and an empty "Address" to the parent. Adds what it lacks if it is there.
    void addInfo(const QString &tagName, const QStringList &attributes, const QDomElement &parent);
    /// Writes an attribute of a child of the root. Does nothing if there is no such child.
    void writeInfo(const QString &tagName, const QString &attribute, const QString &value);
    /// Returns an attribute of a child of the root, or a null text if one of them is missing.
    QString readInfo(const QString &tagName, const QString &attribute) const;
    /// Writes the "Address" in a child of the root. Does nothing if there is none.
    void writeInfoAddress(const QString &tagName, const Address &address);
    Address readInfoAddress(const QString &tagName) const;

    // Files. Operations that return whether they succeeded set the error text if they fail.

    /// What a load that fails tells the user. "%1" stands for the file name, "%2", "%3" and "%4" for the line, the
    /// column and the parser's message.
    struct LoadTexts
    {
        QString noName;
        QString missing;
        QString badAtPosition;
        QString bad; ///< if the parser gave no position
    };
    /// Gives a new document its name. Fails if no file can have that name.
    bool takeName(const QString &name);
    /// Takes the name and replaces the tree by the content of that file, or by nothing if it is not XML. Does not look
    /// at the version. Fails if the file cannot be read. An empty name changes nothing.
    bool read(const QString &name, const QString &documentTypeName, const LoadTexts &texts);
    /// Is called if what read() read cannot be used after all.
    void rejectFile();
    enum class Replace {
        ExpectedFile, ///< a file that is as the document knows it
        AnyFile,      ///< whatever another program made of it
    };
    /// Writes the tree to a file. If it fails, the file and the mark of a change are as they were.
    bool write(const QString &name, const xmlfile::AttributeOrder &order, Replace replace);
    /// Writes the tree to the document's own file and clears the mark of a change. Fails, with the given text, if the
    /// document has no name that can be saved to. Fails if the last file could not be loaded.
    bool save(const QString &extension, const xmlfile::AttributeOrder &order, Replace replace,
              const QString &noNameText);
    /// Takes the name of the file that the document was written to.
    void changeName(const QString &name);
    /// Returns whether the name leads to the document's own file, in whatever spelling and through whatever link.
    bool isOwnFile(const QString &name) const;

    /// Returns whether the file name has that extension, in any case.
    static bool hasExtension(const QString &name, const QString &extension);
    /// Returns whether a file can be saved under that name. Neither an empty name nor the extension alone will do.
    static bool isSaveName(const QString &name, const QString &extension);

    QString filename = QLatin1String("");
    QString error = QLatin1String("");

    qint64 maximumFileSize;
    qint64 replacedCharacters = 0; ///< of the last write
    bool writesReferences = false;
    bool replacesUnknownFiles = true;

private:
    bool mayBeFileName(const QString &name);

    std::unique_ptr<DocumentTree> m_tree;
    KnownFiles m_files;
    bool m_isLoadFailed = false;
};

} // namespace cabledoc
