#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

QString JobEditor::addConnection(const DeviceConnection &connection, int mode)
{
    return getElementId(d->add(connectionKind(), connection.fields(), mode));
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
    d->tree.remove(ElementKind::Connections, tag);
}

void JobEditor::removeConnection(const DeviceConnection &connection)
{
    removeConnection(connection.tag());
}

DeviceConnection JobEditor::getConnection(const QString &tag) const
{
    return DeviceConnection(d->tree.read(connectionKind(), tag));
}

QString JobEditor::getConnectionTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::Connections, id);
}

QString JobEditor::getConnectionTo(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Connections, tag, words::To);
}

QString JobEditor::getConnectionFrom(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Connections, tag, words::From);
}

int JobEditor::getConnectionType(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Connections, tag, words::Type).toInt();
}

void JobEditor::setConnectionTo(const QString &tag, const QString &to)
{
    d->tree.set(ElementKind::Connections, tag, words::To, to);
}

void JobEditor::setConnectionFrom(const QString &tag, const QString &from)
{
    d->tree.set(ElementKind::Connections, tag, words::From, from);
}

void JobEditor::setConnectionType(const QString &tag, const QString &type)
{
    d->tree.set(ElementKind::Connections, tag, words::Type, type);
}

void JobEditor::setConnectionType(const QString &tag, int type)
{
    setConnectionType(tag, toText(type));
}
