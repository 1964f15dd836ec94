#include "cablelength.h"

#include "bkutilities.h"
#include "units.h"

namespace cabledoc {

float correctedLength(int reading, int lengthConstant)
{
    return float(reading / (lengthConstant / 100.0));
}

float shownLength(float feet, bool metric)
{
    return metric ? BKUtilities::roundToHalf(float(feet / feetInAMeter)) : BKUtilities::roundToTenths(feet);
}

} // namespace cabledoc
