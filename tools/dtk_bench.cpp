#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <random>
#include <stdexcept>

#include <dtkhddvd.h>
#include <zuvo.h>

#include "bench_items.h"
#include "bench_options.h"
#include "bench_report.h"

namespace {

using Clock = std::chrono::steady_clock;
using tools::BenchItem;
using tools::BenchOptions;
using tools::check;
using tools::ItemPainter;
using tools::Outcome;
using tools::Platform;

constexpr int smallest_width = 1280, smallest_height = 720;

struct Bench {
    const BenchOptions& options;
    const Platform& platform;
    IDirectFBSurface* surface;
    std::vector<DFBRectangle> boxes; ///< Where the shapes are drawn, in turn.
};

/// The same places in every run, all of them inside the surface.
std::vector<DFBRectangle> random_boxes(const BenchOptions& options, int surface_width, int surface_height)
{
    std::mt19937 random(1);
    const auto place = [&](int space) { return static_cast<int>(random() % static_cast<unsigned int>(space + 1)); };
    std::vector<DFBRectangle> boxes;
    for (int i = 0; i < 64; ++i) {
        const int x = place(surface_width - options.width), y = place(surface_height - options.height);
        boxes.push_back({x, y, options.width, options.height});
    }
    return boxes;
}

void clear(IDirectFBSurface* surface)
{
    check(surface->Clear(surface, 0, 0, 0, 0), "cannot clear the surface");
}

/// The bytes of a pixel that show: RGB32 has an unused one at the end.
std::size_t shown_bytes(DFBSurfacePixelFormat format)
{
    return format == DSPF_RGB32 ? 3 : static_cast<std::size_t>(DFB_BYTES_PER_PIXEL(format));
}

/// How many pixels of a surface that was clear have been drawn.
long count_pixels(const Bench& bench)
{
    int width = 0, height = 0, pitch = 0;
    void* memory = nullptr;
    check(bench.surface->GetSize(bench.surface, &width, &height), "cannot tell the surface's size");
    const auto flags = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
    check(bench.surface->Lock(bench.surface, flags, &memory, &pitch), "cannot read the surface");

    const int size = DFB_BYTES_PER_PIXEL(bench.options.format);
    const std::size_t compared = shown_bytes(bench.options.format);
    const char empty[4] = {};
    long count = 0;
    for (int y = 0; y < height; ++y) {
        const char* row = static_cast<const char*>(memory) + y * pitch;
        for (int x = 0; x < width; ++x, row += size)
            count += std::memcmp(row, empty, compared) != 0;
    }
    check(bench.surface->Unlock(bench.surface), "cannot read the surface");
    return count;
}

void wait_until_drawn(const Platform& platform)
{
    if (platform.has_engine())
        zuvo_dtk_sync(zuvo_dtk_get_handle());
    check(platform.dfb()->WaitIdle(platform.dfb()), "cannot wait for DirectFB");
}

/// Draws until the time is over, looking at the clock after each round of places.
DFBResult draw_for(const Bench& bench, ItemPainter& painter, Outcome& outcome)
{
    const Clock::time_point start = Clock::now();
    do {
        for (const DFBRectangle& box : bench.boxes) {
            if (DFBResult result = painter.draw(box))
                return result;
        }
        wait_until_drawn(bench.platform);
        outcome.primitives += static_cast<long>(bench.boxes.size());
        outcome.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    } while (outcome.seconds < bench.options.duration);
    return DFB_OK;
}

/// A few shapes in changing colours, in the places that were measured.
void dump(const Bench& bench, ItemPainter& painter, const BenchItem& item)
{
    clear(bench.surface);
    for (unsigned int i = 0; i < 12; ++i) {
        const unsigned int red = 40 + 17 * i, green = 220 - 15 * i, blue = 90 + 60 * (i % 3);
        painter.set_color(static_cast<u8>(red), static_cast<u8>(green), static_cast<u8>(blue));
        check(painter.draw(bench.boxes[i]), "cannot draw " + item.name);
    }
    wait_until_drawn(bench.platform);

    std::string prefix = item.name;
    prefix.erase(std::remove(prefix.begin(), prefix.end(), ','), prefix.end());
    std::replace(prefix.begin(), prefix.end(), ' ', '-');
    check(bench.surface->Dump(bench.surface, bench.options.dump.c_str(), prefix.c_str()),
          "cannot write into " + bench.options.dump);
}

Outcome measure(const Bench& bench, const BenchItem& item)
{
    ItemPainter painter(bench.platform, bench.surface, item);
    painter.set_color(0xFF, 0xFF, 0xFF);
    clear(bench.surface);

    Outcome outcome = {};
    outcome.result = painter.draw(bench.boxes[0]);
    if (outcome.result)
        return outcome;
    wait_until_drawn(bench.platform);
    outcome.pixels = count_pixels(bench);
    if (!outcome.pixels)
        outcome.result = DFB_UNSUPPORTED;
    else
        outcome.result = draw_for(bench, painter, outcome);
    if (!outcome.result && !bench.options.dump.empty())
        dump(bench, painter, item);
    return outcome;
}

void measure_all(const Bench& bench)
{
    const std::vector<BenchItem> items = tools::bench_items(bench.options.only);
    if (items.empty())
        throw std::invalid_argument("no item has '" + bench.options.only + "' in its name");
    const tools::BenchReport report(bench.options.csv);
    for (std::size_t i = 0; i < items.size(); ++i) {
        report.announce(i + 1, items.size(), items[i].name);
        report.add(items[i].name, measure(bench, items[i]));
    }
}

void run_bench(const BenchOptions& options)
{
    const int width = std::max(smallest_width, options.width), height = std::max(smallest_height, options.height);
    std::vector<std::string> words = options.words;
    words.insert(words.begin(), "--zuvo:window=off");
    const Platform platform(smallest_width, smallest_height, options.back_end, words);
    const auto surface = tools::create_surface(platform.dfb(), width, height, options.format);

    std::printf("Shapes of %d x %d pixels on a surface of %d x %d, %s; %s back end, DirectFB %s\n\n", options.width,
                options.height, width, height, options.format_name.c_str(),
                platform.has_engine() ? "hardware" : "software",
                platform.is_accelerated() ? "accelerated" : "not accelerated");
    measure_all({options, platform, surface.get(), random_boxes(options, width, height)});
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const BenchOptions options = tools::parse_bench_options(argc, argv);
        if (options.help)
            std::fputs(tools::bench_help, stdout);
        else
            run_bench(options);
        return 0;
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "dtk_bench: %s; try --help\n", error.what());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "dtk_bench: %s\n", error.what());
        return 1;
    }
}
