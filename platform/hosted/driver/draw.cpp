#include <string.h>

#include "job.h"
#include "stamp.h"

namespace {

uint8_t* pixel_at(const AccelImage& image, int x, int y)
{
    return image.pixels + image.pitch * static_cast<size_t>(y) + static_cast<size_t>(x * image.pixel_bytes);
}

int larger(int a, int b) { return a > b ? a : b; }
int smaller(int a, int b) { return a < b ? a : b; }

/// The part of a rectangle that the clip leaves; its width or height is 0 when nothing is left.
DFBRectangle clipped(const DFBRegion& clip, const DFBRectangle& rect)
{
    const int left = larger(rect.x, clip.x1), right = smaller(rect.x + rect.w, clip.x2 + 1);
    const int top = larger(rect.y, clip.y1), bottom = smaller(rect.y + rect.h, clip.y2 + 1);
    return {left, top, right > left ? right - left : 0, bottom > top ? bottom - top : 0};
}

void fill_bytes(const AccelJob& job, const DFBRectangle& part)
{
    uint8_t* target = pixel_at(job.target, part.x, part.y);
    for (int row = 0; row < part.h; ++row, target += job.target.pitch)
        memset(target, static_cast<int>(job.colour), static_cast<size_t>(part.w));
}

/// So few pixels take less time than the call that would fill them fast.
void fill_narrow(const AccelJob& job, const DFBRectangle& part)
{
    uint8_t* row = pixel_at(job.target, part.x, part.y);
    for (int y = 0; y < part.h; ++y, row += job.target.pitch)
        for (int x = 0; x < part.w; ++x)
            reinterpret_cast<uint32_t*>(row)[x] = job.colour;
}

void fill_pixels(const AccelJob& job, const DFBRectangle& part)
{
    if (part.w <= 4)
        return fill_narrow(job, part);
    auto* first_row = reinterpret_cast<uint32_t*>(pixel_at(job.target, 0, part.y));
    const RowSpan span = {part.x, part.x + part.w};
    const RowSpans rows = {first_row, job.target.pitch, &span, 0, static_cast<size_t>(part.h), 1};
    job.rows->fill_spans(&rows, job.colour);
}

/// Looks a row up part by part, and blends it.
void expand_and_blend(const AccelJob& job, uint32_t* target, const uint8_t* source, size_t count)
{
    uint32_t pixels[256];
    for (size_t done = 0; done < count;) {
        const size_t part = count - done < 256 ? count - done : 256;
        job.rows->expand(pixels, source + done, job.palette.pixels, part);
        job.rows->blend(target + done, pixels, part);
        done += part;
    }
}

void expand_row(const AccelJob& job, uint32_t* target, const uint8_t* source, size_t count)
{
    if (job.is_keyed)
        job.rows->expand_keyed(target, source, job.palette.pixels, job.key, count);
    else
        job.rows->expand(target, source, job.palette.pixels, count);
}

void copy_row(const AccelJob& job, uint8_t* target, const uint8_t* source, size_t count)
{
    if (job.is_keyed)
        job.rows->copy_keyed(target, source, job.key, count);
    else
        memcpy(target, source, count * static_cast<size_t>(job.target.pixel_bytes));
}

void blit_row(const AccelJob& job, uint8_t* target, const uint8_t* source, size_t count)
{
    auto* pixels = reinterpret_cast<uint32_t*>(target);
    switch (job.blit) {
    case ACCEL_COPY:
        return copy_row(job, target, source, count);
    case ACCEL_BLEND:
        return job.rows->blend(pixels, reinterpret_cast<const uint32_t*>(source), count);
    case ACCEL_BLEND_RGB32:
        return job.rows->blend_rgb32(pixels, reinterpret_cast<const uint32_t*>(source), count);
    case ACCEL_EXPAND:
        return expand_row(job, pixels, source, count);
    case ACCEL_EXPAND_BLEND:
        return expand_and_blend(job, pixels, source, count);
    }
}

void blit_part(const AccelJob& job, const DFBRectangle& rect, int x, int y)
{
    const DFBRectangle part = clipped(job.clip, {x, y, rect.w, rect.h});
    if (!part.w)
        return;
    uint8_t* target = pixel_at(job.target, part.x, part.y);
    const uint8_t* source = pixel_at(job.source, rect.x + part.x - x, rect.y + part.y - y);
    for (int row = 0; row < part.h; ++row) {
        blit_row(job, target, source, static_cast<size_t>(part.w));
        target += job.target.pitch;
        source += job.source.pitch;
    }
}

bool is_inside(const AccelImage& image, const DFBRectangle& rect)
{
    return rect.x >= 0 && rect.y >= 0 && rect.w <= image.width - rect.x && rect.h <= image.height - rect.y;
}

bool are_equal(const DFBRectangle& a, const DFBRectangle& b) { return !memcmp(&a, &b, sizeof(a)); }

bool are_inside(const AccelImage& image, const DFBRectangle* rects, unsigned int count)
{
    for (unsigned int i = 0; i < count; ++i)
        if (!(i > 0 && are_equal(rects[i], rects[i - 1])) && !is_inside(image, rects[i]))
            return false;
    return true;
}

unsigned int count_equal(const DFBRectangle* rects, unsigned int count)
{
    unsigned int equal = 1;
    while (equal < count && are_equal(rects[equal], rects[0]))
        ++equal;
    return equal;
}

/// Several blits of the same part of the source.
void repeat_blit(AccelJob& job, const DFBRectangle& rect, const DFBPoint* points, unsigned int count)
{
    if (count > 1 && accel_take_pen(job, rect))
        return accel_stamp(job, points, count);
    for (unsigned int i = 0; i < count; ++i)
        blit_part(job, rect, points[i].x, points[i].y);
}

} // namespace

bool accel_fill_rectangle(void* driver_data, void*, DFBRectangle* rect)
{
    const AccelJob& job = *static_cast<const AccelJob*>(driver_data);
    if (!job.is_possible)
        return false;
    const DFBRectangle part = clipped(job.clip, *rect);
    if (job.target.pixel_bytes == 1)
        fill_bytes(job, part);
    else
        fill_pixels(job, part);
    return true;
}

bool accel_blit(void* driver_data, void*, DFBRectangle* rect, int x, int y)
{
    const AccelJob& job = *static_cast<const AccelJob*>(driver_data);
    if (!job.is_possible || !is_inside(job.source, *rect))
        return false;
    blit_part(job, *rect, x, y);
    return true;
}

bool accel_batch_blit(void* driver_data, void*, const DFBRectangle* rects, const DFBPoint* points, unsigned int count,
                      unsigned int*)
{
    AccelJob& job = *static_cast<AccelJob*>(driver_data);
    if (!job.is_possible || !are_inside(job.source, rects, count))
        return false;
    while (count) {
        const unsigned int equal = count_equal(rects, count);
        repeat_blit(job, rects[0], points, equal);
        rects += equal;
        points += equal;
        count -= equal;
    }
    return true;
}
