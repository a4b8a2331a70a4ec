#ifndef TOOLS_BENCH_FILES_H
#define TOOLS_BENCH_FILES_H

#include <cstdio>
#include <memory>

#include "bench_options.h"
#include "bench_row.h"

namespace tools {

/// A file for results. It is opened before anything is measured, so that one that cannot be written costs no time.
class ResultFile {
public:
    /// @param path Empty for no file.
    /// @throws std::runtime_error when it cannot be opened.
    explicit ResultFile(const std::string& path);

    bool is_wanted() const { return file_ != nullptr; }

    /// Writes @p text, all there is to write.
    ///
    /// @throws std::runtime_error when it cannot be written to its end.
    void write(const std::string& text);

private:
    struct Closer {
        void operator()(FILE* file) const { std::fclose(file); }
    };
    std::string path_;
    std::unique_ptr<FILE, Closer> file_;
};

/// One line for each outcome.
std::string as_csv(const std::vector<std::string>& back_ends, const std::vector<BenchRow>& rows);

/// The same with what the measurement was started with.
std::string as_json(const BenchOptions& options, const std::vector<std::string>& back_ends,
                    const std::vector<BenchRow>& rows);

} // namespace tools

#endif
