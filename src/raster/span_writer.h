#ifndef DTK_RASTER_SPAN_WRITER_H
#define DTK_RASTER_SPAN_WRITER_H

#include <directfb.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace dtk {

/// Stores runs of one value into the rows of a locked surface, cut to a clip. It alone turns coordinates into addresses.
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

    /// Writes the same columns of two mirrored rows, the lower one first. One copy of it is fast enough for all callers.
    [[gnu::noinline]] void write_rows(long long lower, long long upper, long long left, long long width) const
    {
        const long long first = std::max(left, left_);
        const long long count = std::min(left + width, right_) - first;
        if (count <= 0 || !pixels_)
            return;
        if (is_visible(lower))
            store(address(lower, first), count);
        if (is_visible(upper))
            store(address(upper, first), count);
    }

private:
    static constexpr int per_block = 16 / sizeof(Pixel);
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

    /// Stores whole blocks, the last of which may overlap the one before it.
    void store(Pixel* pixels, long long count) const
    {
        if (count < per_block) {
            for (int i = 0; i < count; ++i)
                pixels[i] = value_;
            return;
        }
        Pixel* const last = pixels + count - per_block;
        for (; pixels < last; pixels += per_block)
            std::memcpy(pixels, &block_, sizeof block_);
        std::memcpy(last, &block_, sizeof block_);
    }

    Pixel* pixels_;
    std::ptrdiff_t pitch_;
    Pixel value_;
    Block block_;
    long long left_, top_, right_, bottom_;
};

} // namespace dtk

#endif
