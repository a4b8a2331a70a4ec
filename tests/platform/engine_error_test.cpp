#include "platform/hosted_session.h"
#include "common/surface.h"

#include <gtest/gtest.h>
#include <set>

namespace {

const DFBRectangle box = {2, 2, 10, 8};
const DFBPoint corners[] = {{1, 1}, {12, 2}, {6, 11}};
const zuvo_dtk_pen pen = {-1, -1, 2, -1, 2, 2, -1, 2, 0xffff0000};

struct EngineErrors : testing::Test {
    HostedSession session;
    HostedSession::Surface target = session.make_surface(16, 16);
    unsigned int engine = session.engine;

    void set_everything()
    {
        ASSERT_EQ(zuvo_dtk_set_output_surface(engine, handle_of(target)), ZUVO_OK);
        ASSERT_EQ(zuvo_dtk_set_fill_color(engine, 1, 2, 3, 255), ZUVO_OK);
        ASSERT_EQ(zuvo_dtk_set_pen(engine, &pen), ZUVO_OK);
    }

    /// The answers of all drawing calls: fills first, then outlines.
    std::vector<int> fills(unsigned int handle)
    {
        return {zuvo_dtk_draw_rectangle(handle, &box, 0x30), zuvo_dtk_draw_ellipse(handle, &box, 0x30),
                zuvo_dtk_draw_polygon(handle, corners, 3, 0)};
    }

    std::vector<int> outlines(unsigned int handle)
    {
        return {zuvo_dtk_draw_line(handle, 1, 1, 9, 9, 0x30), zuvo_dtk_draw_rectangle_border(handle, &box, 0x30),
                zuvo_dtk_draw_ellipse_border(handle, &box, 0x30)};
    }

    bool is_untouched() { return read(target) == std::vector<u32>(256, 0); }
};

TEST_F(EngineErrors, DrawsWithoutAnyWhenEverythingIsSet)
{
    set_everything();
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_OK));
    EXPECT_EQ(outlines(engine), std::vector<int>(3, ZUVO_OK));
    EXPECT_EQ(zuvo_dtk_sync(engine), ZUVO_OK);
    EXPECT_FALSE(is_untouched());
}

TEST_F(EngineErrors, RefusesAnotherEngine)
{
    set_everything();
    for (unsigned int handle : {0u, engine + 1, 0xffffffffu}) {
        EXPECT_EQ(fills(handle), std::vector<int>(3, ZUVO_NO_SUCH_ENGINE));
        EXPECT_EQ(outlines(handle), std::vector<int>(3, ZUVO_NO_SUCH_ENGINE));
        EXPECT_EQ(zuvo_dtk_sync(handle), ZUVO_NO_SUCH_ENGINE);
        EXPECT_EQ(zuvo_dtk_set_output_surface(handle, handle_of(target)), ZUVO_NO_SUCH_ENGINE);
        EXPECT_EQ(zuvo_dtk_set_fill_color(handle, 0, 0, 0, 0), ZUVO_NO_SUCH_ENGINE);
        EXPECT_EQ(zuvo_dtk_set_fill_pattern(handle, handle_of(target)), ZUVO_NO_SUCH_ENGINE);
        EXPECT_EQ(zuvo_dtk_set_pen(handle, &pen), ZUVO_NO_SUCH_ENGINE);
    }
    EXPECT_TRUE(is_untouched());
}

TEST_F(EngineErrors, RefusesToDrawWithoutOutput)
{
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_NO_OUTPUT));
    EXPECT_EQ(outlines(engine), std::vector<int>(3, ZUVO_NO_OUTPUT));
}

TEST_F(EngineErrors, RefusesToDrawWithoutFillOrPen)
{
    ASSERT_EQ(zuvo_dtk_set_output_surface(engine, handle_of(target)), ZUVO_OK);
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_NO_FILL));
    EXPECT_EQ(outlines(engine), std::vector<int>(3, ZUVO_NO_PEN));
    EXPECT_TRUE(is_untouched());
}

TEST_F(EngineErrors, RefusesUnknownSurfacesAndForgetsTheOnesBefore)
{
    set_everything();
    EXPECT_EQ(zuvo_dtk_set_output_surface(engine, 12345678), ZUVO_NO_SUCH_SURFACE);
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_NO_OUTPUT));

    set_everything();
    EXPECT_EQ(zuvo_dtk_set_fill_pattern(engine, 0), ZUVO_NO_SUCH_SURFACE);
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_NO_FILL));
    EXPECT_TRUE(is_untouched());
}

TEST_F(EngineErrors, NoticesThatASurfaceWasReleased)
{
    HostedSession::Surface other = session.make_surface(16, 16);
    const unsigned int handle = handle_of(other);
    set_everything();
    ASSERT_EQ(zuvo_dtk_set_output_surface(engine, handle), ZUVO_OK);
    other.reset();
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_NO_SUCH_SURFACE));
    EXPECT_EQ(outlines(engine), std::vector<int>(3, ZUVO_NO_SUCH_SURFACE));
    EXPECT_EQ(zuvo_dtk_set_output_surface(engine, handle), ZUVO_NO_SUCH_SURFACE);
}

TEST_F(EngineErrors, NoticesThatAPatternWasReleased)
{
    HostedSession::Surface pattern = session.make_surface(4, 4);
    set_everything();
    ASSERT_EQ(zuvo_dtk_set_fill_pattern(engine, handle_of(pattern)), ZUVO_OK);
    pattern.reset();
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_NO_SUCH_SURFACE));
    EXPECT_TRUE(is_untouched());
}

TEST_F(EngineErrors, RefusesOtherPixelFormats)
{
    for (DFBSurfacePixelFormat format : {DSPF_A8, DSPF_LUT8, DSPF_RGB16}) {
        const HostedSession::Surface other = session.make_surface(8, 8, format);
        EXPECT_EQ(zuvo_dtk_set_output_surface(engine, handle_of(other)), ZUVO_WRONG_PIXEL_FORMAT);
        EXPECT_EQ(zuvo_dtk_set_fill_pattern(engine, handle_of(other)), ZUVO_WRONG_PIXEL_FORMAT);
    }
}

TEST_F(EngineErrors, RefusesSurfacesThatKeepTheirFieldsApart)
{
    const DFBSurfaceDescription description = common::describe(8, 8, DSPF_ARGB, DSCAPS_INTERLACED | DSCAPS_SEPARATED);
    IDirectFBSurface* surface = nullptr;
    ASSERT_EQ(session.directfb->CreateSurface(session.directfb, &description, &surface), DFB_OK);
    const HostedSession::Surface separated(surface);
    EXPECT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(separated)), ZUVO_WRONG_PIXEL_FORMAT);
    EXPECT_EQ(zuvo_dtk_set_fill_pattern(session.engine, handle_of(separated)), ZUVO_WRONG_PIXEL_FORMAT);
}

TEST_F(EngineErrors, RefusesToFillASurfaceWithItself)
{
    set_everything();
    ASSERT_EQ(zuvo_dtk_set_fill_pattern(engine, handle_of(target)), ZUVO_OK);
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_PATTERN_IS_OUTPUT));
    EXPECT_TRUE(is_untouched());
}

TEST_F(EngineErrors, RefusesNullArguments)
{
    set_everything();
    EXPECT_EQ(zuvo_dtk_draw_rectangle(engine, nullptr, 0x30), ZUVO_NULL_ARGUMENT);
    EXPECT_EQ(zuvo_dtk_draw_rectangle_border(engine, nullptr, 0x30), ZUVO_NULL_ARGUMENT);
    EXPECT_EQ(zuvo_dtk_draw_ellipse(engine, nullptr, 0x30), ZUVO_NULL_ARGUMENT);
    EXPECT_EQ(zuvo_dtk_draw_ellipse_border(engine, nullptr, 0x30), ZUVO_NULL_ARGUMENT);
    EXPECT_EQ(zuvo_dtk_draw_polygon(engine, nullptr, 3, 0), ZUVO_NULL_ARGUMENT);
    EXPECT_EQ(zuvo_dtk_set_pen(engine, nullptr), ZUVO_NULL_ARGUMENT);
    EXPECT_EQ(outlines(engine), std::vector<int>(3, ZUVO_NO_PEN));
    EXPECT_TRUE(is_untouched());
}

TEST_F(EngineErrors, RefusesAPenThatIsTooLarge)
{
    set_everything();
    const zuvo_dtk_pen wide = {0, 0, 4097, 0, 4097, 1, 0, 1, 0xffffffff};
    EXPECT_EQ(zuvo_dtk_set_pen(engine, &wide), ZUVO_PEN_TOO_LARGE);
    EXPECT_EQ(outlines(engine), std::vector<int>(3, ZUVO_NO_PEN));
    const zuvo_dtk_pen widest = {-2147483647, 0, 2147483647, 0, 0, 2147483647, 0, -2147483647, 0xffffffff};
    EXPECT_EQ(zuvo_dtk_set_pen(engine, &widest), ZUVO_PEN_TOO_LARGE);
    EXPECT_TRUE(is_untouched());
}

TEST_F(EngineErrors, IsGoneAfterThePlatformsEnd)
{
    set_everything();
    zuvo_uninit();
    EXPECT_EQ(zuvo_dtk_get_handle(), 0u);
    EXPECT_EQ(fills(engine), std::vector<int>(3, ZUVO_NO_SUCH_ENGINE));
    EXPECT_TRUE(is_untouched());
}

TEST(EngineErrorText, IsDifferentForEveryError)
{
    std::set<std::string> texts;
    const int errors[] = {ZUVO_OK, ZUVO_NO_SUCH_DISPLAY, ZUVO_NO_SUCH_VIDEO_FORMAT, ZUVO_NO_SUCH_LAYER,
                          ZUVO_NULL_ARGUMENT, ZUVO_NO_SUCH_ENGINE, ZUVO_NO_SUCH_SURFACE, ZUVO_WRONG_PIXEL_FORMAT,
                          ZUVO_NO_OUTPUT, ZUVO_NO_FILL, ZUVO_NO_PEN, ZUVO_LOCK_FAILED, ZUVO_PATTERN_IS_OUTPUT,
                          ZUVO_PEN_TOO_LARGE, ZUVO_NO_MEMORY, ZUVO_EMPTY_RECTANGLE, 4711};
    for (int error : errors)
        texts.insert(zuvo_error_text(error));
    EXPECT_EQ(texts.size(), std::size(errors));
    EXPECT_STREQ(zuvo_error_text(ZUVO_NO_PEN), "no pen is set");
}

TEST(EngineWithoutDirectFB, KnowsNoSurfaces)
{
    zuvo_init(4108);
    EXPECT_EQ(zuvo_dtk_set_output_surface(zuvo_dtk_get_handle(), 1), ZUVO_NO_SUCH_SURFACE);
}

} // namespace
