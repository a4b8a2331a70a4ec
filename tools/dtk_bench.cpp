#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "bench_files.h"
#include "bench_measure.h"
#include "bench_table.h"
#include "interruption.h"
#include "progress.h"

namespace {

using tools::BackEnd;
using tools::BenchItem;
using tools::BenchOptions;
using tools::BenchRow;

/// Those that are asked for, or all that there are.
std::vector<BackEnd> back_ends_of(const BenchOptions& options, const tools::Platform& platform)
{
    if (options.back_end != BackEnd::any)
        return {options.back_end};
    if (!platform.has_engine())
        return {BackEnd::software};
    return {BackEnd::software, BackEnd::hardware};
}

std::vector<std::string> names_of(const std::vector<BackEnd>& back_ends)
{
    std::vector<std::string> names;
    for (const BackEnd back_end : back_ends)
        names.push_back(tools::name_of(back_end));
    return names;
}

std::vector<BenchItem> wanted_items(const BenchOptions& options)
{
    const std::vector<BenchItem> items = tools::bench_items(options.only);
    if (items.empty())
        throw std::invalid_argument("no item has '" + options.only + "' in its name");
    return items;
}

/// An item that was interrupted is left out.
std::vector<BenchRow> measure_all(const BenchOptions& options, tools::BenchStage& stage, const std::vector<BenchItem>& items,
                                  const std::vector<BackEnd>& back_ends, const tools::Interruption& interruption)
{
    const tools::Progress progress;
    std::vector<BenchRow> rows;
    for (const BenchItem& item : items) {
        const double done = static_cast<double>(rows.size()) / static_cast<double>(items.size());
        progress.show(tools::step_of(rows.size() + 1, items.size()) + item.name, done);
        BenchRow row = {item.name, {}};
        for (const BackEnd back_end : back_ends)
            row.outcomes.push_back(stage.measure(item, back_end, interruption));
        progress.wipe();
        if (interruption.has_come())
            break;
        if (!options.no_results)
            print_row(row);
        rows.push_back(row);
    }
    return rows;
}

void create_folder(const std::string& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        throw std::runtime_error("cannot make the folder " + folder + ": " + error.message());
}

void print_heading(const BenchOptions& options, const tools::Platform& platform, const tools::Size& surface,
                   const std::vector<std::string>& back_ends)
{
    std::printf("Shapes of %d x %d pixels on a surface of %d x %d, %s; DirectFB %s\n\n", options.size.width,
                options.size.height, surface.width, surface.height, options.format.c_str(),
                platform.is_accelerated() ? "accelerated" : "not accelerated");
    tools::print_head(back_ends);
}

int run_bench(const BenchOptions& options, const std::vector<std::string>& words)
{
    const std::vector<BenchItem> items = wanted_items(options);
    if (!options.dump.empty())
        create_folder(options.dump);
    tools::ResultFile csv(options.csv), json(options.json);

    const tools::Platform platform(1280, 720, options.back_end, options.window ? words : tools::without_window(words));
    if (options.window)
        platform.require_display();
    const tools::Interruption interruption(platform.dfb());
    const std::vector<BackEnd> back_ends = back_ends_of(options, platform);
    tools::BenchStage stage(options, platform);
    if (!options.no_results)
        print_heading(options, platform, stage.size(), names_of(back_ends));
    const std::vector<BenchRow> rows = measure_all(options, stage, items, back_ends, interruption);
    if (csv.is_wanted())
        csv.write(tools::as_csv(names_of(back_ends), rows));
    if (json.is_wanted())
        json.write(tools::as_json(options, names_of(back_ends), rows));
    if (interruption.has_come())
        throw std::runtime_error("interrupted; the results up to there have been written");
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    BenchOptions options;
    tools::Program program("Measures how many shapes and pixels the toolkit draws in a second, by both back ends side by side.",
                           "dtk_bench");
    tools::add_options(program, options);
    tools::catch_signals();
    return program.run(argc, argv, [&] { return run_bench(options, program.words()); });
}
