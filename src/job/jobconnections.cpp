#include "jobelements.h"

using namespace cabledoc;

namespace {

const DrawnKind<DeviceConnectionFields> &connectionKind()
{
    static const DrawnKind<DeviceConnectionFields> kind{ElementKind::Connections, words::ConnectionList,
                                                        words::ConnectionTagPrefix, connectionAttributes()};
    return kind;
}

} // namespace

QString JobEditor::addConnection(const DeviceConnection &connection, int mode)
{
    const QDomElement root = getToConnectionList().parentNode().toElement();
    return getElementId(addElement(connectionKind(), root, connection.fields(), mode));
}

QString JobEditor::addConnection(const QString &tag, const QString &id, const QString &to, const QString &from,
                                 const QString &type, int mode)
{
    return addConnection(DeviceConnection(tag, id, to, from, type), mode);
}

QString JobEditor::addConnection(const QString &tag, const QString &id, const QString &to, const QString &from,
                                 int type, int mode)
{
    return addConnection(tag, id, to, from, toText(type), mode);
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
    return DeviceConnection(readElement(connectionKind(), connection));
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

void JobEditor::setConnectionType(const QString &tag, int type)
{
    setConnectionType(tag, toText(type));
}
