#include "drawingfonts.h"
#include "drawingwriters.h"
#include "pdffile.h"

namespace cabledoc {

QString writePdf(const Drawing &drawing, const QString &fileName, QStringList *warnings)
{
    const QString fontError = loadDrawingFonts();
    if (!fontError.isEmpty())
        return fontError;
    PdfFile file(drawing.title, drawing.author);
    QVector<OutlineEntry> outline;
    for (int page = 0; page < drawing.pages.size(); ++page) {
        file.addPage(drawing.pages.at(page));
        if (!drawing.pages.at(page).title.isEmpty())
            outline.append({drawing.pages.at(page).title, page, 0});
    }
    if (warnings != nullptr)
        file.warn(warnings);
    return file.save(fileName, outline);
}

} // namespace cabledoc
