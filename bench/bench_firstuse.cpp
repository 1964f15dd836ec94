// Measures what the first use of an operation costs after a load, beside the same operation once more, and what single
// operations cost when nothing of the job is in the caches of a processor. The jobs are those of bench_files.
//
//     bench_firstuse FOLDER

#include "ratios.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QFile>

#include <chrono>
#include <numeric>

namespace {

constexpr int small = 1000;
constexpr int big = 100000;

QString folder;

QString numbered(const char *prefix, int number)
{
    return QLatin1String(prefix) + QString::number(number);
}

JobEditor &load(int cables)
{
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    if (!job.Load(folder + QStringLiteral("/%1.job").arg(cables))) {
        std::fprintf(stderr, "bench_firstuse: %s\n", qPrintable(job.error()));
        std::exit(1);
    }
    return job;
}

template <typename Work> double milliseconds(Work work)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// An operation. The number tells which elements it uses.
struct Operation
{
    const char *name;
    void (*run)(JobEditor &job, int number);
};

const Operation singleOperations[] = {
    {"find", [](JobEditor &job, int n) { benchmark::DoNotOptimize(job.getCableUse(numbered("Cable", n))); }},
    {"length",
     [](JobEditor &job, int n) {
         benchmark::DoNotOptimize(job.getMaxRoundedCableLength(numbered("Cable", n), false, false));
     }},
    {"change", [](JobEditor &job, int n) { job.setCableUse(numbered("Cable", n), QStringLiteral("voice")); }},
    {"setTo", [](JobEditor &job, int n) { job.setCableTo(numbered("Cable", n), QStringLiteral("Port7")); }},
    {"rename", [](JobEditor &job, int n) { job.setCableID(numbered("Cable", n), numbered("New", n)); }},
    {"setResults",
     [](JobEditor &job, int n) {
         job.setCableTestResults(numbered("Cable", n),
                                 TestResults(QString(), QStringLiteral("FAIL"), cable_struct::untested(), 1));
     }},
    {"addCable",
     [](JobEditor &job, int n) {
         job.addCable(QString(), QString(), QStringLiteral("data"), numbered("Port", n), QStringLiteral("Port9"),
                      QStringLiteral("CAT6"), TestResults(), 0);
     }},
    {"addPort",
     [](JobEditor &job, int n) {
         job.addPort(QStringLiteral("FFloor_1"), QStringLiteral("Room1"), n, n, QString(), QStringLiteral("Jack "),
                     QStringLiteral("data"), 1, 3.5, 0);
     }},
    {"removeCable", [](JobEditor &job, int n) { job.removeCable(numbered("Cable", n)); }},
    {"removePort", [](JobEditor &job, int n) { job.removePort(numbered("Port", n)); }},
    {"cablesOfPort", [](JobEditor &job, int n) { benchmark::DoNotOptimize(job.getCablesByPort(numbered("Port", n))); }},
};

const Operation listOperations[] = {
    {"allCables", [](JobEditor &job, int) { benchmark::DoNotOptimize(job.getCables(true)); }},
    {"afterRename",
     [](JobEditor &job, int n) {
         job.setCableID(numbered("Cable", n), numbered("New", n));
         benchmark::DoNotOptimize(job.getCables(false));
     }},
    {"cablesOfUse", [](JobEditor &job, int) { benchmark::DoNotOptimize(job.getCablesByUse(QStringLiteral("data"))); }},
    {"cablesOfType",
     [](JobEditor &job, int) { benchmark::DoNotOptimize(job.getCablesByType(QStringLiteral("CAT6"))); }},
    {"cablesOfStatus",
     [](JobEditor &job, int) { benchmark::DoNotOptimize(job.getCablesByStatus(QStringLiteral("PASS"))); }},
    {"cablesOfFloor",
     [](JobEditor &job, int) { benchmark::DoNotOptimize(job.getCablesByFloor(QStringLiteral("FFloor_1"))); }},
};

/// Puts other data into the caches of the processor. Some machines share a last cache that is larger.
void coolDown()
{
    static std::vector<char> other(std::size_t(96) << 20);
    for (std::size_t i = 0; i < other.size(); i += 64)
        ++other[i];
    benchmark::DoNotOptimize(other.data());
}

/// Returns the median of the times of an operation on elements in all parts of a job.
double coldTime(const Operation &operation, int cables)
{
    constexpr int samples = 41;
    JobEditor &job = load(cables);
    operation.run(job, cables); // the first use
    std::vector<double> times;
    for (int sample = 0; sample < samples; ++sample) {
        const int number = 1 + sample * (cables / samples);
        coolDown();
        times.push_back(milliseconds([&] { operation.run(job, number); }));
    }
    std::nth_element(times.begin(), times.begin() + samples / 2, times.end());
    return times[samples / 2];
}

void compareFirstUse(const Operation &operation)
{
    constexpr double aim = 20; // milliseconds
    JobEditor &job = load(big);
    const double first = milliseconds([&] { operation.run(job, 100); });
    const double again = milliseconds([&] { operation.run(job, 200); });
    std::printf("%-16s first %8.2f ms, again %8.2f ms   (aim: %g ms more, %s)\n", operation.name, first, again, aim,
                first - again <= aim ? "met" : "MISSED");
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "bench_firstuse: a folder is needed\n");
        return 1;
    }
    folder = QFile::decodeName(argv[1]);
    std::printf("the first use of operations on %d cables after a load\n", big);
    for (const Operation &operation : singleOperations)
        compareFirstUse(operation);
    for (const Operation &operation : listOperations)
        compareFirstUse(operation);
    std::printf("\nsingle operations with cold caches\n");
    for (const Operation &operation : singleOperations) {
        const double inSmall = coldTime(operation, small);
        const double inBig = coldTime(operation, big);
        std::printf("%-16s %8.4f ms of %d, %8.4f ms of %d\n", operation.name, inSmall, small, inBig, big);
        printRatio({std::string(operation.name) + "/100000", std::string(operation.name) + "/1000", 2},
                   inBig / inSmall);
    }
    JobEditor::Destroy();
    return 0;
}
