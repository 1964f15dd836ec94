// Measures what one operation on one cable costs in jobs of 1,000 to 100,000 cables, and what a walk to the cable from
// sibling to sibling costs. Also measures what it costs to read all fields of 10,000 cables in both ways.

#include "ratios.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QVector>

#include <random>

namespace {

constexpr int smallJob = 1000;
constexpr int middleJob = 10000;
constexpr int bigJob = 100000;

/// Fills the job with the given number of cables. In each size, some ids have more than three digits.
void prepare(int cables)
{
    static int prepared = 0;
    if (prepared == cables)
        return;
    prepared = cables;
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    job.New(QStringLiteral("bench.job"));
    for (int i = 0; i < cables; ++i)
        job.addCable(QString(), QString(), QStringLiteral("data"), QStringLiteral("P1"), QStringLiteral("P2"), 0);
}

/// Returns tags and ids of cables from the whole job, the same number for each size.
QVector<QString> someCables(bool byTag)
{
    const QStringList names = JobEditor::Instance().getCables(byTag);
    std::mt19937 random(1);
    QVector<QString> some;
    for (int i = 0; i < smallJob; ++i)
        some.append(names.at(int(random() % unsigned(names.size()))));
    return some;
}

/// Calls the operation with one cable after the other.
template <typename Operation> void measure(benchmark::State &state, bool byTag, Operation operation)
{
    prepare(int(state.range(0)));
    JobEditor &job = JobEditor::Instance();
    const QVector<QString> cables = someCables(byTag);
    int next = 0;
    for (auto _ : state) {
        operation(job, cables.at(next));
        next = (next + 1) % int(cables.size());
    }
}

void addAndRemove(benchmark::State &state)
{
    measure(state, true, [](JobEditor &job, const QString &) {
        const QString id = job.addCable(QString(), QString(), QStringLiteral("data"), 0);
        job.removeCable(job.getCableById(id));
    });
}

void removeAndAddAgain(benchmark::State &state)
{
    measure(state, true, [](JobEditor &job, const QString &tag) {
        const QString id = job.getCableID(tag);
        job.removeCable(tag);
        job.addCable(tag, id, QStringLiteral("data"), 2);
    });
}

void findByTag(benchmark::State &state)
{
    measure(state, true, [](JobEditor &job, const QString &tag) { benchmark::DoNotOptimize(job.getCableUse(tag)); });
}

void findById(benchmark::State &state)
{
    measure(state, false,
            [](JobEditor &job, const QString &id) { benchmark::DoNotOptimize(job.cableExists(id, false)); });
}

void exists(benchmark::State &state)
{
    measure(state, true,
            [](JobEditor &job, const QString &tag) { benchmark::DoNotOptimize(job.cableExists(tag, true)); });
}

void readById(benchmark::State &state)
{
    measure(state, false,
            [](JobEditor &job, const QString &id) { benchmark::DoNotOptimize(job.getCableById(id).tag()); });
}

void change(benchmark::State &state)
{
    measure(state, true, [](JobEditor &job, const QString &tag) { job.setCableColor(tag, QStringLiteral("#112233")); });
}

void rename(benchmark::State &state)
{
    measure(state, true, [](JobEditor &job, const QString &tag) {
        const QString id = job.getCableID(tag);
        job.setCableID(tag, id.endsWith(QLatin1Char('x')) ? id.chopped(1) : id + QLatin1Char('x'));
    });
}

QString attributeByWalk(JobEditor &job, const QString &tag, const QString &attribute)
{
    QDomElement cable = job.getToCableList().firstChildElement();
    while (cable.tagName() != tag)
        cable = cable.nextSiblingElement();
    return cable.attribute(attribute);
}

void siblingWalk(benchmark::State &state)
{
    measure(state, true, [](JobEditor &job, const QString &tag) {
        benchmark::DoNotOptimize(attributeByWalk(job, tag, QStringLiteral("use")));
    });
}

/// Reads all fields of all cables. Each call reads those of one tag.
template <typename ReadFields> void readAll(benchmark::State &state, ReadFields readFields)
{
    prepare(middleJob);
    JobEditor &job = JobEditor::Instance();
    const QStringList tags = job.getCables(true);
    for (auto _ : state) {
        for (const QString &tag : tags)
            readFields(job, tag);
    }
}

/// Reads all fields of each cable, with one getter for each field.
void readAllFields(benchmark::State &state)
{
    readAll(state, [](JobEditor &job, const QString &tag) {
        for (const auto getter :
             {&JobEditor::getCableID, &JobEditor::getCableUse, &JobEditor::getCableTo, &JobEditor::getCableFrom,
              &JobEditor::getCableType, &JobEditor::getCableBundleName, &JobEditor::getCableBundleNum,
              &JobEditor::getCableBundleGroupNum, &JobEditor::getCableColor})
            benchmark::DoNotOptimize((job.*getter)(tag));
    });
}

void readAllFieldsByWalks(benchmark::State &state)
{
    readAll(state, [](JobEditor &job, const QString &tag) {
        for (const char *attribute :
             {"id", "use", "to", "from", "type", "bundleName", "bundleNum", "bundleGroupNum", "color"})
            benchmark::DoNotOptimize(attributeByWalk(job, tag, QLatin1String(attribute)));
    });
}

} // namespace

int main(int argc, char *argv[])
{
    const std::vector<std::pair<std::string, void (*)(benchmark::State &)>> operations{
        {"addAndRemove", addAndRemove},
        {"removeAndAddAgain", removeAndAddAgain},
        {"findByTag", findByTag},
        {"findById", findById},
        {"exists", exists},
        {"readById", readById},
        {"change", change},
        {"rename", rename},
        {"siblingWalk", siblingWalk},
    };
    std::vector<Ratio> ratios;
    // The sizes come one after the other, because preparing a job takes longer than measuring in it.
    for (const int cables : {smallJob, middleJob, bigJob}) {
        for (const auto &[name, operation] : operations)
            benchmark::RegisterBenchmark(name.c_str(), operation)->Arg(cables);
        if (cables != middleJob)
            continue;
        benchmark::RegisterBenchmark("readAllFields", readAllFields)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("readAllFieldsByWalks", readAllFieldsByWalks)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1);
    }
    for (const auto &[name, operation] : operations) {
        const double aim = operation == siblingWalk ? 0 : 4;
        ratios.push_back({name + "/" + std::to_string(bigJob), name + "/" + std::to_string(smallJob), aim});
    }
    ratios.push_back({"readAllFields", "readAllFieldsByWalks", 0.01});
    return runBenchmarks(argc, argv, ratios);
}
