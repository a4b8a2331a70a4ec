#ifndef DTK_RASTER_SPAN_WRITER_H
#define DTK_RASTER_SPAN_WRITER_H

#include <directfb.h>

#include <algorithm>
#include <cstddef>

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
    }

    /// Writes the same columns of two mirrored rows, the lower one first. One copy of it is fast enough for all callers.
    [[gnu::noinline]] void write_rows(long long lower, long long upper, long long left, long long width) const
    {
        const long long first = std::max(left, left_);
        const long long end = std::min(left + width, right_);
        if (first >= end || !pixels_)
            return;
        write_row(lower, first, end);
        write_row(upper, first, end);
    }

private:
    void write_row(long long row, long long first, long long end) const
    {
        if (row < top_ || row >= bottom_)
            return;
        const auto start = static_cast<std::ptrdiff_t>(row) * pitch_ / static_cast<std::ptrdiff_t>(sizeof(Pixel));
        std::fill(pixels_ + start + static_cast<std::ptrdiff_t>(first), pixels_ + start + static_cast<std::ptrdiff_t>(end),
                  value_);
    }

    Pixel* pixels_;
    std::ptrdiff_t pitch_;
    Pixel value_;
    long long left_, top_, right_, bottom_;
};

} // namespace dtk

#endif
