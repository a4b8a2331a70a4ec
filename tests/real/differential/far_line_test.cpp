#include "real/differential/the_stage.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <set>

namespace differential {
namespace {

using Pixel = std::pair<int, int>;

int somewhere(std::mt19937& random, long long reach)
{
    return static_cast<int>(std::uniform_int_distribution<long long>(-reach, reach)(random));
}

/// Half of them cross the surface for sure, which lines between random far points hardly ever do.
std::vector<DFBPoint> random_line(std::mt19937& random, long long reach)
{
    const DFBPoint from = {somewhere(random, reach), somewhere(random, reach)};
    if (random() % 2)
        return {from, {somewhere(random, reach), somewhere(random, reach)}};
    const double through_x = static_cast<double>(random() % surface_width);
    const double through_y = static_cast<double>(random() % surface_height);
    const double times = 1 + static_cast<double>(random() % 1000) / 1000;
    const auto beyond = [=](double through, double start) {
        return static_cast<int>(std::clamp(start + (through - start) * times, -2147483648.0, 2147483647.0));
    };
    return {from, {beyond(through_x, from.x), beyond(through_y, from.y)}};
}

/// The walk to the right that DirectFB's own routine takes, looked at row by row and column by column. Unsigned numbers of
/// 64 bits hold every product of two lengths.
std::set<Pixel> walked(const std::vector<DFBPoint>& line)
{
    const bool goes_right = line[1].x > line[0].x;
    const DFBPoint from = line[goes_right ? 0 : 1], to = line[goes_right ? 1 : 0];
    const auto length = [](int low, int high) { return static_cast<std::uint64_t>(static_cast<long long>(high) - low); };
    const auto after = [](std::uint64_t steps, std::uint64_t rise, std::uint64_t run) {
        return static_cast<long long>((run / 2 + steps * rise) / run);
    };
    const int down = to.y < from.y ? -1 : 1;
    const std::uint64_t width = length(from.x, to.x);
    const std::uint64_t height = length(std::min(from.y, to.y), std::max(from.y, to.y));
    std::set<Pixel> pixels;
    if (width >= height) {
        for (int x = std::max(0, from.x); x <= std::min(surface_width - 1, to.x); ++x) {
            const long long y = from.y + down * after(length(from.x, x), height, width);
            if (y >= 0 && y < surface_height)
                pixels.insert({x, static_cast<int>(y)});
        }
    } else {
        for (int y = std::max(0, std::min(from.y, to.y)); y <= std::min(surface_height - 1, std::max(from.y, to.y)); ++y) {
            const long long x = from.x + after(length(std::min(from.y, y), std::max(from.y, y)), width, height);
            if (x >= 0 && x < surface_width)
                pixels.insert({static_cast<int>(x), y});
        }
    }
    return pixels;
}

constexpr u32 grey = 0xff808080, white = 0xffffffff;

std::set<Pixel> drawn(const Picture& picture)
{
    std::set<Pixel> pixels;
    for (int i = 0; i < surface_width * surface_height; ++i) {
        if (picture[static_cast<std::size_t>(i)] != grey)
            pixels.insert({i % surface_width, i / surface_width});
    }
    return pixels;
}

Scene line_scene(const std::vector<DFBPoint>& points)
{
    return {Primitive::line, DSPF_ARGB, {}, points, false, DTKHDDVD_STROKE, {255, 255, 255, 255}, {}, Texture::none, {}};
}

bool is_too_long(const std::vector<DFBPoint>& line)
{
    const double width = std::abs(1.0 * line[1].x - line[0].x), height = std::abs(1.0 * line[1].y - line[0].y);
    return std::max(width, 1.0) * std::max(height, 1.0) > 2147483647.0;
}

std::string text(const std::vector<DFBPoint>& line)
{
    return std::to_string(line[0].x) + "," + std::to_string(line[0].y) + " to " + std::to_string(line[1].x) + "," +
           std::to_string(line[1].y);
}

class FarLines : public testing::TestWithParam<long long> {};

TEST_P(FarLines, AreTheSameOnBothBackEndsAndThoseThatAreCutAreTheirWalk)
{
    const Picture background(surface_width * surface_height, grey);
    std::mt19937 random(11);
    int cut_lines = 0;
    for (int i = 0; i < 600; ++i) {
        const std::vector<DFBPoint> line = random_line(random, GetParam());
        const auto software = the_stage().draw(BackEnd::software, line_scene(line), background);
        const auto hardware = the_stage().draw(BackEnd::hardware, line_scene(line), background);
        ASSERT_TRUE(software && hardware) << text(line);
        ASSERT_EQ(drawn(*software), drawn(*hardware)) << text(line);
        if (!is_too_long(line))
            continue;
        ASSERT_EQ(drawn(*software), walked(line)) << text(line);
        cut_lines += !walked(line).empty();
    }
    EXPECT_EQ(cut_lines > 0, GetParam() > 20000);
}

INSTANTIATE_TEST_SUITE_P(Reach, FarLines, testing::Values(1000, 16000, 20000, 40000, 1000000, 1LL << 30, 2147483647));

TEST(FarLine, AcrossAllNumbersAndUprightAndLevelOnes)
{
    const int least = -2147483647 - 1, most = 2147483647;
    const Picture background(surface_width * surface_height, grey);
    for (const std::vector<DFBPoint>& line : std::vector<std::vector<DFBPoint>>{{{least, least}, {most, most}},
                                                                               {{most, least}, {least, most}},
                                                                               {{least, 3}, {most, 3}},
                                                                               {{9, most}, {9, least}},
                                                                               {{least, 0}, {most, 149}},
                                                                               {{0, least}, {199, most}}}) {
        for (const BackEnd back_end : {BackEnd::software, BackEnd::hardware}) {
            const auto picture = the_stage().draw(back_end, line_scene(line), background);
            ASSERT_TRUE(picture);
            EXPECT_EQ(drawn(*picture), walked(line)) << text(line);
        }
    }
}

} // namespace
} // namespace differential
