#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

struct stat;
struct XXH3_state_s;

namespace cabledoc {

/// Which file it is and when it was changed. A file whose status is the same was not written to.
struct FileStatus
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 contentChanged = 0; ///< in nanoseconds
    qint64 statusChanged = 0;  ///< in nanoseconds; of content, name or access

    FileStatus() = default;
    explicit FileStatus(const struct stat &status);

    friend bool operator==(const FileStatus &a, const FileStatus &b)
    {
        return a.device == b.device && a.inode == b.inode && a.size == b.size && a.contentChanged == b.contentChanged
               && a.statusChanged == b.statusChanged;
    }
};

/// What a file was when it was read or written.
struct FileState
{
    FileStatus status;
    quint64 hash = 0; ///< of the content
};

/// The hash of a content that comes in pieces. It takes no more time than copying them. It is not made to withstand
/// somebody who wants two contents to have the same one.
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

/// What was read of a file.
struct FileContent
{
    QByteArray bytes;
    FileState state;
    QString error; ///< why the file cannot be read; empty if it was
};

/// Reads a regular file of at most maximumSize bytes. Refuses anything else, with the memory that a document of that
/// size would need if it is too large.
FileContent readContent(const QString &fileName, qint64 maximumSize);

/// Returns whether the file still has the content of that state. The content is read only if the status differs.
bool hasContent(const QString &fileName, const FileState &state);

/// Returns whether both names lead to the same file, through links or another spelling too.
bool isSameFile(const QString &a, const QString &b);

/// What the system says of the last call that failed.
QString systemError();

} // namespace cabledoc
