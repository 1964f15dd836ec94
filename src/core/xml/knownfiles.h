#pragma once

#include "filereplacement.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace cabledoc {

/// What a document remembers of files: where its name leads, and what the files were when it was read from them or
/// written to them.
class KnownFiles
{
public:
    /// Forgets everything, and remembers where the name leads now.
    void takeName(const QString &name);
    /// Remembers a second name that the document belongs to from now on.
    void changeName(const QString &name);
    /// Returns the absolute path of a name. For the one that was taken it stays the same when the process goes to
    /// another folder.
    QString path(const QString &name) const;

    void remember(const QString &path, const FileState &state) { m_states.insert(path, state); }
    /// Remembers a file that could not be read: it has no content that would be known.
    void rememberUnread(const QString &path) { m_states.insert(path, FileState()); }

    bool knows(const QString &path) const { return m_states.contains(path); }
    FileState state(const QString &path) const { return m_states.value(path); }

private:
    QString m_name;
    QString m_path;
    QMap<QString, FileState> m_states; ///< by path
};

} // namespace cabledoc
