#include "bkteditor.h"
#include "documentattributes.h"
#include "jobeditor_p.h"
#include "words.h"

#include <algorithm>

using namespace cabledoc;

// Copies between a job and a template, through the operations that both documents have.

namespace {

/// Copies the print, page and scale settings of the source to the target.
void copySettings(BKXMLEditor &source, BKXMLEditor *target)
{
    for (const QString &name : printSettingsEntries())
        target->setPrintSettings(source.getPrintSettings(name), name);
    for (const QString &name : drawingSettingsEntries())
        target->setScaleSettings(source.getScaleSettings(name), name);
    for (const QString &name : drawingSettingsEntries())
        target->setPageSettings(source.getPageSettings(name), name);
}

/// Returns the definitions of the built-in types.
QVector<TestDef> defaultDefinitions(const BKXMLEditor &source)
{
    QVector<TestDef> definitions = source.getTestDefs();
    definitions.erase(std::remove_if(definitions.begin(), definitions.end(),
                                     [](const TestDef &definition) { return !definition.default_type(); }),
                      definitions.end());
    return definitions;
}

} // namespace

void JobEditor::Import(BktEditor *bkt)
{
    if (bkt == nullptr)
        return;
    setContractorData(bkt->getContractorData());
    copySettings(*bkt, this);
    addTestDefs(bkt->getTestDefs());
    addBundledCableTypes(bkt->getBundledCableTypes());
}

void JobEditor::ImportMissingDefaultCableTypes(BktEditor *bkt)
{
    if (bkt == nullptr)
        return;
    addTestDefs(defaultDefinitions(*bkt));
    addBundledCableTypes(bkt->getBundledCableTypes());
}

bool JobEditor::Export(const QString &filename)
{
    if (!d->mayBeFile(filename, words::BktExtension))
        return false;
    if (inside().isOwnFile(filename)) {
        error() = tr("This is the job's own file. Choose another name for the template.");
        return false;
    }
    BktEditor &bkt = BktEditor::Instance();
    if (!bkt.New(filename)) {
        error() = tr("Unable to open file.");
        return false;
    }
    bkt.setContractorData(getContractorData());
    copySettings(*this, &bkt);
    bkt.addTestDefs(getTestDefs());
    bkt.addBundledCableTypes(getBundledCableTypes());
    if (bkt.save())
        return true;
    error() = bkt.error();
    return false;
}

void BktEditor::Import(JobEditor *job)
{
    if (job == nullptr)
        return;
    setContractorData(job->getContractorData());
    addTestDefs(job->getTestDefs());
    addBundledCableTypes(job->getBundledCableTypes());
}
