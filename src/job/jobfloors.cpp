#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

namespace {

/// Returns an attribute of a floor. Adds its default to a floor that lacks it. Returns a null text for an unknown
/// floor.
QString completedAttribute(JobTree *tree, const QString &tag, const QString &attribute)
{
    const QDomElement floor = tree->element(ElementKind::Floors, tag);
    tree->addAttribute(floor, attribute, floorAttributes().defaultText(attribute));
    return floor.attribute(attribute);
}

} // namespace

QString JobEditor::addFloor(const Floor &floor, int mode)
{
    const QDomElement element = d->add(floorKind(), floor.fields(), mode);
    if (element.isNull())
        return QStringLiteral("Bad Floor");
    d->tree.undefinedRoom(element);
    return element.tagName();
}

QString JobEditor::addFloor(const QString &tag, const QString &id, double ceilingHeight, const QString &pic, int mode)
{
    return addFloor(Floor(tag, id, pic, ceilingHeight), mode);
}

void JobEditor::removeFloor(const QString &tag)
{
    d->tree.remove(ElementKind::Floors, tag);
}

void JobEditor::removeFloor(const Floor &floor)
{
    removeFloor(floor.element());
}

Floor JobEditor::getFloor(const QString &tag)
{
    return Floor(d->tree.read(floorKind(), tag));
}

void JobEditor::setFloorId(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::Floors, tag, words::Id, id);
}

void JobEditor::setAllFloorIds(const QMap<QString, QString> &idsByTag)
{
    for (auto floor = idsByTag.cbegin(); floor != idsByTag.cend(); ++floor)
        setFloorId(floor.key(), floor.value());
}

double JobEditor::getFloorCeilingHeight(const QString &tag)
{
    const QString text = completedAttribute(&d->tree, tag, words::CeilingHeight);
    return text.isNull() ? FloorFields().ceilingHeight : text.toDouble();
}

void JobEditor::setFloorCeilingHeight(const QString &tag, double height)
{
    d->tree.set(ElementKind::Floors, tag, words::CeilingHeight, toText(height));
}

QString JobEditor::getFloorBackgroundPic(const QString &tag) const
{
    return d->tree.attribute(ElementKind::Floors, tag, words::Picture);
}

void JobEditor::setFloorBackgroundPic(const QString &tag, const QString &pic, int x, int y)
{
    d->tree.set(ElementKind::Floors, tag, words::Picture, pic);
    d->tree.set(ElementKind::Floors, tag, words::PictureX, toText(x));
    // This is deliberate: the vertical origin keeps its first value.
    if (!d->tree.element(ElementKind::Floors, tag).hasAttribute(words::PictureY))
        d->tree.set(ElementKind::Floors, tag, words::PictureY, toText(y));
}

QPoint JobEditor::getFloorBackgroundOrigin(const QString &tag)
{
    return {completedAttribute(&d->tree, tag, words::PictureX).toInt(),
            completedAttribute(&d->tree, tag, words::PictureY).toInt()};
}

QString JobEditor::getBackgroundOption(const QString &tag)
{
    return completedAttribute(&d->tree, tag, words::BackgroundOption);
}

void JobEditor::setBackgroundOption(const QString &tag, const QString &option)
{
    d->tree.set(ElementKind::Floors, tag, words::BackgroundOption, option);
}

QString JobEditor::getFloorNumber(const QString &tag)
{
    // An empty tag has a number only for floors, not for sheets.
    if (tag.isEmpty())
        return QStringLiteral("1");
    return getSheetNumber(tag);
}
