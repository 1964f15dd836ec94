#pragma once

#include "scene.h"

#include <QtCore/QByteArray>

namespace cabledoc {

/// Returns a picture without symbols as an SVG element for an HTML file.
QByteArray svgFigure(const Scene &figure);

/// Returns a picture as an address that has all of its data. Programs that show SVG files know three formats. A picture
/// in another format becomes a PNG file.
QString dataAddress(const QByteArray &picture);

} // namespace cabledoc
