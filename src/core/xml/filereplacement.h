#pragma once

#include "filestate.h"

#include <QtCore/QString>

#include <optional>

namespace cabledoc {

/// What a save may replace.
struct Expectation
{
    enum Kind {
        /// Any file.
        Anything,
        /// A file with the content that known describes, or no file.
        KnownContent,
        /// Nothing. The file must not exist.
        NoFile,
    };
    Kind kind = Anything;
    FileState known;
};

/// Replaces the content of a file. The new content is written to a file beside it. That file is moved into place when
/// it is safely on the disk.
///
/// Symbolic links to the file stay. As far as the system allows it, the file keeps its group, its permissions, its
/// access control list and its extended attributes. It also keeps its owner if the administrator saves. If the group or
/// the list cannot be kept, the group gets no permissions, and others get none that somebody lacked before. The bits
/// that give a program the rights of its owner or its group, and the sticky bit, are dropped.
///
/// Each operation returns an empty string if it succeeds, or the reason why it failed.
class FileReplacement
{
public:
    explicit FileReplacement(const QString &fileName)
        : m_fileName(fileName)
    {
    }
    /// Removes the new content, unless it has been moved into place.
    ~FileReplacement();
    Q_DISABLE_COPY(FileReplacement)

    /// Creates the file for the new content.
    QString open();
    /// Appends a piece of the new content.
    QString write(const QByteArray &piece);
    /// Moves the new content into place. Fails if the file is not the expected one.
    QString commit(const Expectation &expected);

    /// Returns the state of the file after the new content was moved into place, or nothing before that. If commit()
    /// failed only because the folder could not be synced, the new content is in place.
    const std::optional<FileState> &state() const { return m_state; }

private:
    QString createCopy();
    QString moveIntoPlace(const Expectation &expected);

    /// Name that was given.
    QString m_fileName;
    /// Name of the file at the end of all links. Known after open().
    QByteArray m_target;
    /// Name of the file with the new content, or empty if there is none.
    QByteArray m_copy;
    int m_handle = -1;
    bool m_isNew = false;
    ContentHash m_hash;
    std::optional<FileState> m_state;
};

} // namespace cabledoc
