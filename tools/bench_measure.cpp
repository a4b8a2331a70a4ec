#include "bench_measure.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <random>

#include <sys/resource.h>
#include <zuvo.h>

#include "engine_switch.h"
#include "write_png.h"

namespace tools {

namespace {

using Clock = std::chrono::steady_clock;

constexpr Size smallest_surface = {1280, 720};

/// The same places in every run, all of them inside the surface.
std::vector<DFBRectangle> random_boxes(const Size& shape, const Size& surface)
{
    std::mt19937 random(1);
    const auto place = [&](int space) { return static_cast<int>(random() % static_cast<unsigned int>(space + 1)); };
    std::vector<DFBRectangle> boxes;
    for (int i = 0; i < 64; ++i) {
        const int x = place(surface.width - shape.width), y = place(surface.height - shape.height);
        boxes.push_back({x, y, shape.width, shape.height});
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
long count_pixels(IDirectFBSurface* surface, DFBSurfacePixelFormat format)
{
    int width = 0, height = 0, pitch = 0;
    void* memory = nullptr;
    check(surface->GetSize(surface, &width, &height), "cannot tell the surface's size");
    const auto flags = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
    check(surface->Lock(surface, flags, &memory, &pitch), "cannot read the surface");

    const int size = DFB_BYTES_PER_PIXEL(format);
    const std::size_t compared = shown_bytes(format);
    const char empty[4] = {};
    long count = 0;
    for (int y = 0; y < height; ++y) {
        const char* row = static_cast<const char*>(memory) + y * pitch;
        for (int x = 0; x < width; ++x, row += size)
            count += std::memcmp(row, empty, compared) != 0;
    }
    check(surface->Unlock(surface), "cannot read the surface");
    return count;
}

double cpu_seconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// A copy as ARGB. What has an alpha channel alone is shown in white.
Owned<IDirectFBSurface> convert(IDirectFB* dfb, IDirectFBSurface* surface, const Size& size,
                                DFBSurfacePixelFormat format)
{
    Owned<IDirectFBSurface> copy = create_surface(dfb, size.width, size.height, DSPF_ARGB);
    check(copy->Clear(copy.get(), 0, 0, 0, 0xFF), "cannot clear the picture");
    check(copy->SetColor(copy.get(), 0xFF, 0xFF, 0xFF, 0xFF), "cannot set a colour");
    if (format == DSPF_A8)
        check(copy->SetBlittingFlags(copy.get(), static_cast<DFBSurfaceBlittingFlags>(DSBLIT_BLEND_ALPHACHANNEL | DSBLIT_COLORIZE)),
              "cannot blend");
    check(copy->Blit(copy.get(), surface, nullptr, 0, 0), "cannot convert the picture");
    return copy;
}

std::string file_name(std::string name, BackEnd back_end)
{
    name.erase(std::remove(name.begin(), name.end(), ','), name.end());
    std::replace(name.begin(), name.end(), ' ', '-');
    return name + "-" + name_of(back_end) + ".png";
}

} // namespace

BenchStage::BenchStage(const BenchOptions& options, const Platform& platform)
    : options_(options), platform_(platform), size_{std::max(smallest_surface.width, options.size.width),
                                                    std::max(smallest_surface.height, options.size.height)},
      surface_(options.window
                   ? platform.layer_surface(size_.width, size_.height)
                   : create_surface(platform.dfb(), size_.width, size_.height, pixel_format(options))),
      boxes_(random_boxes(options.size, size_))
{
}

void BenchStage::wait_until_drawn() const
{
    if (platform_.has_engine())
        zuvo_dtk_sync(zuvo_dtk_get_handle());
    check(platform_.dfb()->WaitIdle(platform_.dfb()), "cannot wait for DirectFB");
}

bool BenchStage::has_drawn_enough(const Outcome& outcome) const
{
    return options_.iterations ? outcome.primitives >= options_.iterations : outcome.seconds >= options_.duration;
}

/// One shape in each of the places, unless fewer are wanted.
DFBResult BenchStage::draw_round(ItemPainter& painter, Outcome& outcome) const
{
    for (const DFBRectangle& box : boxes_) {
        if (options_.iterations && outcome.primitives == options_.iterations)
            break;
        if (DFBResult result = painter.draw(box))
            return result;
        ++outcome.primitives;
    }
    return DFB_OK;
}

DFBResult BenchStage::draw_all(ItemPainter& painter, Outcome& outcome, const Interruption& interruption) const
{
    const Clock::time_point start = Clock::now();
    const double cpu_start = cpu_seconds();
    do {
        if (DFBResult result = draw_round(painter, outcome))
            return result;
        wait_until_drawn();
        outcome.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    } while (!has_drawn_enough(outcome) && !interruption.has_come());
    outcome.cpu_seconds = cpu_seconds() - cpu_start;
    return DFB_OK;
}

/// A few shapes in changing colours, in the places that were measured.
void BenchStage::draw_picture(ItemPainter& painter, const BenchItem& item) const
{
    clear(surface_.get());
    for (unsigned int i = 0; i < 12; ++i) {
        const unsigned int red = 40 + 17 * i, green = 220 - 15 * i, blue = 90 + 60 * (i % 3);
        painter.set_color(static_cast<u8>(red), static_cast<u8>(green), static_cast<u8>(blue));
        check(painter.draw(boxes_[i]), "cannot draw " + item.name);
    }
    wait_until_drawn();
    if (options_.window)
        check(surface_->Flip(surface_.get(), nullptr, DSFLIP_BLIT), "cannot show the picture");
}

void BenchStage::write_picture(const BenchItem& item, BackEnd back_end) const
{
    if (options_.dump.empty())
        return;
    const auto picture = convert(platform_.dfb(), surface_.get(), size_, pixel_format(options_));
    write_png(options_.dump + "/" + file_name(item.name, back_end), picture.get());
}

Outcome BenchStage::measure(const BenchItem& item, BackEnd back_end, const Interruption& interruption)
{
    show_engine(back_end == BackEnd::hardware);
    ItemPainter painter(platform_.dfb(), surface_.get(), item, platform_.has_engine());
    painter.set_color(0xFF, 0xFF, 0xFF);
    clear(surface_.get());

    Outcome outcome = {};
    outcome.result = painter.draw(boxes_[0]);
    if (outcome.result)
        return outcome;
    wait_until_drawn();
    outcome.pixels = count_pixels(surface_.get(), pixel_format(options_));
    outcome.result = outcome.pixels ? draw_all(painter, outcome, interruption) : DFB_UNSUPPORTED;
    if (outcome.is_drawn()) {
        draw_picture(painter, item);
        write_picture(item, back_end);
    }
    return outcome;
}

} // namespace tools
