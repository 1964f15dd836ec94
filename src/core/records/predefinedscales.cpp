#include "predefinedscales.h"

#include <QtCore/QVector>

namespace {

struct Scale
{
    QString name;
    int factor;
};

const QVector<Scale> &scaleTable()
{
    static const QVector<Scale> table{
        {QStringLiteral("1\" = 5'0\""), 5},   {QStringLiteral("1\" = 10'0\""), 10},
        {QStringLiteral("1\" = 20'0\""), 20}, {QStringLiteral("1\" = 30'0\""), 30},
        {QStringLiteral("1\" = 40'0\""), 40}, {QStringLiteral("1\" = 50'0\""), 50},
        {QStringLiteral("1 : 2"), 2},         {QStringLiteral("1 : 5"), 5},
        {QStringLiteral("1 : 10"), 10},
    };
    return table;
}

} // namespace

QStringList cabledoc::predefinedScaleNames()
{
    QStringList names;
    for (const Scale &scale : scaleTable())
        names.append(scale.name);
    return names;
}

int cabledoc::scaleFactor(const QString &name)
{
    for (const Scale &scale : scaleTable()) {
        if (scale.name == name)
            return scale.factor;
    }
    return 10;
}
