#include "real/differential/the_stage.h"

#include "compare.h"
#include "expected.h"

#include <gtest/gtest.h>

namespace differential {
namespace {

testing::AssertionResult are_close(const Picture& expected, const Picture& actual, int allowed)
{
    const Difference difference = compare(expected, actual, allowed);
    if (!difference)
        return testing::AssertionSuccess();
    const std::size_t first = difference.first;
    return testing::AssertionFailure() << difference.count << " pixels differ, the first at (" << first % surface_width
                                       << ", " << first / surface_width << "): expected " << std::hex << expected[first]
                                       << ", drawn " << actual[first];
}

/// A thousand scenes of one kind; `allowed` is by how much a channel may differ.
struct Series {
    unsigned seed;
    Variety variety;
    int allowed;
};

void PrintTo(const Series& series, std::ostream* stream)
{
    *stream << "seed " << series.seed;
}

std::string name_of(const testing::TestParamInfo<Series>& info)
{
    return "Seed" + std::to_string(info.param.seed);
}

class BackEnds : public testing::TestWithParam<Series> {};

TEST_P(BackEnds, DrawTheSamePicture)
{
    const Series series = GetParam();
    Stage& stage = the_stage();
    std::mt19937 random(series.seed);
    int compared = 0;
    for (int i = 0; i < 1000; ++i) {
        Scene scene = random_scene(random, series.variety);
        if (needs_argb(scene))
            scene.target_format = DSPF_ARGB;

        const Picture background = random_picture(random);
        const auto expected = expected_picture(stage, scene, background);
        const auto drawn = stage.draw(BackEnd::hardware, scene, background);
        if (!expected)
            continue;
        ASSERT_TRUE(drawn) << scene;
        ++compared;
        ASSERT_TRUE(are_close(*expected, *drawn, series.allowed)) << "scene " << i << ": " << scene;
    }
    // What lies wholly outside, the software back end answers with a failure of DirectFB's.
    EXPECT_GT(compared, series.variety.is_on_parts ? 400 : 800);
}

TEST(EmptyRectangles, AreRefusedByBothAndDrawnByWidePensAlone)
{
    Stage& stage = the_stage();
    std::mt19937 random(9);
    const Picture background = random_picture(random);
    for (const DFBRectangle& rect : {DFBRectangle{50, 40, 0, 9}, {50, 40, 9, 0}, {50, 40, -7, 9}, {50, 40, 9, -7},
                                     {50, 40, 0, 0}, {50, 40, -3, -4}}) {
        for (const u32 flags : {1u, 2u, 3u}) {
            Scene scene = {Primitive::rectangle, DSPF_ARGB, rect, {}, false, flags, {255, 1, 2, 3}, {255, 4, 5, 6},
                           Texture::none, {}};
            EXPECT_FALSE(stage.draw(BackEnd::software, scene, background)) << scene;
            EXPECT_FALSE(stage.draw(BackEnd::hardware, scene, background)) << scene;

            scene.pen = DTKHDDVDPenShape{-2, -2, 2, -2, 2, 2, -2, 2};
            const auto software = stage.draw(BackEnd::software, scene, background);
            EXPECT_EQ(software.has_value(), flags == DTKHDDVD_STROKE) << scene;
            EXPECT_EQ(software, stage.draw(BackEnd::hardware, scene, background)) << scene;
        }
    }
}

constexpr Variety opaque = {false, false};
constexpr Variety translucent = {true, false};
constexpr Variety textured = {false, true};
constexpr Variety translucent_and_textured = {true, true};

INSTANTIATE_TEST_SUITE_P(Opaque, BackEnds, testing::Values(Series{1, opaque, 0}, Series{2, opaque, 0}), name_of);
INSTANTIATE_TEST_SUITE_P(Translucent, BackEnds, testing::Values(Series{3, translucent, 1}, Series{4, translucent, 1}),
                         name_of);
INSTANTIATE_TEST_SUITE_P(OnParts, BackEnds,
                         testing::Values(Series{7, {false, false, true}, 0}, Series{8, {true, true, true}, 1}), name_of);
INSTANTIATE_TEST_SUITE_P(Textured, BackEnds,
                         testing::Values(Series{5, textured, 1}, Series{6, translucent_and_textured, 1}), name_of);

} // namespace
} // namespace differential
