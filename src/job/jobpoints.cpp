#include "jobelements.h"

using namespace cabledoc;

namespace {

const DrawnKind<PointFields> &pointKind()
{
    static const DrawnKind<PointFields> kind{ElementKind::Points, words::PointList, words::PointTagPrefix,
                                             pointAttributes()};
    return kind;
}

const DrawnKind<PointFields> &verticeKind()
{
    static const DrawnKind<PointFields> kind{ElementKind::Vertices, words::VerticeList, words::VerticeTagPrefix,
                                             pointAttributes()};
    return kind;
}

} // namespace

PointFields JobEditor::readPoint(const QDomElement &element) const
{
    if (element.isNull())
        return PointFields();
    PointFields fields = readElement(pointKind(), element);
    fields.parent = element.parentNode().parentNode().nodeName();
    return fields;
}

// Points on floors

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

// Bends on sheets

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
