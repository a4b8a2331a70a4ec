#include <chrono>
#include <csignal>
#include <cstdio>
#include <stdexcept>

#include <dtkhddvd.h>

#include "demo_options.h"
#include "platform.h"
#include "write_png.h"

namespace {

using Clock = std::chrono::steady_clock;

volatile std::sig_atomic_t interrupted = 0;

/// test_dtkhd draws until a call fails. Its calls of Flip come here, and the one that shows the last frame fails.
struct Run {
    DFBResult (*flip)(IDirectFBSurface* surface, const DFBRegion* region, DFBSurfaceFlipFlags flags);
    int wanted_frames;
    int frames;
    Clock::duration duration;
};

Run run;

DFBResult flip_and_count(IDirectFBSurface* surface, const DFBRegion* region, DFBSurfaceFlipFlags flags)
{
    if (DFBResult result = run.flip(surface, region, flags))
        return result;
    ++run.frames;
    return run.frames == run.wanted_frames || interrupted ? DFB_INTERRUPTED : DFB_OK;
}

void interrupt(int)
{
    interrupted = 1;
}

void draw_frames(IDirectFB* dfb, IDirectFBSurface* surface, int frames)
{
    run = {surface->Flip, frames, 0, {}};
    surface->Flip = flip_and_count;

    const Clock::time_point start = Clock::now();
    const DFBResult result = test_dtkhd(dfb, surface);
    run.duration = Clock::now() - start;
    if (result != DFB_INTERRUPTED)
        tools::check(result, "drawing failed");
}

void report(const tools::Platform& platform)
{
    const double seconds = std::chrono::duration<double>(run.duration).count();
    std::printf("%d frames in %.3f s, %.2f frames per second, %s back end, DirectFB %s\n", run.frames, seconds,
                run.frames / seconds, platform.has_engine() ? "hardware" : "software",
                platform.is_accelerated() ? "accelerated" : "not accelerated");
}

void demonstrate(const tools::DemoOptions& options)
{
    const tools::Platform platform(options.width, options.height, options.back_end, options.words);
    const tools::Owned<IDirectFBSurface> surface = platform.layer_surface(options.width, options.height);

    draw_frames(platform.dfb(), surface.get(), options.frames);
    if (!options.png.empty())
        tools::write_png(options.png, surface.get());
    report(platform);
}

int run_demo(int argc, char** argv)
{
    const tools::DemoOptions options = tools::parse_demo_options(argc, argv);
    if (options.help) {
        std::fputs(tools::demo_help, stdout);
        return 0;
    }
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
    demonstrate(options);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run_demo(argc, argv);
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "dtk_demo: %s; try --help\n", error.what());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "dtk_demo: %s\n", error.what());
        return 1;
    }
}
