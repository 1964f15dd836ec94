#include "jobeditor.h"

#include "addmode.h"
#include "jobattributes.h"
#include "jobindex.h"
#include "jobwords.h"

using namespace cabledoc;

QString JobEditor::addConnection(const QString &tag, const QString &id, const QString &to, const QString &from,
                                 const QString &type, int mode)
{
    if (addmode::keepsTag(mode) && !mayBeName(tag))
        return QString();
    const QDomElement list = getToConnectionList();
    if (list.isNull())
        return QString();
    ElementIndex &connections = (*m_index)[ElementKind::Connections];
    DeviceConnectionFields fields{tag, id, to, from, type};
    if (!addmode::keepsTag(mode)) {
        const QString prefix = words::ConnectionTagPrefix;
        fields.tag = prefix + QString::number(connections.firstFreeTagNumber(prefix, 1));
    }
    if (!addmode::keepsId(mode))
        fields.id = connections.numberedId(id, connections.firstFreeIdNumber(id, 1));

    const QDomElement connection = appendElement(fields.tag, list);
    connectionAttributes().write(connection, fields);
    connections.append(connection);
    if (m_index->references)
        m_index->references->insert(connection);
    setDirty(true);
    return fields.id;
}

QString JobEditor::addConnection(const DeviceConnection &connection, int mode)
{
    return addConnection(connection.tag(), connection.id(), connection.to(), connection.from(), connection.type(),
                         mode);
}

void JobEditor::removeConnection(const QString &tag)
{
    removeElementOf(ElementKind::Connections, elementOf(ElementKind::Connections, tag));
}

void JobEditor::removeConnection(const DeviceConnection &connection)
{
    removeConnection(connection.tag());
}

DeviceConnection JobEditor::getConnection(const QString &tag) const
{
    const QDomElement connection = elementOf(ElementKind::Connections, tag);
    if (connection.isNull())
        return DeviceConnection();
    DeviceConnectionFields fields = connectionAttributes().read(connection);
    fields.tag = tag;
    return DeviceConnection(fields);
}

QString JobEditor::getConnectionTagById(const QString &id) const
{
    return (*m_index)[ElementKind::Connections].tagOfId(id);
}

QString JobEditor::getConnectionTo(const QString &tag) const
{
    return getChildAttr(words::To, elementOf(ElementKind::Connections, tag));
}

QString JobEditor::getConnectionFrom(const QString &tag) const
{
    return getChildAttr(words::From, elementOf(ElementKind::Connections, tag));
}

int JobEditor::getConnectionType(const QString &tag) const
{
    return getChildAttr(words::Type, elementOf(ElementKind::Connections, tag)).toInt();
}

void JobEditor::setConnectionTo(const QString &tag, const QString &to)
{
    changeAttribute(elementOf(ElementKind::Connections, tag), words::To, to);
}

void JobEditor::setConnectionFrom(const QString &tag, const QString &from)
{
    changeAttribute(elementOf(ElementKind::Connections, tag), words::From, from);
}

void JobEditor::setConnectionType(const QString &tag, const QString &type)
{
    changeAttribute(elementOf(ElementKind::Connections, tag), words::Type, type);
}
