#include "filereplacement.h"

#include "fileaccess.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

#include <cerrno>
#include <climits>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cabledoc {

namespace {

/// Follows the symbolic links that begin with the given name. Returns the name at their end. There may be no file with
/// that name. Returns an empty name, with errno set, if there are too many links.
QByteArray endOfLinks(QByteArray name)
{
    constexpr int maximumLinks = 40; // the limit of the system
    for (int links = 0; links < maximumLinks; ++links) {
        QByteArray target(PATH_MAX, '\0');
        const ssize_t size = ::readlink(name.constData(), target.data(), std::size_t(target.size()));
        if (size < 0)
            return name;
        target.truncate(int(size));
        name = target.startsWith('/') ? target : name.left(name.lastIndexOf('/') + 1) + target;
    }
    errno = ELOOP;
    return QByteArray();
}

/// Makes changes of names in the folder survive a power failure. Does nothing if the folder may not be read. The file
/// itself is safe even then.
QString syncFolder(const QByteArray &folder)
{
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return QString();
    const QString error = ::fsync(handle) == 0 || errno == EINVAL ? QString() : systemError();
    ::close(handle);
    return error;
}

/// Renames a file. Fails if a file with the new name exists.
bool renameToNewName(const QByteArray &from, const QByteArray &to)
{
#ifdef RENAME_NOREPLACE
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
#endif
    // Some file systems cannot rename and check the new name in one step.
    if (::link(from.constData(), to.constData()) != 0)
        return false;
    ::unlink(from.constData());
    return true;
}

} // namespace

FileReplacement::~FileReplacement()
{
    if (m_handle >= 0)
        ::close(m_handle);
    if (!m_copy.isEmpty())
        ::unlink(m_copy.constData());
}

QString FileReplacement::open()
{
    m_target = endOfLinks(QFile::encodeName(m_fileName));
    if (m_target.isEmpty())
        return systemError();
    struct stat status
    {
    };
    m_isNew = ::stat(m_target.constData(), &status) != 0;
    if (m_isNew && errno != ENOENT)
        return systemError();
    if (!m_isNew && S_ISDIR(status.st_mode))
        return QCoreApplication::translate("XmlFile", "This is the name of a folder.");
    if (!m_isNew && !S_ISREG(status.st_mode))
        return QCoreApplication::translate("XmlFile", "This name belongs to something that is not a file.");
    // The permissions of the folder alone would allow the save to replace a file that nobody may write to.
    if (!m_isNew && ::faccessat(AT_FDCWD, m_target.constData(), W_OK, AT_EACCESS) != 0)
        return systemError();
    return createCopy();
}

QString FileReplacement::createCopy()
{
    // A new file gets the default permissions of new files. A copy of an existing file is private until it gets the
    // permissions of the old file at the end.
    const mode_t mode = m_isNew ? 0666 : 0600;
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts && m_handle < 0; ++attempt) {
        const quint32 number = QRandomGenerator::global()->bounded(1U << 24);
        m_copy = m_target + '.' + QByteArray::number(number, 16).rightJustified(6, '0');
        m_handle = ::open(m_copy.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (m_handle < 0 && errno != EEXIST)
            break;
    }
    if (m_handle >= 0)
        return QString();
    m_copy.clear(); // this name belongs to another file
    return systemError();
}

QString FileReplacement::write(const QByteArray &piece)
{
    qint64 written = 0;
    while (written < piece.size()) {
        // If a write is short, the next one reports the reason.
        const ssize_t more = ::write(m_handle, piece.constData() + written, std::size_t(piece.size() - written));
        if (more < 0 && errno != EINTR)
            return systemError();
        written += more < 0 ? 0 : more;
    }
#ifdef SYNC_FILE_RANGE_WRITE
    // The disk starts writing now, while the rest of the content is made. The sync at the end reports failures.
    ::sync_file_range(m_handle, 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
    m_hash.add(piece);
    return QString();
}

QString FileReplacement::commit(const Expectation &expected)
{
    if (!m_isNew && !copyAccess(m_target, m_handle) && errno != ENOENT)
        return systemError();
    if (::fsync(m_handle) != 0)
        return systemError();
    const QString error = moveIntoPlace(expected);
    if (!error.isEmpty())
        return error;
    m_copy.clear();
    m_state = FileState{FileStatus(), m_hash.value()};
    struct stat status
    {
    };
    // This is the status of the file that was written, even if somebody has moved it by now. If it cannot be read, the
    // hash decides later.
    if (::fstat(m_handle, &status) == 0)
        m_state->status = FileStatus(status);
    return syncFolder(QFile::encodeName(QFileInfo(QFile::decodeName(m_target)).path()));
}

QString FileReplacement::moveIntoPlace(const Expectation &expected)
{
    const bool isThere = ::access(m_target.constData(), F_OK) == 0 || errno != ENOENT;
    if (isThere && expected.kind == Expectation::KnownContent
        && !hasContent(QFile::decodeName(m_target), expected.known))
        return QCoreApplication::translate(
            "XmlFile", "Another program has changed the file since it was read. It is not replaced.");
    const bool mayReplace = expected.kind == Expectation::Anything || (isThere && expected.kind != Expectation::NoFile);
    if (mayReplace ? ::rename(m_copy.constData(), m_target.constData()) == 0 : renameToNewName(m_copy, m_target))
        return QString();
    if (errno == EEXIST)
        return QCoreApplication::translate("XmlFile", "A file with this name already exists. It is not replaced.");
    return systemError();
}

} // namespace cabledoc
