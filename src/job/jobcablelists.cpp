#include "childelements.h"
#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

namespace {

QStringList cablesWith(CableTable *cables, CableColumn column, const QString &value)
{
    return cables->tagsWhere(column, [&value](const QString &other) { return !other.isNull() && other == value; });
}

} // namespace

QStringList JobEditor::getCables(bool byTag) const
{
    const CableTable &cables = d->tree.index().cables();
    return byTag ? cables.tags() : cables.ids();
}

QStringList JobEditor::getCablesByType(const QString &type) const
{
    // A cable without the attribute has the empty type.
    return d->tree.index().cables().tagsWhere(CableColumn::Type,
                                              [&type](const QString &other) { return other == type; });
}

QStringList JobEditor::getCablesByUse(const QString &use) const
{
    return cablesWith(&d->tree.index().cables(), CableColumn::Use, use);
}

QStringList JobEditor::getCablesByBundle(const QString &bundleName) const
{
    return cablesWith(&d->tree.index().cables(), CableColumn::BundleName, bundleName);
}

QStringList JobEditor::getCablesByBundleGroup(const QString &bundleGroupNum) const
{
    return cablesWith(&d->tree.index().cables(), CableColumn::BundleGroupNum, bundleGroupNum);
}

QStringList JobEditor::getCablesByPort(const QString &portTag) const
{
    return d->tree.index().cables().tagsEndingAt({portTag});
}

QStringList JobEditor::getCablesByFloor(const QString &floorTag) const
{
    QStringList ends;
    for (const QDomElement &room : ChildElements(getToRoomList(floorTag))) {
        for (const QString &containerName : {words::PortList, words::VerticalRunList})
            ends += childTags(room.firstChildElement(containerName));
    }
    return d->tree.index().cables().tagsEndingAt(ends);
}

QStringList JobEditor::getCablesByStatus(const QString &status) const
{
    return cablesWith(&d->tree.index().cables(), CableColumn::Status, status);
}

bool JobEditor::bundleGroupNumExists(const QString &bundleGroupNum) const
{
    return !getCablesByBundleGroup(bundleGroupNum).isEmpty();
}
