#include "jobeditor.h"

#include "addmode.h"
#include "jobattributes.h"
#include "jobindex.h"
#include "jobwords.h"
#include "qtcompat.h"

using namespace cabledoc;

// Adding and removing

QString JobEditor::addCable(const Cable &cable, int mode)
{
    if (addmode::keepsTag(mode) && !mayBeName(cable.tag()))
        return QString();
    const QDomElement list = getToCableList();
    if (list.isNull())
        return QString();
    CableFields fields = cable.fields();
    if (!addmode::keepsTag(mode))
        fields.tag = newCableTag();
    if (!addmode::keepsId(mode))
        fields.id = newCableId();
    if (!qtcompat::isColorName(fields.color))
        fields.color = getTestDef(fields.type).color();
    fields.use = storedCableUse(fields.use);

    const QDomElement element = appendElement(fields.tag, list);
    cableAttributes().write(element, fields);
    testResultsAttributes().write(appendElement(words::TestResults, element), fields.testResults.fields());
    (*m_index)[ElementKind::Cables].append(element);
    if (m_index->references)
        m_index->references->insert(element);
    forgetCableLists();
    setDirty(true);
    return fields.id;
}

QString JobEditor::addCable(const QString &tag, const QString &id, const QString &use, const QString &to,
                            const QString &from, const QString &type, const QString &bundleName,
                            const QString &bundleNum, const QString &bundleGroupNum, const QString &color,
                            const QStringList &path, const TestResults &testResults, int mode)
{
    return addCable(
        Cable(tag, id, use, to, from, type, testResults, path, bundleName, bundleNum, bundleGroupNum, color), mode);
}

QString JobEditor::addCable(const QString &tag, const QString &id, const QString &use, const QString &to,
                            const QString &from, const QString &type, const TestResults &testResults, int mode)
{
    return addCable(tag, id, use, to, from, type, QString(), QString(), QString(), QString(), QStringList(),
                    testResults, mode);
}

QString JobEditor::addCable(const QString &tag, const QString &id, const QString &use, const QString &to,
                            const QString &from, const QString &type, int mode)
{
    return addCable(tag, id, use, to, from, type, TestResults(), mode);
}

QString JobEditor::addCable(const QString &tag, const QString &id, const QString &use, const QString &to,
                            const QString &from, int mode)
{
    return addCable(tag, id, use, to, from, QString(), mode);
}

QString JobEditor::addCable(const QString &tag, const QString &id, const QString &use, const QString &to, int mode)
{
    return addCable(tag, id, use, to, QString(), mode);
}

QString JobEditor::addCable(const QString &tag, const QString &id, const QString &use, int mode)
{
    return addCable(tag, id, use, QString(), mode);
}

QString JobEditor::addCable(const QString &tag, const QString &id, int mode)
{
    return addCable(tag, id, QString(), mode);
}

QString JobEditor::newCableTag() const
{
    ElementIndex &cables = (*m_index)[ElementKind::Cables];
    const QString prefix = words::CableTagPrefix;
    return prefix
           + QString::number(cables.firstFreeTagNumber(prefix, numberAfter(prefix, cables.lastTag()) + qint64(1)));
}

QString JobEditor::newCableId() const
{
    ElementIndex &cables = (*m_index)[ElementKind::Cables];
    //: What generated ids of cables begin with, such as "Cable001"; no characters beyond Latin-1.
    const QString prefix = tr("Cable");
    // The last in the order of the tags, deliberately, not the highest number.
    const QString lastId = cables.id(cables.lastTagWithNumberedId(prefix));
    return cables.numberedId(prefix, cables.firstFreeIdNumber(prefix, numberAfter(prefix, lastId) + qint64(1)));
}

void JobEditor::removeCable(const QString &tag)
{
    removeElementOf(ElementKind::Cables, cableElement(tag));
}

void JobEditor::removeCable(const Cable &cable)
{
    removeCable(cable.tag());
}

// Whole cables

Cable JobEditor::getCable(const QString &tag)
{
    const QDomElement element = cableElement(tag);
    if (element.isNull())
        return Cable();
    CableFields fields = cableAttributes().read(element);
    fields.tag = tag;
    fields.testResults = readTestResults(element);
    return Cable(fields);
}

Cable JobEditor::getCableById(const QString &id)
{
    return getCable((*m_index)[ElementKind::Cables].tagOfId(id));
}

QString JobEditor::getCableElement(const QString &tag) const
{
    return cableElement(tag).tagName();
}

QDomElement JobEditor::cableElement(const QString &tag) const
{
    return (*m_index)[ElementKind::Cables].element(tag);
}

// Single fields

QString JobEditor::getCableID(const QString &tag) const
{
    return (*m_index)[ElementKind::Cables].id(tag);
}

QString JobEditor::getCableUse(const QString &tag) const
{
    return getChildAttr(words::Use, cableElement(tag));
}

QString JobEditor::getCableTo(const QString &tag) const
{
    return getChildAttr(words::To, cableElement(tag));
}

QString JobEditor::getCableFrom(const QString &tag) const
{
    return getChildAttr(words::From, cableElement(tag));
}

QString JobEditor::getCableType(const QString &tag) const
{
    return getChildAttr(words::Type, cableElement(tag));
}

QStringList JobEditor::getCablePath(const QString &tag) const
{
    QStringList path;
    fromText(getChildAttr(words::Path, cableElement(tag)), &path);
    return path;
}

QString JobEditor::getCableBundleName(const QString &tag) const
{
    return getChildAttr(words::BundleName, cableElement(tag));
}

QString JobEditor::getCableBundleNum(const QString &tag) const
{
    return getChildAttr(words::BundleNum, cableElement(tag));
}

QString JobEditor::getCableBundleGroupNum(const QString &tag) const
{
    return getChildAttr(words::BundleGroupNum, cableElement(tag));
}

QString JobEditor::getCableColor(const QString &tag) const
{
    return getChildAttr(words::Color, cableElement(tag));
}

bool JobEditor::getCableDefaultType(const QString &tag) const
{
    bool isDefault = false;
    fromText(getChildAttr(words::DefaultType, cableElement(tag)), &isDefault);
    return isDefault;
}

void JobEditor::setCableID(const QString &tag, const QString &id)
{
    const QDomElement cable = cableElement(tag);
    changeAttribute(cable, words::Id, id);
    (*m_index)[ElementKind::Cables].updateId(cable);
    forgetCableLists();
}

void JobEditor::setCableUse(const QString &tag, const QString &use)
{
    changeAttribute(cableElement(tag), words::Use, use);
}

void JobEditor::setCableTo(const QString &tag, const QString &to)
{
    changeAttribute(cableElement(tag), words::To, to);
}

void JobEditor::setCableFrom(const QString &tag, const QString &from)
{
    changeAttribute(cableElement(tag), words::From, from);
}

void JobEditor::setCableType(const QString &tag, const QString &type)
{
    changeAttribute(cableElement(tag), words::Type, type);
    forgetCableLists();
}

void JobEditor::setCablePath(const QString &tag, const QStringList &path)
{
    changeAttribute(cableElement(tag), words::Path, toText(path));
}

void JobEditor::setCableBundleName(const QString &tag, const QString &name)
{
    changeAttribute(cableElement(tag), words::BundleName, name);
}

void JobEditor::setCableBundleNum(const QString &tag, const QString &number)
{
    changeAttribute(cableElement(tag), words::BundleNum, number);
}

void JobEditor::setCableBundleGroupNum(const QString &tag, const QString &number)
{
    changeAttribute(cableElement(tag), words::BundleGroupNum, number);
}

void JobEditor::setCableColor(const QString &tag, const QString &color)
{
    changeAttribute(cableElement(tag), words::Color, color);
}

void JobEditor::setCableDefaultType(const QString &tag, bool isDefault)
{
    changeAttribute(cableElement(tag), words::DefaultType, toText(isDefault));
}

bool JobEditor::cableIsInBundle(const QString &tag) const
{
    return !getCableBundleName(tag).isEmpty();
}
