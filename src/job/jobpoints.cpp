#include "jobeditor_p.h"
#include "jobwords.h"

using namespace cabledoc;

// Points on floors

QString JobEditor::addPoint(const Point &point, int mode)
{
    return d->add(pointKind(), point.fields(), mode).tagName();
}

QString JobEditor::addPoint(const QString &floorTag, double x, double y, const QString &tag, const QString &id,
                            int mode)
{
    return addPoint(Point(tag, id, x, y, floorTag), mode);
}

void JobEditor::removePoint(const QString &tag)
{
    d->tree.remove(ElementKind::Points, tag);
}

void JobEditor::removePoint(const Point &point)
{
    removePoint(point.element());
}

Point JobEditor::getPointByTag(const QString &tag) const
{
    return Point(d->tree.read(pointKind(), tag));
}

Point JobEditor::getPointById(const QString &id) const
{
    return getPointByTag(getPointTagById(id));
}

QString JobEditor::getPointIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::Points, tag);
}

QString JobEditor::getPointTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::Points, id);
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
    d->tree.set(ElementKind::Points, tag, words::Id, id);
}

void JobEditor::setPointPos(const QString &tag, double x, double y)
{
    d->tree.set(ElementKind::Points, tag, words::X, toText(x));
    d->tree.set(ElementKind::Points, tag, words::Y, toText(y));
}

// Bends on sheets

QString JobEditor::addVertice(const Vertice &vertice, int mode)
{
    return d->add(verticeKind(), vertice.fields(), mode).tagName();
}

QString JobEditor::addVertice(const QString &sheetTag, double x, double y, const QString &tag, const QString &id,
                              int mode)
{
    return addVertice(Vertice(tag, id, x, y, sheetTag), mode);
}

void JobEditor::removeVertice(const QString &tag)
{
    d->tree.remove(ElementKind::Vertices, tag);
}

void JobEditor::removeVertice(const Vertice &vertice)
{
    removeVertice(vertice.element());
}

Vertice JobEditor::getVerticeByTag(const QString &tag) const
{
    return Vertice(d->tree.read(verticeKind(), tag));
}

Vertice JobEditor::getVerticeById(const QString &id) const
{
    return getVerticeByTag(getVerticeTagById(id));
}

QString JobEditor::getVerticeIdByTag(const QString &tag) const
{
    return d->tree.id(ElementKind::Vertices, tag);
}

QString JobEditor::getVerticeTagById(const QString &id) const
{
    return d->tree.tagOfId(ElementKind::Vertices, id);
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
    d->tree.set(ElementKind::Vertices, tag, words::Id, id);
}

void JobEditor::setVerticePos(const QString &tag, double x, double y)
{
    d->tree.set(ElementKind::Vertices, tag, words::X, toText(x));
    d->tree.set(ElementKind::Vertices, tag, words::Y, toText(y));
}
