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

QStringList AttributeList::invalidNumbers(const QDomElement &element) const
{
    QStringList names;
    for (const AttributeRow &row : m_rows) {
        if (!row.isValid(element.attribute(row.name)))
            names.append(row.name);
    }
    return names;
}

void AttributeList::readInto(void *fields, const QDomElement &element) const
{
    for (const AttributeRow &row : m_rows) {
        if (row.parse != nullptr && element.hasAttribute(row.name))
            row.parse(element.attribute(row.name), fields);
    }
}

} // namespace cabledoc
