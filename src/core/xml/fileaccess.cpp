#include "fileaccess.h"

#include <QtCore/QList>

#include <algorithm>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace cabledoc {

namespace {

/// The system keeps the access control list of a file under this name.
const char accessList[] = "system.posix_acl_access";
/// The capabilities of a program. A save drops them, as it drops the bits that give a program the rights of its owner
/// or group.
const char capabilities[] = "security.capability";

constexpr mode_t ownerBits = S_IRWXU;
constexpr mode_t groupBits = S_IRWXG;
constexpr mode_t otherBits = S_IRWXO;
constexpr mode_t allBits = ownerBits | groupBits | otherBits;

/// Asks the system twice, first for the size and then for the data. Returns an empty array if there are no data.
template <typename Ask> QByteArray answerTo(Ask ask)
{
    QByteArray answer;
    const ssize_t size = ask(nullptr, 0);
    if (size <= 0)
        return answer;
    answer.resize(int(size));
    answer.resize(int(std::max<ssize_t>(0, ask(answer.data(), std::size_t(size)))));
    return answer;
}

QByteArray attributeOf(const QByteArray &file, const char *name)
{
    return answerTo([&](char *data, std::size_t size) { return ::getxattr(file.constData(), name, data, size); });
}

bool setAttribute(int file, const char *name, const QByteArray &value)
{
    return ::fsetxattr(file, name, value.constData(), std::size_t(value.size()), 0) == 0;
}

void copyOtherAttributes(const QByteArray &from, int to)
{
    const QList<QByteArray> names =
        answerTo([&](char *data, std::size_t size) { return ::listxattr(from.constData(), data, size); }).split('\0');
    for (const QByteArray &name : names) {
        if (!name.isEmpty() && name != accessList && name != capabilities)
            setAttribute(to, name.constData(), attributeOf(from, name.constData()));
    }
}

} // namespace

bool copyAccess(const QByteArray &from, int to)
{
    struct stat status
    {
    };
    if (::stat(from.constData(), &status) != 0)
        return false;
    mode_t mode = status.st_mode & allBits;
    const bool isOwnerKept = ::geteuid() == status.st_uid || ::fchown(to, status.st_uid, gid_t(-1)) == 0;
    const bool isGroupKept = ::fchown(to, uid_t(-1), status.st_gid) == 0;

    const QByteArray list = attributeOf(from, accessList);
    bool isListKept = true;
    if (list.isEmpty())
        // Remove a list that the folder gives to new files.
        ::fremovexattr(to, accessList);
    else
        isListKept = isGroupKept && setAttribute(to, accessList, list);
    copyOtherAttributes(from, to);

    // A user who is no longer the owner, in the group or in the list now has the permissions of the group or of others.
    // Reduce these so that the user can do no more than before.
    if (!isListKept)
        mode &= ownerBits;
    if (!isGroupKept)
        mode &= ownerBits | (mode >> 3 & otherBits);
    if (!isOwnerKept)
        mode &= ownerBits | (mode >> 3 & groupBits) | (mode >> 6 & otherBits);
    if (::fchmod(to, mode) == 0)
        return true;
    // Some file systems give all files the same permissions.
    struct stat given
    {
    };
    return ::fstat(to, &given) == 0 && (given.st_mode & allBits & ~mode) == 0;
}

} // namespace cabledoc
