/// Patterns of every size, small ones and those that are too large to be kept repeated.
#include "platform/hosted_session.h"

#include <gtest/gtest.h>

namespace {

constexpr int width = 331, height = 130;
constexpr u32 ground = 0xff808080;

/// The value of a pattern's pixel: each one another.
u32 value_at(int x, int y, u8 alpha)
{
    return u32(alpha) << 24 | u32(x & 255) << 16 | u32(y & 255) << 8 | u32((x >> 8) * 7 + 3);
}

u32 blended(u32 source, u32 target)
{
    const u32 alpha = source >> 24;
    u32 result = 0;
    for (int shift = 0; shift < 32; shift += 8)
        result |= (((alpha + 1) * (source >> shift & 255) >> 8) + ((256 - alpha) * (target >> shift & 255) >> 8)) << shift;
    return result;
}

class EnginePattern : public testing::TestWithParam<DFBDimension> {
protected:
    void fill(u8 alpha)
    {
        void* memory = nullptr;
        int pitch = 0;
        ASSERT_EQ(texture->Lock(texture.get(), DSLF_WRITE, &memory, &pitch), DFB_OK);
        for (int y = 0; y < GetParam().h; ++y) {
            u32* const row = static_cast<u32*>(memory) + y * (pitch / 4);
            for (int x = 0; x < GetParam().w; ++x)
                row[x] = value_at(x, y, alpha);
        }
        texture->Unlock(texture.get());
    }

    /// Fills the target from (-5, -3) on.
    void draw(unsigned int flags)
    {
        target->Clear(target.get(), 0x80, 0x80, 0x80, 0xff);
        ASSERT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(target)), ZUVO_OK);
        ASSERT_EQ(zuvo_dtk_set_fill_pattern(session.engine, handle_of(texture)), ZUVO_OK);
        const DFBRectangle rect = {-5, -3, width + 5, height + 3};
        ASSERT_EQ(zuvo_dtk_draw_rectangle(session.engine, &rect, flags), ZUVO_OK);
    }

    /// Compares with what each pixel of the pattern becomes.
    template <class Result>
    void expect(u8 alpha, Result result)
    {
        const std::vector<u32> pixels = read(target);
        int wrong = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                wrong += pixels[static_cast<std::size_t>(y * width + x)] !=
                         result(value_at((x + 5) % GetParam().w, (y + 3) % GetParam().h, alpha));
        EXPECT_EQ(wrong, 0);
    }

    HostedSession session;
    HostedSession::Surface target = session.make_surface(width, height);
    HostedSession::Surface texture = session.make_surface(GetParam().w, GetParam().h);
};

TEST_P(EnginePattern, IsRepeatedAsItIs)
{
    for (u8 alpha : {u8(0xff), u8(0x40), u8(0xff)}) {
        fill(alpha);
        draw(0x30);
        expect(alpha, [](u32 value) { return value; });
    }
}

TEST_P(EnginePattern, IsBlended)
{
    for (u8 alpha : {u8(0x40), u8(0xff), u8(0x00), u8(0x40)}) {
        fill(alpha);
        draw(0x31);
        expect(alpha, [](u32 value) { return blended(value, ground); });
    }
}

INSTANTIATE_TEST_SUITE_P(Of, EnginePattern,
                         testing::Values(DFBDimension{1, 1}, DFBDimension{3, 2}, DFBDimension{64, 64}, DFBDimension{64, 65},
                                         DFBDimension{65, 3}, DFBDimension{100, 80}, DFBDimension{127, 64},
                                         DFBDimension{128, 64}, DFBDimension{1, 129}, DFBDimension{300, 2}));

} // namespace
