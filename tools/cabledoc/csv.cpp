#include "csv.h"

#include <cabledoc/csvoptions.h>

QByteArray csvLine(const QVariantList &cells)
{
    QStringList fields;
    for (const QVariant &cell : cells)
        fields.append(cell.userType() == QMetaType::Bool ? QString::number(cell.toInt()) : cell.toString());
    return cabledoc::csvLine(fields);
}
