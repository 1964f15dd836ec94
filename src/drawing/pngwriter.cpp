#include "drawingfile.h"
#include "drawingfonts.h"
#include "drawingtext.h"
#include "drawingwriters.h"
#include "missingcharacters.h"
#include "scenepainter.h"
#include "units.h"

#include <QtCore/QBuffer>
#include <QtGui/QPainter>

#include <cmath>

namespace cabledoc {

QString writePng(const Scene &page, const QString &fileName, double dpi, QStringList *warnings)
{
    const QString fontError = loadDrawingFonts();
    if (!fontError.isEmpty())
        return fontError;
    const double dotsInAMillimeter = dpi / millimetersInAnInch;
    const QSizeF size = page.size * dotsInAMillimeter;
    constexpr double maximumSide = 32767.0; // QPainter draws no further
    if (!(size.width() <= maximumSide && size.height() <= maximumSide))
        return DrawingText::tr("The picture is too large. Choose fewer dots to the inch.");
    QImage image(int(std::ceil(size.width())), int(std::ceil(size.height())), QImage::Format_RGB32);
    if (image.isNull())
        return DrawingText::tr("There is not enough memory for the picture. Choose fewer dots to the inch.");
    image.fill(Qt::white);
    const int dotsInAMeter = int(std::lround(dotsInAMillimeter * 1000.0));
    image.setDotsPerMeterX(dotsInAMeter);
    image.setDotsPerMeterY(dotsInAMeter);
    QPainter painter(&image);
    painter.scale(dotsInAMillimeter, dotsInAMillimeter);
    paintScene(&painter, page);
    painter.end();
    if (warnings != nullptr) {
        MissingCharacters missing;
        missing.collect(page);
        missing.warn(warnings);
    }
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    if (!image.save(&content, "PNG"))
        return DrawingText::tr("The picture cannot be written as PNG.");
    return replaceFile(fileName, content.data());
}

} // namespace cabledoc
