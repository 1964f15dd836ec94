#pragma once

namespace cabledoc {

constexpr double feetInAMeter = 3.2808399; // 1 / 0.3048
constexpr double inchesInAFoot = 12.0;
constexpr double millimetersInAnInch = 25.4;
constexpr double pixelsInAnInch = 96.0; ///< of a drawing

} // namespace cabledoc
