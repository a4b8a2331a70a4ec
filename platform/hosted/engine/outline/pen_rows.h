#ifndef ZUVO_PEN_ROWS_H
#define ZUVO_PEN_ROWS_H

#include "engine/buffer.h"
#include "engine/fill/polygon_scan.h"
#include "zuvo.h"

namespace zuvo {

/// A pen wider or higher than this is refused.
const int pen_limit = 4096;

/// The pixels of a pen, row by row, relative to the point that is drawn.
///
/// A pen is W x H pixels, its corners' extent, and is placed W / 2 and H / 2 to the upper left of the point. A pen
/// without width or height covers the single pixels that its corners span.
///
/// A plain record with a buffer that is kept from one pen to the next.
struct PenRows {
    /// Works out the pixels of @p pen. Returns a zuvo_error.
    int render(PolygonScan& polygon, const zuvo_dtk_pen& pen);

    /// The first or the second span of a row (index 0 or 1), empty when left is not smaller than right.
    const Span& part(int row, int index) const
    {
        return spans[2 * static_cast<size_t>(row) + static_cast<size_t>(index)];
    }

    /// Whether the pen covers one pixel, not necessarily the point that is drawn.
    bool covers_one_pixel() const { return is_box && row_count == 1 && part(0, 0).right - part(0, 0).left == 1; }

    int top;                ///< The first row.
    int row_count;
    bool is_single_pixel;   ///< 1 x 1 pixel: draws outlines as if there were no pen.
    bool has_second_parts;
    bool is_box;            ///< All rows are the same single span.
    Buffer<Span> spans;     ///< Two for each row: four corners make no more.
};

} // namespace zuvo

#endif
