#include "bkxmleditor.h"

#include "childelements.h"
#include "document.h"
#include "documentattributes.h"
#include "words.h"

using namespace cabledoc;

namespace {

BundledCable bundleFrom(const QDomElement &element)
{
    BundledCableFields fields = bundledCableAttributes().read(element);
    fields.tag = element.tagName();
    fields.types = childIds(element.firstChildElement(words::BundledCableTypeList));
    return BundledCable(fields);
}

} // namespace

void cabledoc::writeBundleTypes(DocumentTree *tree, const QDomElement &bundle, const QStringList &types)
{
    tree->remove(bundle.firstChildElement(words::BundledCableTypeList));
    const QDomElement list = tree->append(words::BundledCableTypeList, bundle);
    int position = 0;
    for (const QString &type : types.mid(0, maximumTypesOfBundle)) {
        ++position;
        const QString tag = words::BundledCableTypeTagPrefix + QString::number(position);
        tree->setAttribute(tree->append(tag, list), words::Id, type);
    }
}

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
    DocumentTree &tree = inside().tree();
    ChildNames names(list);
    for (const BundledCable &bundle : bundles) {
        if (names.containsId(bundle.id()))
            continue;
        const QDomElement element = tree.append(names.firstFreeTag(words::BundledCableTagPrefix), list,
                                                bundledCableAttributes(), bundle.fields());
        writeBundleTypes(&tree, element, bundle.types());
        names.insert(element);
    }
}

void BKXMLEditor::renameBundledCableType(const QString &oldName, const QString &newName)
{
    inside().tree().setAttribute(childWithId(getToBundledCableTypeList(), oldName), words::Id, newName);
}

void BKXMLEditor::removeBundledCableTypeByTag(const QString &tag)
{
    inside().tree().remove(getChildElement(tag, getToBundledCableTypeList().firstChild()));
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
