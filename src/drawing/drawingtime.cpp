#include "drawingtime.h"

namespace cabledoc {

QDateTime drawingTime()
{
    bool isNumber = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isNumber);
    return isNumber ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC) : QDateTime::currentDateTimeUtc();
}

} // namespace cabledoc
