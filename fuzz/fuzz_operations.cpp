// Fuzzes operations on jobs. After any operations on any job, the saved job is as the manual describes it. Every answer
// equals that of a walk through the saved text, which shares no code with the document and its indexes. Only the
// conversion of test data and the factors of scales are taken from the library.

#include "answers.h"
#include "operations.h"
#include "randomjob.h"

#include "jobeditorprobe.h"

#include <cstdio>

Session::Session(JobEditor *testedJob, const PlainElement &root, Choices *madeChoices)
    : job(*testedJob)
    , file(root)
    , choices(*madeChoices)
{
}

void Session::step(Operation operation)
{
    const QByteArray before = m_text;
    job.setDirty(false);
    job.error().clear();
    m_isRead = false;
    operation(this);
    readJob();
    if (!(m_saved == file.root()))
        std::fprintf(stderr, "the job:\n%s\nexpected:\n%s\n", plainText(m_saved).constData(),
                     plainText(file.root()).constData());
    expect(m_saved == file.root(), "the job is what the operation should have made of it");
    expect(job.fileChanged() || m_text == before || before.isNull(),
           "a job that is not marked as changed is the same as before");
}

const PlainElement &Session::saved()
{
    readJob();
    return m_saved;
}

void Session::readJob()
{
    if (m_isRead)
        return;
    m_isRead = true;
    const QByteArray text = JobEditorProbe(job).text();
    if (text == m_text)
        return;
    m_text = text;
    m_saved = parsePlain(text);
}

namespace {

constexpr int maximumSteps = 60;

/// Does nothing. This is the first step.
void nothing(Session *) {}

void compareAll(Session *session)
{
    const QByteArray text = JobEditorProbe(session->job).text();
    compareElements(session->job, &session->file);
    compareCables(session->job, &session->file);
    compareContents(session->job, &session->file);
    compareSnapshot(session->job, &session->file);
    expect(JobEditorProbe(session->job).text() == text, "these queries change nothing");
}

Operation someOperation(Choices *choices)
{
    // The groups of operations, with their chances out of sixteen.
    static const std::pair<int, const Operations &(*)()> groups[] = {
        {6, elementOperations}, {4, planOperations}, {4, cableOperations}, {2, contentOperations}};
    int chance = choices->number(16);
    const auto *group = std::begin(groups);
    for (; chance >= group->first; ++group)
        chance -= group->first;
    const Operations &operations = group->second();
    return operations.at(std::size_t(choices->number(int(operations.size()))));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Choices choices(data, size);
    const PlainElement root = randomJob(choices);
    const QByteArray text = plainText(root);
    const QString fileName =
        inputFile("fuzzed.job", reinterpret_cast<const std::uint8_t *>(text.constData()), std::size_t(text.size()));
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    expect(job.Load(fileName), "a job can be loaded");
    Session session(&job, root, &choices);
    session.step(nothing);
    for (int i = 0; i < maximumSteps && !choices.atEnd(); ++i) {
        session.step(someOperation(&choices));
        if (choices.oneIn(12))
            compareAll(&session);
    }
    compareAll(&session);
    job.setCharacterReferences(true);
    expect(job.saveAs(fileName), "the job can be saved");
    expectEqualSnapshots(job, fileName);
    return 0;
}
