#include "conformance/faults.h"

#include <cstdlib>
#include <cstring>
#include <deque>
#include <set>
#include <thread>

/// Faults of handles, of what is set, and of time.

using namespace faults;

namespace faults {

State state;

namespace {

std::deque<std::function<int()>> late;

constexpr unsigned int marked_bit = 30;

/// A handle without what the fault of handles adds to it.
unsigned int true_handle(unsigned int handle)
{
    return has("another handle each time") ? handle & ~(1u << marked_bit) : handle;
}

bool is_one_pixel(const zuvo_dtk_pen& pen)
{
    return pen.x1 - pen.x0 == 1 && pen.y2 - pen.y0 == 1;
}

template <typename Function>
int set_color(Function* next, unsigned int dtk, u32 color)
{
    const auto byte = [color](int shift) { return static_cast<u8>(color >> shift); };
    return next(dtk, byte(16), byte(8), byte(0), byte(24));
}

void set_pen_color(unsigned int dtk, u32 color)
{
    state.pen.color = color;
    zuvo_dtk_set_pen(dtk, &state.pen);
}

u32 with_fewer_bits(u32 color)
{
    const auto channel = [color](int shift) {
        const u32 value = color >> shift & 0xf8;
        return (value | value >> 5) << shift;
    };
    return color >> 24 == 255 ? 0xff000000 | channel(16) | channel(8) | channel(0) : color;
}

} // namespace

bool has(const char* fault)
{
    static const char* const chosen = std::getenv("ZUVO_FAULT");
    return chosen && std::strcmp(chosen, fault) == 0;
}

bool is_spoiled(unsigned int dtk, int& result)
{
    static const std::thread::id first_thread = std::this_thread::get_id();
    result = 0;
    if (has("any engine is welcome") && dtk != state.engine && state.engine)
        return true;
    result = 0x999;
    return has("one thread only") && std::this_thread::get_id() != first_thread;
}

int draw(unsigned int dtk, const std::function<int()>& call)
{
    int result = 0;
    if (is_spoiled(dtk, result))
        return result;
    if (!has("draws late") || dtk != state.engine)
        return call();
    catch_up();
    late.push_back(call);
    return 0;
}

void catch_up()
{
    for (; !late.empty(); late.pop_front())
        late.front()();
}

} // namespace faults

int zuvo_dtk_sync(unsigned int dtk)
{
    PLATFORM(zuvo_dtk_sync);
    catch_up();
    int result = 0;
    return is_spoiled(dtk, result) ? result : next(dtk);
}

int zuvo_dtk_set_output_surface(unsigned int dtk, unsigned int surface)
{
    PLATFORM(zuvo_dtk_set_output_surface);
    static std::set<unsigned int> known;
    catch_up();
    int result = 0;
    if (is_spoiled(dtk, result))
        return result;
    result = next(dtk, true_handle(surface));
    if (result == 0) {
        state.engine = dtk;
        state.output = surface;
        known.insert(surface);
        return 0;
    }
    if (has("an output survives failure") && dtk == state.engine)
        next(dtk, state.output);
    return has("released surfaces are welcome") && known.count(surface) && dtk == state.engine ? 0 : result;
}

int zuvo_dtk_set_fill_color(unsigned int dtk, u8 r, u8 g, u8 b, u8 a)
{
    PLATFORM(zuvo_dtk_set_fill_color);
    catch_up();
    int result = 0;
    if (is_spoiled(dtk, result))
        return result;
    state.fill_color = u32{a} << 24 | u32{r} << 16 | u32{g} << 8 | b;
    state.has_pattern = false;
    if (has("a fill colours the pen"))
        set_pen_color(dtk, state.fill_color);
    const u32 color = has("colours of 15 bits") ? with_fewer_bits(state.fill_color) : state.fill_color;
    return set_color(next, dtk, color);
}

int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int surface)
{
    PLATFORM(zuvo_dtk_set_fill_pattern);
    catch_up();
    const int result = next(dtk, true_handle(surface));
    state.has_pattern = result == 0;
    if (result && has("a fill survives failure") && dtk == state.engine)
        set_color(zuvo_dtk_set_fill_color, dtk, state.fill_color);
    return result;
}

int zuvo_dtk_set_pen(unsigned int dtk, const zuvo_dtk_pen* new_pen)
{
    PLATFORM(zuvo_dtk_set_pen);
    catch_up();
    int result = 0;
    if (is_spoiled(dtk, result))
        return result;
    if (!new_pen)
        return has("NULL is welcome") ? 0 : next(dtk, new_pen);
    zuvo_dtk_pen& pen = state.pen;
    pen = *new_pen;
    if (!has("pens are mirrored") || is_one_pixel(pen))
        return next(dtk, &pen);
    const zuvo_dtk_pen mirrored = {-pen.x0, pen.y0, -pen.x1, pen.y1, -pen.x2, pen.y2, -pen.x3, pen.y3, pen.color};
    return next(dtk, &mirrored);
}

DFBResult zuvo_dtk_get_part_handle(IDirectFBSurface* surface, unsigned int* ret_handle)
{
    PLATFORM(zuvo_dtk_get_part_handle);
    static unsigned int turn = 0;
    const DFBResult result = next(surface, ret_handle);
    if (has("parts are wholes") && result == DFB_OK)
        return surface->GetID(surface, ret_handle);
    if (!has("another handle each time") || result == DFB_OK)
        return result;
    surface->GetID(surface, ret_handle);
    *ret_handle |= turn++ % 2 << marked_bit;
    return DFB_OK;
}
