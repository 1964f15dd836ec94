#pragma once

namespace cabledoc {

/// Returns a length reading in feet, corrected by the length constant of the cable's type. The constant is in
/// hundredths of pF per foot.
float correctedLength(int reading, int lengthConstant);

/// Converts a length in feet to the length that is shown: feet rounded to tenths, or metres rounded to halves.
float shownLength(float feet, bool metric);

} // namespace cabledoc
