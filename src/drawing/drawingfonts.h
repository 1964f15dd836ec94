#pragma once

#include "scene.h"
#include "texthash.h"

#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

namespace cabledoc {

/// Size in pixels in which fonts are measured and painted. At this size the widths of texts are the same on all
/// versions of Qt and at all resolutions.
constexpr int fontPixels = 1000;

/// Loads the fonts of drawings, once for the process. They are in the folder that the environment variable
/// CABLEDOC_FONT_FOLDER names, or else in that which was configured. Returns what is wrong, or an empty string if the
/// fonts can be used. The program must have a QGuiApplication.
QString loadDrawingFonts();

/// Returns the family of the fonts of drawings.
QString drawingFontFamily();

/// Returns the font of a text at the size of fontPixels. If the family of the text is not installed, it is that of
/// drawings.
QFont fontOf(const SceneText &text);

/// Measures texts in the fonts of drawings, which must be loaded. It remembers the widths of the texts that it measured
/// last, because the same texts occur again and again.
class TextMeasure
{
public:
    TextMeasure();

    /// Returns the width in millimetres of a text in a font of the given size.
    double width(const QString &text, double size, bool isBold = false) const;
    /// Returns a text with its width.
    SceneText text(const QPointF &position, const QString &words, double size, bool isBold = false,
                   const QColor &color = Qt::black) const;
    /// Sets the width of a text.
    void measure(SceneText *text) const;
    /// Returns the text, or its beginning and an ellipsis if it is wider than the given width.
    QString elided(const QString &text, double size, double width) const;

private:
    struct Font
    {
        QFontMetricsF metrics;
        mutable TextMap<double> widths;

        double widthOf(const QString &text) const;
    };

    Font m_regular;
    Font m_bold;
};

} // namespace cabledoc
