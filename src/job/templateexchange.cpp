#include "bkteditor.h"
#include "jobeditor.h"

#include "settingsattributes.h"
#include "words.h"

using namespace cabledoc;

// What moves between a job and a template, through the operations that both documents have.

namespace {

/// Stores print, page and scale settings of the source in the target.
void copySettings(BKXMLEditor &source, BKXMLEditor *target)
{
    for (const QString &name : printSettingsEntries())
        target->setPrintSettings(source.getPrintSettings(name), name);
    for (const QString &name : drawingSettingsEntries())
        target->setScaleSettings(source.getScaleSettings(name), name);
    for (const QString &name : drawingSettingsEntries())
        target->setPageSettings(source.getPageSettings(name), name);
}

enum class Definitions { All, DefaultTypes };

/// Adds what the target lacks of the source's definitions.
void addMissingDefinitions(const BKXMLEditor &source, BKXMLEditor *target, Definitions which)
{
    const QStringList types = source.getTestDefNames();
    for (const QString &type : types) {
        // An element without a name has none.
        if (!source.testDefExists(type))
            continue;
        const TestDef definition = source.getTestDef(type);
        if (which == Definitions::All || definition.default_type())
            target->addTestDef(definition);
    }
}

/// Adds what the target lacks of the source's bundles.
void addMissingBundles(const BKXMLEditor &source, BKXMLEditor *target)
{
    const QStringList names = source.getBundledCableTypeIds();
    for (const QString &name : names) {
        if (source.bundledCableTypeIdExists(name))
            target->addBundledCableType(source.getBundledCableType(name));
    }
}

} // namespace

void JobEditor::Import(BktEditor *bkt)
{
    if (bkt == nullptr)
        return;
    setContractorData(bkt->getContractorData());
    copySettings(*bkt, this);
    addMissingDefinitions(*bkt, this, Definitions::All);
    addMissingBundles(*bkt, this);
}

void JobEditor::ImportMissingDefaultCableTypes(BktEditor *bkt)
{
    if (bkt == nullptr)
        return;
    addMissingDefinitions(*bkt, this, Definitions::DefaultTypes);
    addMissingBundles(*bkt, this);
}

bool JobEditor::Export(const QString &filename)
{
    if (!mayBeFile(filename, words::BktExtension))
        return false;
    BktEditor &bkt = BktEditor::Instance();
    if (!bkt.New(filename)) {
        m_error = tr("Unable to open file.");
        return false;
    }
    bkt.setContractorData(getContractorData());
    copySettings(*this, &bkt);
    addMissingDefinitions(*this, &bkt, Definitions::All);
    addMissingBundles(*this, &bkt);
    if (bkt.save())
        return true;
    m_error = bkt.error();
    return false;
}

void BktEditor::Import(JobEditor *job)
{
    if (job == nullptr)
        return;
    setContractorData(job->getContractorData());
    addMissingDefinitions(*job, this, Definitions::All);
    addMissingBundles(*job, this);
}
