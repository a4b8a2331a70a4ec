#include "floor.h"

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "floor_rows.h"

namespace bench {

namespace {

/// A run in memory; the texture's pixels stand ready where there is a texture.
struct Stretch {
    std::uint32_t* pixels;
    int width;
    const std::uint32_t* source;
};

/// The rows of the texture, premultiplied and repeated to the width of the picture.
std::vector<std::vector<std::uint32_t>> texture_rows()
{
    std::vector<std::vector<std::uint32_t>> rows(texture_size);
    for (int y = 0; y < texture_size; ++y) {
        for (int x = 0; x < picture_width; ++x)
            rows[static_cast<std::size_t>(y)].push_back(premultiplied(texture_pixel(x % texture_size, y)));
    }
    return rows;
}

const std::uint32_t* texture_at(int x, int y)
{
    static const auto rows = texture_rows();
    return rows[static_cast<std::size_t>(y % texture_size)].data() + x;
}

std::vector<Stretch> stretches(const Memory& memory, const Task& task)
{
    std::vector<Stretch> list;
    for (const Run& run : task.runs)
        list.push_back({memory.row(run.row) + run.left, run.width,
                        texture_at(run.left - task.bounds.x, run.row - task.bounds.y)});
    return list;
}

/// The pixels of an outline, one by one.
std::vector<std::uint32_t*> pixels(const Memory& memory, const Task& task)
{
    std::vector<std::uint32_t*> list;
    for (const Run& run : task.runs) {
        for (int i = 0; i < run.width; ++i)
            list.push_back(memory.row(run.row) + run.left + i);
    }
    return list;
}

Draw paint_rows(std::vector<Stretch> list, Colour colour, PaintRow paint_row)
{
    return [list = std::move(list), colour, paint_row] {
        for (const Stretch& stretch : list)
            paint_row(stretch.pixels, stretch.width, colour);
    };
}

/// The least of some times, each of enough drawings for the clock to see.
double time_of(const Draw& draw)
{
    using Clock = std::chrono::steady_clock;
    double least = 0;
    for (int i = 0; i < 9; ++i) {
        const auto start = Clock::now();
        int count = 0;
        while (Clock::now() - start < std::chrono::microseconds(200)) {
            for (int j = 0; j < 16; ++j, ++count)
                draw();
        }
        const double time = std::chrono::duration<double>(Clock::now() - start).count() / count;
        least = i == 0 ? time : std::min(least, time);
    }
    return least;
}

} // namespace

Draw Floor::prepare(const Task& task)
{
    if (task.shape.paint == Paint::textured)
        return prepare_texture(task);
    if (task.shape.style == Style::thin)
        return prepare_thin(task);
    const Colour colour = premultiplied(colour_of(task.shape.paint));
    if (task.shape.paint == Paint::translucent)
        return paint_rows(stretches(memory(), task), colour, blend_row);
    return prepare_stores(task, colour);
}

/// The fastest of all stores, for this shape in this run.
Draw Floor::prepare_stores(const Task& task, Colour colour) const
{
    Draw best;
    double least = 0;
    for (const PaintRow way : ways_to_store()) {
        Draw draw = paint_rows(stretches(memory(), task), colour, way);
        const double time = time_of(draw);
        if (!best || time < least) {
            best = std::move(draw);
            least = time;
        }
    }
    return best;
}

Draw Floor::prepare_thin(const Task& task) const
{
    return [list = pixels(memory(), task), colour = colour_of(task.shape.paint)] {
        for (std::uint32_t* pixel : list)
            *pixel = colour;
    };
}

Draw Floor::prepare_texture(const Task& task) const
{
    return [list = stretches(memory(), task)] {
        for (const Stretch& stretch : list)
            blend_texture_row(stretch.pixels, stretch.width, stretch.source);
    };
}

} // namespace bench
