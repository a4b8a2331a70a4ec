#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <thread>

#include <dtkhddvd.h>

#include "demo_options.h"
#include "platform.h"
#include "write_png.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

volatile std::sig_atomic_t interrupted = 0;

/// test_dtkhd draws until a call fails. Its calls of Flip come here, and the one that shows the last frame fails.
struct Run {
    DFBResult (*flip)(IDirectFBSurface* surface, const DFBRegion* region, DFBSurfaceFlipFlags flags);
    const tools::DemoOptions* options;
    const char* manner;
    Clock::time_point start;
    int frames;
    IDirectFBEventBuffer* events;
};

Run run;

double seconds_since_start()
{
    return Seconds(Clock::now() - run.start).count();
}

/// Closing the window presses it, too.
bool was_escape_pressed()
{
    DFBEvent event;
    while (run.events->GetEvent(run.events, &event) == DFB_OK) {
        if (event.input.type == DIET_KEYPRESS && event.input.key_symbol == DIKS_ESCAPE)
            interrupted = 1;
    }
    return interrupted;
}

bool was_last_frame()
{
    const tools::DemoOptions& options = *run.options;
    return was_escape_pressed() || (options.frames && run.frames >= options.frames) ||
           (options.seconds > 0 && seconds_since_start() >= options.seconds);
}

/// The frame that was shown stays until the next one is due. Short naps let Ctrl-C end it soon.
void keep_rate()
{
    if (run.options->rate == 0)
        return;
    const double due = run.frames / run.options->rate;
    for (double now = seconds_since_start(); now < due && !was_last_frame(); now = seconds_since_start())
        std::this_thread::sleep_for(Seconds(std::min(due - now, 0.02)));
}

DFBResult flip_and_count(IDirectFBSurface* surface, const DFBRegion* region, DFBSurfaceFlipFlags flags)
{
    if (DFBResult result = run.flip(surface, region, flags))
        return result;
    ++run.frames;
    keep_rate();
    return was_last_frame() ? DFB_INTERRUPTED : DFB_OK;
}

void interrupt(int)
{
    interrupted = 1;
}

void report(double seconds)
{
    const int frames = run.frames;
    std::printf("%d frames in %.3f s, %.2f frames per second, %s\n", frames, seconds, frames / seconds, run.manner);
}

const char* manner_of(const tools::Platform& platform)
{
    if (platform.has_engine())
        return platform.is_accelerated() ? "hardware back end, DirectFB accelerated"
                                         : "hardware back end, DirectFB not accelerated";
    return platform.is_accelerated() ? "software back end, DirectFB accelerated"
                                     : "software back end, DirectFB not accelerated";
}

/// Answers how long it took, in seconds.
double draw_frames(IDirectFB* dfb, IDirectFBSurface* surface)
{
    run.flip = surface->Flip;
    surface->Flip = flip_and_count;
    run.frames = 0;
    tools::check(dfb->CreateInputEventBuffer(dfb, DICAPS_KEYS, DFB_TRUE, &run.events), "cannot listen to the keyboard");
    const tools::Owned<IDirectFBEventBuffer> events(run.events);
    run.start = Clock::now();

    const DFBResult result = test_dtkhd(dfb, surface);
    const double seconds = seconds_since_start();
    if (result != DFB_INTERRUPTED)
        tools::check(result, "drawing failed");
    return seconds;
}

void demonstrate(const tools::DemoOptions& options)
{
    const tools::Platform platform(options.width, options.height, options.back_end, options.words);
    const tools::Owned<IDirectFBSurface> surface = platform.layer_surface(options.width, options.height);
    run.options = &options;
    run.manner = manner_of(platform);

    const double seconds = draw_frames(platform.dfb(), surface.get());
    if (!options.png.empty())
        tools::write_png(options.png, surface.get());
    report(seconds);
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
