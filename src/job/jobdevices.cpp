#include "jobelements.h"

using namespace cabledoc;

namespace {

const DrawnKind<DeviceFields> &deviceKind()
{
    static const DrawnKind<DeviceFields> kind{ElementKind::Devices, words::DeviceList, words::DeviceTagPrefix,
                                              deviceAttributes()};
    return kind;
}

} // namespace

QString JobEditor::addDevice(const Device &device, int mode)
{
    return addElement(deviceKind(), sheetElement(device.sheet()), device.fields(), mode).tagName();
}

QString JobEditor::addDevice(const QString &sheetTag, const QString &type, double x, double y, double iconScale,
                             const QString &info, const QString &tag, const QString &id, int mode)
{
    return addDevice(Device(tag, id, type, x, y, iconScale, info, sheetTag), mode);
}

void JobEditor::removeDevice(const QString &tag)
{
    removeElementOf(ElementKind::Devices, deviceElement(tag));
}

void JobEditor::removeDevice(const Device &device)
{
    removeDevice(device.element());
}

QDomElement JobEditor::deviceElement(const QString &tag) const
{
    return elementOf(ElementKind::Devices, tag);
}

DeviceFields JobEditor::readDevice(const QDomElement &element) const
{
    if (element.isNull())
        return DeviceFields();
    DeviceFields fields = readElement(deviceKind(), element);
    fields.sheet = element.parentNode().parentNode().nodeName();
    return fields;
}

Device JobEditor::getDeviceByTag(const QString &tag) const
{
    return Device(readDevice(deviceElement(tag)));
}

Device JobEditor::getDeviceById(const QString &id) const
{
    return getDeviceByTag(getDeviceTagById(id));
}

QString JobEditor::getDeviceIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::Devices].id(tag);
}

QString JobEditor::getDeviceTagById(const QString &id) const
{
    return (*m_index)[ElementKind::Devices].tagOfId(id);
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
    renameElementOf(ElementKind::Devices, tag, id);
}

void JobEditor::setDeviceType(const QString &tag, const QString &type)
{
    writeAttribute(deviceElement(tag), words::Type, type);
}

void JobEditor::setDevicePos(const QString &tag, double x, double y)
{
    writeAttribute(deviceElement(tag), words::X, toText(x));
    writeAttribute(deviceElement(tag), words::Y, toText(y));
}

void JobEditor::setDeviceIconScale(const QString &tag, double scale)
{
    writeAttribute(deviceElement(tag), words::IconScale, toText(scale));
}

void JobEditor::setDeviceInfo(const QString &tag, const QString &info)
{
    writeAttribute(deviceElement(tag), words::Info, info);
}
