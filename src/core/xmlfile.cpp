#include "xmlfile.h"

#include "qtcompat.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QSaveFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cabledoc::xmlfile {

namespace {

bool isAscii(const QByteArray &bytes)
{
    char all = 0;
    for (const char byte : bytes)
        all = char(all | byte);
    return (all & 0x80) == 0;
}

/// The text of a file. The encoding that its XML declaration names does not count; Qt 5 would refuse a file for a name
/// that it does not know. Blanks take the place of the name, so that positions stay as they are.
QString decoded(const QByteArray &bytes)
{
    static const QRegularExpression encoding(
        QStringLiteral("^<\\?xml\\s[^>]*?(\\sencoding\\s*=\\s*(?:\"[A-Za-z][\\w.-]*\"|'[A-Za-z][\\w.-]*'))[^>]*>"));
    QString text = QString::fromLatin1(bytes);
    const QRegularExpressionMatch match = encoding.match(text);
    if (match.hasMatch())
        text.replace(match.capturedStart(1), match.capturedLength(1),
                     QString(match.capturedLength(1), QLatin1Char(' ')));
    return text;
}

/// Takes the XML declaration, which a save never writes, out of the tree, so that the root comes first.
void removeDeclaration(QDomDocument *document)
{
    const QDomNode first = document->firstChild();
    if (first.isProcessingInstruction() && first.nodeName() == QLatin1String("xml"))
        document->removeChild(first);
}

} // namespace

ReadResult read(const QString &fileName, const QString &documentTypeName)
{
    ReadResult result;
    result.document = QDomDocument(documentTypeName);

    QFile file(fileName);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        result.status = ReadResult::NotOpened;
        result.deviceError = file.errorString();
        return result;
    }

    result.problem = scanXml(bytes);
    if (result.problem.message.isNull()) {
        QXmlStreamReader reader;
        // The reader takes ASCII as it is, unless a declaration says something else.
        if (isAscii(bytes) && !bytes.startsWith("<?xml"))
            reader.addData(bytes);
        else
            reader.addData(decoded(bytes));
        reader.setNamespaceProcessing(false);
        result.problem = qtcompat::setContent(&result.document, &reader);
        removeDeclaration(&result.document);
    }
    if (!result.problem.message.isNull()) {
        result.status = ReadResult::NotParsed;
        // A failed parse leaves half a tree behind.
        result.document = QDomDocument(documentTypeName);
    }
    return result;
}

namespace {

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/// Why the file cannot be replaced by another one: it is a device, a pipe, or a link that leads nowhere in a circle. An
/// empty text when it can, or is not there.
QString obstacle(const QString &fileName)
{
    struct stat status
    {
    };
    if (::stat(QFile::encodeName(fileName).constData(), &status) != 0)
        return errno == ENOENT ? QString() : systemError();
    return S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)
               ? QString()
               : QCoreApplication::translate("XmlFile", "Something that is no file has this name.");
}

/// Makes a rename within the folder survive a power cut. A folder that may not be read cannot be
/// synced; the file itself is safe then.
QString syncFolder(const QString &folder)
{
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return QString();
    const QString error = ::fsync(handle) == 0 || errno == EINVAL ? QString() : systemError();
    ::close(handle);
    return error;
}

/// Writes a piece whole, and lets the disk begin with it: the rest of the text is made meanwhile.
QString append(const QByteArray &piece, QSaveFile *file)
{
    qint64 written = 0;
    while (written < piece.size()) {
        // After a short write the next one tells the reason.
        const qint64 more = file->write(piece.constData() + written, piece.size() - written);
        if (more <= 0)
            return file->errorString();
        written += more;
    }
#ifdef SYNC_FILE_RANGE_WRITE
    // The sync at the end tells of failures.
    ::sync_file_range(file->handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
    return QString();
}

} // namespace

Outcome save(const QString &fileName, const QDomDocument &document, const AttributeOrder &order)
{
    Outcome outcome;
    outcome.error = obstacle(fileName);
    if (!outcome.error.isEmpty())
        return outcome;
    QSaveFile file(fileName);
    // Unbuffered and with every result looked at: QSaveFile by itself moves a torn file into place when
    // the disk fills up while it empties its buffer.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        outcome.error = file.errorString();
        return outcome;
    }
    outcome = writeText(document, order, [&file](const QByteArray &piece) { return append(piece, &file); });
    if (outcome.error.isEmpty()) {
        if (!file.flush() || file.error() != QFileDevice::NoError)
            outcome.error = file.errorString();
        else if (::fsync(file.handle()) != 0)
            outcome.error = systemError();
    }
    if (!outcome.error.isEmpty()) {
        file.cancelWriting();
        return outcome;
    }
    outcome.error =
        file.commit() ? syncFolder(QFileInfo(QFileInfo(fileName).canonicalFilePath()).path()) : file.errorString();
    return outcome;
}

} // namespace cabledoc::xmlfile
