#include "verify.h"

#include <algorithm>
#include <cmath>

namespace bench {

namespace {

/// Libraries place their edges half a pixel apart, some only know odd widths, and an outline may step from pixel to
/// pixel by corners or by sides.
double allowed_difference(const Task& task)
{
    const auto pixels = static_cast<double>(task.pixels);
    return task.shape.style == Style::filled ? 0.05 * pixels + task.bounds.w + task.bounds.h : 0.3 * pixels + 8;
}

bool has_colour(const Impression& seen, const Impression& expected)
{
    const double allowed = 4;
    return std::abs(seen.red - expected.red) < allowed && std::abs(seen.green - expected.green) < allowed &&
           std::abs(seen.blue - expected.blue) < allowed;
}

std::string text(const Impression& seen)
{
    const auto rounded = [](double value) { return std::to_string(std::lround(value)); };
    return std::to_string(seen.pixels) + " pixels of " + rounded(seen.red) + ", " + rounded(seen.green) + ", " +
           rounded(seen.blue);
}

} // namespace

Impression impression(const Picture& picture)
{
    Impression result = {0, 0, 0, 0};
    for (const std::uint32_t pixel : picture) {
        if (pixel == (background & 0xffffff))
            continue;
        ++result.pixels;
        result.red += red(pixel);
        result.green += green(pixel);
        result.blue += blue(pixel);
    }
    const auto count = static_cast<double>(std::max(result.pixels, 1L));
    return {result.pixels, result.red / count, result.green / count, result.blue / count};
}

Picture draw_once(Painter& painter, const Draw& draw)
{
    painter.clear();
    painter.activate();
    draw();
    return painter.picture();
}

std::string compare(const Picture& picture, const Task& task, const Impression& expected)
{
    const Impression seen = impression(picture);
    const auto difference = static_cast<double>(std::labs(seen.pixels - expected.pixels));
    if (difference <= allowed_difference(task) && has_colour(seen, expected))
        return {};
    return text(seen) + " instead of " + text(expected);
}

std::string compare_either(const Picture& picture, const Task& task, const Expectation& expectation)
{
    if (compare(picture, task, expectation.software).empty())
        return {};
    return compare(picture, task, expectation.floor);
}

} // namespace bench
