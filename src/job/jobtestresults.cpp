#include "cablelength.h"
#include "jobeditor_p.h"
#include "jobwords.h"
#include "units.h"

#include <cmath>
#include <iterator>

using namespace cabledoc;

namespace {

/// Returns the cable with the given tag or, if there is none, the first one with that id.
QDomElement cableOfTagOrId(const JobTree &tree, const QString &text)
{
    const QDomElement cable = tree.element(ElementKind::Cables, text);
    return cable.isNull() ? tree.element(ElementKind::Cables, tree.tagOfId(ElementKind::Cables, text)) : cable;
}

/// Returns the results of a cable, after adding the attributes that an older file lacks.
TestResults readResults(JobTree *tree, const QDomElement &cable)
{
    return TestResults(tree->read(cable.firstChildElement(words::TestResults), testResultsAttributes()));
}

/// Returns a length reading in feet, corrected by the length constant of the cable's type.
float lengthOf(const JobEditor &job, int reading, const QDomElement &cable)
{
    return correctedLength(reading, job.getTestDef(cable.attribute(words::Type)).length_constant());
}

} // namespace

void JobEditor::setCableTestResults(const QString &cable, const TestResults &results)
{
    const QDomElement element = cableOfTagOrId(d->tree, cable).firstChildElement(words::TestResults);
    // The earliest files lack these two attributes, so they are added. All others are only changed if they exist.
    for (const QString &name : {words::SoftwareVersion, words::Serial})
        d->tree.addAttribute(element, name, QLatin1String(""));
    d->tree.change(element, testResultsAttributes(), results.fields());
}

TestResults JobEditor::getCableTestResults(const QString &cable)
{
    return readResults(&d->tree, cableOfTagOrId(d->tree, cable));
}

QString JobEditor::getCableStatus(const QString &tag) const
{
    const QDomElement cable = d->tree.element(ElementKind::Cables, tag);
    return cable.isNull() ? QString() : testStatus(cable);
}

float JobEditor::getRoundedCableLength(const QString &cable, int pair, bool metric)
{
    const QDomElement element = cableOfTagOrId(d->tree, cable);
    const cable_struct results = readResults(&d->tree, element).results();
    if (pair < 0 || pair >= int(std::size(results.pair_length)))
        return 0.0F;
    return shownLength(lengthOf(*this, results.pair_length[pair], element), metric);
}

float JobEditor::getMaxRoundedCableLength(const QString &cable, bool metric, bool uncorrected)
{
    const QDomElement element = cableOfTagOrId(d->tree, cable);
    const int reading = readResults(&d->tree, element).cableLength();
    if (!uncorrected)
        return shownLength(lengthOf(*this, reading, element), metric);
    const float feet = reading < 0 ? 0.0F : float(reading);
    // Metres are truncated to whole ones, and not rounded.
    return metric ? float(std::trunc(feet / feetInAMeter)) : feet;
}
