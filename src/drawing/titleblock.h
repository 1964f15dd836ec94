#pragma once

#include "drawingfonts.h"
#include "scene.h"

namespace cabledoc {

/// What a title block says.
struct TitleBlock
{
    QString contractor;
    QByteArray logo; ///< content of the picture file, or empty
    QString site;
    QString kind;    ///< what the subject is, such as "Floor"
    QString subject; ///< what the sheet shows
    QString scale;
    QString date;
    QString revision;
    QString sheet;
};

/// Adds a title block to a sheet.
void addTitleBlock(Scene *sheet, const TitleBlock &block, const TextMeasure &measure);

} // namespace cabledoc
