#ifndef DTK_RASTER_SPAN_WRITER_H
#define DTK_RASTER_SPAN_WRITER_H

#include <directfb.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace dtk {

/// Stores spans of one value into the rows of a locked surface, cut to a clip.
///
/// A filled ellipse gives its spans in pairs, as rows mirrored about its centre, and where it is steep in fours:
///
///         .####.          write_rows(lower, upper, left, width): both rows have the same columns
///         #....#          write_sides(lower, upper, left, right, width): what lies between is the block,
///         #....#          which is filled at once
///         .####.
///
/// Coordinates may be anything that sums of three 32-bit numbers can be. A surface that could not be locked has no
/// pixels, and nothing is written.
template <typename Pixel>
class SpanWriter {
public:
    SpanWriter(void* pixels, int pitch, const DFBRectangle& clip, Pixel value)
        : pixels_(static_cast<Pixel*>(pixels)), pitch_(pitch), value_(value), left_(clip.x), top_(clip.y),
          right_(static_cast<long long>(clip.x) + clip.w), bottom_(static_cast<long long>(clip.y) + clip.h)
    {
        std::fill(block_.pixels, block_.pixels + per_block, value);
    }

    /// Writes the same columns of two mirrored rows, either of which may be outside the clip: then the other one is stored
    /// in its place as well. One copy of it is fast enough for all callers.
    [[gnu::noinline]] void write_rows(long long one, long long other, long long left, long long width) const
    {
        const long long first = std::max(left, left_);
        const long long count = std::min(left + width, right_) - first;
        const bool shows_one = is_visible(one), shows_other = is_visible(other);
        if (count <= 0 || !(shows_one || shows_other) || !pixels_)
            return;
        if (count <= side_by_side)
            return store(count, address(shows_one ? one : other, first), address(shows_other ? other : one, first));
        if (shows_one)
            store_wide(count, address(one, first));
        if (shows_other)
            store_wide(count, address(other, first));
    }

    /// Writes as wide columns twice, on both sides of what lies between. Where the clip cuts none of the four spans they are
    /// stored side by side, else by rows.
    [[gnu::noinline]] void write_sides(long long one, long long other, long long left, long long right,
                                       long long width) const
    {
        if (left < left_ || right + width > right_ || width > side_by_side || !is_visible(one) || !is_visible(other) ||
            !pixels_) {
            write_rows(one, other, left, width);
            write_rows(one, other, right, width);
            return;
        }
        const std::ptrdiff_t between = static_cast<std::ptrdiff_t>(right - left);
        Pixel* const first_row = address(one, left);
        Pixel* const last_row = address(other, left);
        store(width, first_row, last_row, first_row + between, last_row + between);
    }

private:
    static constexpr int per_block = 16 / sizeof(Pixel);

    /// Up to this width both rows are stored together: no processor predicts where a row ends, and to be surprised once
    /// is cheaper than twice. Wide rows would only slow each other down.
    static constexpr int side_by_side = 32;

    struct Block {
        Pixel pixels[per_block];
    };

    bool is_visible(long long row) const { return row >= top_ && row < bottom_; }

    Pixel* address(long long row, long long column) const
    {
        constexpr int bytes_to_pixels = sizeof(Pixel) == 4 ? 2 : 0;
        return pixels_ + (static_cast<std::ptrdiff_t>(row) * pitch_ >> bytes_to_pixels) +
               static_cast<std::ptrdiff_t>(column);
    }

    /// Stores to rows side by side: whole blocks, the last of which may overlap the one before it.
    template <typename... Rows>
    void store(long long count, Rows*... rows) const
    {
        if (count < per_block) {
            for (int i = 0; i < count; ++i)
                ((rows[i] = value_), ...);
            return;
        }
        const Block block = block_; // The compiler cannot know that the stores leave the member alone.
        const long long last = count - per_block;
        for (long long i = 0; i < last; i += per_block)
            (std::memcpy(rows + i, &block, sizeof block), ...);
        (std::memcpy(rows + last, &block, sizeof block), ...);
    }

    /// Stores to a row of some blocks at least: in between to where a block may begin in memory, as one that crosses the
    /// border of a cache line costs two.
    void store_wide(long long count, Pixel* row) const
    {
        const Block block = block_;
        Pixel* const last = row + (count - per_block);
        std::memcpy(row, &block, sizeof block);
        for (Pixel* place = next_boundary(row); place < last; place += per_block)
            std::memcpy(place, &block, sizeof block);
        std::memcpy(last, &block, sizeof block);
    }

    static Pixel* next_boundary(Pixel* row)
    {
        const auto pixels_beyond = reinterpret_cast<std::uintptr_t>(row) % sizeof(Block) / sizeof(Pixel);
        return row + (per_block - pixels_beyond);
    }

    Pixel* pixels_;
    std::ptrdiff_t pitch_;
    Pixel value_;
    Block block_;
    long long left_, top_, right_, bottom_;
};

} // namespace dtk

#endif
