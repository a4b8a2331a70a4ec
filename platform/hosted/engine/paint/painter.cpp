// Source-over with 8-bit rounding, as DirectFB's renderer has it, or plain stores.
#include "painter.h"

#include <algorithm>
#include <cstring>

namespace zuvo {
namespace {

RowSpans spans_on(const Pixels& target, const SpanRows& rows)
{
    return {target.row(rows.top) + rows.origin, target.row_words * sizeof(uint32_t), rows.spans,
            static_cast<size_t>(rows.step), static_cast<size_t>(rows.count), static_cast<size_t>(rows.parts)};
}

/// Several spans of one row, as rows that lie on each other.
RowSpans spans_on(const Pixels& target, int row, const Span* spans, int count)
{
    return {target.row(row), 0, spans, 1, static_cast<size_t>(count), 1};
}

/// A row function that brings one colour onto spans.
using WriteSpans = void (*Rows::*)(const RowSpans*, uint32_t);

template <WriteSpans write>
void write_rows(RowSink& self, const SpanRows& rows)
{
    const Painter& painter = static_cast<const Painter&>(self);
    const RowSpans spans = spans_on(painter.target, rows);
    (painter.rows->*write)(&spans, painter.colour);
}

template <WriteSpans write>
void write_row(RowSink& self, int row, const Span* spans, int count)
{
    const Painter& painter = static_cast<const Painter&>(self);
    const RowSpans on_target = spans_on(painter.target, row, spans, count);
    (painter.rows->*write)(&on_target, painter.colour);
}

/// The rest of a sum of numbers that are not negative.
unsigned int remainder(int one, int other, int divisor)
{
    return (static_cast<unsigned int>(one) + static_cast<unsigned int>(other)) % static_cast<unsigned int>(divisor);
}

/// Calls `write(target, index, count)` for each part of the spans that lies in one row of the tiles; the index is that
/// of its first pixel among the tiles' words.
template <typename Write>
void write_parts(const Painter& painter, int row, const Span* spans, int count, const Write& write)
{
    const Tiles& tiles = painter.tiles;
    const Extent size = tiles.pixels.extent;
    const size_t start = tiles.pixels.row_words * remainder(row, tiles.row, size.height);
    uint32_t* const pixels = painter.target.row(row);
    for (int i = 0; i < count; ++i) {
        int column = static_cast<int>(remainder(spans[i].left, tiles.column, size.width));
        for (int left = spans[i].left; left < spans[i].right;) {
            const int width = std::min(size.width - column, spans[i].right - left);
            write(pixels + left, start + static_cast<size_t>(column), static_cast<size_t>(width));
            left += width;
            column = 0;
        }
    }
}

void write_tiles(RowSink& self, int row, const Span* spans, int count)
{
    const Painter& painter = static_cast<const Painter&>(self);
    write_parts(painter, row, spans, count, [&painter](uint32_t* target, size_t index, size_t width) {
        painter.write_row(target, painter.tiles.pixels.words + index, width);
    });
}

void blend_prepared_tiles(RowSink& self, int row, const Span* spans, int count)
{
    const Painter& painter = static_cast<const Painter&>(self);
    write_parts(painter, row, spans, count, [&painter](uint32_t* target, size_t index, size_t width) {
        painter.rows->blend_prepared(target, painter.tiles.pixels.words + index, painter.tiles.rests + index, width);
    });
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

/// A row of one colour, for the blend that takes its source from a row.
const int colour_width = 512;
uint32_t colour_row[colour_width];

/// DirectFB blends onto a target without alpha in another way. Kept apart from the colours of most small shapes.
[[gnu::noinline]] Painter blend_colour_without_alpha(Painter painter)
{
    painter.take = write_tiles;
    painter.paint = Paint::blended_without_alpha;
    painter.write_row = painter.rows->blend_rgb32;
    painter.tiles = {{colour_row, colour_width, {colour_width, 1}, true}, nullptr, 0, 0, false};
    painter.rows->fill(colour_row, painter.colour, colour_width);
    return painter;
}

} // namespace

Painter paint_colour(const Pixels& target, uint32_t colour, bool blend)
{
    static const Rows* const rows = choose_rows();
    Painter painter = {};
    painter.target = target;
    painter.colour = colour;
    painter.rows = rows;
    if (blend && colour >> 24 != 0xff) {
        if (!target.has_alpha)
            return blend_colour_without_alpha(painter);
        painter.paint = Paint::blended;
        painter.take = write_row<&Rows::blend_colour_spans>;
        painter.take_rows = write_rows<&Rows::blend_colour_spans>;
        return painter;
    }
    painter.paint = Paint::stored;
    painter.take = write_row<&Rows::fill_spans>;
    painter.take_rows = write_rows<&Rows::fill_spans>;
    return painter;
}

// What is written of a pattern:
//
//      pattern         blend   target   written
//      RGB32           any     any      its pixels, opaque
//      ARGB            no      any      its pixels
//      ARGB, opaque    yes     ARGB     its pixels (known of a small pattern only)
//      ARGB, small     yes     ARGB     blended, with the products worked out before
//      ARGB            yes     ARGB     blended
//      ARGB            yes     RGB32    blended as onto a target without alpha
Painter paint_pattern(const Pixels& target, const Pixels& pattern, int x, int y, bool blend)
{
    const bool blends = blend && pattern.has_alpha;
    Painter painter = {};
    painter.target = target;
    painter.rows = choose_rows();
    painter.take = write_tiles;
    painter.tiles = make_tiles(pattern, x, y, blends && target.has_alpha);
    if (!pattern.has_alpha)
        painter.write_row = copy_opaque_row;
    else if (!blend || (target.has_alpha && painter.tiles.is_opaque))
        painter.write_row = copy_row;
    else if (painter.tiles.rests)
        painter.take = blend_prepared_tiles;
    else
        painter.write_row = target.has_alpha ? painter.rows->blend : painter.rows->blend_rgb32;
    return painter;
}

} // namespace zuvo
