#pragma once

#include <QtCore/QByteArray>

namespace cabledoc {

/// Gives an open file the owner, the group, the permissions and the extended attributes of another file, as far as the
/// system allows it. A user who could not read the other file cannot read this one. Returns false, with errno set, if
/// this cannot be ensured.
bool copyAccess(const QByteArray &from, int to);

} // namespace cabledoc
