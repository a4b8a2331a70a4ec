#include <cstdio>
#include <regex>

#include "contest.h"
#include "contest_options.h"
#include "directfb_painter.h"
#include "floor.h"
#include "growth.h"
#include "peers.h"
#include "prescribed.h"
#include "progress.h"
#include "report.h"
#include "toolkit_painter.h"

using namespace bench;

namespace {

/// All draw into the same memory: how fast memory is depends on where it lies.
std::vector<Column> make_columns(IDirectFB* dfb, IDirectFBSurface* surface)
{
    const Memory memory = memory_of(surface);
    std::vector<Column> columns;
    columns.push_back({floor_name, false, std::make_unique<Floor>(memory)});
    columns.push_back({prescribed_name, false, std::make_unique<Prescribed>(dfb, surface)});
    columns.push_back({software_name, false, std::make_unique<ToolkitPainter>(dfb, surface, tools::BackEnd::software)});
    columns.push_back({engine_name, false, std::make_unique<ToolkitPainter>(dfb, surface, tools::BackEnd::hardware)});
    columns.push_back({"DirectFB", true, std::make_unique<DirectFBPainter>(dfb, surface)});
    for (Column& column : make_peers(memory))
        columns.push_back(std::move(column));
    return columns;
}

std::vector<Item> wanted_items(const Options& options)
{
    const std::regex pattern(options.items);
    std::vector<Item> items;
    for (const Item& item : options.growth ? growing_items() : all_items()) {
        if (std::regex_search(item.name, pattern))
            items.push_back(item);
    }
    return items;
}

/// What takes seconds is steady after one.
bool takes_seconds(const Item& item)
{
    return item.shape.points.size() > 100000;
}

void report(const Options& options, const std::vector<Row>& rows, const Measurement& measurement)
{
    print_tables(rows);
    if (options.growth)
        print_fits(rows);
    if (!options.csv.empty())
        write_csv(options.csv, rows);
    if (!options.json.empty())
        write_json(options.json, measurement.runs());
    if (!options.chart.empty())
        draw_chart(options.growth ? BENCH_GROWTH_SCRIPT : BENCH_CHART_SCRIPT, options.csv, options.chart);
}

std::vector<Row> run_items(const Options& options, Contest& contest, Measurement& measurement)
{
    const std::vector<Item> items = wanted_items(options);
    const tools::Progress progress;
    std::vector<Row> rows;
    for (const Item& item : items) {
        const double done = static_cast<double>(rows.size()) / static_cast<double>(items.size());
        progress.show(tools::step_of(rows.size() + 1, items.size()) + item.name, done);
        rows.push_back(contest.run(item, measurement, takes_seconds(item) ? 1 : options.repetitions));
    }
    return rows;
}

int measure(const Options& options, const std::vector<std::string>& words)
{
    const tools::Platform platform(picture_width, picture_height, tools::BackEnd::hardware, tools::without_window(words));
    std::printf("DirectFB %s a graphics driver. Not found: %s.\n", platform.is_accelerated() ? "with" : "without",
                BENCH_MISSING_PEERS);
    const auto shared = create_surface(platform.dfb(), picture_width, picture_height, DSCAPS_NONE);
    Contest contest(make_columns(platform.dfb(), shared.get()), options.columns);
    Measurement measurement(options.seconds);
    report(options, run_items(options, contest, measurement), measurement);
    return contest.failures() ? 1 : 0;
}

} // namespace

/// The toolkit's library exports a main of its own, which this one stands before.
int main(int argc, char** argv)
{
    Options options;
    tools::Program program("Measures the toolkit's drawing operations against plain loops and other libraries.",
                           "bench_contest");
    add_options(program, options);
    return program.run(argc, argv, [&] { return measure(options, program.words()); });
}
