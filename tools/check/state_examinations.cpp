#include "direct.h"
#include "examinations.h"

#include <chrono>
#include <random>

/// What the engine draws with, and the numbers that it takes.

namespace conformance {
namespace {

using Clock = std::chrono::steady_clock;

void check_pixel(const Direct& direct, Verdict& verdict, const std::string& what, int x, int y, u32 expected)
{
    const u32 pixel = direct.at(x, y);
    verdict.check(pixel == expected, what + ": the pixel is " + hexadecimal(pixel) + ", not " + hexadecimal(expected));
}

/// Numbers that overflow when they are added to, and ordinary ones.
int extreme_number(std::mt19937& random)
{
    const int numbers[] = {-2147483647 - 1, -2147483647, -1073741824, -8388608, -65536, -40, -1, 0, 1,
                           7, 31, 65536, 8388607, 1073741824, 2147483646, 2147483647};
    return random() % 3 ? numbers[random() % std::size(numbers)] : static_cast<int>(random());
}

int draw_extreme(const Direct& direct, std::mt19937& random, int kind)
{
    const auto number = [&random] { return extreme_number(random); };
    const int x = number(), y = number(), w = number(), h = number();
    const DFBRectangle rect = {x, y, w, h};
    const DFBPoint points[] = {{x, y}, {w, h}, {y, w}, {h, x}};
    const unsigned int dtk = direct.engine(), flags = ZUVO_DTK_DRAW;
    switch (kind % 6) {
    case 0:
        return zuvo_dtk_draw_line(dtk, x, y, w, h, flags);
    case 1:
        return zuvo_dtk_draw_rectangle(dtk, &rect, flags);
    case 2:
        return zuvo_dtk_draw_rectangle_border(dtk, &rect, flags);
    case 3:
        return zuvo_dtk_draw_ellipse(dtk, &rect, flags);
    case 4:
        return zuvo_dtk_draw_ellipse_border(dtk, &rect, flags);
    default:
        return zuvo_dtk_draw_polygon(dtk, points, 4, 0);
    }
}

void check_time(const Direct& direct, Verdict& verdict)
{
    std::mt19937 random(8);
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < 600; ++i)
        draw_extreme(direct, random, i);
    zuvo_dtk_sync(direct.engine());
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    verdict.check(seconds < 30, "600 shapes with extreme numbers take " + std::to_string(seconds) + " s");
}

/// Shapes far larger than any surface, of which it shows a known piece.
void check_places(const Examination& examination)
{
    const Direct direct(examination);
    Verdict& verdict = examination.verdict;
    direct.set(red);
    direct.fill_box({-65536 + 5, 5, 20, 20});
    direct.fill_box({65536 + 5, 5, 20, 20});
    direct.fill_box({5, 2147483647, 20, 20});
    const DFBPoint beyond[] = {{65536, 0}, {65566, 0}, {65566, 30}, {65536, 30}};
    zuvo_dtk_draw_polygon(direct.engine(), beyond, 4, 0);
    zuvo_dtk_draw_line(direct.engine(), 65536, 3, 65566, 30, ZUVO_DTK_DRAW);
    verdict.check(direct.is_untouched(), "what lies 65536 pixels beside the surface is drawn on it");

    direct.fill_box({-1000000000, -1000000000, 2147483647, 2147483647});
    check_pixel(direct, verdict, "a rectangle around everything", 20, 20, red);
    direct.set_pen(green);
    zuvo_dtk_draw_line(direct.engine(), -2147483647, -2147483647, 2147483647, 2147483647, ZUVO_DTK_DRAW);
    check_pixel(direct, verdict, "a line across all numbers", 20, 20, green);
    check_pixel(direct, verdict, "beside a line across all numbers", 30, 10, red);
}

} // namespace

void examine_state(const Examination& examination)
{
    const Direct direct(examination);
    Verdict& verdict = examination.verdict;
    direct.set(red);
    zuvo_dtk_pen pen = {-1, -1, 2, -1, 2, 2, -1, 2, green};
    zuvo_dtk_set_pen(direct.engine(), &pen);
    pen = {-9, -9, -8, -9, -8, -8, -9, -8, blue};
    zuvo_dtk_draw_line(direct.engine(), 5, 20, 35, 20, ZUVO_DTK_DRAW);
    check_pixel(direct, verdict, "a line with a pen whose record has changed since", 20, 20, green);
    direct.fill_box({8, 8, 24, 24});
    check_pixel(direct, verdict, "a rectangle after a pen was set", 20, 20, red);
    direct.set_fill(blue);
    zuvo_dtk_draw_line(direct.engine(), 5, 20, 35, 20, ZUVO_DTK_DRAW);
    check_pixel(direct, verdict, "a line after a fill was set", 20, 20, green);

    DFBRectangle box = {8, 8, 24, 24};
    zuvo_dtk_draw_rectangle(direct.engine(), &box, ZUVO_DTK_DRAW);
    box = {0, 0, 1, 1};
    check_pixel(direct, verdict, "a rectangle whose record has changed since", 20, 20, blue);
    DFBPoint points[] = {{0, 0}, {40, 0}, {40, 40}, {0, 40}};
    direct.set_fill(green);
    zuvo_dtk_draw_polygon(direct.engine(), points, 4, 0);
    for (DFBPoint& point : points)
        point = {0, 0};
    check_pixel(direct, verdict, "a polygon whose points have changed since", 20, 20, green);
}

void examine_flags(const Examination& examination)
{
    const u32 translucent = 0x40204060;
    const Direct direct(examination);
    direct.set(red);
    direct.fill_box({0, 0, Direct::size, Direct::size});
    direct.set(translucent);
    direct.fill_box({8, 8, 24, 24});
    check_pixel(direct, examination.verdict, "a translucent rectangle without ZUVO_DTK_BLEND", 20, 20, translucent);
    direct.set(0x80000000);
    direct.fill_ellipse();
    check_pixel(direct, examination.verdict, "a translucent ellipse without ZUVO_DTK_BLEND", 20, 20, 0x80000000);
    direct.set(translucent);
    zuvo_dtk_draw_line(direct.engine(), 2, 20, 38, 20, ZUVO_DTK_DRAW);
    check_pixel(direct, examination.verdict, "a translucent line without ZUVO_DTK_BLEND", 20, 20, translucent);
    direct.set(0x00ff0000);
    direct.fill_ellipse(ZUVO_DTK_DRAW | ZUVO_DTK_BLEND);
    check_pixel(direct, examination.verdict, "a wholly transparent ellipse with ZUVO_DTK_BLEND", 20, 20, translucent);
}

void examine_extremes(const Examination& examination)
{
    check_places(examination);
    const Direct direct(examination);
    direct.set(red);
    check_time(direct, examination.verdict);
}

} // namespace conformance
