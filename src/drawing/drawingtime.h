#pragma once

#include <QtCore/QDateTime>

namespace cabledoc {

/// Returns the time that drawings bear, in UTC: that of the environment variable SOURCE_DATE_EPOCH, which is in seconds
/// since 1970, or else the present time.
QDateTime drawingTime();

} // namespace cabledoc
