#pragma once

#include "cabledoc_export.h"
#include "scene.h"

#include <QtCore/QStringList>

namespace cabledoc {

// Each of these functions writes a file whole or not at all, and replaces a file of the same name. It returns an empty
// string, or why the file could not be written. Nothing is written if there is no usable font. The program must have a
// QGuiApplication, but needs no display.

/// Writes a page as SVG. The same page gives the same bytes on all versions of Qt.
///
/// Each layer is a group with the id "layer-" and the word of the layer. The first item that shows an element has an id
/// that consists of the kind and the tag of the element, such as "port-Port1". Further items of the element have the
/// same id with "-2", "-3" and so on. Items with a title have it as their title element.
CABLEDOC_EXPORT QString writeSvg(const Scene &page, const QString &fileName);

/// Writes a drawing as PDF, at its exact size. The pages with a title are in the outline. With the environment variable
/// SOURCE_DATE_EPOCH, the same drawing gives the same bytes with the same version of Qt. Adds a warning to the list, if
/// there is one, if no font has some of the characters, which are then missing.
CABLEDOC_EXPORT QString writePdf(const Drawing &drawing, const QString &fileName, QStringList *warnings = nullptr);

/// Writes a page as a PNG picture with the given number of dots to the inch. Adds a warning to the list, if there is
/// one, if no font has some of the characters, which are then missing.
CABLEDOC_EXPORT QString writePng(const Scene &page, const QString &fileName, double dpi,
                                 QStringList *warnings = nullptr);

} // namespace cabledoc
