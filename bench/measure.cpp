#include "measure.h"

#include <algorithm>
#include <numeric>

namespace bench {

namespace {

using benchmark::BenchmarkReporter;

/// Keeps what was run instead of printing it.
class Collector : public BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& report) override
    {
        runs.insert(runs.end(), report.begin(), report.end());
    }

    std::vector<Run> runs;
};

void draw_repeatedly(benchmark::State& state, const Candidate& candidate)
{
    candidate.painter->activate();
    for (auto _ : state)
        candidate.draw();
}

benchmark::internal::Benchmark* enlist(const std::string& item, const Candidate& candidate)
{
    return benchmark::RegisterBenchmark((item + "/" + candidate.name).c_str(),
                                        [&candidate](benchmark::State& state) { draw_repeatedly(state, candidate); });
}

std::vector<BenchmarkReporter::Run> run_enlisted()
{
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector, nullptr, "all");
    benchmark::ClearRegisteredBenchmarks();
    return collector.runs;
}

/// How often each candidate has to draw to fill the time.
std::vector<benchmark::IterationCount> calibrate(const std::string& item, const std::vector<Candidate>& candidates,
                                                 double seconds)
{
    for (const Candidate& candidate : candidates)
        enlist(item, candidate)->MinTime(seconds);
    std::vector<benchmark::IterationCount> iterations;
    for (const BenchmarkReporter::Run& run : run_enlisted())
        iterations.push_back(run.iterations);
    return iterations;
}

} // namespace

std::vector<Repetition> Measurement::run(const std::string& item, const std::vector<Candidate>& candidates,
                                         int repetitions)
{
    const auto iterations = calibrate(item, candidates, seconds_);
    std::vector<std::size_t> order(candidates.size());
    std::iota(order.begin(), order.end(), 0);

    std::vector<Repetition> result;
    for (int i = 0; i < repetitions; ++i) {
        for (const std::size_t column : order)
            enlist(item, candidates[column])->Iterations(iterations[column]);
        const auto report = run_enlisted();
        Repetition times(candidates.size());
        for (std::size_t place = 0; place < order.size(); ++place)
            times[order[place]] = report[place].GetAdjustedCPUTime();
        result.push_back(times);
        runs_.insert(runs_.end(), report.begin(), report.end());
        std::rotate(order.begin(), order.begin() + 1, order.end());
    }
    return result;
}

} // namespace bench
