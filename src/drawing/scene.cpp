#include "scene.h"

#include <algorithm>
#include <array>

namespace cabledoc {

namespace {

// What a capital letter and a descender need, in parts of the size of the font
constexpr double ascent = 0.78;
constexpr double descent = 0.24;

const std::array<QString, std::size_t(Layer::Count)> &layerWords()
{
    static const std::array<QString, std::size_t(Layer::Count)> words{
        QStringLiteral("background"), QStringLiteral("rooms"),         QStringLiteral("cables"),
        QStringLiteral("points"),     QStringLiteral("vertical-runs"), QStringLiteral("ports"),
        QStringLiteral("texts"),      QStringLiteral("labels"),        QStringLiteral("sheet"),
    };
    return words;
}

QRectF bounds(const SceneLine &line)
{
    return QPolygonF(line.points).boundingRect();
}

QRectF bounds(const SceneArea &area)
{
    return area.corners.boundingRect();
}

QRectF bounds(const SceneText &text)
{
    return boxOf(text);
}

template <typename Shape> QRectF bounds(const Shape &shape)
{
    return shape.area;
}

void move(SceneLine *line, const QPointF &distance)
{
    for (QPointF &point : line->points)
        point += distance;
}

void move(SceneArea *area, const QPointF &distance)
{
    area->corners.translate(distance);
}

void move(SceneText *text, const QPointF &distance)
{
    text->position += distance;
}

template <typename Shape> void move(Shape *shape, const QPointF &distance)
{
    shape->area.translate(distance);
}

void scale(SceneLine *line, double factor)
{
    for (QPointF &point : line->points)
        point *= factor;
    line->style.width *= factor;
}

void scale(SceneArea *area, double factor)
{
    for (QPointF &corner : area->corners)
        corner *= factor;
    area->outline.width *= factor;
}

void scale(SceneText *text, double factor)
{
    text->position *= factor;
    text->size *= factor;
    text->width *= factor;
}

template <typename Shape> void scale(Shape *shape, double factor)
{
    shape->area = {shape->area.topLeft() * factor, shape->area.size() * factor};
}

} // namespace

QString layerWord(Layer layer)
{
    return layerWords().at(std::size_t(layer));
}

std::optional<Layer> layerOfWord(const QString &word)
{
    const auto found = std::find(layerWords().cbegin(), layerWords().cend(), word);
    return found == layerWords().cend() ? std::nullopt
                                        : std::optional<Layer>(Layer(std::distance(layerWords().cbegin(), found)));
}

void addToSheet(Scene *scene, const SceneShape &shape)
{
    scene->items.append({Layer::Sheet, ElementKind::None, {}, {}, shape});
}

SceneArea rectangle(const QRectF &area, const QColor &fill, const LineStyle &outline)
{
    return {QPolygonF({area.topLeft(), area.topRight(), area.bottomRight(), area.bottomLeft()}), fill, outline};
}

QRectF boxOf(const SceneText &text)
{
    const double above = text.size * ascent;
    const double height = text.size * (ascent + descent);
    if (text.isVertical)
        return {text.position.x() - above, text.position.y() - text.width, height, text.width};
    return {text.position.x(), text.position.y() - above, text.width, height};
}

QRectF boundsOf(const SceneItem &item)
{
    return std::visit([](const auto &shape) { return bounds(shape); }, item.shape);
}

void moveBy(SceneItem *item, const QPointF &distance)
{
    std::visit([&distance](auto &shape) { move(&shape, distance); }, item->shape);
}

void scaleBy(SceneItem *item, double factor)
{
    std::visit([factor](auto &shape) { scale(&shape, factor); }, item->shape);
}

QVector<const SceneItem *> inDrawingOrder(const Scene &scene)
{
    QVector<const SceneItem *> items;
    items.reserve(scene.items.size());
    for (const SceneItem &item : scene.items)
        items.append(&item);
    std::stable_sort(items.begin(), items.end(),
                     [](const SceneItem *a, const SceneItem *b) { return a->layer < b->layer; });
    return items;
}

} // namespace cabledoc
