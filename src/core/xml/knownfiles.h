#pragma once

#include "filereplacement.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace cabledoc {

/// Remembers for a document where its file name leads, and the states of the files when they were read or written.
class KnownFiles
{
public:
    /// Forgets everything, and remembers where the name leads now.
    void takeName(const QString &name);
    /// Changes the name of the document, and remembers where it leads now. Keeps the states.
    void changeName(const QString &name);
    /// Returns the absolute path of a name. The path of the document's own name stays the same if the process changes
    /// its folder.
    QString path(const QString &name) const;

    /// Remembers the state of a file that was read or written.
    void remember(const QString &path, const FileState &state) { m_states.insert(path, state); }
    /// Remembers a file that could not be read. Its content is not known.
    void rememberUnread(const QString &path) { m_states.insert(path, FileState()); }

    /// Returns whether the file was remembered, even if it could not be read.
    bool knows(const QString &path) const { return m_states.contains(path); }
    /// Returns the state of a file, or an empty state if its content is not known.
    FileState state(const QString &path) const { return m_states.value(path); }

private:
    QString m_name;
    QString m_path;
    /// States of the files by their paths.
    QMap<QString, FileState> m_states;
};

} // namespace cabledoc
