// Fuzzes template files of all versions. A file is either refused with a reason, or becomes a template of the current
// version that is the same after it has been saved and loaded, and that jobs can import.

#include "fuzzing.h"

#include "bkteditor.h"
#include "documentcheck.h"
#include "jobeditorprobe.h"

namespace {

QDomDocument parsed(const QString &fileName)
{
    return cabledoc::xmlfile::read(fileName, QString(), BKXMLEditor::defaultMaximumFileSize).document;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString fileName = inputFile("fuzzed.bkt", data, size);
    (void)cabledoc::checkFile(fileName);
    BktEditor::Destroy();
    BktEditor &bkt = BktEditor::Instance();
    if (!bkt.Load(fileName)) {
        expect(!bkt.error().isEmpty(), "a file that is refused is refused with a reason");
        return 0;
    }
    expect(bkt.save(), "what was loaded can be saved");
    const QDomDocument first = parsed(fileName);
    expect(first.documentElement().firstChildElement(QStringLiteral("Version")).attribute(QStringLiteral("number"))
               == QLatin1String("3.0"),
           "what was loaded has the current version");
    expect(bkt.Load(fileName), "what was saved can be loaded");
    expect(bkt.save() && equalTrees(first, parsed(fileName)), "the tree is the same after saving and loading");

    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    const JobEditorProbe probe(job);
    expect(job.New(QStringLiteral("%1.job").arg(fileName)), "a job can be made");
    job.Import(&bkt);
    expect(probe.indexesMatchTheTree(), "the indexes equal their rebuild after an import");
    const QByteArray imported = probe.text();
    job.Import(&bkt);
    expect(probe.text() == imported, "a second import adds nothing");
    expect(job.save() && job.Load(job.filename()), "a job with what was imported can be saved and loaded");
    return 0;
}
