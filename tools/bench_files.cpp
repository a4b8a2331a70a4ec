#include "bench_files.h"

#include <cerrno>
#include <cstring>
#include <stdexcept>

#include <nlohmann/json.hpp>

namespace tools {

namespace {

[[noreturn]] void fail(const std::string& path)
{
    throw std::runtime_error("cannot write " + path + ": " + std::strerror(errno));
}

std::string csv_line(const std::string& item, const std::string& back_end, const Outcome& outcome, double to_first)
{
    char text[256];
    std::snprintf(text, sizeof text, "\"%s\",%s,%.6f,%ld,%.1f,%ld,%.3f,%.1f,%.3f\n", item.c_str(), back_end.c_str(),
                  outcome.seconds, outcome.primitives, outcome.rate(), outcome.pixels, outcome.megapixels(),
                  outcome.cpu_load(), to_first);
    return text;
}

nlohmann::ordered_json json_of(const std::string& item, const std::string& back_end, const Outcome& outcome)
{
    nlohmann::ordered_json result = {{"item", item}, {"back_end", back_end}, {"drawn", outcome.is_drawn()}};
    if (!outcome.is_drawn())
        return result;
    result.update({{"seconds", outcome.seconds},
                   {"shapes", outcome.primitives},
                   {"shapes_per_second", outcome.rate()},
                   {"pixels", outcome.pixels},
                   {"megapixels_per_second", outcome.megapixels()},
                   {"cpu_percent", outcome.cpu_load()}});
    return result;
}

} // namespace

ResultFile::ResultFile(const std::string& path) : path_(path)
{
    if (path.empty())
        return;
    file_.reset(std::fopen(path.c_str(), "w"));
    if (!file_)
        fail(path);
}

void ResultFile::write(const std::string& text)
{
    if (std::fputs(text.c_str(), file_.get()) < 0 || std::fflush(file_.get()))
        fail(path_);
}

std::string as_csv(const std::vector<std::string>& back_ends, const std::vector<BenchRow>& rows)
{
    std::string text = "item,back end,seconds,shapes,shapes per second,pixels,megapixels per second,cpu percent,to " +
                       back_ends.front() + "\n";
    for (const BenchRow& row : rows) {
        for (std::size_t i = 0; i < row.outcomes.size(); ++i) {
            if (row.outcomes[i].is_drawn())
                text += csv_line(row.item, back_ends[i], row.outcomes[i], row.to_first(i));
        }
    }
    return text;
}

std::string as_json(const BenchOptions& options, const std::vector<std::string>& back_ends,
                    const std::vector<BenchRow>& rows)
{
    nlohmann::ordered_json document = {
        {"width", options.size.width}, {"height", options.size.height}, {"pixelformat", options.format}};
    document["results"] = nlohmann::ordered_json::array();
    for (const BenchRow& row : rows) {
        for (std::size_t i = 0; i < row.outcomes.size(); ++i)
            document["results"].push_back(json_of(row.item, back_ends[i], row.outcomes[i]));
    }
    return document.dump(2) + "\n";
}

} // namespace tools
