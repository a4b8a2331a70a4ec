#include "platform/hosted_session.h"

#include <gtest/gtest.h>

namespace {

struct EnginePicture : testing::Test {
    HostedSession session;
    HostedSession::Surface target = session.make_surface(12, 8);

    void SetUp() override { ASSERT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(target)), ZUVO_OK); }

    void set_pen(const zuvo_dtk_pen& pen) { ASSERT_EQ(zuvo_dtk_set_pen(session.engine, &pen), ZUVO_OK); }
};

const zuvo_dtk_pen one_pixel = {0, 0, 1, 0, 1, 1, 0, 1, 0xffffffff};

TEST_F(EnginePicture, PenWithoutHeightCoversThePixelsItsCornersSpan)
{
    set_pen({-2, 0, 1, 0, 1, 0, -2, 0, 0xffffffff});
    ASSERT_EQ(zuvo_dtk_draw_line(session.engine, 4, 2, 4, 4, 0x30), ZUVO_OK);
    EXPECT_EQ(text_of(target), "............\n............\n..####......\n..####......\n..####......\n............\n"
                               "............\n............\n");
}

TEST_F(EnginePicture, PenWithoutWidthKeepsItsPlaceBesideThePoint)
{
    set_pen({2, 1, 2, 1, 2, 3, 2, 3, 0xffffffff});
    ASSERT_EQ(zuvo_dtk_draw_line(session.engine, 1, 1, 3, 1, 0x30), ZUVO_OK);
    EXPECT_EQ(text_of(target), "............\n............\n...###......\n...###......\n...###......\n............\n"
                               "............\n............\n");
}

TEST_F(EnginePicture, PenThatIsOnePointDrawsTheFullEllipse)
{
    set_pen({0, 0, 0, 0, 0, 0, 0, 0, 0xffffffff});
    const DFBRectangle rect = {1, 1, 8, 5};
    ASSERT_EQ(zuvo_dtk_draw_ellipse_border(session.engine, &rect, 0x30), ZUVO_OK);
    EXPECT_EQ(text_of(target), "............\n...#####....\n..#.....#...\n.#.......#..\n..#.....#...\n...#####....\n"
                               "............\n............\n");
}

TEST_F(EnginePicture, PenOfOnePixelDrawsTheEllipseInside)
{
    set_pen(one_pixel);
    const DFBRectangle rect = {0, 0, 10, 7};
    ASSERT_EQ(zuvo_dtk_draw_ellipse_border(session.engine, &rect, 0x30), ZUVO_OK);
    EXPECT_EQ(text_of(target), "............\n...#####....\n..#.....#...\n.#.......#..\n..#.....#...\n...#####....\n"
                               "............\n............\n");
}

TEST_F(EnginePicture, PenOfEvenSizeLiesToTheUpperLeft)
{
    set_pen({-1, -1, 1, -1, 1, 1, -1, 1, 0xffffffff});
    const DFBRectangle rect = {2, 2, 7, 4};
    ASSERT_EQ(zuvo_dtk_draw_rectangle_border(session.engine, &rect, 0x30), ZUVO_OK);
    EXPECT_EQ(text_of(target), "............\n.########...\n.########...\n.##....##...\n.########...\n.########...\n"
                               "............\n............\n");
}

TEST_F(EnginePicture, OutlineBlendsEveryPixelOnce)
{
    target->Clear(target.get(), 0x80, 0x80, 0x80, 0xff);
    set_pen({-2, -2, 3, -2, 3, 3, -2, 3, 0x40ffffff});
    const DFBRectangle rect = {3, 3, 6, 2};
    ASSERT_EQ(zuvo_dtk_draw_rectangle_border(session.engine, &rect, 0x31), ZUVO_OK);
    const std::vector<u32> pixels = read(target);
    EXPECT_EQ(pixels[4 * 12 + 3], 0xcfa0a0a0);
    EXPECT_EQ(pixels[4 * 12 + 6], 0xcfa0a0a0);
    EXPECT_EQ(pixels[0], 0xff808080);
}

TEST_F(EnginePicture, WithoutTheBlendFlagAColourIsStoredAsItIs)
{
    ASSERT_EQ(zuvo_dtk_set_fill_color(session.engine, 0x11, 0x22, 0x33, 0x44), ZUVO_OK);
    const DFBRectangle rect = {1, 1, 2, 1};
    ASSERT_EQ(zuvo_dtk_draw_rectangle(session.engine, &rect, 0x30), ZUVO_OK);
    EXPECT_EQ(read(target)[13], 0x44112233u);
}

TEST_F(EnginePicture, TranslucentPolygonHasItsTrueColour)
{
    target->Clear(target.get(), 0x80, 0x80, 0x80, 0xff);
    ASSERT_EQ(zuvo_dtk_set_fill_color(session.engine, 0xff, 0xff, 0xff, 0x40), ZUVO_OK);
    const DFBPoint corners[] = {{0, 0}, {6, 0}, {6, 6}, {0, 6}};
    ASSERT_EQ(zuvo_dtk_draw_polygon(session.engine, corners, 4, 0), ZUVO_OK);
    EXPECT_EQ(read(target)[0], 0xcfa0a0a0u);
}

TEST_F(EnginePicture, PatternBeginsAtTheBoxAndRepeats)
{
    const HostedSession::Surface texture = session.make_surface(3, 2);
    texture->SetColor(texture.get(), 9, 9, 9, 255);
    texture->FillRectangle(texture.get(), 0, 0, 1, 1);
    ASSERT_EQ(zuvo_dtk_set_fill_pattern(session.engine, handle_of(texture)), ZUVO_OK);
    const DFBRectangle rect = {-1, 1, 12, 5};
    ASSERT_EQ(zuvo_dtk_draw_rectangle(session.engine, &rect, 0x30), ZUVO_OK);
    EXPECT_EQ(text_of(target), "............\n..#..#..#...\n............\n..#..#..#...\n............\n..#..#..#...\n"
                               "............\n............\n");
}

} // namespace
