#include "filestate.h"

#include "qtcompat.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>

#include <xxhash.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cabledoc {

namespace {

/// A file that is open for reading.
class OpenFile
{
public:
    // Opens the file without waiting. Otherwise a pipe would block the call until somebody writes to it.
    explicit OpenFile(const QString &fileName)
        : m_handle(::open(QFile::encodeName(fileName).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~OpenFile()
    {
        if (isOpen())
            ::close(m_handle);
    }
    Q_DISABLE_COPY(OpenFile)

    bool isOpen() const { return m_handle >= 0; }
    bool readStatus(struct stat *status) const { return ::fstat(m_handle, status) == 0; }

    /// Appends the rest of the file to the bytes. Returns false if it cannot be read.
    bool readAll(QByteArray *bytes) const
    {
        using Size = decltype(bytes->size());
        Size size = bytes->size();
        for (;;) {
            bytes->resize(std::max<Size>(bytes->capacity(), size + smallestPiece));
            const ssize_t count = ::read(m_handle, bytes->data() + size, std::size_t(bytes->size() - size));
            if (count < 0 && errno == EINTR)
                continue;
            size += Size(std::max<ssize_t>(0, count));
            bytes->resize(size);
            if (count <= 0)
                return count == 0;
        }
    }

private:
    static constexpr int smallestPiece = 1 << 16;

    int m_handle;
};

QString sizeText(double bytes)
{
    return QLocale::c().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeSIFormat);
}

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

} // namespace

FileStatus::FileStatus(const struct stat &status)
    : device(status.st_dev)
    , inode(status.st_ino)
    , size(status.st_size)
    , contentChanged(nanoseconds(status.st_mtim))
    , statusChanged(nanoseconds(status.st_ctim))
{
}

ContentHash::ContentHash()
    : m_state(XXH3_createState())
{
    XXH3_64bits_reset(m_state);
}

ContentHash::~ContentHash()
{
    XXH3_freeState(m_state);
}

void ContentHash::add(const QByteArray &piece)
{
    XXH3_64bits_update(m_state, piece.constData(), std::size_t(piece.size()));
}

quint64 ContentHash::value() const
{
    return XXH3_64bits_digest(m_state);
}

FileContent readContent(const QString &fileName, qint64 maximumSize)
{
    FileContent content;
    const OpenFile file(fileName);
    struct stat status
    {
    };
    if (!file.isOpen() || !file.readStatus(&status)) {
        content.error = systemError();
        return content;
    }
    if (!S_ISREG(status.st_mode)) {
        content.error = QCoreApplication::translate("XmlFile", "This is not a regular file.");
        return content;
    }
    maximumSize = std::min(maximumSize, qtcompat::largestText);
    if (status.st_size > maximumSize) {
        content.error =
            QCoreApplication::translate("XmlFile", "The file is %1 in size, and the limit is %2. A document of this "
                                                   "size needs about %3 of memory.")
                .arg(sizeText(double(status.st_size)), sizeText(double(maximumSize)),
                     sizeText(double(status.st_size) * qtcompat::memoryOfAByte));
        return content;
    }
    // This is the status before reading. If somebody writes during or after the reading, the status of the file differs
    // from it.
    content.state.status = FileStatus(status);
    // Reserves the memory for the whole file at once.
    content.bytes.reserve(decltype(content.bytes.size())(status.st_size) + 1);
    if (!file.readAll(&content.bytes)) {
        content.error = systemError();
        return content;
    }
    content.state.hash = XXH3_64bits(content.bytes.constData(), std::size_t(content.bytes.size()));
    return content;
}

bool hasContent(const QString &fileName, const FileState &state)
{
    struct stat status
    {
    };
    if (::stat(QFile::encodeName(fileName).constData(), &status) != 0)
        return false;
    if (FileStatus(status) == state.status)
        return true;
    const FileContent content = readContent(fileName, status.st_size);
    return content.error.isEmpty() && content.state.hash == state.hash;
}

bool isSameFile(const QString &a, const QString &b)
{
    struct stat statusOfA
    {
    };
    struct stat statusOfB
    {
    };
    const bool isThere = ::stat(QFile::encodeName(a).constData(), &statusOfA) == 0;
    if (isThere != (::stat(QFile::encodeName(b).constData(), &statusOfB) == 0))
        return false;
    if (isThere)
        return statusOfA.st_dev == statusOfB.st_dev && statusOfA.st_ino == statusOfB.st_ino;
    // Neither of the files exists yet.
    const QFileInfo fileA(a);
    const QFileInfo fileB(b);
    return fileA.fileName() == fileB.fileName() && isSameFile(fileA.absolutePath(), fileB.absolutePath());
}

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace cabledoc
