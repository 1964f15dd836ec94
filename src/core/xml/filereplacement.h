#pragma once

#include "filestate.h"

#include <QtCore/QString>

#include <optional>

namespace cabledoc {

/// What may be replaced by a save.
struct Expectation
{
    enum Kind {
        Anything,     ///< whatever file is there
        KnownContent, ///< a file with the content of known, or none
        NoFile,       ///< nothing: there must be no file
    };
    Kind kind = Anything;
    FileState known;
};

/// A new content for a file. It is written beside the file, and moved into its place once it is safely on the disk.
///
/// The file keeps its links, and as far as the system allows it its group, its permissions, its access control list and
/// its extended attributes; the owner too if the administrator saves. If the group or the list cannot be kept, the
/// group gets no permissions and others get none that somebody lacked before. The bits that give a program the rights
/// of its owner or its group, and the sticky bit, are dropped.
///
/// Each operation returns why it failed, or an empty text.
class FileReplacement
{
public:
    explicit FileReplacement(const QString &fileName)
        : m_fileName(fileName)
    {
    }
    /// Removes what was written, unless it was moved into place.
    ~FileReplacement();
    Q_DISABLE_COPY(FileReplacement)

    QString open();
    QString write(const QByteArray &piece);
    /// Fails if the file is not the expected one.
    QString commit(const Expectation &expected);

    /// Returns the state of the file; nothing before the new content is in place. That may be even if commit() failed,
    /// namely if the folder could not be brought to the disk.
    const std::optional<FileState> &state() const { return m_state; }

private:
    QString createCopy();
    QString moveIntoPlace(const Expectation &expected);

    QString m_fileName; ///< behind all links, from open() on
    QByteArray m_target;
    QByteArray m_copy; ///< the name of what is written; empty if there is none
    int m_handle = -1;
    bool m_isNew = false;
    ContentHash m_hash;
    std::optional<FileState> m_state;
};

} // namespace cabledoc
