#pragma once

#include "filereplacement.h"
#include "flattree.h"
#include "treebuilder.h"
#include "xmlscan.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

#include <functional>

/// The only way from a file to a tree and back. Files are Latin-1 text, indented by one space for each level, without
/// an XML declaration and without a document type. When a file is read, an XML declaration has no effect, whatever
/// encoding it names, and is not kept.
namespace cabledoc::xmlfile {

struct ReadResult
{
    /// Whether the file could be read.
    enum Status {
        /// The document holds the file.
        Read,
        /// The file could not be opened. deviceError tells why.
        NotOpened,
        /// The file is not valid XML, or exceeds a limit. problem tells why. Its line and column are 0 if the file is
        /// blank.
        NotParsed,
    };
    Status status = Read;
    /// The whole document, or a document without content.
    QDomDocument document;
    QString deviceError;
    XmlProblem problem;
    /// State of the file that was read.
    FileState state;
};

/// Whether the nodes of a tree have line numbers. Reading them takes much longer.
enum class LineNumbers {
    Read,
    Leave,
};

/// Reads a file of at most maximumSize bytes into a new document. If it cannot be read, the document has the given type
/// name. Values are noted if the file has the form of a save.
ReadResult read(const QString &fileName, const QString &documentTypeName, qint64 maximumSize,
                LineNumbers lineNumbers = LineNumbers::Leave, ListNotes *notes = nullptr);

/// Reads a file of the current version whose root has one of the given names. Returns nothing if the file is not of
/// that kind, does not have the form of a save, or cannot be read. Then read() has to read it, or tell why it cannot.
std::optional<FlatTree> readCurrent(const QString &fileName, const QStringList &rootNames, qint64 maximumSize);

/// The order in which the attributes of elements are written. All other attributes follow in the order of their names.
struct AttributeOrder
{
    /// Attributes of the children of a container, by the name of the container.
    QHash<QString, QStringList> inContainer;
    /// Attributes of an element, by its name.
    QHash<QString, QStringList> ofElement;
};

/// How characters beyond Latin-1 in texts and values are written.
enum class BeyondLatin1 {
    /// As "?".
    Replace,
    /// As references such as "&#8364;".
    AsReferences,
};

/// The result of writing a document.
struct Outcome
{
    /// Number of characters that were written as "?". These are the characters that XML does not allow, and characters
    /// beyond Latin-1. The latter are always replaced in comments, CDATA sections and names, and in texts and values
    /// only with BeyondLatin1::Replace.
    qint64 replacedCharacters = 0;
    /// Why the text is not complete, or empty if it is. Writing stops if read() would refuse the text (no root, several
    /// roots, a limit exceeded), or if the sink does not accept a piece.
    QString error;
};

/// Accepts a piece of a text. Returns an empty string if this succeeds, or the reason why it failed.
using Sink = std::function<QString(const QByteArray &piece)>;

/// Passes the text of a document to the sink, in pieces of some megabytes. The same tree gives the same bytes in every
/// process.
Outcome writeText(const QDomDocument &document, const AttributeOrder &order, const Sink &sink,
                  BeyondLatin1 beyondLatin1 = BeyondLatin1::Replace);

/// The text of a document in one piece.
struct Text : Outcome
{
    QByteArray bytes;
};
/// Returns the text of a document in one piece.
Text toText(const QDomDocument &document, const AttributeOrder &order,
            BeyondLatin1 beyondLatin1 = BeyondLatin1::Replace);

struct SaveOutcome : Outcome
{
    /// State of the file, or nothing if the new content is not in place.
    std::optional<FileState> state;
};

/// Replaces the content of a file with the text of a document, or creates the file. Fails if the file is not the
/// expected one, or if it is a device or a pipe. If this fails, the old file stays as it is, with one exception: if
/// only the folder cannot be synced at the end, the new content is already in place. Follows symbolic links.
SaveOutcome save(const QString &fileName, const QDomDocument &document, const AttributeOrder &order,
                 BeyondLatin1 beyondLatin1 = BeyondLatin1::Replace, const Expectation &expected = {});

} // namespace cabledoc::xmlfile
