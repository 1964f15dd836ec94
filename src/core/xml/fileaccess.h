#pragma once

#include <QtCore/QByteArray>

namespace cabledoc {

/// Gives the open file the owner, the group, the permissions and the extended attributes of another one, as far as the
/// system allows it. Nobody who could not read that one can read this one. False, with errno set, if that cannot be
/// made sure.
bool copyAccess(const QByteArray &from, int to);

} // namespace cabledoc
