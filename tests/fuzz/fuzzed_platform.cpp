#include "fuzzed_platform.h"

#include "guarded_memory.h"
#include "zuvo.h"

namespace fuzz {
namespace {

/// Reads what the engine is given, so that the sanitizers see memory that is not there.
template <typename Number>
void read(const Number* numbers, unsigned count)
{
    volatile Number last = 0;
    for (unsigned i = 0; i < count; ++i)
        last = numbers[i];
    static_cast<void>(last);
}

int answer(unsigned dtk)
{
    require(dtk == 1, "the engine was called by a wrong handle");
    unsigned& countdown = platform().calls_until_failure;
    return countdown > 0 && --countdown == 0 ? 0x77 : 0;
}

int answer(unsigned dtk, const DFBRectangle* rect)
{
    read(&rect->x, 4);
    return answer(dtk);
}

} // namespace

Platform& platform()
{
    static Platform the_platform;
    return the_platform;
}

} // namespace fuzz

using fuzz::answer;

extern "C" {

unsigned int zuvo_dtk_get_handle(void) { return fuzz::platform().has_engine; }
int zuvo_dtk_sync(unsigned int dtk) { return answer(dtk); }
int zuvo_dtk_set_output_surface(unsigned int dtk, unsigned int) { return answer(dtk); }
int zuvo_dtk_set_fill_color(unsigned int dtk, u8, u8, u8, u8) { return answer(dtk); }
int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int) { return answer(dtk); }
int zuvo_dtk_draw_line(unsigned int dtk, int, int, int, int, unsigned int) { return answer(dtk); }
int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle* rect, unsigned int) { return answer(dtk, rect); }
int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle* rect, unsigned int) { return answer(dtk, rect); }
int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle* rect, unsigned int) { return answer(dtk, rect); }
int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle* rect, unsigned int) { return answer(dtk, rect); }

int zuvo_dtk_set_pen(unsigned int dtk, const zuvo_dtk_pen* pen)
{
    fuzz::read(&pen->x0, 8);
    return answer(dtk);
}

int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint* points, unsigned int num_points, unsigned int)
{
    for (unsigned i = 0; i < num_points; ++i)
        fuzz::read(&points[i].x, 2);
    return answer(dtk);
}

} // extern "C"
