// Fuzzes job files. A file is either refused with a reason, or becomes a job that answers every query, and that is the
// same after it has been saved and loaded.

#include "fuzzing.h"

#include "documentcheck.h"
#include "jobeditorprobe.h"
#include "operations.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString fileName = inputFile("fuzzed.job", data, size);
    (void)cabledoc::checkFile(fileName);
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    const JobEditorProbe probe(job);
    if (!job.Load(fileName)) {
        expect(!job.error().isEmpty(), "a file that is refused is refused with a reason");
        return 0;
    }
    expect(!job.fileChanged(), "a load changes nothing");
    expectEqualSnapshots(job, fileName);
    expect(probe.indexesMatchTheTree(), "the indexes equal their rebuild after a load");
    callEveryQuery(job);
    expect(probe.indexesMatchTheTree(), "the indexes equal their rebuild after all queries");

    const cabledoc::xmlfile::Text text = probe.savedText();
    const QDomDocument before = probe.root().ownerDocument().cloneNode().toDocument();
    expect(job.save(), "what was loaded can be saved");
    expect(job.Load(fileName), "what was saved can be loaded");
    expect(text.replacedCharacters > 0 || equalTrees(before.documentElement(), probe.root()),
           "the tree is the same after saving and loading");
    expect(probe.savedText().bytes == text.bytes, "the text is the same after saving and loading");
    return 0;
}
