#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

QString JobEditor::addDevice(const Device &device, int mode)
{
    return d->add(deviceKind(), device.fields(), mode).tagName();
}

QString JobEditor::addDevice(const QString &sheetTag, const QString &type, double x, double y, double iconScale,
                             const QString &info, const QString &tag, const QString &id, int mode)
{
    return addDevice(Device(tag, id, type, x, y, iconScale, info, sheetTag), mode);
}

void JobEditor::removeDevice(const QString &tag)
{
    d->tree.remove(ElementKind::Devices, tag);
}

void JobEditor::removeDevice(const Device &device)
{
    removeDevice(device.element());
}

Device JobEditor::getDeviceByTag(const QString &tag) const
{
    return Device(d->tree.read(deviceKind(), tag));
}

Device JobEditor::getDeviceById(const QString &id) const
{
    return getDeviceByTag(getDeviceTagById(id));
}

QString JobEditor::getDeviceIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::Devices, tag);
}

QString JobEditor::getDeviceTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::Devices, id);
}

QString JobEditor::getDeviceType(const QString &tag) const
{
    return getDeviceByTag(tag).type();
}

QPointF JobEditor::getDevicePos(const QString &tag) const
{
    const Device device = getDeviceByTag(tag);
    return {device.x(), device.y()};
}

double JobEditor::getDeviceIconScale(const QString &tag) const
{
    return getDeviceByTag(tag).iconScale();
}

QString JobEditor::getDeviceInfo(const QString &tag) const
{
    return getDeviceByTag(tag).info();
}

QString JobEditor::getDeviceSheet(const QString &tag) const
{
    return getDeviceByTag(tag).sheet();
}

void JobEditor::setDeviceID(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::Devices, tag, words::Id, id);
}

void JobEditor::setDeviceType(const QString &tag, const QString &type)
{
    d->tree.set(ElementKind::Devices, tag, words::Type, type);
}

void JobEditor::setDevicePos(const QString &tag, double x, double y)
{
    d->tree.set(ElementKind::Devices, tag, words::X, toText(x));
    d->tree.set(ElementKind::Devices, tag, words::Y, toText(y));
}

void JobEditor::setDeviceIconScale(const QString &tag, double scale)
{
    d->tree.set(ElementKind::Devices, tag, words::IconScale, toText(scale));
}

void JobEditor::setDeviceInfo(const QString &tag, const QString &info)
{
    d->tree.set(ElementKind::Devices, tag, words::Info, info);
}
