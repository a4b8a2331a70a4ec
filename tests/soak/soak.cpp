/// Draws random scenes for a long time by both back ends and watches that memory does not grow and that equal seeds
/// give equal pictures.
#include "common/surface.h"
#include "options.h"
#include "scene.h"

#include "zuvo.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace {

constexpr int width = 640;
constexpr int height = 360;
constexpr unsigned warm_up_scenes = 600;
constexpr long allowed_growth = 1024;   // kB
constexpr long unsettled = 1024;        // kB

struct World {
    IDirectFB* dfb;
    IDirectFBSurface* target;
    IDirectFBSurface* texture;
};

[[noreturn]] void fail(const char* message)
{
    throw std::runtime_error(message);
}

IDirectFBSurface* make_surface(IDirectFB* dfb, int w, int h)
{
    const DFBSurfaceDescription description = common::describe(w, h);
    IDirectFBSurface* surface = nullptr;
    if (dfb->CreateSurface(dfb, &description, &surface))
        fail("a surface cannot be made");
    surface->Clear(surface, 0x30, 0x70, 0xc0, 0x90);
    return surface;
}

World start()
{
    char program[] = "soak";
    char words[] = "--dfb:system=dummy,quiet,no-cursor,no-sighandler,mode=640x360";
    char* arguments[] = {program, words, nullptr};
    char** argv = arguments;
    int argc = 2;
    zuvo_init(0);
    IDirectFB* dfb = zuvo_dfb_ext_open_with_params(0, &argc, &argv);
    if (!dfb)
        fail("DirectFB does not start");
    IDirectFBSurface* texture = make_surface(dfb, 15, 11);
    texture->FillRectangle(texture, 3, 3, 6, 6);
    return {dfb, make_surface(dfb, width, height), texture};
}

void stop(const World& world)
{
    world.texture->Release(world.texture);
    world.target->Release(world.target);
    world.dfb->Release(world.dfb);
    zuvo_dfb_ext_close();
    zuvo_uninit();
}

/// The memory that the process keeps in the machine, in kB.
long resident()
{
    long pages = 0, resident_pages = 0;
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    if (!file || std::fscanf(file, "%ld %ld", &pages, &resident_pages) != 2)
        fail("/proc/self/statm cannot be read");
    std::fclose(file);
    return resident_pages * (sysconf(_SC_PAGESIZE) / 1024);
}

/// The part of the heap that is taken, in kB.
long heap_in_use()
{
    return static_cast<long>(mallinfo2().uordblks / 1024);
}

/// DirectFB destroys surfaces in a thread of its own, which on a busy machine may fall behind by hundreds of scratch
/// pads.
void wait_for_directfb(long in_use_at_first)
{
    for (int i = 0; i < 10000 && heap_in_use() > in_use_at_first + unsettled; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

void draw_scenes(const World& world, bool has_engine, unsigned seed)
{
    if (has_engine)
        zuvo_init(0);
    else
        zuvo_uninit();
    const auto sum = soak::draw_scene(world.dfb, world.target, world.texture, seed);
    if (sum == 0 || sum != soak::draw_scene(world.dfb, world.target, world.texture, seed))
        fail("the same seed gave another picture");
}

class Clock {
public:
    double minutes() const
    {
        return std::chrono::duration<double, std::ratio<60>>(std::chrono::steady_clock::now() - start_).count();
    }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// Draws for so long, so many scenes at least, and until memory can have settled.
int soak_for(double minutes, unsigned scenes)
{
    const World world = start();
    const Clock clock;
    const long in_use_at_first = heap_in_use();
    long warm = 0, greatest = 0;
    unsigned seed = 0;
    while (seed < std::max(scenes, warm_up_scenes + 1) || clock.minutes() < minutes) {
        for (const bool has_engine : {false, true}) {
            draw_scenes(world, has_engine, seed);
            wait_for_directfb(in_use_at_first);
        }
        greatest = std::max(greatest, resident());
        if (++seed == warm_up_scenes)
            warm = greatest;
    }
    stop(world);

    std::printf("%u scenes, each twice by each back end, in %.1f minutes; "
                "%ld kB resident after %u scenes, at most %ld kB\n",
                seed, clock.minutes(), warm, warm_up_scenes, greatest);
    if (greatest > warm + allowed_growth)
        fail("memory grew");
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    double minutes = 0;
    unsigned scenes = 0;
    tools::Program program("Draws random scenes by both back ends, for a time or a number of scenes, and watches the memory.", "soak");
    CLI::Option_group* length = program.add_option_group("length", "how long");
    length->add_option("--minutes", minutes, "draw for so long")->type_name("N")->check(tools::number_from(0.001));
    length->add_option("--scenes", scenes, "draw so many scenes")->type_name("N")->check(tools::number_from(1));
    length->require_option(1);
    return program.run(argc, argv, [&] { return soak_for(minutes, scenes); });
}
