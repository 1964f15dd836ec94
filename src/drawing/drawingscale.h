#pragma once

#include "cabledoc_export.h"
#include "scalesettings.h"

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QString>

#include <optional>

namespace cabledoc {

/// The scale of a drawing.
struct CABLEDOC_EXPORT DrawingScale
{
    /// How many times larger the building is than the drawing: 100.0 for 1:100, 240.0 for 20 feet to the inch. It is
    /// 0.0 if the drawing has no scale.
    double factor = 0.0;
    /// Whether lengths are given in metres. Otherwise they are given in feet and inches.
    bool isMetric = true;

    /// Returns the scale of the settings. It has the factor 0.0 if their style stands for no scale.
    static DrawingScale of(const ScaleSettingsFields &settings);
    /// Reads a scale such as "1:100", "20 ft" or "1in=20ft". Returns nothing if the text is not a scale.
    static std::optional<DrawingScale> read(const QString &text);

    /// Returns whether the drawing has a scale.
    bool exists() const { return factor > 0.0; }
    /// Returns the scale as people write it: "1:100" or "1 in = 20 ft". Returns an empty string if there is none.
    QString text() const;
    /// Returns a length of the building as people write it, such as "4.5 m" or "14' 9\"". The length is given in
    /// millimetres of the drawing.
    QString lengthText(double millimeters) const;
};

} // namespace cabledoc
