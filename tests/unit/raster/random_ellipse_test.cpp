#include "raster/reference_ellipse.h"
#include "support/fixture.h"
#include "support/picture.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr u32 color = 0x80402010;
constexpr u8 index = 0x10;
constexpr int boxes = 3000;

using fake::Random;

std::string words(const DFBRectangle& r)
{
    return fake::text("box (%d, %d, %d, %d)", r.x, r.y, r.w, r.h);
}

DFBRectangle any_box(Random& random)
{
    return {random.between(-30, 70), random.between(-30, 60), random.between(-4, 70), random.between(-4, 60)};
}

DFBRectangle any_clip(Random& random, const fake::Surface& surface)
{
    const int x = random.between(0, surface.width), y = random.between(0, surface.height);
    return {x, y, random.between(0, surface.width - x), random.between(0, surface.height - y)};
}

/// Row pitches that are no multiple of four bytes are divided by real numbers when pixels are addressed.
fake::Surface& any_surface(Random& random, DFBSurfacePixelFormat format)
{
    fake::Surface& surface = fake::new_surface("screen", 40, 30, format);
    surface.pitch += random.between(0, 9);
    return surface;
}

void store_reference(fake::Surface& surface, const reference::Fill& fill, u32 value)
{
    for (const reference::Span& span : fill.spans) {
        for (int column = span.left; column < span.left + span.width; column++) {
            const double row = span.row;
            if (surface.bytes_per_pixel() == 1) {
                surface.pixels()[int(row * surface.pitch + column)] = u8(value);
            } else {
                const int word = int(row * surface.pitch * 0.25 + column);
                std::memcpy(surface.pixels() + 4 * word, &value, sizeof value);
            }
        }
    }
    const DFBRectangle& block = fill.block;
    if (block.w > 0 && block.h > 0)
        surface.fill(block.x, block.y, block.w, block.h, value);
}

using FillRoutine = DFBResult (*)(IDirectFBSurface*, const DFBRectangle*, const DFBRectangle*, u32);

/// Fills one random box with the library and with the reference and compares memory and block.
void compare_fill(Random& random, DFBSurfacePixelFormat format, FillRoutine routine, u32 value)
{
    fake::Surface& surface = any_surface(random, format);
    fake::Surface& expected = fake::new_surface("expected", surface.width, surface.height, format);
    expected.pitch = surface.pitch;
    const DFBRectangle rect = any_box(random);
    const bool is_clipped = random.between(0, 1) != 0;
    const DFBRectangle clip = is_clipped ? any_clip(random, surface) : DFBRectangle{0, 0, 40, 30};
    const reference::Fill fill = reference::EllipseFill(rect, clip).fill;
    store_reference(expected, fill, value);

    calls();
    routine(&surface, &rect, is_clipped ? &clip : nullptr, value);
    const std::string block = fake::text("\n%s.FillRectangle(%d, %d, %d, %d)\n", surface.name.c_str(), fill.block.x,
                                         fill.block.y, fill.block.w, fill.block.h);
    EXPECT_EQ(calls_with("FillRectangle"), block) << words(rect);
    EXPECT_TRUE(surface.memory() == expected.memory()) << words(rect) << " clip " << words(clip);
    fake::forget_surfaces();
}

std::vector<DFBPoint> sorted(std::vector<DFBPoint> points)
{
    std::sort(points.begin(), points.end(), [](const DFBPoint& one, const DFBPoint& other) {
        return one.y != other.y ? one.y < other.y : one.x < other.x;
    });
    return points;
}

std::string words(const std::vector<DFBPoint>& points)
{
    std::string all;
    for (const DFBPoint& point : points)
        all += fake::text(" %d,%d", point.x, point.y);
    return all;
}

/// The points of all batches together.
std::string stamped(const std::string& transcript_lines)
{
    std::string all;
    std::size_t at = 0;
    while ((at = transcript_lines.find("],", at)) != std::string::npos) {
        const std::size_t end = transcript_lines.find(")\n", at);
        all += transcript_lines.substr(at + 2, end - at - 2);
        at = end;
    }
    return all;
}

class RandomEllipse : public testing::Test {
protected:
    ~RandomEllipse() override { fake::forget_surfaces(); }
};

TEST_F(RandomEllipse, FillsThirtyTwoBitSurfacesLikeTheReference)
{
    Random random(41);
    for (int i = 0; i < boxes && !HasFailure(); i++)
        compare_fill(random, i % 2 ? DSPF_ARGB : DSPF_RGB32, fill_ellipse_argb, color);
}

TEST_F(RandomEllipse, FillsEightBitSurfacesLikeTheReference)
{
    Random random(42);
    for (int i = 0; i < boxes && !HasFailure(); i++)
        compare_fill(random, i % 2 ? DSPF_LUT8 : DSPF_A8, fill_ellipse_lut8, index);
}

TEST_F(RandomEllipse, FillsTheSamePixelsInBothWidths)
{
    Random random(43);
    for (int i = 0; i < boxes && !HasFailure(); i++) {
        fake::Surface& words_surface = fake::new_surface("words", 40, 30, DSPF_ARGB);
        fake::Surface& bytes_surface = fake::new_surface("bytes", 40, 30, DSPF_LUT8);
        const DFBRectangle rect = any_box(random), all = {0, 0, 40, 30};
        fill_ellipse_argb(&words_surface, &rect, nullptr, color);
        fill_ellipse_lut8(&bytes_surface, &rect, nullptr, index);
        EXPECT_EQ(fake::picture(words_surface, all, color), fake::picture(bytes_surface, all, index)) << words(rect);
        fake::forget_surfaces();
    }
}

TEST_F(RandomEllipse, OutlinesLikeTheReference)
{
    Random random(44);
    for (int i = 0; i < boxes && !HasFailure(); i++) {
        fake::Surface& surface = any_surface(random, DSPF_ARGB);
        fake::Surface& expected = fake::new_surface("expected", surface.width, surface.height, DSPF_ARGB);
        expected.pitch = surface.pitch;
        const int x = random.between(2, 30), y = random.between(2, 20);
        const DFBRectangle rect = {x, y, random.between(0, 36 - x), random.between(0, 26 - y)};
        for (const DFBPoint& pixel : reference::outline_pixels(rect)) {
            ASSERT_TRUE(pixel.x >= 0 && pixel.x < 40 && pixel.y >= 0 && pixel.y < 30) << words(rect);
            expected.fill(pixel.x, pixel.y, 1, 1, color);
        }
        EXPECT_EQ(outline_ellipse_argb(&surface, &rect, color), 0);
        EXPECT_TRUE(surface.memory() == expected.memory()) << words(rect);
        EXPECT_TRUE(surface.guards_are_untouched()) << words(rect);
        fake::forget_surfaces();
    }
}

TEST_F(RandomEllipse, StampsTheReferencePointsInOrder)
{
    Random random(45);
    for (int i = 0; i < boxes && !HasFailure(); i++) {
        fake::Surface& surface = fake::new_surface("screen", 40, 30, DSPF_ARGB);
        fake::Surface& brush = fake::new_surface("brush", 1, 1, DSPF_LUT8);
        calls();
        const DFBRectangle rect = any_box(random);
        EXPECT_EQ(stamp_ellipse(&surface, &rect, &brush), 0);
        EXPECT_EQ(stamped(calls()), words(reference::stamp_points(rect))) << words(rect);
        fake::forget_surfaces();
    }
}

TEST(EllipseReferences, StampEveryOutlinePixelJustAsOften)
{
    Random random(46);
    for (int i = 0; i < boxes; i++) {
        const DFBRectangle rect = {random.between(-9, 9), random.between(-9, 9), random.between(-9, 200),
                                   random.between(-9, 200)};
        const auto outline = sorted(reference::outline_pixels(rect)), stamps = sorted(reference::stamp_points(rect));
        ASSERT_EQ(words(outline), words(stamps)) << words(rect);
    }
}

TEST(EllipseReferences, VisitTheStatedNumbersOfPoints)
{
    EXPECT_EQ(reference::outline_pixels({3, 3, 8, 8}).size(), 22u);
    EXPECT_EQ(reference::outline_pixels({3, 3, 9, 9}).size(), 26u);
    EXPECT_EQ(reference::outline_pixels({3, 3, 2, 2}).size(), 6u);
    EXPECT_EQ(reference::stamp_points({5, 5, 100, 60}).size(), 234u);
}

} // namespace
