#include "cablelength.h"
#include "jobeditor_p.h"
#include "jobwords.h"
#include "readtestdetails.h"
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

TestDetails readDetails(const QDomElement &test)
{
    return readTestDetails(test, test.attribute(words::Time),
                           [](const auto &table, const QDomElement &element) { return table.read(element); });
}

/// Replaces the details of a test.
void writeDetails(JobTree *tree, const QDomElement &test, const TestDetails &details)
{
    tree->remove(test.firstChildElement(words::TestDetails));
    if (test.isNull() || details == TestDetails())
        return;
    const StoredTestDetails stored{details.fields(), test.attribute(words::Time)};
    const QDomElement element = tree->append(words::TestDetails, test, testDetailsAttributes(), stored);
    for (const TestParameter &parameter : details.parameters())
        tree->append(words::TestParameter, element, testParameterAttributes(), parameter);
}

/// Appends a test to the history of a cable.
void appendToHistory(JobTree *tree, const QDomElement &cable, const CableTest &test)
{
    const QDomElement element = tree->append(words::EarlierTest, tree->ensure(words::TestHistory, cable),
                                             testResultsAttributes(), test.results.fields());
    writeDetails(tree, element, test.details);
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

TestDetails JobEditor::getCableTestDetails(const QString &cable) const
{
    return readDetails(cableOfTagOrId(d->tree, cable).firstChildElement(words::TestResults));
}

void JobEditor::setCableTestDetails(const QString &cable, const TestDetails &details)
{
    if (getCableTestDetails(cable) != details)
        writeDetails(&d->tree, cableOfTagOrId(d->tree, cable).firstChildElement(words::TestResults), details);
}

QVector<CableTest> JobEditor::getCableTestHistory(const QString &cable) const
{
    QVector<CableTest> tests;
    const QDomElement history = cableOfTagOrId(d->tree, cable).firstChildElement(words::TestHistory);
    for (const QDomElement &test : ChildElements(history)) {
        if (test.tagName() == words::EarlierTest)
            tests.append({TestResults(testResultsAttributes().read(test)), readDetails(test)});
    }
    return tests;
}

void JobEditor::addEarlierCableTest(const QString &cable, const CableTest &test)
{
    const QDomElement element = cableOfTagOrId(d->tree, cable);
    if (!element.isNull())
        appendToHistory(&d->tree, element, test);
}

void JobEditor::setCurrentCableTest(const QString &cable, const CableTest &test)
{
    const QDomElement element = cableOfTagOrId(d->tree, cable);
    if (element.isNull())
        return;
    const QDomElement current = d->tree.ensure(words::TestResults, element);
    const CableTest before{readResults(&d->tree, element), readDetails(current)};
    if (!before.isEmpty())
        appendToHistory(&d->tree, element, before);
    d->tree.write(current, testResultsAttributes(), test.results.fields());
    writeDetails(&d->tree, current, test.details);
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
