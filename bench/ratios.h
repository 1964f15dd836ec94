#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// What is compared with what: time of the first divided by the time of the second.
struct Ratio
{
    std::string name;
    std::string reference;
};

/// Reports times as usual and keeps them for the ratios.
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
            if (run.run_type == Run::RT_Iteration)
                m_times[run.benchmark_name()] = run.GetAdjustedCPUTime();
        }
    }

    void printRatios(const std::vector<Ratio> &ratios) const
    {
        std::printf("\n");
        for (const Ratio &ratio : ratios) {
            const auto time = m_times.find(ratio.name);
            const auto reference = m_times.find(ratio.reference);
            if (time != m_times.end() && reference != m_times.end()) {
                std::printf("%-24s takes %9.3g times as long as %s\n", ratio.name.c_str(),
                            time->second / reference->second, ratio.reference.c_str());
            }
        }
    }

private:
    std::map<std::string, double> m_times;
};

/// The main function of a benchmark: all of them in one run, then the ratios.
inline int runBenchmarks(int argc, char *argv[], const std::vector<Ratio> &ratios)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    KeepingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios(ratios);
    return 0;
}
