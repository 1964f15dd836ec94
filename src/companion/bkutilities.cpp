#include "bkutilities.h"

#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

#include <cmath>

namespace {

QString &settingsFile()
{
    static QString fileName;
    return fileName;
}

bool isHeight(const QString &text)
{
    bool isNumber = false;
    const double height = text.toDouble(&isNumber);
    return isNumber && std::isfinite(height) && height > 0.0;
}

QString setting(BKUtils::layvoSettings key)
{
    QString stored;
    if (!settingsFile().isEmpty()) {
        const QSettings settings(settingsFile(), QSettings::IniFormat);
        stored = settings.value(QStringLiteral("Settings/%1").arg(int(key))).toString();
    }
    switch (key) {
    case BKUtils::NewJobDirectory:
        return stored.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : stored;
    case BKUtils::DefaultCeilingHeight:
        return isHeight(stored) ? stored : QStringLiteral("8");
    }
    return stored;
}

} // namespace

void BKUtilities::setSettingsFile(const QString &fileName)
{
    settingsFile() = fileName;
}

QMap<BKUtils::layvoSettings, QString> BKUtilities::readSettings(const QList<BKUtils::layvoSettings> &keys)
{
    QMap<BKUtils::layvoSettings, QString> texts;
    for (const BKUtils::layvoSettings key : keys)
        texts.insert(key, setting(key));
    return texts;
}

float BKUtilities::roundToHalf(float value)
{
    return std::round(value * 2.0F) / 2.0F;
}

float BKUtilities::roundToTenths(float value)
{
    // This is deliberately a product of floats. 0.35F is a little less than 0.35, but its product is exactly 3.5. So a
    // number that looks like a tie is rounded like a tie.
    return std::round(value * 10.0F) / 10.0F;
}

double BKUtilities::getDistance(const QPointF &from, const QPointF &to)
{
    return std::hypot(to.x() - from.x(), to.y() - from.y());
}
