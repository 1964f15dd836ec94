#include "bkxmleditor.h"

#include "attributetext.h"
#include "childelements.h"
#include "words.h"

using namespace cabledoc;

namespace {

/// The format keeps no more cable types of a bundle.
constexpr int maximumTypes = 8;

} // namespace

void BKXMLEditor::addBundledCableType(const QString &id, const QStringList &types, const QString &color,
                                      const bool &defaultType)
{
    const QDomElement list = getToBundledCableTypeList();
    if (list.isNull() || bundledCableTypeIdExists(id))
        return;
    QDomElement bundle = appendElement(firstFreeTag(list, words::BundledCableTagPrefix), list);
    bundle.setAttribute(words::Id, id);
    bundle.setAttribute(words::Color, color);
    bundle.setAttribute(words::DefaultType, toText(defaultType));
    const QDomElement typeList = appendElement(words::BundledCableTypeList, bundle);
    int position = 0;
    for (const QString &type : types.mid(0, maximumTypes)) {
        ++position;
        appendElement(words::BundledCableTypeTagPrefix + QString::number(position), typeList)
            .setAttribute(words::Id, type);
    }
    setDirty(true);
}

void BKXMLEditor::addBundledCableType(const BundledCable &bundle)
{
    addBundledCableType(bundle.id(), bundle.types(), bundle.color(), bundle.defaultType());
}

void BKXMLEditor::renameBundledCableType(const QString &oldName, const QString &newName)
{
    renameElement(childWithId(getToBundledCableTypeList(), oldName), newName);
}

void BKXMLEditor::removeBundledCableTypeByTag(const QString &tag)
{
    removeElement(getChildElement(tag, getToBundledCableTypeList().firstChild()));
}

BundledCable BKXMLEditor::getBundledCableType(const QString &name) const
{
    const QDomElement bundle = childWithId(getToBundledCableTypeList(), name);
    BundledCable record;
    if (bundle.isNull()) {
        record.setID(QStringLiteral("error"));
        return record;
    }
    record.setTag(bundle.tagName());
    record.setID(name);
    record.setTypes(childIds(bundle.firstChildElement(words::BundledCableTypeList)));
    record.setColor(getChildAttr(words::Color, bundle));
    bool isDefault = false;
    fromText(getChildAttr(words::DefaultType, bundle), &isDefault);
    record.setDefaultType(isDefault);
    return record;
}

QString BKXMLEditor::getBundledCableTypeIdByTag(const QString &tag) const
{
    return getElementId(getChildElement(tag, getToBundledCableTypeList().firstChild()));
}

QString BKXMLEditor::getBundledCableTypeTagById(const QString &id) const
{
    return childWithId(getToBundledCableTypeList(), id).tagName();
}

QStringList BKXMLEditor::getBundledCableTypeTags() const
{
    return childTags(getToBundledCableTypeList());
}

QStringList BKXMLEditor::getBundledCableTypeIds() const
{
    return childIds(getToBundledCableTypeList());
}

bool BKXMLEditor::bundledCableTypeTagExists(const QString &tag) const
{
    return hasChildElement(tag, getToBundledCableTypeList().firstChild());
}

bool BKXMLEditor::bundledCableTypeIdExists(const QString &id) const
{
    return !childWithId(getToBundledCableTypeList(), id).isNull();
}
