#include "jobeditor_p.h"
#include "jobwords.h"
#include "qtcompat.h"

using namespace cabledoc;

namespace {

/// Returns a generated tag with the first free number after that of the last cable.
QString newTag(const JobTree &tree)
{
    ElementIndex &cables = tree.index().of(ElementKind::Cables);
    const QString prefix = words::CableTagPrefix;
    return prefix
           + QString::number(cables.firstFreeTagNumber(prefix, numberAfter(prefix, cables.lastTag()) + qint64(1)));
}

/// Returns a generated id, such as "Cable001".
QString newId(const JobTree &tree)
{
    ElementIndex &cables = tree.index().of(ElementKind::Cables);
    const QString prefix = JobEditorPrivate::cableIdPrefix();
    // This is deliberately the id of the last tag in string order, and not the highest number.
    const QString lastId = cables.id(cables.ids().lastTagWithNumber(prefix));
    return cables.ids().numberedId(prefix,
                                   cables.ids().firstFreeNumber(prefix, numberAfter(prefix, lastId) + qint64(1)));
}

} // namespace

QString JobEditorPrivate::cableIdPrefix()
{
    //: What generated ids of cables begin with, such as "Cable001"; no characters beyond Latin-1.
    return JobEditor::tr("Cable");
}

// Adding and removing

QString JobEditor::addCable(const Cable &cable, int mode)
{
    CableFields fields = cable.fields();
    if (!addmode::keepsTag(mode))
        fields.element = newTag(d->tree);
    if (!addmode::keepsId(mode))
        fields.id = newId(d->tree);
    if (!qtcompat::isColorName(fields.color))
        fields.color = getTestDef(fields.type).color();
    fields.use = storedCableUse(fields.use);
    const QDomElement element = d->add(cableKind(), fields, addmode::GivenNames);
    if (element.isNull())
        return QString();
    d->tree.append(words::TestResults, element, testResultsAttributes(), fields.testResults.fields());
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

void JobEditor::removeCable(const QString &tag)
{
    d->tree.remove(ElementKind::Cables, tag);
}

void JobEditor::removeCable(const Cable &cable)
{
    removeCable(cable.tag());
}

// Whole cables

Cable JobEditor::getCable(const QString &tag)
{
    const QDomElement element = d->tree.element(ElementKind::Cables, tag);
    CableFields fields = d->tree.read(cableKind(), element);
    fields.testResults =
        TestResults(d->tree.read(element.firstChildElement(words::TestResults), testResultsAttributes()));
    return Cable(fields);
}

Cable JobEditor::getCableById(const QString &id)
{
    return getCable(d->tree.tagOfId(ElementKind::Cables, id));
}

QString JobEditor::getCableElement(const QString &tag) const
{
    return d->tree.element(ElementKind::Cables, tag).tagName();
}

// Single fields

QString JobEditor::getCableID(const QString &tag) const
{
    return d->tree.id(ElementKind::Cables, tag);
}

QString JobEditor::getCableUse(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Cables, tag, words::Use);
}

QString JobEditor::getCableTo(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Cables, tag, words::To);
}

QString JobEditor::getCableFrom(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Cables, tag, words::From);
}

QString JobEditor::getCableType(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Cables, tag, words::Type);
}

QStringList JobEditor::getCablePath(const QString &tag) const
{
    return entriesIn(d->tree.attribute(ElementKind::Cables, tag, words::Path));
}

QString JobEditor::getCableBundleName(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Cables, tag, words::BundleName);
}

QString JobEditor::getCableBundleNum(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Cables, tag, words::BundleNum);
}

QString JobEditor::getCableBundleGroupNum(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Cables, tag, words::BundleGroupNum);
}

QString JobEditor::getCableColor(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Cables, tag, words::Color);
}

bool JobEditor::getCableDefaultType(const QString &tag) const
{
    bool isDefault = false;
    fromText(d->tree.attribute(ElementKind::Cables, tag, words::DefaultType), &isDefault);
    return isDefault;
}

void JobEditor::setCableID(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::Cables, tag, words::Id, id);
}

void JobEditor::setCableUse(const QString &tag, const QString &use)
{
    d->tree.set(ElementKind::Cables, tag, words::Use, use);
}

void JobEditor::setCableTo(const QString &tag, const QString &to)
{
    d->tree.set(ElementKind::Cables, tag, words::To, to);
}

void JobEditor::setCableFrom(const QString &tag, const QString &from)
{
    d->tree.set(ElementKind::Cables, tag, words::From, from);
}

void JobEditor::setCableType(const QString &tag, const QString &type)
{
    d->tree.set(ElementKind::Cables, tag, words::Type, type);
}

void JobEditor::setCablePath(const QString &tag, const QStringList &path)
{
    d->tree.set(ElementKind::Cables, tag, words::Path, toText(path));
}

void JobEditor::setCableBundleName(const QString &tag, const QString &name)
{
    d->tree.set(ElementKind::Cables, tag, words::BundleName, name);
}

void JobEditor::setCableBundleNum(const QString &tag, const QString &number)
{
    d->tree.set(ElementKind::Cables, tag, words::BundleNum, number);
}

void JobEditor::setCableBundleGroupNum(const QString &tag, const QString &number)
{
    d->tree.set(ElementKind::Cables, tag, words::BundleGroupNum, number);
}

void JobEditor::setCableColor(const QString &tag, const QString &color)
{
    d->tree.set(ElementKind::Cables, tag, words::Color, color);
}

void JobEditor::setCableDefaultType(const QString &tag, bool isDefault)
{
    d->tree.set(ElementKind::Cables, tag, words::DefaultType, toText(isDefault));
}

bool JobEditor::cableIsInBundle(const QString &tag) const
{
    return !getCableBundleName(tag).isEmpty();
}
