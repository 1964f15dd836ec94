#include "fileaccess.h"
#include "filereplacement.h"
#include "testfiles.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <set>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

struct User
{
    uid_t id;
    gid_t group;
};

// The user who saves, another owner of files, a member of the group of files, the user whom access control lists name,
// and a user without any of these roles.
const User saver{1002, 2002};
const User stranger{1001, 2001};
const User member{1003, 3003};
const User named{1005, 2005};
const User outsider{1004, 2004};

/// Makes the process run as the given user as long as the object exists.
class As
{
public:
    explicit As(const User &user)
    {
        if (setgroups(1, &user.group) != 0 || setegid(user.group) != 0 || seteuid(user.id) != 0)
            qFatal("cannot become another user");
    }
    ~As()
    {
        const gid_t root = 0;
        if (seteuid(0) != 0 || setegid(0) != 0 || setgroups(1, &root) != 0)
            qFatal("cannot become the administrator again");
    }
    Q_DISABLE_COPY(As)
};

/// Returns an access control list with an entry for the named user, in the form in which the system keeps it. Each
/// entry has a kind, permissions and an id.
QByteArray accessList(mode_t mode, int namedUserMay)
{
    struct Entry
    {
        quint16 kind;
        quint16 permissions;
        quint32 id;
    };
    const auto part = [mode](int shift) { return quint16(mode >> shift & 7); };
    const Entry entries[] = {{0x01, part(6), ~0U},
                             {0x02, quint16(namedUserMay), named.id},
                             {0x04, part(3), ~0U},
                             {0x10, 7, ~0U},
                             {0x20, part(0), ~0U}};
    const quint32 version = 2;
    return QByteArray(reinterpret_cast<const char *>(&version), sizeof version)
           + QByteArray(reinterpret_cast<const char *>(entries), sizeof entries);
}

const char listName[] = "system.posix_acl_access";

QByteArray attributeOf(const QByteArray &file, const char *name)
{
    char value[1000];
    const ssize_t size = getxattr(file.constData(), name, value, sizeof value);
    return QByteArray(value, int(std::max<ssize_t>(0, size)));
}

bool setAttribute(const QByteArray &file, const char *name, const QByteArray &value)
{
    return setxattr(file.constData(), name, value.constData(), std::size_t(value.size()), 0) == 0;
}

std::set<uid_t> readersOf(const QByteArray &file)
{
    std::set<uid_t> readers;
    for (const User &user : {saver, stranger, member, named, outsider}) {
        const As other(user);
        const int handle = open(file.constData(), O_RDONLY);
        if (handle >= 0) {
            readers.insert(user.id);
            close(handle);
        }
    }
    return readers;
}

mode_t modeOf(const QByteArray &file)
{
    struct stat status;
    return stat(file.constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

/// Tests which access rights a file takes over from the file that it replaces.
class FileAccessTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory{"/tmp/tst_fileaccess-XXXXXX"};
    QByteArray m_from = QFile::encodeName(m_directory.filePath("from"));
    QByteArray m_to = QFile::encodeName(m_directory.filePath("to"));

    void make(const User &owner, gid_t group, mode_t mode)
    {
        QFile::remove(m_from);
        writeFile(m_from, "x");
        QCOMPARE(chown(m_from.constData(), owner.id, group), 0);
        QCOMPARE(chmod(m_from.constData(), mode), 0);
    }

    /// Creates a file as the current user and copies the access rights of the other file to it.
    bool copyToNewFile()
    {
        QFile::remove(m_to);
        const int handle = open(m_to.constData(), O_WRONLY | O_CREAT | O_EXCL, 0600);
        const bool isCopied = cabledoc::copyAccess(m_from, handle);
        close(handle);
        return isCopied;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (geteuid() != 0)
            QSKIP("only the administrator can become other users");
        QCOMPARE(chmod(qPrintable(m_directory.path()), 0777), 0);
    }

    void nobodyGainsAccess_data()
    {
        QTest::addColumn<bool>("isOwner");
        QTest::addColumn<bool>("isMember");
        QTest::addColumn<int>("namedUserMay");
        for (const bool isOwner : {true, false}) {
            for (const bool isMember : {true, false}) {
                for (const int may : {-1, 0, 4}) {
                    QTest::addRow("%s, %s, %s", isOwner ? "own file" : "other owner",
                                  isMember ? "own group" : "other group",
                                  may < 0 ? "no list" : (may == 0 ? "list that denies" : "list that permits"))
                        << isOwner << isMember << may;
                }
            }
        }
    }

    /// Tests all permissions to read and write.
    void nobodyGainsAccess()
    {
        QFETCH(bool, isOwner);
        QFETCH(bool, isMember);
        QFETCH(int, namedUserMay);
        for (mode_t mode = 0; mode <= 0666; ++mode) {
            if ((mode & 0111) != 0)
                continue; // permissions to run the file are not tested
            make(isOwner ? saver : stranger, isMember ? saver.group : member.group, mode);
            if (namedUserMay >= 0 && !setAttribute(m_from, listName, accessList(mode, namedUserMay)))
                QSKIP("the file system has no access control lists");
            const std::set<uid_t> before = readersOf(m_from);
            {
                const As user(saver);
                QVERIFY(copyToNewFile());
            }
            std::set<uid_t> after = readersOf(m_to);
            after.erase(saver.id); // the user who saved the file may read it
            const QByteArray what = QByteArray::number(mode, 8) + " became " + QByteArray::number(modeOf(m_to), 8);
            QVERIFY2(std::includes(before.begin(), before.end(), after.begin(), after.end()), what);
            if (isOwner && isMember) {
                QVERIFY2(modeOf(m_to) == modeOf(m_from), what);
                QCOMPARE(attributeOf(m_to, listName), attributeOf(m_from, listName));
            }
            if (!isMember)
                QVERIFY2((modeOf(m_to) & 0070) == 0, what);
        }
    }

    void administratorKeepsEverything()
    {
        make(stranger, member.group, 0640);
        const bool hasLists = setAttribute(m_from, listName, accessList(0640, 4));
        const bool hasAttributes = setAttribute(m_from, "user.note", "kept");
        QVERIFY(copyToNewFile());
        struct stat status;
        QCOMPARE(stat(m_to.constData(), &status), 0);
        QCOMPARE(status.st_uid, stranger.id);
        QCOMPARE(status.st_gid, member.group);
        QCOMPARE(modeOf(m_to), modeOf(m_from));
        QVERIFY(!hasLists || attributeOf(m_to, listName) == attributeOf(m_from, listName));
        QVERIFY(!hasAttributes || attributeOf(m_to, "user.note") == "kept");
    }

    void rightsOfProgramsAreDropped()
    {
        make(saver, saver.group, 07755);
        const char capabilities[] = "security.capability";
        setAttribute(m_from, capabilities, QByteArray::fromHex("0000000201000000000000000000000000000000"));
        QVERIFY(copyToNewFile());
        QCOMPARE(modeOf(m_to), mode_t(0755));
        QCOMPARE(attributeOf(m_to, capabilities), QByteArray());
    }

    void unfinishedFileIsPrivate()
    {
        const mode_t before = umask(0);
        make(saver, saver.group, 0644);
        cabledoc::FileReplacement replacement(QFile::decodeName(m_from));
        QCOMPARE(replacement.open(), QString());
        const QStringList copies = QDir(m_directory.path()).entryList({"from.*"}, QDir::Files);
        QCOMPARE(copies.size(), 1);
        QCOMPARE(modeOf(QFile::encodeName(m_directory.filePath(copies.first()))), mode_t(0600));
        umask(before);
    }

    void defaultAccessListIsRemoved()
    {
        if (!setAttribute(QFile::encodeName(m_directory.path()), "system.posix_acl_default", accessList(0700, 7)))
            QSKIP("the file system has no access control lists");
        make(saver, saver.group, 0644);
        removexattr(m_from.constData(), listName);
        QCOMPARE(chmod(m_from.constData(), 0600), 0);
        QVERIFY(copyToNewFile());
        QCOMPARE(attributeOf(m_to, listName), QByteArray());
        QVERIFY(readersOf(m_to) == std::set<uid_t>{saver.id});
    }
};

QTEST_GUILESS_MAIN(FileAccessTest)
#include "tst_fileaccess.moc"
