#pragma once

#include "xmlscan.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

/// The one way from a file to a tree and back. Files are Latin-1 text, indented by one space a level,
/// without an XML declaration and without a document type.
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
};

/// Reads a file into a new document of that type name.
ReadResult read(const QString &fileName, const QString &documentTypeName);

/// In which order the attributes of an element are written. Those not named follow by name.
struct AttributeOrder
{
    QHash<QString, QStringList> inContainer; ///< of the children of the container of that name
    QHash<QString, QStringList> ofElement;   ///< of the element of that name
};

/// The text of a document. The same tree gives the same bytes in every process.
struct Text
{
    QByteArray bytes;
    /// Characters that the file cannot hold (outside Latin-1, or control characters) and that stand as
    /// "?" in the bytes.
    int replacedCharacters = 0;
    /// Why read() would refuse the text (no root or several, beyond the limits); empty when it would not.
    QString error;
};
Text toText(const QDomDocument &document, const AttributeOrder &order);

/// Replaces the content of a file, or creates it. The new content is written beside the old and moved
/// into place when it is safely on the disk; on any failure the old file is as it was. Returns the
/// reason of a failure, an empty text when all went well.
QString write(const QString &fileName, const QByteArray &bytes);

} // namespace cabledoc::xmlfile
