#include "raster/reference_ellipse.h"
#include "support/fixture.h"
#include "support/picture.h"

#include <cstring>

/// Boxes so large that the decision values no longer fit into a double: the rounding is part of what is drawn.

namespace {

std::vector<DFBPoint> stamped;

DFBResult keep_points(IDirectFBSurface*, IDirectFBSurface*, const DFBRectangle*, const DFBPoint* points, int count)
{
    stamped.insert(stamped.end(), points, points + count);
    return DFB_OK;
}

bool are_equal(const std::vector<DFBPoint>& one, const std::vector<DFBPoint>& other)
{
    return one.size() == other.size() && std::memcmp(one.data(), other.data(), one.size() * sizeof(DFBPoint)) == 0;
}

class HugeEllipse : public Fakes {
protected:
    /// Boxes from those that a double still holds exactly to those of which it holds the upper half.
    static DFBRectangle any_box(fake::Random& random)
    {
        const int longest = 1000 << random.between(0, 6);
        return {random.between(-longest, 40), random.between(-longest, 30), random.between(1, longest),
                random.between(1, longest)};
    }
};

TEST_F(HugeEllipse, IsStampedLikeTheReference)
{
    fake::Surface& brush = fake::new_surface("brush", 1, 1, DSPF_LUT8);
    screen.BatchBlit = keep_points;
    fake::Random random(47);
    for (int i = 0; i < 300 && !HasFailure(); i++) {
        const DFBRectangle rect = any_box(random);
        stamped.clear();
        EXPECT_EQ(stamp_ellipse(&screen, &rect, &brush), 0);
        EXPECT_TRUE(are_equal(stamped, reference::stamp_points(rect)))
            << rect.x << " " << rect.y << " " << rect.w << " " << rect.h;
    }
}

TEST_F(HugeEllipse, IsFilledLikeTheReference)
{
    fake::Surface& expected = fake::new_surface("expected", screen.width, screen.height, DSPF_ARGB);
    const DFBRectangle all = {0, 0, screen.width, screen.height};
    fake::Random random(48);
    for (int i = 0; i < 600 && !HasFailure(); i++) {
        const DFBRectangle rect = any_box(random);
        screen.fill(0, 0, all.w, all.h, 0);
        expected.fill(0, 0, all.w, all.h, 0);
        const reference::Fill fill = reference::EllipseFill(rect, all).fill;
        for (const reference::Span& span : fill.spans)
            expected.fill(span.left, span.row, span.width, 1, 1);
        expected.fill(fill.block.x, fill.block.y, fill.block.w, fill.block.h, 1);
        EXPECT_EQ(fill_ellipse_argb(&screen, &rect, nullptr, 1), 0);
        EXPECT_TRUE(screen.memory() == expected.memory())
            << rect.x << " " << rect.y << " " << rect.w << " " << rect.h;
    }
}

/// The rows lie only a few pixels apart and over each other, so that little memory holds any number of them.
TEST_F(HugeEllipse, IsOutlinedLikeTheReference)
{
    constexpr u32 color = 0xff102030;
    fake::Random random(49);
    for (int i = 0; i < 100 && !HasFailure(); i++) {
        const DFBRectangle box = any_box(random), rect = {1, 0, box.w, box.h};
        const int row_words = random.between(1, 7);
        const auto new_surface = [&](const char* name) -> fake::Surface& {
            fake::Surface& surface = fake::new_surface(name, rect.w + 3, rect.w + rect.h + 3, DSPF_ARGB);
            surface.pitch = row_words * 4;
            return surface;
        };
        fake::Surface& surface = new_surface("surface");
        fake::Surface& expected = new_surface("expected");
        for (const DFBPoint& pixel : reference::outline_pixels(rect))
            expected.fill(pixel.x, pixel.y, 1, 1, color);
        EXPECT_EQ(outline_ellipse_argb(&surface, &rect, color), 0);
        EXPECT_TRUE(surface.memory() == expected.memory()) << rect.w << " x " << rect.h << ", " << row_words;
        fake::forget_surfaces_but(screen);
    }
}

} // namespace
