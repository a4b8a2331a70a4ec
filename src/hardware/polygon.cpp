#include "hardware/engine.h"
#include "toolkit/report.h"
#include "toolkit/trace.h"

#include <algorithm>

using namespace dtk;

namespace {

/// A private copy of the points, for the engine never sees the caller's memory. Usual polygons fit without the heap.
class PointsCopy {
public:
    PointsCopy(const DFBPoint* points, u32 num_points) : num_points_(num_points)
    {
        if (num_points > capacity)
            points_ = heap_ = static_cast<DFBPoint*>(std::malloc(num_points * sizeof(DFBPoint)));
        if (points_)
            std::copy_n(points, num_points, points_);
    }
    PointsCopy(const PointsCopy&) = delete;
    PointsCopy& operator=(const PointsCopy&) = delete;
    ~PointsCopy() { std::free(heap_); }

    bool is_complete() const { return points_; }
    const DFBPoint* points() const { return points_; }
    u32 num_points() const { return num_points_; }

private:
    static constexpr u32 capacity = 256;

    DFBPoint local_[capacity];
    DFBPoint* heap_ = nullptr;
    DFBPoint* points_ = local_;
    u32 num_points_;
};

DFBResult fill(const DTKHDDVD_data& toolkit, const PointsCopy& polygon)
{
    return draw_fill(toolkit, polygon_messages, [&] {
        return zuvo_dtk_draw_polygon(toolkit.dtk, polygon.points(), polygon.num_points(), 0);
    });
}

/// Edges are sent with the blending decision alone, not with draw flags.
DFBResult outline(const DTKHDDVD_data& toolkit, const PointsCopy& polygon, bool closed, bool blends)
{
    return draw_outline(toolkit, polygon_messages, [&](EngineErrors& errors) {
        const auto draw_edge = [&](const DFBPoint& from, const DFBPoint& to) {
            errors.check(polygon_messages.draw_outline,
                         zuvo_dtk_draw_line(toolkit.dtk, from.x, from.y, to.x, to.y, blends ? 1 : 0));
        };
        const DFBPoint* points = polygon.points();
        const u32 last = polygon.num_points() - 1;
        for (u32 i = 0; i < last; ++i)
            draw_edge(points[i], points[i + 1]);
        if (closed)
            draw_edge(points[last], points[0]);
    });
}

DFBResult draw_polygon(const DTKHDDVD_data& toolkit, const DFBPoint* points, u32 num_points, bool closed, u32 flags)
{
    if (num_points < 2 || !draws(flags))
        return result::ok;
    if (!points)
        return result::invalid_argument;
    const PointsCopy polygon(points, num_points);
    if (!polygon.is_complete())
        return result::no_memory;

    // A pattern set on this back end leaves the other one's field empty, so that a pattern alone does not blend.
    const bool blends = needs_blending(toolkit, flags, toolkit.fill_pattern);
    if (flags & DTKHDDVD_FILL) {
        if (DFBResult result = fill(toolkit, polygon))
            return result;
    }
    return flags & DTKHDDVD_STROKE ? outline(toolkit, polygon, closed, blends) : result::ok;
}

} // namespace

DFBResult DTKHDDVD_Polygon_HW(DTKHDDVD* thiz, const DFBPoint* points, u32 num_points, u8 closed, u32 flags)
{
    if (!thiz)
        return result::thiz_null;
    trace("DTKHDDVD_Polygon", *thiz->priv, flags);
    return report("DTKHDDVD_Polygon", draw_polygon(*thiz->priv, points, num_points, closed != 0, flags));
}
