#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

// Texts on sheets

QString JobEditor::addFreeText(const FreeText &text, int mode)
{
    return d->add(freeTextKind(), text.fields(), mode).tagName();
}

QString JobEditor::addFreeText(const QString &sheetTag, const QString &text, double x, double y,
                               const QString &fontFamily, double fontSize, bool bold, bool italic, const QString &color,
                               const QString &tag, const QString &id, int mode)
{
    return addFreeText(FreeText(tag, id, text, x, y, fontFamily, fontSize, bold, italic, color, sheetTag), mode);
}

void JobEditor::removeFreeText(const QString &tag)
{
    d->tree.remove(ElementKind::FreeTexts, tag);
}

void JobEditor::removeFreeText(const FreeText &text)
{
    removeFreeText(text.element());
}

FreeText JobEditor::getFreeTextByTag(const QString &tag) const
{
    return FreeText(d->tree.read(freeTextKind(), tag));
}

FreeText JobEditor::getFreeTextById(const QString &id) const
{
    return getFreeTextByTag(getFreeTextTagById(id));
}

QString JobEditor::getFreeTextIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::FreeTexts, tag);
}

QString JobEditor::getFreeTextTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::FreeTexts, id);
}

QPointF JobEditor::getFreeTextPos(const QString &tag) const
{
    const FreeText text = getFreeTextByTag(tag);
    return {text.x(), text.y()};
}

QString JobEditor::getFreeTextSheet(const QString &tag) const
{
    return getFreeTextByTag(tag).parent();
}

QString JobEditor::getFreeTextText(const QString &tag) const
{
    return getFreeTextByTag(tag).text();
}

QString JobEditor::getFreeTextFontFamily(const QString &tag) const
{
    return getFreeTextByTag(tag).fontFamily();
}

double JobEditor::getFreeTextFontSize(const QString &tag) const
{
    return getFreeTextByTag(tag).fontSize();
}

bool JobEditor::getFreeTextBold(const QString &tag) const
{
    return getFreeTextByTag(tag).bold();
}

bool JobEditor::getFreeTextItalic(const QString &tag) const
{
    return getFreeTextByTag(tag).italic();
}

QString JobEditor::getFreeTextColor(const QString &tag) const
{
    return getFreeTextByTag(tag).color();
}

void JobEditor::setFreeTextID(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::FreeTexts, tag, words::Id, id);
}

void JobEditor::setFreeTextPos(const QString &tag, double x, double y)
{
    d->tree.set(ElementKind::FreeTexts, tag, words::X, toText(x));
    d->tree.set(ElementKind::FreeTexts, tag, words::Y, toText(y));
}

void JobEditor::setFreeTextText(const QString &tag, const QString &text)
{
    d->tree.set(ElementKind::FreeTexts, tag, words::Text, text);
}

void JobEditor::setFreeTextFontFamily(const QString &tag, const QString &family)
{
    d->tree.set(ElementKind::FreeTexts, tag, words::FontFamily, family);
}

void JobEditor::setFreeTextFontSize(const QString &tag, double points)
{
    d->tree.set(ElementKind::FreeTexts, tag, words::FontSize, toText(points));
}

void JobEditor::setFreeTextBold(const QString &tag, bool bold)
{
    d->tree.set(ElementKind::FreeTexts, tag, words::Bold, toText(bold));
}

void JobEditor::setFreeTextItalic(const QString &tag, bool italic)
{
    d->tree.set(ElementKind::FreeTexts, tag, words::Italic, toText(italic));
}

void JobEditor::setFreeTextColor(const QString &tag, const QString &color)
{
    d->tree.set(ElementKind::FreeTexts, tag, words::Color, color);
}

// Texts on floors

QString JobEditor::addFloorFreeText(const FreeText &text, int mode)
{
    return d->add(floorFreeTextKind(), text.fields(), mode).tagName();
}

QString JobEditor::addFloorFreeText(const QString &floorTag, const QString &text, double x, double y,
                                    const QString &fontFamily, double fontSize, bool bold, bool italic,
                                    const QString &color, const QString &tag, const QString &id, int mode)
{
    return addFloorFreeText(FreeText(tag, id, text, x, y, fontFamily, fontSize, bold, italic, color, floorTag), mode);
}

void JobEditor::removeFloorFreeText(const QString &tag)
{
    d->tree.remove(ElementKind::FloorFreeTexts, tag);
}

void JobEditor::removeFloorFreeText(const FreeText &text)
{
    removeFloorFreeText(text.element());
}

FreeText JobEditor::getFloorFreeTextByTag(const QString &tag) const
{
    return FreeText(d->tree.read(floorFreeTextKind(), tag));
}

FreeText JobEditor::getFloorFreeTextById(const QString &id) const
{
    return getFloorFreeTextByTag(getFloorFreeTextTagById(id));
}

QString JobEditor::getFloorFreeTextIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::FloorFreeTexts, tag);
}

QString JobEditor::getFloorFreeTextTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::FloorFreeTexts, id);
}

QPointF JobEditor::getFloorFreeTextPos(const QString &tag) const
{
    const FreeText text = getFloorFreeTextByTag(tag);
    return {text.x(), text.y()};
}

QString JobEditor::getFloorFreeTextFloor(const QString &tag) const
{
    return getFloorFreeTextByTag(tag).parent();
}

QString JobEditor::getFloorFreeTextText(const QString &tag) const
{
    return getFloorFreeTextByTag(tag).text();
}

QString JobEditor::getFloorFreeTextFontFamily(const QString &tag) const
{
    return getFloorFreeTextByTag(tag).fontFamily();
}

double JobEditor::getFloorFreeTextFontSize(const QString &tag) const
{
    return getFloorFreeTextByTag(tag).fontSize();
}

bool JobEditor::getFloorFreeTextBold(const QString &tag) const
{
    return getFloorFreeTextByTag(tag).bold();
}

bool JobEditor::getFloorFreeTextItalic(const QString &tag) const
{
    return getFloorFreeTextByTag(tag).italic();
}

QString JobEditor::getFloorFreeTextColor(const QString &tag) const
{
    return getFloorFreeTextByTag(tag).color();
}

void JobEditor::setFloorFreeTextID(const QString &tag, const QString &id)
{
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::Id, id);
}

void JobEditor::setFloorFreeTextPos(const QString &tag, double x, double y)
{
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::X, toText(x));
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::Y, toText(y));
}

void JobEditor::setFloorFreeTextText(const QString &tag, const QString &text)
{
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::Text, text);
}

void JobEditor::setFloorFreeTextFontFamily(const QString &tag, const QString &family)
{
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::FontFamily, family);
}

void JobEditor::setFloorFreeTextFontSize(const QString &tag, double points)
{
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::FontSize, toText(points));
}

void JobEditor::setFloorFreeTextBold(const QString &tag, bool bold)
{
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::Bold, toText(bold));
}

void JobEditor::setFloorFreeTextItalic(const QString &tag, bool italic)
{
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::Italic, toText(italic));
}

void JobEditor::setFloorFreeTextColor(const QString &tag, const QString &color)
{
    d->tree.set(ElementKind::FloorFreeTexts, tag, words::Color, color);
}
