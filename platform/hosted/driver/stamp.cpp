#include "stamp.h"

namespace {

/// Finds what earlier stamps of a batch left out of the next one.
///
/// Which earlier stamp is its neighbour depends on the path: on a line it is the one before, on a rectangle, which
/// takes opposite sides in turn, the second, on an ellipse, which takes four quadrants in turn, the fourth.
class Path {
public:
    Path(AccelPen& pen, const DFBPoint* points) : pen_(pen), points_(points) {}

    const AccelRunList& left_out_of(unsigned int stamp)
    {
        if (const AccelRunList* list = left_out_by(stamp, distance_))
            return *list;
        constexpr unsigned int distances[] = {1, 2, 4};
        for (unsigned int distance : distances) {
            if (const AccelRunList* list = left_out_by(stamp, distance)) {
                distance_ = distance;
                return *list;
            }
        }
        return pen_.whole;
    }

private:
    const AccelRunList* left_out_by(unsigned int stamp, unsigned int distance)
    {
        if (distance > stamp)
            return nullptr;
        const int dx = points_[stamp].x - points_[stamp - distance].x;
        const int dy = points_[stamp].y - points_[stamp - distance].y;
        const bool is_neighbour = dx >= -1 && dx <= 1 && dy >= -1 && dy <= 1;
        return is_neighbour ? &accel_left_out(pen_, dx, dy) : nullptr;
    }

    AccelPen& pen_;
    const DFBPoint* points_;
    unsigned int distance_ = 1;
};

bool is_within(const DFBRegion& clip, const AccelPen& pen, const DFBPoint& point)
{
    return point.x >= clip.x1 && point.y >= clip.y1 && point.x <= clip.x2 - pen.width + 1
           && point.y <= clip.y2 - pen.height + 1;
}

bool is_outside(const DFBRegion& clip, const AccelPen& pen, const DFBPoint& point)
{
    return point.x > clip.x2 || point.y > clip.y2 || point.x <= clip.x1 - pen.width || point.y <= clip.y1 - pen.height;
}

template <class Pixel>
void paint_run(uint8_t* target, Pixel colour, int count)
{
    auto* pixels = reinterpret_cast<Pixel*>(target);
    for (int i = 0; i < count; ++i)
        pixels[i] = colour;
}

template <class Pixel>
void paint(const AccelImage& image, const AccelRunList& list, const DFBPoint& point, Pixel colour)
{
    uint8_t* target =
        image.pixels + image.pitch * static_cast<size_t>(point.y) + static_cast<size_t>(point.x) * sizeof(Pixel);
    const AccelRun* run = list.runs;
    const AccelRun* const longer = run + list.single_count;
    const AccelRun* const end = run + list.count;
    for (; run < longer; ++run)
        *reinterpret_cast<Pixel*>(target + run->offset) = colour;
    for (; run < end; ++run)
        paint_run(target + run->offset, colour, run->count);
}

template <class Pixel>
void paint_clipped(const AccelJob& job, const AccelRunList& list, const DFBPoint& point, Pixel colour)
{
    const DFBRegion& clip = job.clip;
    for (unsigned int i = 0; i < list.count; ++i) {
        const AccelRun& run = list.runs[i];
        const int y = point.y + run.y, x = point.x + run.x, end = x + run.count;
        const int first = x < clip.x1 ? clip.x1 : x;
        const int past = end > clip.x2 ? clip.x2 + 1 : end;
        if (y < clip.y1 || y > clip.y2 || first >= past)
            continue;
        uint8_t* row = job.target.pixels + job.target.pitch * static_cast<size_t>(y);
        paint_run(row + static_cast<size_t>(first) * sizeof(Pixel), colour, past - first);
    }
}

template <class Pixel>
void stamp(AccelJob& job, const DFBPoint* points, unsigned int count)
{
    const auto colour = static_cast<Pixel>(job.pen.colour);
    Path path(job.pen, points);
    for (unsigned int i = 0; i < count; ++i) {
        if (is_outside(job.clip, job.pen, points[i]))
            continue;
        const AccelRunList& list = path.left_out_of(i);
        if (is_within(job.clip, job.pen, points[i]))
            paint(job.target, list, points[i], colour);
        else
            paint_clipped(job, list, points[i], colour);
    }
}

} // namespace

void accel_stamp(AccelJob& job, const DFBPoint* points, unsigned int count)
{
    if (job.target.pixel_bytes == 1)
        stamp<uint8_t>(job, points, count);
    else
        stamp<uint32_t>(job, points, count);
}
