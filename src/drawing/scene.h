#pragma once

#include "cabledoc_export.h"
#include "elementkind.h"

#include <QtCore/QByteArray>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtGui/QPolygonF>

#include <optional>
#include <variant>

namespace cabledoc {

/// The layers of a drawing, from the lowest to the highest. Items of a higher layer cover those of a lower one.
enum class Layer {
    Background,   ///< background pictures of floors
    Rooms,        ///< outlines of rooms
    Cables,       ///< ways of cables
    Points,       ///< points that cables pass
    VerticalRuns, ///< vertical runs
    Ports,        ///< ports
    Texts,        ///< free texts
    Labels,       ///< names of elements, dimensions and numbers of cables
    Sheet,        ///< frame, title block and legend
    Count,        ///< the number of layers
};

/// Returns the word for a layer that files and command lines use, such as "vertical-runs".
CABLEDOC_EXPORT QString layerWord(Layer layer);
/// Returns the layer with the given word, or nothing if there is none.
CABLEDOC_EXPORT std::optional<Layer> layerOfWord(const QString &word);

/// How a line is drawn.
struct LineStyle
{
    /// Whether the line has gaps.
    enum Pattern {
        Solid,  ///< a line without gaps
        Dashed, ///< a line of dashes
        Dotted, ///< a line of dots
    };

    /// Colour of the line.
    QColor color = QColor(Qt::black);
    /// Width in millimetres. A line with the width 0.0 is not drawn.
    double width = 0.25;
    /// Whether the line has gaps.
    Pattern pattern = Solid;
};

// The shapes of a scene. All positions and lengths are in millimetres. The vertical axis points down.

/// A line from point to point.
struct SceneLine
{
    QVector<QPointF> points; ///< the points, of which there are at least two
    LineStyle style;         ///< how the line is drawn
};

/// An area with straight edges.
struct SceneArea
{
    QPolygonF corners; ///< the corners; the last one is joined to the first one
    QColor fill;       ///< colour of the area; an invalid colour leaves it empty
    LineStyle outline; ///< how the outline is drawn
};

/// A text of one line.
struct SceneText
{
    QString text;                     ///< the text itself
    QPointF position;                 ///< left end of the baseline
    double size = 2.5;                ///< size of the font
    double width = 0.0;               ///< width of the text, as textWidth() in drawingfonts.h measures it
    QColor color = QColor(Qt::black); ///< colour of the text
    QColor background;                ///< colour of the box behind the text; an invalid colour leaves it out
    bool isBold = false;              ///< whether the font is bold
    bool isItalic = false;            ///< whether the font is italic
    bool isVertical = false;          ///< whether the text runs from bottom to top
    QString family;                   ///< font family, or empty for the font of drawings
};

/// A picture of a vocabulary.
struct SceneSymbol
{
    /// The vocabularies.
    enum Kind {
        PortUse,    ///< Vocabulary::portUses()
        DeviceType, ///< Vocabulary::deviceTypes()
    };

    Kind kind = PortUse; ///< the vocabulary
    QString word;        ///< the word whose picture is drawn
    QRectF area;         ///< square that the picture fills, on white
};

/// A picture from a file.
struct ScenePicture
{
    QByteArray data; ///< content of the file, in a format that QImage reads
    QRectF area;     ///< where the picture is drawn
};

/// An area that leads to another page when it is clicked. Only PDF files have links.
struct SceneLink
{
    QRectF area;  ///< where the link is
    int page = 0; ///< number of the page, counted from 0
};

/// The shape of an item.
using SceneShape = std::variant<SceneLine, SceneArea, SceneText, SceneSymbol, ScenePicture, SceneLink>;

/// Something that is drawn, and what it stands for.
struct SceneItem
{
    /// Layer on which the item is drawn.
    Layer layer = Layer::Sheet;
    /// Kind of the element that the item shows, or ElementKind::None.
    ElementKind kind = ElementKind::None;
    /// Tag of the element that the item shows, or empty if there is none.
    QString tag;
    /// What a viewer shows about the item, such as the full name of a port, or empty.
    QString title;
    /// What is drawn.
    SceneShape shape;
};

/// A page of a drawing, as plain values. A scene does not know how it is written.
struct Scene
{
    /// Title of the page.
    QString title;
    /// Size of the page.
    QSizeF size;
    /// Part of the page in which items of all layers but Layer::Sheet are seen.
    QRectF window;
    /// The items. In a layer, later ones cover earlier ones.
    QVector<SceneItem> items;
};

/// A drawing: its pages and what files say about it.
struct Drawing
{
    QString title;        ///< title of the drawing
    QString author;       ///< author of the drawing, such as the contractor
    QVector<Scene> pages; ///< the pages
};

/// Adds a shape that shows no element to the layer Layer::Sheet of a scene.
CABLEDOC_EXPORT void addToSheet(Scene *scene, const SceneShape &shape);
/// Returns the area with the corners of a rectangle.
CABLEDOC_EXPORT SceneArea rectangle(const QRectF &area, const QColor &fill, const LineStyle &outline);
/// Returns the box that a text takes up: from the descenders to the tops of capital letters.
CABLEDOC_EXPORT QRectF boxOf(const SceneText &text);
/// Returns the rectangle that an item takes up, without the width of its lines.
CABLEDOC_EXPORT QRectF boundsOf(const SceneItem &item);
/// Moves an item.
CABLEDOC_EXPORT void moveBy(SceneItem *item, const QPointF &distance);
/// Makes an item larger or smaller, with its lines and letters. The origin of the page stays where it is.
CABLEDOC_EXPORT void scaleBy(SceneItem *item, double factor);
/// Returns the items in the order in which they are drawn: layer by layer.
CABLEDOC_EXPORT QVector<const SceneItem *> inDrawingOrder(const Scene &scene);

} // namespace cabledoc
