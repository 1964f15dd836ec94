#pragma once

#include "filereplacement.h"
#include "xmlscan.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

#include <functional>

/// The one way from a file to a tree and back. Files are Latin-1 text, indented by one space a level, without an XML
/// declaration and without a document type. A declaration in a file that is read does not count, whatever encoding it
/// names, and is not kept.
namespace cabledoc::xmlfile {

struct ReadResult
{
    enum Status {
        Read,
        NotOpened, ///< deviceError says why
        NotParsed, ///< problem says why; line and column are 0 where the parser gave none
    };
    Status status = Read;
    QDomDocument document; ///< whole, or without any content
    QString deviceError;
    XmlProblem problem;
    FileState state; ///< of the file that was read
};

/// Reads a file of at most maximumSize bytes into a new document of that type name.
ReadResult read(const QString &fileName, const QString &documentTypeName, qint64 maximumSize);

/// In which order the attributes of an element are written. Those not named follow by name.
struct AttributeOrder
{
    QHash<QString, QStringList> inContainer; ///< of the children of the container of that name
    QHash<QString, QStringList> ofElement;   ///< of the element of that name
};

/// What becomes of characters beyond Latin-1 in texts and values.
enum class BeyondLatin1 {
    Replace,      ///< they become "?"
    AsReferences, ///< they become references such as "&#8364;"
};

/// How the writing of a document went.
struct Outcome
{
    /// Characters that stand as "?" in the bytes: those that XML does not allow; and those outside Latin-1, in
    /// comments, CDATA sections and names always, in texts and values if they are to be replaced.
    qint64 replacedCharacters = 0;
    /// Why the text is not whole: read() would refuse it (no root or several, beyond the limits), or a piece of it was
    /// not taken. Empty when it is whole.
    QString error;
};

/// Takes a piece of a text. Returns the reason when it cannot, an empty text when it did.
using Sink = std::function<QString(const QByteArray &piece)>;

/// Passes on the text of a document in pieces of some megabytes. The same tree gives the same bytes in every process.
Outcome writeText(const QDomDocument &document, const AttributeOrder &order, const Sink &sink,
                  BeyondLatin1 beyondLatin1 = BeyondLatin1::Replace);

/// The same in one piece.
struct Text : Outcome
{
    QByteArray bytes;
};
Text toText(const QDomDocument &document, const AttributeOrder &order,
            BeyondLatin1 beyondLatin1 = BeyondLatin1::Replace);

struct SaveOutcome : Outcome
{
    std::optional<FileState> state; ///< of the file, once the new content is in place
};

/// Replaces the content of a file by the text of a document, or creates it, if the file is the expected one. On any
/// failure the old file is as it was. There is one exception: when the folder cannot be brought to the disk at the end,
/// the new content is in place already. A link is followed; a device or a pipe is not replaced.
SaveOutcome save(const QString &fileName, const QDomDocument &document, const AttributeOrder &order,
                 BeyondLatin1 beyondLatin1 = BeyondLatin1::Replace, const Expectation &expected = {});

} // namespace cabledoc::xmlfile
