#include "pen.h"

#include <string.h>

#include "job.h"

namespace {

/// The pen's pixels as they are in the source now.
struct Picture {
    int width, height;
    uint64_t visible[ACCEL_PEN_SIZE];
    int index; ///< That of all visible pixels, -1 when there are none.
};

/// False: a second colour.
bool look_at_row(const AccelJob& job, const uint8_t* indices, Picture& picture, uint64_t& visible)
{
    visible = 0;
    for (int x = 0; x < picture.width; ++x) {
        if (indices[x] == job.key)
            continue;
        if (picture.index < 0)
            picture.index = indices[x];
        if (indices[x] != picture.index)
            return false;
        visible |= uint64_t{1} << x;
    }
    return true;
}

bool look_at(const AccelJob& job, const DFBRectangle& rect, Picture& picture)
{
    picture.width = rect.w;
    picture.height = rect.h;
    picture.index = -1;
    const uint8_t* indices = job.source.pixels + job.source.pitch * static_cast<size_t>(rect.y) + rect.x;
    for (int y = 0; y < rect.h; ++y, indices += job.source.pitch)
        if (!look_at_row(job, indices, picture, picture.visible[y]))
            return false;
    return true;
}

int trailing_zeros(uint64_t bits) { return bits ? __builtin_ctzll(bits) : ACCEL_PEN_SIZE; }

void add_run(AccelRunList& list, const AccelRun& run)
{
    AccelRun& end = list.runs[list.count++];
    if (run.count > 1) {
        end = run;
        return;
    }
    end = list.runs[list.single_count];
    list.runs[list.single_count++] = run;
}

void add_runs(AccelRunList& list, const AccelPen& pen, int y, uint64_t bits)
{
    for (int x = 0; bits;) {
        const int gap = trailing_zeros(bits);
        bits >>= gap;
        x += gap;
        const int count = trailing_zeros(~bits);
        const ptrdiff_t offset = static_cast<ptrdiff_t>(pen.pitch) * y + static_cast<ptrdiff_t>(x) * pen.pixel_bytes;
        add_run(list, {offset, x, y, count});
        bits = count < ACCEL_PEN_SIZE ? bits >> count : 0;
        x += count;
    }
}

/// The pen's row @p y as a stamp that lies (-dx, -dy) away covers it.
uint64_t covered(const AccelPen& pen, int y, int dx, int dy)
{
    if (y + dy < 0 || y + dy >= pen.height)
        return 0;
    const uint64_t row = pen.visible[y + dy];
    return dx < 0 ? row << 1 : row >> dx;
}

/// What an earlier stamp leaves out of a row has no more runs than both their rows together.
bool has_few_runs(const Picture& picture)
{
    int count = 0;
    for (int y = 0; y < picture.height; ++y)
        count += __builtin_popcountll(picture.visible[y] & ~(picture.visible[y] << 1));
    return count <= ACCEL_PEN_RUNS / 2;
}

/// Runs that were built for the same picture and target layout can be used again.
bool is_kept(const AccelPen& pen, const AccelImage& target, const Picture& picture)
{
    return pen.width == picture.width && pen.height == picture.height && pen.pitch == target.pitch
           && pen.pixel_bytes == target.pixel_bytes
           && !memcmp(pen.visible, picture.visible, static_cast<size_t>(picture.height) * sizeof(picture.visible[0]));
}

void replace(AccelPen& pen, const AccelImage& target, const Picture& picture)
{
    pen.width = picture.width;
    pen.height = picture.height;
    pen.pitch = target.pitch;
    pen.pixel_bytes = target.pixel_bytes;
    memcpy(pen.visible, picture.visible, static_cast<size_t>(picture.height) * sizeof(picture.visible[0]));
    pen.whole.count = pen.whole.single_count = 0;
    for (int y = 0; y < pen.height; ++y)
        add_runs(pen.whole, pen, y, pen.visible[y]);
    for (AccelRunList& list : pen.left_out)
        list.is_built = false;
}

} // namespace

bool accel_take_pen(AccelJob& job, const DFBRectangle& rect)
{
    const bool is_small = rect.w > 0 && rect.h > 0 && rect.w <= ACCEL_PEN_SIZE && rect.h <= ACCEL_PEN_SIZE;
    if (!is_small || !job.is_keyed || job.blit == ACCEL_EXPAND_BLEND)
        return false;
    Picture picture;
    if (!look_at(job, rect, picture) || !has_few_runs(picture))
        return false;
    if (!is_kept(job.pen, job.target, picture))
        replace(job.pen, job.target, picture);
    const int index = picture.index < 0 ? 0 : picture.index;
    job.pen.colour = job.blit == ACCEL_EXPAND ? job.palette.pixels[index] : static_cast<uint32_t>(index);
    return true;
}

const AccelRunList& accel_left_out(AccelPen& pen, int dx, int dy)
{
    AccelRunList& list = pen.left_out[3 * (dy + 1) + dx + 1];
    if (list.is_built)
        return list;
    list.is_built = true;
    list.count = list.single_count = 0;
    for (int y = 0; y < pen.height; ++y)
        add_runs(list, pen, y, pen.visible[y] & ~covered(pen, y, dx, dy));
    return list;
}
