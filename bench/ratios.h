#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

/// A comparison: the time of the first benchmark divided by the time of the second.
struct Ratio
{
    std::string name;
    std::string reference;
    /// Value that the ratio must not exceed, or 0 if there is none.
    double aim = 0;
};

inline void printRatio(const Ratio &ratio, double value, const char *what = "takes")
{
    std::printf("%-26s %s %8.3g times as much as %s", ratio.name.c_str(), what, value, ratio.reference.c_str());
    if (ratio.aim > 0)
        std::printf("   (aim: %g, %s)", ratio.aim, value <= ratio.aim ? "met" : "MISSED");
    std::printf("\n");
}

/// Reports times as usual, and keeps the shortest time of each benchmark for the ratios.
class KeepingReporter : public benchmark::ConsoleReporter
{
public:
    KeepingReporter()
        : ConsoleReporter(OO_Tabular)
    {
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            // Manual times are real times, because waiting for a disk takes no processor time.
            const std::string name =
                run.run_name.function_name + (run.run_name.args.empty() ? "" : "/" + run.run_name.args);
            const bool isReal = !run.run_name.time_type.empty();
            const double seconds = (isReal ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime())
                                   / benchmark::GetTimeUnitMultiplier(run.time_unit);
            const auto kept = m_seconds.find(name);
            m_seconds[name] = kept == m_seconds.end() ? seconds : std::min(kept->second, seconds);
        }
    }

    void printRatios(const std::vector<Ratio> &ratios) const
    {
        std::printf("\n");
        for (const Ratio &ratio : ratios) {
            const auto time = m_seconds.find(ratio.name);
            const auto reference = m_seconds.find(ratio.reference);
            if (time != m_seconds.end() && reference != m_seconds.end())
                printRatio(ratio, time->second / reference->second);
        }
    }

    /// Appends a line for each benchmark to a file, with its name and its seconds.
    void appendTimes(const char *fileName) const
    {
        std::FILE *file = std::fopen(fileName, "a");
        if (file == nullptr)
            return;
        for (const auto &[name, seconds] : m_seconds)
            std::fprintf(file, "%s\t%g\n", name.c_str(), seconds);
        std::fclose(file);
    }

private:
    std::map<std::string, double> m_seconds;
};

/// Runs all benchmarks, and then prints the ratios. Appends the times to the file that CABLEDOC_BENCH_TIMES names.
/// Returns the exit code of the program.
inline int runBenchmarks(int argc, char *argv[], const std::vector<Ratio> &ratios)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    KeepingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios(ratios);
    if (const char *fileName = std::getenv("CABLEDOC_BENCH_TIMES"))
        reporter.appendTimes(fileName);
    return 0;
}
