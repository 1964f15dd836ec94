#include "jobeditor.h"

#include "bkutilities.h"
#include "jobattributes.h"
#include "jobwords.h"
#include "units.h"

#include <cmath>
#include <iterator>

using namespace cabledoc;

namespace {

/// Feet, or metres, as lengths are shown: to the nearest tenth of a foot, but to the nearest half metre.
float roundedLength(float feet, bool metric)
{
    return metric ? BKUtilities::roundToHalf(float(feet / feetInAMeter)) : BKUtilities::roundToTenths(feet);
}

} // namespace

void JobEditor::setCableTestResults(const QString &cableTag, const TestResults &results)
{
    QDomElement element = cableElement(cableTag).firstChildElement(words::TestResults);
    if (element.isNull())
        return;
    // The two that the earliest files lack are created; all others are changed only where they are.
    for (const QString &name : {words::SoftwareVersion, words::Serial}) {
        if (!element.hasAttribute(name))
            element.setAttribute(name, QLatin1String(""));
    }
    testResultsAttributes().change(element, results.fields());
    setDirty(true);
}

TestResults JobEditor::getCableTestResults(const QString &cableTag)
{
    const QDomElement element = cableElement(cableTag).firstChildElement(words::TestResults);
    if (element.isNull())
        return TestResults();
    // Reading completes what an older version wrote, on purpose.
    if (testResultsAttributes().complete(element))
        setDirty(true);
    return TestResults(testResultsAttributes().read(element));
}

QString JobEditor::getCableStatus(const QString &cableTag) const
{
    const QDomElement cable = cableElement(cableTag);
    return cable.isNull() ? QString() : testStatus(cable);
}

/// A length reading in feet, as the test definition of the cable's type says.
float JobEditor::correctedLength(int reading, const QString &cableTag) const
{
    const int lengthConstant = getTestDef(getCableType(cableTag)).length_constant();
    return float(reading / (lengthConstant / 100.0));
}

float JobEditor::getRoundedCableLength(const QString &cableTag, int pair, bool metric)
{
    const cable_struct results = getCableTestResults(cableTag).results();
    if (pair < 0 || pair >= int(std::size(results.pair_length)))
        return 0.0F;
    return roundedLength(correctedLength(results.pair_length[pair], cableTag), metric);
}

float JobEditor::getMaxRoundedCableLength(const QString &cableTag, bool metric, bool uncorrected)
{
    const int reading = getCableTestResults(cableTag).cableLength();
    if (!uncorrected)
        return roundedLength(correctedLength(reading, cableTag), metric);
    const float feet = reading < 0 ? 0.0F : float(reading);
    // Whole metres, cut off and not rounded.
    return metric ? float(std::trunc(feet / feetInAMeter)) : feet;
}
