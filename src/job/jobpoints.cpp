#include "jobelements.h"

using namespace cabledoc;

// Points on floors and bends on sheets, and the texts of both

PointFields JobEditor::readPoint(const QDomElement &element) const
{
    if (element.isNull())
        return PointFields();
    PointFields fields = readElement(pointKind(), element);
    fields.parent = element.parentNode().parentNode().nodeName();
    return fields;
}

FreeTextFields JobEditor::readText(const QDomElement &element) const
{
    if (element.isNull())
        return FreeTextFields();
    FreeTextFields fields = readElement(freeTextKind(), element);
    fields.parent = element.parentNode().parentNode().nodeName();
    return fields;
}

// Points

QString JobEditor::addPoint(const Point &point, int mode)
{
    return addElement(pointKind(), floorElement(point.parent()), point.fields(), mode).tagName();
}

QString JobEditor::addPoint(const QString &floorTag, double x, double y, const QString &tag, const QString &id,
                            int mode)
{
    return addPoint(Point(tag, id, x, y, floorTag), mode);
}

void JobEditor::removePoint(const QString &tag)
{
    removeElementOf(ElementKind::Points, elementOf(ElementKind::Points, tag));
}

void JobEditor::removePoint(const Point &point)
{
    removePoint(point.element());
}

Point JobEditor::getPointByTag(const QString &tag) const
{
    return Point(readPoint(elementOf(ElementKind::Points, tag)));
}

Point JobEditor::getPointById(const QString &id) const
{
    return getPointByTag(getPointTagById(id));
}

QString JobEditor::getPointIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::Points].id(tag);
}

QString JobEditor::getPointTagById(const QString &id) const
{
    return (*m_index)[ElementKind::Points].tagOfId(id);
}

QPointF JobEditor::getPointPos(const QString &tag) const
{
    const Point point = getPointByTag(tag);
    return {point.x(), point.y()};
}

QString JobEditor::getPointFloor(const QString &tag) const
{
    return getPointByTag(tag).parent();
}

void JobEditor::setPointID(const QString &tag, const QString &id)
{
    renameElementOf(ElementKind::Points, tag, id);
}

void JobEditor::setPointPos(const QString &tag, double x, double y)
{
    writeAttribute(elementOf(ElementKind::Points, tag), words::X, toText(x));
    writeAttribute(elementOf(ElementKind::Points, tag), words::Y, toText(y));
}

// Bends

QString JobEditor::addVertice(const Vertice &vertice, int mode)
{
    return addElement(verticeKind(), sheetElement(vertice.parent()), vertice.fields(), mode).tagName();
}

QString JobEditor::addVertice(const QString &sheetTag, double x, double y, const QString &tag, const QString &id,
                              int mode)
{
    return addVertice(Vertice(tag, id, x, y, sheetTag), mode);
}

void JobEditor::removeVertice(const QString &tag)
{
    removeElementOf(ElementKind::Vertices, elementOf(ElementKind::Vertices, tag));
}

void JobEditor::removeVertice(const Vertice &vertice)
{
    removeVertice(vertice.element());
}

Vertice JobEditor::getVerticeByTag(const QString &tag) const
{
    return Vertice(readPoint(elementOf(ElementKind::Vertices, tag)));
}

Vertice JobEditor::getVerticeById(const QString &id) const
{
    return getVerticeByTag(getVerticeTagById(id));
}

QString JobEditor::getVerticeIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::Vertices].id(tag);
}

QString JobEditor::getVerticeTagById(const QString &id) const
{
    return (*m_index)[ElementKind::Vertices].tagOfId(id);
}

QPointF JobEditor::getVerticePos(const QString &tag) const
{
    const Vertice vertice = getVerticeByTag(tag);
    return {vertice.x(), vertice.y()};
}

QString JobEditor::getVerticeSheet(const QString &tag) const
{
    return getVerticeByTag(tag).parent();
}

void JobEditor::setVerticeID(const QString &tag, const QString &id)
{
    renameElementOf(ElementKind::Vertices, tag, id);
}

void JobEditor::setVerticePos(const QString &tag, double x, double y)
{
    writeAttribute(elementOf(ElementKind::Vertices, tag), words::X, toText(x));
    writeAttribute(elementOf(ElementKind::Vertices, tag), words::Y, toText(y));
}

// Texts on sheets

QString JobEditor::addFreeText(const FreeText &text, int mode)
{
    return addElement(freeTextKind(), sheetElement(text.parent()), text.fields(), mode).tagName();
}

QString JobEditor::addFreeText(const QString &sheetTag, const QString &text, double x, double y,
                               const QString &fontFamily, double fontSize, bool bold, bool italic, const QString &color,
                               const QString &tag, const QString &id, int mode)
{
    return addFreeText(FreeText(tag, id, text, x, y, fontFamily, fontSize, bold, italic, color, sheetTag), mode);
}

void JobEditor::removeFreeText(const QString &tag)
{
    removeElementOf(ElementKind::FreeTexts, elementOf(ElementKind::FreeTexts, tag));
}

void JobEditor::removeFreeText(const FreeText &text)
{
    removeFreeText(text.element());
}

FreeText JobEditor::getFreeTextByTag(const QString &tag) const
{
    return FreeText(readText(elementOf(ElementKind::FreeTexts, tag)));
}

FreeText JobEditor::getFreeTextById(const QString &id) const
{
    return getFreeTextByTag(getFreeTextTagById(id));
}

QString JobEditor::getFreeTextIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::FreeTexts].id(tag);
}

QString JobEditor::getFreeTextTagById(const QString &id) const
{
    return (*m_index)[ElementKind::FreeTexts].tagOfId(id);
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
    renameElementOf(ElementKind::FreeTexts, tag, id);
}

void JobEditor::setFreeTextPos(const QString &tag, double x, double y)
{
    writeAttribute(elementOf(ElementKind::FreeTexts, tag), words::X, toText(x));
    writeAttribute(elementOf(ElementKind::FreeTexts, tag), words::Y, toText(y));
}

void JobEditor::setFreeTextText(const QString &tag, const QString &text)
{
    writeAttribute(elementOf(ElementKind::FreeTexts, tag), words::Text, text);
}

void JobEditor::setFreeTextFontFamily(const QString &tag, const QString &family)
{
    writeAttribute(elementOf(ElementKind::FreeTexts, tag), words::FontFamily, family);
}

void JobEditor::setFreeTextFontSize(const QString &tag, double points)
{
    writeAttribute(elementOf(ElementKind::FreeTexts, tag), words::FontSize, toText(points));
}

void JobEditor::setFreeTextBold(const QString &tag, bool bold)
{
    writeAttribute(elementOf(ElementKind::FreeTexts, tag), words::Bold, toText(bold));
}

void JobEditor::setFreeTextItalic(const QString &tag, bool italic)
{
    writeAttribute(elementOf(ElementKind::FreeTexts, tag), words::Italic, toText(italic));
}

void JobEditor::setFreeTextColor(const QString &tag, const QString &color)
{
    writeAttribute(elementOf(ElementKind::FreeTexts, tag), words::Color, color);
}

// Texts on floors

QString JobEditor::addFloorFreeText(const FreeText &text, int mode)
{
    return addElement(floorFreeTextKind(), floorElement(text.parent()), text.fields(), mode).tagName();
}

QString JobEditor::addFloorFreeText(const QString &floorTag, const QString &text, double x, double y,
                                    const QString &fontFamily, double fontSize, bool bold, bool italic,
                                    const QString &color, const QString &tag, const QString &id, int mode)
{
    return addFloorFreeText(FreeText(tag, id, text, x, y, fontFamily, fontSize, bold, italic, color, floorTag), mode);
}

void JobEditor::removeFloorFreeText(const QString &tag)
{
    removeElementOf(ElementKind::FloorFreeTexts, elementOf(ElementKind::FloorFreeTexts, tag));
}

void JobEditor::removeFloorFreeText(const FreeText &text)
{
    removeFloorFreeText(text.element());
}

FreeText JobEditor::getFloorFreeTextByTag(const QString &tag) const
{
    return FreeText(readText(elementOf(ElementKind::FloorFreeTexts, tag)));
}

FreeText JobEditor::getFloorFreeTextById(const QString &id) const
{
    return getFloorFreeTextByTag(getFloorFreeTextTagById(id));
}

QString JobEditor::getFloorFreeTextIdByTag(const QString &tag) const
{
    return (*m_index)[ElementKind::FloorFreeTexts].id(tag);
}

QString JobEditor::getFloorFreeTextTagById(const QString &id) const
{
    return (*m_index)[ElementKind::FloorFreeTexts].tagOfId(id);
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
    renameElementOf(ElementKind::FloorFreeTexts, tag, id);
}

void JobEditor::setFloorFreeTextPos(const QString &tag, double x, double y)
{
    writeAttribute(elementOf(ElementKind::FloorFreeTexts, tag), words::X, toText(x));
    writeAttribute(elementOf(ElementKind::FloorFreeTexts, tag), words::Y, toText(y));
}

void JobEditor::setFloorFreeTextText(const QString &tag, const QString &text)
{
    writeAttribute(elementOf(ElementKind::FloorFreeTexts, tag), words::Text, text);
}

void JobEditor::setFloorFreeTextFontFamily(const QString &tag, const QString &family)
{
    writeAttribute(elementOf(ElementKind::FloorFreeTexts, tag), words::FontFamily, family);
}

void JobEditor::setFloorFreeTextFontSize(const QString &tag, double points)
{
    writeAttribute(elementOf(ElementKind::FloorFreeTexts, tag), words::FontSize, toText(points));
}

void JobEditor::setFloorFreeTextBold(const QString &tag, bool bold)
{
    writeAttribute(elementOf(ElementKind::FloorFreeTexts, tag), words::Bold, toText(bold));
}

void JobEditor::setFloorFreeTextItalic(const QString &tag, bool italic)
{
    writeAttribute(elementOf(ElementKind::FloorFreeTexts, tag), words::Italic, toText(italic));
}

void JobEditor::setFloorFreeTextColor(const QString &tag, const QString &color)
{
    writeAttribute(elementOf(ElementKind::FloorFreeTexts, tag), words::Color, color);
}
