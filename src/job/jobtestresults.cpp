#include "jobeditor.h"

#include "bkutilities.h"
#include "jobattributes.h"
#include "jobindex.h"
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

QDomElement JobEditor::cableOfTagOrId(const QString &text) const
{
    return cableElement(cableExists(text, true) ? text : (*m_index)[ElementKind::Cables].tagOfId(text));
}

void JobEditor::setCableTestResults(const QString &cable, const TestResults &results)
{
    QDomElement element = cableOfTagOrId(cable).firstChildElement(words::TestResults);
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

TestResults JobEditor::getCableTestResults(const QString &cable)
{
    return readTestResults(cableOfTagOrId(cable));
}

TestResults JobEditor::readTestResults(const QDomElement &cable)
{
    const QDomElement element = cable.firstChildElement(words::TestResults);
    if (element.isNull())
        return TestResults();
    // Reading completes what an older version wrote, on purpose.
    if (testResultsAttributes().complete(element))
        setDirty(true);
    return TestResults(testResultsAttributes().read(element));
}

QString JobEditor::getCableStatus(const QString &tag) const
{
    const QDomElement cable = cableElement(tag);
    return cable.isNull() ? QString() : testStatus(cable);
}

/// A length reading in feet, as the test definition of the cable's type says.
float JobEditor::correctedLength(int reading, const QDomElement &cable) const
{
    const int lengthConstant = getTestDef(cable.attribute(words::Type)).length_constant();
    return float(reading / (lengthConstant / 100.0));
}

float JobEditor::getRoundedCableLength(const QString &cable, int pair, bool metric)
{
    const QDomElement element = cableOfTagOrId(cable);
    const cable_struct results = readTestResults(element).results();
    if (pair < 0 || pair >= int(std::size(results.pair_length)))
        return 0.0F;
    return roundedLength(correctedLength(results.pair_length[pair], element), metric);
}

float JobEditor::getMaxRoundedCableLength(const QString &cable, bool metric, bool uncorrected)
{
    const QDomElement element = cableOfTagOrId(cable);
    const int reading = readTestResults(element).cableLength();
    if (!uncorrected)
        return roundedLength(correctedLength(reading, element), metric);
    const float feet = reading < 0 ? 0.0F : float(reading);
    // Whole metres, cut off and not rounded.
    return metric ? float(std::trunc(feet / feetInAMeter)) : feet;
}
