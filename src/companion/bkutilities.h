#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPointF>
#include <QtCore/QString>

/// Vocabulary of the companion utilities library.
namespace BKUtils {

/// Keys of the application's settings. The numbers are fixed: applications store them.
enum layvoSettings {
    NewJobDirectory = 1,       ///< directory in which new, untitled jobs are placed
    DefaultCeilingHeight = 24, ///< ceiling height of a new floor, a decimal number in the job's length unit
};

} // namespace BKUtils

/// The services that cabledoc takes from the application's utilities library. cabledoc brings this
/// implementation; an application may link a library of its own with the same functions instead.
namespace BKUtilities {

/// Names the settings file (INI format) that readSettings() reads from now on. It holds one entry a
/// key under [Settings], named by the key's number: "1=/home/me/jobs". An empty name, the initial
/// state, stands for no file.
Q_DECL_EXPORT void setSettingsFile(const QString &fileName);

/// The text of each requested key. A key that the file does not hold, holds empty or (for a number)
/// unreadable has its default: the user's documents folder, and "8". Never changes the file.
Q_DECL_EXPORT QMap<BKUtils::layvoSettings, QString> readSettings(const QList<BKUtils::layvoSettings> &keys);

/// The multiple of 0.5 nearest to value; ties go away from zero (0.25 gives 0.5).
Q_DECL_EXPORT float roundToHalf(float value);

/// The multiple of 0.1 nearest to value; ties go away from zero (0.05 gives 0.1).
Q_DECL_EXPORT float roundToTenths(float value);

/// The straight distance between two points, in the unit of their coordinates.
Q_DECL_EXPORT double getDistance(const QPointF &from, const QPointF &to);

} // namespace BKUtilities
