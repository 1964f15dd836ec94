// Measures whole job files of 1,000, 10,000 and 100,000 cables: load, save, memory and the rebuild of the indexes. They
// are compared with a bare QDomDocument, and with pugixml, which shows the limit of a lean tree.
//
//     bench_files FOLDER [options of Google Benchmark]      makes the files in FOLDER unless they exist
//     bench_files make FILE.job CABLES                      makes one of the files
//     bench_files run job|save|bare|pugixml FILE            loads the file, with save also saves it, and prints the
//                                                           memory that the process takes, in MB

#include "ratios.h"

#include <cabledoc/jobeditor.h>

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtXml/QDomDocument>

#include <pugixml.hpp>

#include <chrono>
#include <cstring>
#include <memory>

namespace {

constexpr int sizes[] = {1000, 10000, 100000};
constexpr int roomsOfFloor = 20;
constexpr int portsOfRoom = 50;
constexpr int cablesOfCurves = 10; // every tenth cable has response curves

// The trees of the two versions of Qt differ in their cost.
constexpr bool isQt6 = QT_VERSION_MAJOR == 6;
constexpr double loadAim = isQt6 ? 0.75 : 0.6;
constexpr double memoryAim = isQt6 ? 0.9 : 0.8;
constexpr double saveAim = isQt6 ? 0.85 : 0.3;

QString folder;

QString fileOf(int cables)
{
    return folder + QStringLiteral("/%1.job").arg(cables);
}

[[noreturn]] void fail(const QString &message)
{
    std::fprintf(stderr, "bench_files: %s\n", qPrintable(message));
    std::exit(1);
}

TRUEPHY_PLOT_DATA curve(int seed)
{
    TRUEPHY_PLOT_DATA curve{};
    for (int i = 0; i < TRUEPHY_PLOT_DATA::sampleCount; ++i) {
        curve.plot_a[i] = (seed + i * 7919) % 60000 - 30000;
        curve.plot_b[i] = (seed + i * 7907) % 60000 - 30000;
    }
    curve.count = TRUEPHY_PLOT_DATA::sampleCount;
    return curve;
}

QString text(const char *latin1, int number)
{
    return QString::fromLatin1(latin1).arg(number);
}

/// Makes a job with floors, rooms, ports and cables. Each cable has two ports of its own and test results.
void make(const QString &fileName, int cables)
{
    JobEditor::Destroy();
    JobEditor &job = JobEditor::Instance();
    job.New(fileName);
    QString floor;
    QString room;
    for (int port = 0; port < 2 * cables; ++port) {
        if (port % (roomsOfFloor * portsOfRoom) == 0)
            floor = job.addFloor(QString(), QStringLiteral("Level "), 9.5, QString(), 0);
        if (port % portsOfRoom == 0) {
            const int place = port / portsOfRoom % roomsOfFloor;
            room = job.addRoom(floor, place % 5 * 240, place / 5 * 160, 240, 160, QString(),
                               text("Room %1", port / portsOfRoom), 10, 10, 3, 3, 3, 1);
        }
        job.addPort(floor, room, port % 10 * 24, port / 10 % 5 * 32, QString(), text("Jack %1", port),
                    QStringLiteral("data"), 1, 3.5, 1);
    }
    for (int i = 0; i < cables; ++i) {
        TestResults results(QString(), QStringLiteral("PASS"), cable_struct::untested(), 0);
        if (i % cablesOfCurves == 0) {
            results.setNEXT(curve(i));
            results.setEcho(curve(i + 1));
            results.setChannel(curve(i + 2));
        }
        job.addCable(QString(), QString(), QStringLiteral("data"), text("Port%1", 2 * i + 1), text("Port%1", 2 * i + 2),
                     QStringLiteral("CAT6"), results, 0);
    }
    if (!job.save())
        fail(job.error());
}

using Document = std::unique_ptr<QDomDocument>;
using LeanDocument = std::unique_ptr<pugi::xml_document>;

void loadJob(const QString &fileName)
{
    JobEditor &job = JobEditor::Instance();
    if (!job.Load(fileName))
        fail(job.error());
    benchmark::DoNotOptimize(job.getCables(true));
}

Document loadBare(const QString &fileName)
{
    QFile file(fileName);
    auto document = std::make_unique<QDomDocument>();
    if (!file.open(QIODevice::ReadOnly) || !document->setContent(QString::fromLatin1(file.readAll())))
        fail(fileName);
    return document;
}

LeanDocument loadLean(const QString &fileName)
{
    auto document = std::make_unique<pugi::xml_document>();
    if (!document->load_file(QFile::encodeName(fileName).constData(), pugi::parse_default, pugi::encoding_latin1))
        fail(fileName);
    return document;
}

/// Measures the time of the work. The object that the work returns is destroyed outside of the measured time.
template <typename Work> void measure(benchmark::State &state, Work work)
{
    using Clock = std::chrono::steady_clock;
    for (auto _ : state) {
        const auto start = Clock::now();
        const auto result = work();
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        benchmark::DoNotOptimize(result);
    }
}

void load(benchmark::State &state)
{
    const QString fileName = fileOf(int(state.range(0)));
    JobEditor::Destroy();
    measure(state, [&fileName] {
        loadJob(fileName);
        // The job is destroyed outside of the measured time, like the other trees.
        return std::shared_ptr<void>(nullptr, [](void *) { JobEditor::Destroy(); });
    });
}

void bareParse(benchmark::State &state)
{
    measure(state, [&state] { return loadBare(fileOf(int(state.range(0)))); });
}

void pugixmlLoad(benchmark::State &state)
{
    measure(state, [&state] { return loadLean(fileOf(int(state.range(0)))); });
}

void save(benchmark::State &state)
{
    loadJob(fileOf(int(state.range(0))));
    JobEditor &job = JobEditor::Instance();
    job.setFilename(folder + QStringLiteral("/saved.job"));
    measure(state, [&job] { return job.save() ? 0 : (fail(job.error()), 1); });
    JobEditor::Destroy();
}

void bareWrite(benchmark::State &state)
{
    const Document document = loadBare(fileOf(int(state.range(0))));
    measure(state, [&document] {
        QFile file(folder + QStringLiteral("/written.xml"));
        if (!file.open(QIODevice::WriteOnly) || file.write(document->toString(1).toLatin1()) < 0)
            fail(file.errorString());
        file.close();
        return 0;
    });
}

void pugixmlSave(benchmark::State &state)
{
    const LeanDocument document = loadLean(fileOf(int(state.range(0))));
    const QByteArray fileName = QFile::encodeName(folder + QStringLiteral("/written.xml"));
    measure(state, [&] {
        return document->save_file(fileName.constData(), " ", pugi::format_default | pugi::format_no_declaration,
                                   pugi::encoding_latin1);
    });
}

void rebuild(benchmark::State &state)
{
    loadJob(fileOf(int(state.range(0))));
    JobEditor &job = JobEditor::Instance();
    measure(state, [&job] {
        job.updateAllInternalLists();
        return job.getCables(true).size();
    });
    JobEditor::Destroy();
}

/// Returns the memory that the process has now, in MB.
double residentMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        fail(status.errorString());
    const QByteArray all = status.readAll();
    return all.mid(all.indexOf("VmRSS:") + 6).simplified().split(' ').constFirst().toDouble() / 1024;
}

/// Does one thing in this process, and prints how much memory it has taken.
int run(const QByteArray &what, const QString &fileName)
{
    const double before = residentMegabytes();
    Document document;
    LeanDocument leanDocument;
    if (what == "job" || what == "save")
        loadJob(fileName);
    else if (what == "bare")
        document = loadBare(fileName);
    else
        leanDocument = loadLean(fileName);
    if (what == "save" && !JobEditor::Instance().save())
        fail(JobEditor::Instance().error());
    std::printf("%.1f\n", residentMegabytes() - before);
    return 0;
}

/// Returns the memory that a separate process needs.
double memoryOf(const char *what, int cables)
{
    QProcess process;
    process.start(QStringLiteral("/proc/self/exe"), {QStringLiteral("run"), QLatin1String(what), fileOf(cables)});
    if (!process.waitForFinished(-1))
        fail(process.errorString());
    return process.readAllStandardOutput().toDouble();
}

void compareMemory()
{
    std::printf("\nmemory after load, MB: cables, job, bare tree, pugixml\n");
    std::vector<double> ratios;
    for (const int cables : sizes) {
        const double job = memoryOf("job", cables);
        const double bare = memoryOf("bare", cables);
        std::printf("%8d %8.1f %8.1f %8.1f\n", cables, job, bare, memoryOf("pugixml", cables));
        ratios.push_back(job / bare);
    }
    for (std::size_t i = 0; i < ratios.size(); ++i)
        printRatio({"load/" + std::to_string(sizes[i]), "bareParse", memoryAim}, ratios[i], "holds");
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 4 && std::strcmp(argv[1], "run") == 0)
        return run(argv[2], QFile::decodeName(argv[3]));
    if (argc == 4 && std::strcmp(argv[1], "make") == 0) {
        make(QFile::decodeName(argv[2]), std::atoi(argv[3]));
        JobEditor::Destroy();
        return 0;
    }
    if (argc < 2)
        fail(QStringLiteral("a folder is needed"));
    folder = QFile::decodeName(argv[1]);
    argv[1] = argv[0];
    for (const int cables : sizes) {
        if (!QFile::exists(fileOf(cables)))
            make(fileOf(cables), cables);
    }
    JobEditor::Destroy();

    const struct
    {
        const char *name;
        void (*run)(benchmark::State &);
    } benchmarks[] = {
        {"load", load},           {"bareParse", bareParse},     {"pugixmlLoad", pugixmlLoad}, {"save", save},
        {"bareWrite", bareWrite}, {"pugixmlSave", pugixmlSave}, {"rebuild", rebuild},
    };
    std::vector<Ratio> ratios;
    for (const int cables : sizes) {
        for (const auto &[name, run] : benchmarks) {
            benchmark::RegisterBenchmark(name, run)
                ->Arg(cables)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond)
                ->Iterations(std::max(1, 10000 / cables))
                ->Repetitions(5);
        }
        const std::string size = '/' + std::to_string(cables);
        ratios.insert(ratios.end(), {{"load" + size, "bareParse" + size, loadAim},
                                     {"save" + size, "bareWrite" + size, saveAim},
                                     {"rebuild" + size, "load" + size, 0.12},
                                     {"load" + size, "pugixmlLoad" + size},
                                     {"save" + size, "pugixmlSave" + size}});
    }
    // The repetitions of all benchmarks run in random order, so that none has an advantage from the state of the memory
    // or the disk.
    std::vector<char *> arguments(argv + 1, argv + argc);
    char mixed[] = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, mixed);
    const int result = runBenchmarks(int(arguments.size()), arguments.data(), ratios);
    compareMemory();
    return result;
}
