// Measures what it costs to copy a floor, compared with adding the same ports and cables one by one, and to remove a
// port from jobs of 1,000 and of 100,000 ports.

#include "ratios.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QVector>

namespace {

constexpr int portsOfFloor = 2000;
constexpr int smallJob = 1000;
constexpr int bigJob = 100000;

/// Adds the given number of ports to a floor, with a cable from each to the next. Returns the tags of the ports.
QVector<QString> fillFloor(JobEditor &job, const QString &floor, int ports)
{
    QVector<QString> tags;
    for (int i = 0; i < ports; ++i) {
        tags.append(job.addPort(floor, QStringLiteral("Undefined"), i, 0, QString(), QStringLiteral("Jack "),
                                QStringLiteral("data"), 1, 3, 0));
    }
    for (int i = 0; i < ports; ++i)
        job.addCable(QString(), QString(), QStringLiteral("data"), tags.at(i), tags.at((i + 1) % ports), 0);
    return tags;
}

JobEditor &newJob()
{
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    job.New(QStringLiteral("bench.job"));
    return job;
}

QString secondFloor(JobEditor &job)
{
    return job.addFloor(QString(), QStringLiteral("Second"), 8, QString(), 1);
}

void addOneByOne(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        JobEditor &job = newJob();
        fillFloor(job, job.getFloorTags().constFirst(), portsOfFloor);
        const QString target = secondFloor(job);
        state.ResumeTiming();
        fillFloor(job, target, portsOfFloor);
    }
}
BENCHMARK(addOneByOne)->Unit(benchmark::kMillisecond);

void copyFloor(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        JobEditor &job = newJob();
        const QString source = job.getFloorTags().constFirst();
        fillFloor(job, source, portsOfFloor);
        const QString target = secondFloor(job);
        state.ResumeTiming();
        job.copyFloor(source, target, {}, false);
    }
}
BENCHMARK(copyFloor)->Unit(benchmark::kMillisecond);

/// Measures the removal of ports. The cables to the neighbours of a port are removed with it.
void removePort(benchmark::State &state)
{
    JobEditor &job = newJob();
    const QVector<QString> ports = fillFloor(job, job.getFloorTags().constFirst(), int(state.range(0)));
    job.removePort(ports.constLast()); // the first removal reads all references
    int next = 0;
    for (auto _ : state)
        job.removePort(ports.at(next++));
}
BENCHMARK(removePort)->Arg(smallJob)->Arg(bigJob)->Iterations(smallJob / 2);

} // namespace

int main(int argc, char *argv[])
{
    return runBenchmarks(argc, argv, {{"copyFloor", "addOneByOne"}, {"removePort/100000", "removePort/1000", 4}});
}
