#pragma once

#include "drawingfonts.h"
#include "labels.h"
#include "missingcharacters.h"
#include "scene.h"

namespace cabledoc {

struct CodeGrid;

/// A label as it is drawn.
struct LabelFace
{
    QStringList problems;       ///< why the label cannot be printed
    QSizeF size;                ///< size of the label
    QVector<SceneShape> shapes; ///< what is drawn, from the left upper corner of the label
};

/// Lays out labels of a format. The fonts of drawings must be loaded.
class LabelFaces
{
public:
    LabelFaces(const LabelFormat &format, LabelCode code);

    LabelFace face(const ElementLabel &label) const;

private:
    /// The sizes of a label before its shapes are placed.
    struct Layout
    {
        double module = 0.0; ///< width of a module of the code
        QRectF code;         ///< area of the code, without its light zone
        QRectF text;         ///< area that the text may fill
        QVector<SceneText> lines;
        double textHeight = 0.0;
    };

    QStringList fitWithCode(const CodeGrid &grid, const QStringList &lines, Layout *layout) const;
    QString tooLarge(const CodeGrid &grid) const;
    bool placeQr(const CodeGrid &grid, double module, Layout *layout) const;
    bool placeBars(const CodeGrid &grid, double module, Layout *layout) const;
    QStringList fitLines(const QStringList &lines, Layout *layout) const;
    static void alignSizes(Layout *layout);
    QString fitLine(SceneText *line, double width) const;
    void shortenTape(Layout *layout, LabelFace *face) const;
    QVector<SceneShape> shapesOf(const CodeGrid &grid, const Layout &layout) const;

    const LabelFormat &m_format;
    const LabelCode m_code;
    QRectF m_white;   ///< part of the label that is white, which the light zone of a code needs
    QRectF m_content; ///< part of the label for text and code
    TextMeasure m_measure;
    MissingCharacters m_missing;
};

} // namespace cabledoc
