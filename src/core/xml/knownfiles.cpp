#include "knownfiles.h"

#include <QtCore/QFileInfo>

namespace cabledoc {

void KnownFiles::takeName(const QString &name)
{
    m_states.clear();
    changeName(name);
}

void KnownFiles::changeName(const QString &name)
{
    m_name = name;
    m_path = QFileInfo(name).absoluteFilePath();
}

QString KnownFiles::path(const QString &name) const
{
    return name == m_name && !m_path.isEmpty() ? m_path : QFileInfo(name).absoluteFilePath();
}

} // namespace cabledoc
