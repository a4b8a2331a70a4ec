// What single DirectFB calls cost without and with the platform's graphics driver, one after the other in one process:
// dtk_accel_calls [REGEX] measures those whose name contains REGEX.
#include <benchmark/benchmark.h>
#include <directfb.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "driver/accel.h"

namespace {

IDirectFB* directfb;

void must(DFBResult result)
{
    if (result == DFB_OK)
        return;
    std::fprintf(stderr, "a DirectFB call failed: %s\n", DirectFBErrorString(result));
    std::exit(1);
}

IDirectFBSurface* create_surface(DFBSurfacePixelFormat format, int width, int height)
{
    DFBSurfaceDescription description{};
    description.flags =
        static_cast<DFBSurfaceDescriptionFlags>(DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.caps = DSCAPS_VIDEOONLY;
    description.width = width;
    description.height = height;
    description.pixelformat = format;
    IDirectFBSurface* surface = nullptr;
    must(directfb->CreateSurface(directfb, &description, &surface));
    must(surface->Clear(surface, 0x20, 0x40, 0x60, 0x40));
    return surface;
}

IDirectFBSurface* create_target(DFBSurfacePixelFormat format) { return create_surface(format, 1920, 1080); }

void fill(benchmark::State& state)
{
    IDirectFBSurface* target = create_target(DSPF_ARGB);
    const int width = static_cast<int>(state.range(0)), height = static_cast<int>(state.range(1));
    for (auto _ : state)
        target->FillRectangle(target, 0, 0, width, height);
    target->Release(target);
}

void lock_and_fill(benchmark::State& state)
{
    IDirectFBSurface* target = create_target(DSPF_ARGB);
    for (auto _ : state) {
        void* memory = nullptr;
        int pitch = 0;
        target->Lock(target, DSLF_WRITE, &memory, &pitch);
        target->Unlock(target);
        target->FillRectangle(target, 0, 0, 10, 10);
    }
    target->Release(target);
}

void blend(benchmark::State& state, DFBSurfacePixelFormat format)
{
    IDirectFBSurface *target = create_target(format), *source = create_target(DSPF_ARGB);
    const DFBRectangle rect{0, 0, static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
    must(target->SetBlittingFlags(target, DSBLIT_BLEND_ALPHACHANNEL));
    for (auto _ : state)
        target->Blit(target, source, &rect, 0, 0);
    source->Release(source);
    target->Release(target);
}

/// A batch of 64 stamps along a diagonal; the time is that of the batch.
void stamp(benchmark::State& state, DFBSurfacePixelFormat format)
{
    const int size = static_cast<int>(state.range(0));
    IDirectFBSurface *target = create_target(format), *pen = create_surface(DSPF_LUT8, size, size);
    must(pen->SetColorIndex(pen, 0));
    must(pen->FillRectangle(pen, 0, 0, size, size));
    must(pen->SetSrcColorKeyIndex(pen, 2));
    must(target->SetBlittingFlags(target, DSBLIT_SRC_COLORKEY));
    const std::vector<DFBRectangle> rects(64, DFBRectangle{0, 0, size, size});
    std::vector<DFBPoint> points;
    for (int i = 0; i < 64; ++i)
        points.push_back({100 + i, 100 + i / 2});
    for (auto _ : state)
        target->BatchBlit(target, pen, rects.data(), points.data(), 64);
    pen->Release(pen);
    target->Release(target);
}

void add_calls(const std::string& prefix)
{
    benchmark::RegisterBenchmark((prefix + "fill").c_str(), fill)
        ->Args({1, 1})
        ->Args({10, 10})
        ->Args({62, 62})
        ->Args({400, 300})
        ->Args({1920, 1080});
    benchmark::RegisterBenchmark((prefix + "lock_and_fill").c_str(), lock_and_fill);
    benchmark::RegisterBenchmark((prefix + "blend_argb").c_str(), blend, DSPF_ARGB)
        ->Args({1, 1})
        ->Args({10, 10})
        ->Args({400, 300})
        ->Args({1800, 1000});
    benchmark::RegisterBenchmark((prefix + "blend_rgb32").c_str(), blend, DSPF_RGB32)->Args({400, 300});
    benchmark::RegisterBenchmark((prefix + "stamps_argb").c_str(), stamp, DSPF_ARGB)->Arg(5)->Arg(31);
    benchmark::RegisterBenchmark((prefix + "stamps_lut8").c_str(), stamp, DSPF_LUT8)->Arg(5)->Arg(31);
}

void run(const std::string& prefix, const std::string& names)
{
    must(DirectFBCreate(&directfb));
    std::printf("%s: the driver is %s\n", prefix.c_str(), accel_is_on() ? "on" : "off");
    benchmark::ConsoleReporter reporter(benchmark::ConsoleReporter::OO_Tabular);
    benchmark::RunSpecifiedBenchmarks(&reporter, nullptr, prefix + ".*" + names);
    directfb->Release(directfb);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    must(DirectFBInit(&argc, &argv));
    for (const char* word : {"quiet", "no-cursor"})
        must(DirectFBSetOption(word, nullptr));
    must(DirectFBSetOption("system", "dummy"));
    must(DirectFBSetOption("mode", "1920x1080"));

    const std::string names = argc > 1 ? argv[1] : "";
    add_calls("without/");
    add_calls("with/");
    run("without/", names);
    accel_register();
    run("with/", names);
}
