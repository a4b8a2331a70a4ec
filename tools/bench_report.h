#ifndef TOOLS_BENCH_REPORT_H
#define TOOLS_BENCH_REPORT_H

#include <cstdio>
#include <memory>
#include <string>

#include <directfb.h>

namespace tools {

/// What was measured of an item.
struct Outcome {
    DFBResult result;
    double seconds;
    long primitives;
    long pixels; ///< What one primitive covers.
};

/// The lines of the table, on standard output and in a file.
class BenchReport {
public:
    /// @param csv The file's name, or empty for none.
    /// @throws std::runtime_error when the file cannot be written.
    explicit BenchReport(const std::string& csv);

    /// On a terminal, says what is being measured until the next line of the table comes.
    void announce(std::size_t number, std::size_t count, const std::string& name) const;

    void add(const std::string& name, const Outcome& outcome) const;

private:
    struct Closer {
        void operator()(FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<FILE, Closer> file_;
};

} // namespace tools

#endif
