#include "childelements.h"
#include "jobeditor_p.h"
#include "jobwords.h"

#include <set>

using namespace cabledoc;

namespace {

/// Returns the tags of the cables for which a condition holds, in document order.
template <typename Condition> QStringList cablesWhere(const QDomElement &cableList, Condition condition)
{
    QStringList tags;
    for (const QDomElement &cable : ChildElements(cableList)) {
        if (condition(cable))
            tags.append(cable.tagName());
    }
    return tags;
}

QStringList cablesWith(const QDomElement &cableList, const QString &attribute, const QString &value)
{
    return cablesWhere(cableList, [&](const QDomElement &cable) {
        return cable.hasAttribute(attribute) && cable.attribute(attribute) == value;
    });
}

QStringList cablesEndingAt(const QDomElement &cableList, const std::set<QString> &ends)
{
    return cablesWhere(cableList, [&ends](const QDomElement &cable) {
        return ends.count(cable.attribute(words::To)) != 0 || ends.count(cable.attribute(words::From)) != 0;
    });
}

} // namespace

QStringList JobEditor::getCables(bool byTag) const
{
    const CableLists &lists = d->tree.index().cables();
    return byTag ? lists.tags : lists.ids;
}

QStringList JobEditor::getCablesByType(const QString &type) const
{
    return d->tree.index().cables().tagsOfType.value(type);
}

QStringList JobEditor::getCablesByUse(const QString &use) const
{
    return cablesWith(getToCableList(), words::Use, use);
}

QStringList JobEditor::getCablesByBundle(const QString &bundleName) const
{
    return cablesWith(getToCableList(), words::BundleName, bundleName);
}

QStringList JobEditor::getCablesByBundleGroup(const QString &bundleGroupNum) const
{
    return cablesWith(getToCableList(), words::BundleGroupNum, bundleGroupNum);
}

QStringList JobEditor::getCablesByPort(const QString &portTag) const
{
    return cablesEndingAt(getToCableList(), {portTag});
}

QStringList JobEditor::getCablesByFloor(const QString &floorTag) const
{
    std::set<QString> ends;
    for (const QDomElement &room : ChildElements(getToRoomList(floorTag))) {
        for (const QString &containerName : {words::PortList, words::VerticalRunList}) {
            for (const QDomElement &end : ChildElements(room.firstChildElement(containerName)))
                ends.insert(end.tagName());
        }
    }
    return cablesEndingAt(getToCableList(), ends);
}

QStringList JobEditor::getCablesByStatus(const QString &status) const
{
    return cablesWhere(getToCableList(), [&status](const QDomElement &cable) { return testStatus(cable) == status; });
}

bool JobEditor::bundleGroupNumExists(const QString &bundleGroupNum) const
{
    return !getCablesByBundleGroup(bundleGroupNum).isEmpty();
}
