#ifndef BENCH_MEASURE_H
#define BENCH_MEASURE_H

#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "painter.h"

namespace bench {

/// A drawing that is measured.
struct Candidate {
    std::string name;
    Painter* painter;
    Draw draw;
};

/// The nanoseconds that each candidate took, in one repetition.
using Repetition = std::vector<double>;

/// Runs candidates in turn with Google Benchmark.
class Measurement {
public:
    /// @param seconds How long one candidate runs in one repetition, at least.
    explicit Measurement(double seconds) : seconds_(seconds) {}

    /// Runs every candidate once in each repetition, beginning with another one each time.
    std::vector<Repetition> run(const std::string& item, const std::vector<Candidate>& candidates, int repetitions);

    /// Everything that was run, for reports in Google Benchmark's own formats.
    const std::vector<benchmark::BenchmarkReporter::Run>& runs() const { return runs_; }

private:
    double seconds_;
    std::vector<benchmark::BenchmarkReporter::Run> runs_;
};

} // namespace bench

#endif
