#include "attributetable.h"

namespace cabledoc {

QStringList AttributeList::names() const
{
    QStringList names;
    for (const AttributeRow &row : m_rows)
        names.append(row.name);
    return names;
}

QString AttributeList::defaultText(const QString &name) const
{
    for (const AttributeRow &row : m_rows) {
        if (row.name == name)
            return row.defaultText;
    }
    return QString();
}

} // namespace cabledoc
