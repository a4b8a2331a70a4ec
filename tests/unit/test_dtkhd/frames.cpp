#include "test_dtkhd/frames.h"

/// Tells a leak checker, if there is one, to overlook what is allocated from now on.
extern "C" __attribute__((weak)) void __lsan_disable();
extern "C" __attribute__((weak)) void __lsan_enable();

Frames::Frames()
{
    screen.width = 640;
    screen.height = 480;
    screen.pitch = 4 * 640;
    fake::clock() = fake::Clock();
    // The pen that the toolkit holds at the end stays alive: nobody is left to release it.
    if (__lsan_disable)
        __lsan_disable();
}

Frames::~Frames()
{
    if (__lsan_enable)
        __lsan_enable();
}

Outcome Frames::run_frames(int n)
{
    static int frames_left;
    frames_left = n;
    screen.Flip = [](IDirectFBSurface*, const DFBRegion* region, DFBSurfaceFlipFlags flags) {
        transcript().note(fake::text("screen.Flip(%s, %d)", region ? "region" : "NULL", int(flags)));
        return --frames_left == 0 ? refusal : DFB_OK;
    };
    return run([&] { return test_dtkhd(&dfb, &screen); });
}

std::string Frames::last_frame_on_the_engine(int n)
{
    fake::platform().engine_handle = 7;
    run_frames(n);
    const std::string all = calls();
    return all.substr(all.rfind("screen.Clear"));
}
