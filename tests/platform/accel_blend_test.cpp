// Every alpha, source and target value, drawn by DirectFB: the driver must give what DirectFB's renderer gives.
#include <gtest/gtest.h>

#include <cstdint>

#include "accel_session.h"
#include "common/surface.h"
#include "pixels/rows.h"

namespace {

using accel::Driver;
using accel::Lines;
using accel::must;

constexpr int side = 256;

struct Surface {
    Surface(IDirectFB& directfb, DFBSurfacePixelFormat format)
    {
        const DFBSurfaceDescription description = common::describe(side, side, format, DSCAPS_VIDEOONLY);
        must(directfb.CreateSurface(&directfb, &description, &surface));
    }
    ~Surface() { surface->Release(surface); }

    /// Hands each pixel to @p visit with its column and row.
    template <class Visit>
    void for_each(Visit visit) const
    {
        void* memory = nullptr;
        int pitch = 0;
        must(surface->Lock(surface, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE), &memory, &pitch));
        for (int y = 0; y < side; ++y) {
            auto* row = reinterpret_cast<uint32_t*>(static_cast<uint8_t*>(memory) + pitch * y);
            for (int x = 0; x < side; ++x)
                visit(row[x], static_cast<uint32_t>(x), static_cast<uint32_t>(y));
        }
        must(surface->Unlock(surface));
    }

    IDirectFBSurface* surface = nullptr;
};

uint32_t pixel(uint32_t alpha, uint32_t red, uint32_t green, uint32_t blue)
{
    return alpha << 24 | red << 16 | green << 8 | blue;
}

/// Column and row are the source's and the target's value of each colour channel, each channel in an order of its own.
uint32_t source_pixel(uint32_t alpha, uint32_t x) { return pixel(alpha, x, x ^ 0x55, 255 - x); }
uint32_t target_pixel(uint32_t x, uint32_t y) { return pixel(y, y, (y + x) & 255, (255 - y) ^ (x & 1)); }

template <class Say>
void blend_all(IDirectFB& directfb, DFBSurfacePixelFormat format, Say say)
{
    Surface source(directfb, DSPF_ARGB), target(directfb, format);
    must(target.surface->SetBlittingFlags(target.surface, DSBLIT_BLEND_ALPHACHANNEL));
    for (uint32_t alpha = 0; alpha < 256; ++alpha) {
        source.for_each([&](uint32_t& value, uint32_t x, uint32_t) { value = source_pixel(alpha, x); });
        target.for_each([&](uint32_t& value, uint32_t x, uint32_t y) { value = target_pixel(x, y); });
        must(target.surface->Blit(target.surface, source.surface, nullptr, 0, 0));
        target.for_each([&](uint32_t& value, uint32_t x, uint32_t y) { say(value, alpha, x, y); });
    }
}

/// One line for each alpha, with a sum that tells its 65536 results apart.
Lines sums(IDirectFB& directfb, DFBSurfacePixelFormat format)
{
    std::vector<uint64_t> values(256);
    blend_all(directfb, format, [&](uint32_t value, uint32_t alpha, uint32_t, uint32_t) {
        values[alpha] = (values[alpha] ^ value) * 0x9e3779b97f4a7c15u;
    });
    Lines lines;
    for (uint64_t value : values)
        lines.push_back(std::to_string(value));
    return lines;
}

Lines sums_apart(Driver driver, DFBSurfacePixelFormat format)
{
    return accel::run_with_directfb(driver, [&](IDirectFB& directfb, Lines& lines) { lines = sums(directfb, format); });
}

uint32_t expected_channel(uint32_t alpha, uint32_t source, uint32_t target)
{
    return ((alpha + 1) * source >> 8) + ((256 - alpha) * target >> 8);
}

uint32_t expected(uint32_t source, uint32_t target)
{
    uint32_t result = 0;
    for (int shift = 0; shift < 32; shift += 8)
        result |= expected_channel(source >> 24, source >> shift & 255, target >> shift & 255) << shift;
    return result;
}

/// Odd lengths, so that the rows' last pixels are done one by one.
size_t count_wrong(const Rows& rows)
{
    constexpr size_t count = side * side + 13;
    std::vector<uint32_t> source(count), target(count), blended(count), coloured(count);
    size_t wrong = 0;
    for (uint32_t alpha = 0; alpha < 256; ++alpha) {
        for (uint32_t i = 0; i < count; ++i) {
            source[i] = source_pixel(alpha, i & 255);
            target[i] = target_pixel(i & 255, i >> 8 & 255);
        }
        blended = target;
        rows.blend(blended.data(), source.data(), count);
        const uint32_t colour = source_pixel(alpha, alpha * 7 & 255);
        coloured = target;
        rows.blend_colour(coloured.data(), colour, count);
        for (size_t i = 0; i < count; ++i)
            wrong += (blended[i] != expected(source[i], target[i])) + (coloured[i] != expected(colour, target[i]));
    }
    return wrong;
}

} // namespace

TEST(AccelBlend, EveryTripleOntoArgbEqualsDirectFb)
{
    const Lines with = sums_apart(Driver::on, DSPF_ARGB);
    EXPECT_EQ(with.size(), 257u);
    EXPECT_EQ(with, sums_apart(Driver::off, DSPF_ARGB));
}

TEST(AccelBlend, EveryTripleOntoRgb32EqualsDirectFb)
{
    const Lines with = sums_apart(Driver::on, DSPF_RGB32);
    EXPECT_EQ(with.size(), 257u);
    EXPECT_EQ(with, sums_apart(Driver::off, DSPF_RGB32));
}

TEST(AccelBlend, DirectFbBlendsByTheFormula)
{
    const Lines lines = accel::run_with_directfb(Driver::off, [](IDirectFB& directfb, Lines& said) {
        size_t wrong = 0;
        blend_all(directfb, DSPF_ARGB, [&](uint32_t value, uint32_t alpha, uint32_t x, uint32_t y) {
            wrong += value != expected(source_pixel(alpha, x), target_pixel(x, y));
        });
        said.push_back(std::to_string(wrong));
    });
    EXPECT_EQ(lines, (Lines{"0", "finished"}));
}

TEST(AccelBlend, EveryRowFunctionBlendsByTheFormula)
{
    EXPECT_EQ(count_wrong(baseline_rows), 0u);
    EXPECT_EQ(count_wrong(*choose_rows()), 0u);
}
