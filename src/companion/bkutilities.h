#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPointF>
#include <QtCore/QString>

/// The vocabulary of the companion utilities library.
namespace BKUtils {

/// Keys of the application's settings. The numbers are fixed, because applications store them.
enum layvoSettings {
    /// Directory in which new, untitled jobs are placed.
    NewJobDirectory = 1,
    /// Ceiling height of a new floor: a decimal number in the job's length unit.
    DefaultCeilingHeight = 24,
};

} // namespace BKUtils

/// The functions that cabledoc takes from the application's utilities library. cabledoc brings this implementation. An
/// application may link a library of its own with the same functions instead.
namespace BKUtilities {

/// Sets the settings file, in INI format, that readSettings() reads from now on. The section [Settings] of the file has
/// one entry for each key. The entry is named by the key's number, as in "1=/home/me/jobs". An empty file name, which
/// is the initial state, stands for no file.
Q_DECL_EXPORT void setSettingsFile(const QString &fileName);

/// Returns the text of each of the given keys. A key that is missing or empty in the file has its default value: the
/// user's documents folder for NewJobDirectory, and "8" for DefaultCeilingHeight. A ceiling height that is not a finite
/// number above 0 is also "8". Never changes the file.
Q_DECL_EXPORT QMap<BKUtils::layvoSettings, QString> readSettings(const QList<BKUtils::layvoSettings> &keys);

/// Returns the multiple of 0.5 nearest to value. Ties are rounded away from zero: 0.25 gives 0.5.
Q_DECL_EXPORT float roundToHalf(float value);

/// Returns the multiple of 0.1 nearest to value. Ties are rounded away from zero: 0.05 gives 0.1.
Q_DECL_EXPORT float roundToTenths(float value);

/// Returns the straight distance between two points, in the unit of their coordinates.
Q_DECL_EXPORT double getDistance(const QPointF &from, const QPointF &to);

} // namespace BKUtilities
