#pragma once

#include "drawingfonts.h"
#include "scene.h"

#include <QtCore/QLineF>

#include <optional>
#include <unordered_map>
#include <vector>

namespace cabledoc {

/// A grid that finds which boxes and lines are near a place. Areas are in millimetres.
class PlaceGrid
{
public:
    /// Makes a grid for about as many entries.
    PlaceGrid(const QRectF &area, int entries);

    void add(const QRectF &box);
    void add(const QLineF &line);
    /// Returns whether no box and no line touches the given box.
    bool isFree(const QRectF &box) const;
    /// Returns whether no box touches the line.
    bool isFree(const QLineF &line) const;

private:
    struct Cell
    {
        std::vector<QRectF> boxes;
        std::vector<QLineF> lines;
        bool isFull = false; ///< so crowded that nothing more is noted
    };

    int column(double x) const;
    int row(double y) const;
    Cell &cellAt(int column, int row)
    {
        return m_cells[std::size_t(row) * std::size_t(m_columns) + std::size_t(column)];
    }
    const Cell &cellAt(int column, int row) const
    {
        return m_cells[std::size_t(row) * std::size_t(m_columns) + std::size_t(column)];
    }

    QRectF m_area;
    double m_cellSize;
    int m_columns;
    int m_rows;
    std::vector<Cell> m_cells;
};

/// A label that wants a place.
struct Label
{
    QString text;
    QRectF anchor;                      ///< what the label names; the label stands beside it
    double size = 1.8;                  ///< size of the font
    bool isBold = false;                ///< whether the font is bold
    QColor color = QColor(Qt::black);   ///< colour of the text
    bool isOnAnchor = false;            ///< whether the label stands on the middle of the anchor, as on a line
    std::optional<QPointF> corner = {}; ///< top left corner that is tried first
};

/// The place of a label.
struct PlacedLabel
{
    SceneText text;               ///< what is drawn: the text, a part of it, or a number
    std::optional<QLineF> leader; ///< line from the anchor to the text
    int number = 0;               ///< number in the list beside the plan, or 0 if the text is drawn
};

/// Places labels one after the other, so that none covers another one or a symbol. The time for a label does not depend
/// on the number of labels.
class LabelPlacement
{
public:
    /// Labels are placed in the given area. The numbers say how much there will be, more or less.
    LabelPlacement(const QRectF &area, int boxes, int lines, const TextMeasure &measure);

    /// Adds something that no label may cover.
    void addObstacle(const QRectF &box) { m_boxes.add(box); }
    /// Adds a line that labels avoid if they can.
    void addLine(const QLineF &line) { m_lines.add(line); }
    /// Adds a line that labels avoid even if they have to cover other lines.
    void addWall(const QLineF &line) { m_walls.add(line); }
    /// Places a label. Its place is taken.
    PlacedLabel place(const Label &label);
    /// Places the labels of small symbols that stand side by side, from left to right. If there is room, each has its
    /// label, upright. Otherwise there is one label at an end of the row, with the text that stands for all of them.
    std::vector<PlacedLabel> placeRow(const QVector<Label> &row, const QString &all);

private:
    /// How a text is set.
    struct Setting
    {
        QString text;
        double size;
        bool isVertical;
    };

    /// A row of labels above symbols, or below them.
    enum Side { Above, Below };

    /// What a label does not cover beside symbols and labels.
    enum Avoidance { Nothing, Walls, WallsAndLines };

    std::vector<PlacedLabel> placeUpright(const QVector<Label> &row, Side side);
    std::optional<PlacedLabel> placeAtEnd(const Label &label, const Setting &setting, Avoidance avoidance);
    std::optional<PlacedLabel> placeBeside(const Label &label, const Setting &setting, Avoidance avoidance);
    std::optional<PlacedLabel> placeWithLeader(const Label &label, const Setting &setting,
                                               const std::vector<double> &distances);
    PlacedLabel placeNumber(const Label &label);
    PlacedLabel placeNumberInside(const Label &label);
    /// Returns the number that stands where a label wants to stand, or 0 if there is none.
    int numberAt(const QRectF &anchor) const;
    std::optional<PlacedLabel> placeAt(const QRectF &box, const Label &label, const Setting &setting,
                                       const std::optional<QPointF> &leaderFrom, Avoidance avoidance);
    /// Returns the label in a box, whose place is then taken.
    PlacedLabel taken(const QRectF &box, const Label &label, const Setting &setting);
    bool isFree(const QRectF &box, const Setting &setting) const;
    bool isAvoided(const QRectF &box, const QPointF &anchor, Avoidance avoidance) const;
    QSizeF sizeOf(const Label &label, const Setting &setting) const;

    const TextMeasure &m_measure;
    QRectF m_area;
    PlaceGrid m_boxes;  ///< symbols and labels
    PlaceGrid m_labels; ///< labels only
    PlaceGrid m_lines;
    PlaceGrid m_walls;
    int m_numbers = 0; ///< how many numbers are in the list

    /// A number that stands on what it names.
    struct InsideNumber
    {
        QRectF anchor;
        int number;
    };
    std::unordered_map<quint64, std::vector<InsideNumber>> m_inside; ///< by cells that are larger than symbols
};

} // namespace cabledoc
