#include "drawingfonts.h"

#include "drawingtext.h"
#include "scene.h"
#include "wholecharacters.h"

#include <QtCore/QDir>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>

namespace cabledoc {

namespace {

QString fontFolder()
{
    return qEnvironmentVariable("CABLEDOC_FONT_FOLDER", QStringLiteral(CABLEDOC_FONT_FOLDER));
}

/// Loads a font file. Returns whether it has the fonts of drawings.
bool load(const QString &fileName)
{
    const int id = QFontDatabase::addApplicationFont(fileName);
    return id >= 0 && QFontDatabase::applicationFontFamilies(id).contains(drawingFontFamily());
}

QFont measuredFont(bool isBold)
{
    QFont font(drawingFontFamily());
    font.setPixelSize(fontPixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(isBold);
    return font;
}

bool isInstalled(const QString &family)
{
    static const QStringList families = QFontDatabase().families();
    return families.contains(family, Qt::CaseInsensitive);
}

} // namespace

QString loadDrawingFonts()
{
    static bool areLoaded = false;
    if (areLoaded)
        return {};
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return DrawingText::tr("Drawings need an application with fonts, which is a QGuiApplication.");
    const QDir folder(fontFolder());
    for (const QString &name : {QStringLiteral("DejaVuSans.ttf"), QStringLiteral("DejaVuSans-Bold.ttf")}) {
        if (!load(folder.filePath(name)))
            return DrawingText::tr("The font \"%1\" cannot be used. It is part of the package fonts-dejavu-core.")
                .arg(folder.filePath(name));
    }
    areLoaded = true;
    return {};
}

QString drawingFontFamily()
{
    return QStringLiteral("DejaVu Sans");
}

QFont fontOf(const SceneText &text)
{
    QFont font = measuredFont(text.isBold);
    font.setItalic(text.isItalic);
    // Qt forms no ligatures in spaced texts. PDF files would have "\ufb01" in place of "fi".
    constexpr double tooSmallToSee = 0.02; // pixels
    font.setLetterSpacing(QFont::AbsoluteSpacing, tooSmallToSee);
    if (!text.family.isEmpty() && isInstalled(text.family))
        font.setFamily(text.family);
    return font;
}

TextMeasure::TextMeasure()
    : m_regular{QFontMetricsF(measuredFont(false)), {}}
    , m_bold{QFontMetricsF(measuredFont(true)), {}}
{
}

double TextMeasure::Font::widthOf(const QString &text) const
{
    constexpr std::size_t mostWidths = 10000;
    const auto known = widths.find(text);
    if (known != widths.end())
        return known->second;
    if (widths.size() >= mostWidths)
        widths.clear();
    // At the size of fontPixels, the widths of long texts would leave the numbers that Qt reckons with.
    constexpr int longest = 10000; // characters
    double width = 0.0;
    for (int i = 0; i < text.size(); i += longest)
        width += metrics.horizontalAdvance(text.mid(i, longest));
    widths.try_emplace(text, width);
    return width;
}

double TextMeasure::width(const QString &text, double size, bool isBold) const
{
    return (isBold ? m_bold : m_regular).widthOf(text) * size / fontPixels;
}

SceneText TextMeasure::text(const QPointF &position, const QString &words, double size, bool isBold,
                            const QColor &color) const
{
    SceneText text;
    text.text = words;
    text.position = position;
    text.size = size;
    text.isBold = isBold;
    text.color = color;
    measure(&text);
    return text;
}

void TextMeasure::measure(SceneText *text) const
{
    text->width = width(text->text, text->size, text->isBold);
}

QString TextMeasure::elided(const QString &text, double size, double width) const
{
    if (this->width(text, size) <= width)
        return text;
    const QString ellipsis(QChar(0x2026));
    int kept = 0;
    int tooMany = int(text.size());
    while (kept + 1 < tooMany) {
        const int middle = (kept + tooMany) / 2;
        (this->width(beginOf(text, middle) + ellipsis, size) > width ? tooMany : kept) = middle;
    }
    return beginOf(text, kept) + ellipsis;
}

} // namespace cabledoc
