#pragma once

#include "scene.h"

#include <QtCore/QByteArray>

namespace cabledoc {

/// Returns a picture without symbols as an SVG element for an HTML file.
QByteArray svgFigure(const Scene &figure);

} // namespace cabledoc
