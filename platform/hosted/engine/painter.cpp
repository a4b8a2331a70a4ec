#include "painter.h"

#include "accel/rows.h"

#include <algorithm>
#include <cstring>

namespace zuvo {
namespace {

/// Spans up to this long are not worth a call.
const int short_span = 8;

/// Four pixels at a time; two fours may overlap.
void store_short(uint32_t* target, uint32_t colour, int count)
{
    const uint32_t four[] = {colour, colour, colour, colour};
    if (count >= 4) {
        std::memcpy(target, four, sizeof(four));
        std::memcpy(target + count - 4, four, sizeof(four));
        return;
    }
    target[0] = colour;
    target[count / 2] = colour;
    target[count - 1] = colour;
}

void store_colour(RowSink& self, int row, const Span* spans, int count)
{
    const Painter& painter = static_cast<const Painter&>(self);
    uint32_t* const pixels = painter.target.row(row);
    const uint32_t colour = painter.colour;
    for (int i = 0; i < count; ++i) {
        uint32_t* const target = pixels + spans[i].left;
        const int width = spans[i].right - spans[i].left;
        if (width > short_span)
            painter.rows->fill(target, colour, static_cast<size_t>(width));
        else
            store_short(target, colour, width);
    }
}

void blend_colour(RowSink& self, int row, const Span* spans, int count)
{
    const Painter& painter = static_cast<const Painter&>(self);
    uint32_t* const pixels = painter.target.row(row);
    for (int i = 0; i < count; ++i)
        painter.rows->blend_colour(pixels + spans[i].left, painter.colour,
                                   static_cast<size_t>(spans[i].right - spans[i].left));
}

int remainder(int64_t value, int divisor)
{
    const int64_t rest = value % divisor;
    return static_cast<int>(rest < 0 ? rest + divisor : rest);
}

void write_tiles(RowSink& self, int row, const Span* spans, int count)
{
    const Painter& painter = static_cast<const Painter&>(self);
    const Tiles& tiles = painter.tiles;
    const uint32_t* const source = tiles.pixels.row(remainder(int64_t(row) - tiles.y, tiles.pixels.extent.height));
    uint32_t* const pixels = painter.target.row(row);
    for (int i = 0; i < count; ++i) {
        for (int left = spans[i].left; left < spans[i].right;) {
            const int column = remainder(int64_t(left) - tiles.x, tiles.period);
            const int width = std::min(tiles.pixels.extent.width - column, spans[i].right - left);
            painter.write_row(pixels + left, source + column, static_cast<size_t>(width));
            left += width;
        }
    }
}

void copy_row(uint32_t* target, const uint32_t* source, size_t count)
{
    std::memcpy(target, source, count * sizeof(*target));
}

void copy_opaque_row(uint32_t* target, const uint32_t* source, size_t count)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = source[i] | 0xff000000u;
}

/// A small pattern is repeated in here until its rows are long enough to be worth a call each.
const int wide_width = 512;
const int wide_words = 32 * wide_width;
uint32_t wide_pattern[wide_words];

void repeat_row(uint32_t* target, const uint32_t* source, int period, int width)
{
    std::memcpy(target, source, static_cast<size_t>(period) * sizeof(*target));
    for (int filled = period; filled < width;) {
        const int copied = std::min(filled, width - filled);
        std::memcpy(target + filled, target, static_cast<size_t>(copied) * sizeof(*target));
        filled += copied;
    }
}

/// Makes the rows of a pattern longer when it is small.
void widen(Tiles& tiles)
{
    const Extent size = tiles.pixels.extent;
    const int width = std::min(wide_width, wide_words / size.height);
    if (width < 2 * size.width)
        return;

    Pixels wide = {wide_pattern, static_cast<size_t>(width), {width, size.height}, tiles.pixels.has_alpha};
    for (int row = 0; row < size.height; ++row)
        repeat_row(wide.row(row), tiles.pixels.row(row), size.width, width);
    tiles.pixels = wide;
}

/// DirectFB blends onto a target without alpha in another way, which takes its source from a row.
Painter blend_colour_without_alpha(Painter painter)
{
    painter.take = write_tiles;
    painter.write_row = painter.rows->blend_rgb32;
    painter.tiles = {{wide_pattern, wide_width, {wide_width, 1}, true}, 0, 0, wide_width};
    painter.rows->fill(wide_pattern, painter.colour, wide_width);
    return painter;
}

} // namespace

Painter paint_colour(const Pixels& target, uint32_t colour, bool blend)
{
    Painter painter = {};
    painter.target = target;
    painter.colour = colour;
    painter.rows = choose_rows();
    painter.take = store_colour;
    if (!blend || colour >> 24 == 0xff)
        return painter;
    if (!target.has_alpha)
        return blend_colour_without_alpha(painter);
    painter.take = blend_colour;
    return painter;
}

Painter paint_pattern(const Pixels& target, const Pixels& pattern, int x, int y, bool blend)
{
    Painter painter = {};
    painter.target = target;
    painter.rows = choose_rows();
    painter.take = write_tiles;
    painter.tiles = {pattern, x, y, pattern.extent.width};
    widen(painter.tiles);
    if (!pattern.has_alpha)
        painter.write_row = copy_opaque_row;
    else if (!blend)
        painter.write_row = copy_row;
    else
        painter.write_row = target.has_alpha ? painter.rows->blend : painter.rows->blend_rgb32;
    return painter;
}

} // namespace zuvo
