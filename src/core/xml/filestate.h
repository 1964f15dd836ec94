#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

struct stat;
struct XXH3_state_s;

namespace cabledoc {

/// Identifies a file and the times of its changes. If the status of a file is the same as before, the file has not been
/// written to.
struct FileStatus
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    /// Time of the last change of the content, in nanoseconds.
    qint64 contentChanged = 0;
    /// Time of the last change of the content, the name or the access, in nanoseconds.
    qint64 statusChanged = 0;

    FileStatus() = default;
    explicit FileStatus(const struct stat &status);

    friend bool operator==(const FileStatus &a, const FileStatus &b)
    {
        return a.device == b.device && a.inode == b.inode && a.size == b.size && a.contentChanged == b.contentChanged
               && a.statusChanged == b.statusChanged;
    }
};

/// The state of a file when it was read or written.
struct FileState
{
    FileStatus status;
    /// Hash of the content.
    quint64 hash = 0;
};

/// Computes the hash of a content that comes in pieces. This takes no more time than copying the pieces. The hash does
/// not protect against somebody who constructs two contents with the same hash.
class ContentHash
{
public:
    ContentHash();
    ~ContentHash();
    Q_DISABLE_COPY(ContentHash)

    void add(const QByteArray &piece);
    quint64 value() const;

private:
    XXH3_state_s *m_state;
};

/// The content of a file that has been read.
struct FileContent
{
    QByteArray bytes;
    FileState state;
    /// Why the file could not be read, or empty if it was read.
    QString error;
};

/// Reads a regular file of at most maximumSize bytes. Refuses all other files. If the file is too large, the error says
/// how much memory a document of that size would need.
FileContent readContent(const QString &fileName, qint64 maximumSize);

/// Returns whether the file still has the content of the given state. Reads the content only if the status differs.
bool hasContent(const QString &fileName, const FileState &state);

/// Returns whether both names lead to the same file. The names may be links, or differ in spelling. If neither file
/// exists, returns whether they would be the same file.
bool isSameFile(const QString &a, const QString &b);

/// Returns the system's message about the last call that failed.
QString systemError();

} // namespace cabledoc
