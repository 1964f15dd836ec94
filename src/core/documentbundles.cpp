#include "bkxmleditor.h"

#include "attributetext.h"
#include "childelements.h"
#include "words.h"

using namespace cabledoc;

namespace {

/// The format keeps no more cable types of a bundle.
constexpr int maximumTypes = 8;

BundledCable bundleFrom(const QDomElement &element)
{
    bool isDefault = false;
    fromText(element.attribute(words::DefaultType), &isDefault);
    return BundledCable(element.tagName(), element.attribute(words::Id),
                        childIds(element.firstChildElement(words::BundledCableTypeList)),
                        element.attribute(words::Color), isDefault);
}

} // namespace

void BKXMLEditor::addBundledCableType(const QString &id, const QStringList &types, const QString &color,
                                      const bool &defaultType)
{
    addBundledCableType(BundledCable(QString(), id, types, color, defaultType));
}

void BKXMLEditor::addBundledCableType(const BundledCable &bundle)
{
    addBundledCableTypes({bundle});
}

void BKXMLEditor::addBundledCableTypes(const QVector<BundledCable> &bundles)
{
    const QDomElement list = getToBundledCableTypeList();
    if (list.isNull())
        return;
    ChildNames names(list);
    for (const BundledCable &bundle : bundles) {
        if (names.containsId(bundle.id()))
            continue;
        QDomElement element = appendElement(names.firstFreeTag(words::BundledCableTagPrefix), list);
        element.setAttribute(words::Id, bundle.id());
        element.setAttribute(words::Color, bundle.color());
        element.setAttribute(words::DefaultType, toText(bundle.defaultType()));
        const QDomElement typeList = appendElement(words::BundledCableTypeList, element);
        int position = 0;
        for (const QString &type : bundle.types().mid(0, maximumTypes)) {
            ++position;
            appendElement(words::BundledCableTypeTagPrefix + QString::number(position), typeList)
                .setAttribute(words::Id, type);
        }
        names.insert(element);
        setDirty(true);
    }
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
    if (!bundle.isNull())
        return bundleFrom(bundle);
    BundledCable unknown;
    unknown.setID(QStringLiteral("error"));
    return unknown;
}

QVector<BundledCable> BKXMLEditor::getBundledCableTypes() const
{
    QVector<BundledCable> bundles;
    const QVector<QDomElement> elements = childrenWithId(getToBundledCableTypeList());
    for (const QDomElement &element : elements)
        bundles.append(bundleFrom(element));
    return bundles;
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
