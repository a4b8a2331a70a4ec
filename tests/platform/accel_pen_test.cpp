// Pens as the driver keeps them: another target, or more runs than it keeps, must not show.
#include <gtest/gtest.h>

#include <array>

#include "accel_canvases.h"
#include "accel_session.h"
#include "common/surface.h"

namespace {

using accel::operator|;
using accel::Canvas;
using accel::Driver;
using accel::Lines;
using accel::must;

Canvas make(IDirectFB& directfb, DFBSurfacePixelFormat format, int width, int height)
{
    const DFBSurfaceDescription description = common::describe(width, height, format, DSCAPS_SYSTEMONLY);
    Canvas canvas{"", nullptr, format, width, height, false};
    must(directfb.CreateSurface(&directfb, &description, &canvas.surface));
    must(canvas.surface->Clear(canvas.surface, 0, 0, 0, 0));
    return canvas;
}

/// A pen with the key where @p is_visible says no.
template <class IsVisible>
Canvas make_pen(IDirectFB& directfb, int width, int height, IsVisible is_visible)
{
    Canvas pen = make(directfb, DSPF_LUT8, width, height);
    void* memory = nullptr;
    int pitch = 0;
    must(pen.surface->Lock(pen.surface, DSLF_READ | DSLF_WRITE, &memory, &pitch));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            static_cast<u8*>(memory)[y * pitch + x] = is_visible(x, y) ? 40 : 2;
    must(pen.surface->Unlock(pen.surface));
    must(pen.surface->SetSrcColorKeyIndex(pen.surface, 2));
    return pen;
}

/// A path with steps in all directions, partly outside.
void stamp(const Canvas& target, const Canvas& pen, Lines& said)
{
    const std::array<DFBPoint, 9> points{{{-3, 2}, {-2, 3}, {-1, 3}, {0, 4}, {0, 3}, {1, 3}, {2, 2}, {2, 2}, {1, 1}}};
    const DFBRectangle whole{0, 0, pen.width, pen.height};
    const std::vector<DFBRectangle> rects(points.size(), whole);
    must(target.surface->SetBlittingFlags(target.surface, DSBLIT_SRC_COLORKEY));
    must(target.surface->BatchBlit(target.surface, pen.surface, rects.data(), points.data(), static_cast<int>(points.size())));
    said.push_back(std::to_string(accel::hash_of(target)));
}

void expect_same(const std::function<void(IDirectFB&, Lines&)>& program)
{
    const Lines with = accel::run_with_directfb(Driver::on, program);
    EXPECT_EQ(with, accel::run_with_directfb(Driver::off, program));
    EXPECT_EQ(with.back(), "finished");
}

} // namespace

TEST(AccelPen, MayHaveAnyNumberOfRuns)
{
    expect_same([](IDirectFB& directfb, Lines& said) {
        const Canvas target = make(directfb, DSPF_ARGB, 90, 80);
        // 128 and 129 runs, which are the most that are kept and one more, and as many as there can be.
        for (int count : {128, 129, 64 * 32}) {
            const Canvas pen = make_pen(directfb, 64, 64, [=](int x, int y) { return x % 2 == 0 && y * 32 + x / 2 < count; });
            stamp(target, pen, said);
        }
    });
}

TEST(AccelPen, IsUsedOnAnotherTarget)
{
    expect_same([](IDirectFB& directfb, Lines& said) {
        const Canvas pen = make_pen(directfb, 7, 6, [](int x, int y) { return x + y > 2 && x != 5; });
        // Of another pitch, of another pixel size and the same pitch, and of both.
        stamp(make(directfb, DSPF_ARGB, 40, 30), pen, said);
        stamp(make(directfb, DSPF_ARGB, 64, 30), pen, said);
        stamp(make(directfb, DSPF_LUT8, 256, 30), pen, said);
        stamp(make(directfb, DSPF_ARGB, 40, 30), pen, said);
    });
}

TEST(AccelPen, IsLookedAtAgainWhenItsPictureChanges)
{
    expect_same([](IDirectFB& directfb, Lines& said) {
        const Canvas target = make(directfb, DSPF_ARGB, 40, 30);
        for (int missing : {0, 1, 5}) {
            const Canvas pen = make_pen(directfb, 6, 6, [=](int x, int y) { return x != missing && y != 5 - missing; });
            stamp(target, pen, said);
        }
    });
}
