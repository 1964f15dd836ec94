#include "scenepainter.h"

#include "drawingfonts.h"
#include "vocabulary.h"

#include <QtGui/QPainter>

#include <cmath>

namespace cabledoc {

namespace {

/// Returns the pen for a line. The unit of the painter is given in millimetres.
QPen penOf(const LineStyle &style, double unit = 1.0)
{
    if (style.width <= 0.0)
        return QPen(Qt::NoPen);
    QPen pen(style.color, style.width / unit, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    const QVector<double> dashes = dashesOf(style);
    if (dashes.isEmpty())
        return pen;
    // The pen takes them in parts of its width.
    QVector<qreal> pattern;
    for (const double dash : dashes)
        pattern.append(dash / style.width);
    pen.setDashPattern(pattern);
    return pen;
}

/// Returns a length in dots. Almost whole numbers become whole.
double inDots(double millimeters)
{
    constexpr double tolerance = 1e-6;
    const double dots = millimeters / dotSize;
    const double rounded = std::round(dots);
    return std::abs(dots - rounded) < tolerance ? rounded : dots;
}

void paintShape(QPainter *painter, const SceneLine &line)
{
    painter->setBrush(Qt::NoBrush);
    if (!isInDots(line)) {
        painter->setPen(penOf(line.style));
        painter->drawPolyline(line.points.constData(), int(line.points.size()));
        return;
    }
    const QVector<QPointF> points = pointsInDots(line);
    const QTransform before = painter->worldTransform();
    painter->translate(line.points.constFirst());
    painter->scale(dotSize, dotSize);
    painter->setPen(penOf(line.style, dotSize));
    painter->drawPolyline(points.constData(), int(points.size()));
    painter->setWorldTransform(before);
}

void paintShape(QPainter *painter, const SceneArea &area)
{
    painter->setPen(penOf(area.outline));
    painter->setBrush(area.fill.isValid() ? QBrush(area.fill) : QBrush(Qt::NoBrush));
    painter->drawPolygon(area.corners);
}

void paintShape(QPainter *painter, const SceneText &text)
{
    if (text.background.isValid())
        painter->fillRect(boxOf(text), text.background);
    const QTransform before = painter->worldTransform();
    painter->translate(text.position);
    if (text.isVertical)
        painter->rotate(-90.0);
    const double scale = text.size / fontPixels;
    painter->scale(scale, scale);
    painter->setPen(text.color);
    painter->setFont(fontOf(text));
    painter->drawText(QPointF(), text.text);
    painter->setWorldTransform(before);
}

void paintShape(QPainter *painter, const SceneSymbol &symbol)
{
    painter->fillRect(symbol.area, Qt::white);
    vocabularyOf(symbol).paint(painter, symbol.word, symbol.area);
}

void paintShape(QPainter *painter, const ScenePicture &picture)
{
    painter->drawImage(picture.area, QImage::fromData(picture.data));
}

void paintShape(QPainter * /*painter*/, const SceneLink & /*link*/)
{
    // A link is not seen.
}

} // namespace

QVector<double> dashesOf(const LineStyle &style)
{
    switch (style.pattern) {
    case LineStyle::Dashed:
        return {2.0, 1.0};
    case LineStyle::Dotted:
        return {0.5, 0.7};
    default:
        return {};
    }
}

const Vocabulary &vocabularyOf(const SceneSymbol &symbol)
{
    return symbol.kind == SceneSymbol::PortUse ? Vocabulary::portUses() : Vocabulary::deviceTypes();
}

QString nameOf(const SceneSymbol &symbol)
{
    const QString word = vocabularyOf(symbol).contains(symbol.word) ? symbol.word : QStringLiteral("other");
    return (symbol.kind == SceneSymbol::PortUse ? QStringLiteral("use-") : QStringLiteral("device-")) + word;
}

bool isInDots(const SceneLine &line)
{
    constexpr int manyPoints = 16;
    return line.points.size() > manyPoints;
}

QVector<QPointF> pointsInDots(const SceneLine &line)
{
    QVector<QPointF> points;
    points.reserve(line.points.size());
    for (const QPointF &point : line.points) {
        const QPointF distance = point - line.points.constFirst();
        points.append({inDots(distance.x()), inDots(distance.y())});
    }
    return points;
}

void paintScene(QPainter *painter, const Scene &scene)
{
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    bool isClipped = false;
    for (const SceneItem *item : inDrawingOrder(scene)) {
        const bool needsClip = item->layer != Layer::Sheet;
        if (needsClip && !isClipped)
            painter->setClipRect(scene.window);
        if (!needsClip && isClipped)
            painter->setClipping(false);
        isClipped = needsClip;
        std::visit([painter](const auto &shape) { paintShape(painter, shape); }, item->shape);
    }
    painter->setClipping(false);
}

} // namespace cabledoc
