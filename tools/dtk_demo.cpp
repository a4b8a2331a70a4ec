#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <thread>

#include <dtkhddvd.h>
#include <unistd.h>

#include "demo_options.h"
#include "error_filter.h"
#include "interruption.h"
#include "phase_times.h"
#include "platform.h"
#include "progress.h"
#include "write_png.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

/// test_dtkhd draws until a call fails. Its calls of Flip come here, and the one that shows the last frame fails.
struct Run {
    DFBResult (*flip)(IDirectFBSurface* surface, const DFBRegion* region, DFBSurfaceFlipFlags flags);
    const tools::DemoOptions* options;
    const char* manner;
    Clock::time_point start;
    int frames;
    const tools::Interruption* interruption;
    tools::PhaseTimes phases;
    const tools::Progress* progress;
};

Run run;

double seconds_since_start()
{
    return Seconds(Clock::now() - run.start).count();
}

bool was_last_frame()
{
    const tools::DemoOptions& options = *run.options;
    return run.interruption->has_come() || (options.frames && run.frames >= options.frames) ||
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

/// From 0 to 1, by the limit that is nearer.
double share_done()
{
    const tools::DemoOptions& options = *run.options;
    const double of_frames = options.frames ? static_cast<double>(run.frames) / options.frames : 0;
    const double of_seconds = options.seconds > 0 ? seconds_since_start() / options.seconds : 0;
    return std::max(of_frames, of_seconds);
}

DFBResult flip_and_count(IDirectFBSurface* surface, const DFBRegion* region, DFBSurfaceFlipFlags flags)
{
    const double before = seconds_since_start();
    if (DFBResult result = run.flip(surface, region, flags))
        return result;
    run.phases.add_frame((seconds_since_start() - before) * 1e6);
    ++run.frames;
    if (run.frames % 20 == 0)
        run.progress->show("frame " + std::to_string(run.frames), share_done());
    keep_rate();
    return was_last_frame() ? DFB_INTERRUPTED : DFB_OK;
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

/// Returns how long it took, in seconds.
double draw_frames(IDirectFB* dfb, IDirectFBSurface* surface)
{
    run.flip = surface->Flip;
    surface->Flip = flip_and_count;
    run.frames = 0;
    const tools::Interruption interruption(dfb);
    run.interruption = &interruption;
    run.start = Clock::now();

    const DFBResult result = test_dtkhd(dfb, surface);
    const double seconds = seconds_since_start();
    if (result != DFB_INTERRUPTED)
        tools::check(result, "drawing failed");
    return seconds;
}

bool is_on_terminal()
{
    return isatty(STDOUT_FILENO) && isatty(STDERR_FILENO);
}

/// A person at a terminal is shown how far it is instead of the report of every 20th frame.
double draw_frames_for_reader(IDirectFB* dfb, IDirectFBSurface* surface)
{
    std::optional<tools::ErrorFilter> filter;
    if (is_on_terminal())
        filter.emplace();
    const tools::Progress progress(filter ? filter->errors() : stderr);
    run.progress = &progress;
    return draw_frames(dfb, surface);
}

void demonstrate(const tools::DemoOptions& options, const std::vector<std::string>& words)
{
    const tools::Platform platform(options.size.width, options.size.height, options.back_end, words);
    const tools::Owned<IDirectFBSurface> surface = platform.layer_surface(options.size.width, options.size.height);
    run.options = &options;
    run.manner = manner_of(platform);

    const double seconds = draw_frames_for_reader(platform.dfb(), surface.get());
    if (!options.png.empty())
        tools::write_png(options.png, surface.get());
    report(seconds);
    if (is_on_terminal())
        run.phases.print();
}

} // namespace

int main(int argc, char** argv)
{
    tools::DemoOptions options;
    tools::Program program("Draws the frames of test_dtkhd and reports how fast. On a desktop they are shown in a window,\n"
                           "F11 makes it full screen. Escape, closing the window and Ctrl-C end the program after the frame.",
                           "dtk_demo");
    tools::add_options(program, options);
    tools::catch_signals();
    return program.run(argc, argv, [&] {
        demonstrate(options, program.words());
        return 0;
    });
}
