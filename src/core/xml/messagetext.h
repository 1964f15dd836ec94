#pragma once

#include <QtCore/QString>

namespace cabledoc {

/// A value as a message quotes it: on one line, control characters as escapes such as "\x00", and not more than 80
/// characters of it.
QString excerpt(const QString &value);

} // namespace cabledoc
