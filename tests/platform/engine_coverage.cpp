#include "platform/engine_coverage.h"

#include <cairo.h>

namespace {

void count_spans(zuvo::RowSink& self, int row, const zuvo::Span* spans, int count)
{
    Coverage& coverage = static_cast<Coverage&>(self);
    int reached = -1;
    for (int i = 0; i < count; ++i) {
        const zuvo::Span span = spans[i];
        const bool is_inside = row >= 0 && row < coverage.extent.height && span.right <= coverage.extent.width;
        if (!is_inside || span.left <= reached || span.right <= span.left) {
            coverage.is_well_formed = false;
            return;
        }
        for (int x = span.left; x < span.right; ++x)
            ++coverage.at(x, row);
        reached = span.right;
    }
}

} // namespace

Coverage::Coverage(zuvo::Extent size)
    : RowSink{count_spans}, extent(size), counts(static_cast<std::size_t>(size.width * size.height)),
      is_well_formed(true)
{
}

std::string Coverage::text() const
{
    std::string rows;
    for (int y = 0; y < extent.height; ++y) {
        for (int x = 0; x < extent.width; ++x)
            rows += at(x, y) == 0 ? '.' : at(x, y) == 1 ? '#' : '2';
        rows += '\n';
    }
    return rows;
}

Coverage cairo_coverage(zuvo::Extent extent, const std::function<void(cairo_t*)>& trace)
{
    cairo_surface_t* const surface = cairo_image_surface_create(CAIRO_FORMAT_A8, extent.width, extent.height);
    cairo_t* const context = cairo_create(surface);
    cairo_set_antialias(context, CAIRO_ANTIALIAS_NONE);
    trace(context);
    cairo_fill(context);
    cairo_destroy(context);
    cairo_surface_flush(surface);

    Coverage coverage(extent);
    const unsigned char* const pixels = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    for (int y = 0; y < extent.height; ++y) {
        for (int x = 0; x < extent.width; ++x)
            coverage.at(x, y) = pixels[y * stride + x] ? 1 : 0;
    }
    cairo_surface_destroy(surface);
    return coverage;
}
