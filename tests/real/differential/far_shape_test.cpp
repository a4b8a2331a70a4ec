#include "real/differential/the_stage.h"

#include <ctime>
#include <gtest/gtest.h>
#include <sstream>

/// Shapes that lie mostly outside take no time for what nobody sees.

namespace differential {
namespace {

// Machines other than x86 are emulated here, and some have no floating point unit. i386 walks in halves of 64 bits.
#if !defined(__x86_64__) && !defined(__i386__)
constexpr double most_seconds = 300;
#elif defined(__i386__) || defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double most_seconds = 20;
#else
constexpr double most_seconds = 1;
#endif

constexpr int large = 1 << 30;
const DTKHDDVDPenShape wide_pen = {-2, -2, 3, -2, 3, 3, -2, 3};

Scene shape(Primitive primitive, const DFBRectangle& rect, const std::vector<DFBPoint>& points)
{
    return {primitive, DSPF_ARGB, rect, points, true, 0, {255, 1, 2, 3}, {255, 4, 5, 6}, Texture::none, {}};
}

/// Around the surface, across it, and with one corner on it.
std::vector<Scene> large_shapes()
{
    const int half = large / 2, ellipse = 1 << 26;
    std::vector<Scene> shapes;
    for (const int origin : {-half, 20})
        shapes.push_back(shape(Primitive::rectangle, {origin, origin, large, large}, {}));
    for (const int origin : {-ellipse / 2, -ellipse + 100, 20})
        shapes.push_back(shape(Primitive::ellipse, {origin, origin / 2, ellipse, ellipse / 2}, {}));
    shapes.push_back(shape(Primitive::line, {}, {{-half, -half}, {half, half}}));
    shapes.push_back(shape(Primitive::line, {}, {{-1000000000, 70}, {1000000000, 80}}));
    return shapes;
}

class FarShapes : public testing::TestWithParam<BackEnd> {};

TEST_P(FarShapes, EndSoon)
{
    std::mt19937 random(1);
    const Picture background = random_picture(random);
    for (Scene scene : large_shapes()) {
        // Ellipses take their time, and there are some of them.
        for (int manner = 0; manner < 24; manner += scene.primitive == Primitive::ellipse ? 5 : 1) {
            scene.flags = 1 + static_cast<u32>(manner) % 3;
            scene.pen = manner / 3 % 2 ? std::optional(wide_pen) : std::nullopt;
            scene.texture = manner / 6 % 2 ? Texture::argb : Texture::none;
            scene.stroke.a = scene.fill.a = manner / 12 ? 100 : 255;
            const std::clock_t start = std::clock();
            const auto drawn = the_stage().draw(GetParam(), scene, background);
            const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
            std::ostringstream text;
            text << scene;
            EXPECT_TRUE(drawn) << text.str();
            EXPECT_LT(seconds, most_seconds) << text.str();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, FarShapes, testing::Values(BackEnd::software, BackEnd::hardware));

} // namespace
} // namespace differential
