#pragma once

#include <QtCore/QString>

namespace cabledoc {

/// Returns a value in the form in which messages quote it: on one line, with escapes such as "\x00" for control
/// characters, and cut after 80 characters.
QString excerpt(const QString &value);

} // namespace cabledoc
