#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <functional>
#include <set>
#include <thread>
#include <vector>

#include <csignal>
#include <dlfcn.h>
#include <zuvo.h>

/// A platform with one fault, which the environment variable ZUVO_FAULT names: these functions stand before the
/// platform's own, pass calls on to them, and do one thing wrong. Each fault is one that a board's engine may have.

namespace {

bool has(const char* fault)
{
    static const char* const chosen = std::getenv("ZUVO_FAULT");
    return chosen && std::strcmp(chosen, fault) == 0;
}

template <typename Function>
Function* platform(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

#define PLATFORM(function)                                                                                                 \
    static const auto next = platform<decltype(function)>(#function)

/// What an engine draws late: at the next call, or when somebody waits.
std::deque<std::function<void()>> late;

void catch_up()
{
    while (!late.empty()) {
        const auto first = late.front();
        late.pop_front();
        first();
    }
}

unsigned int true_engine = 0;
unsigned int output = 0;
u32 fill_color = 0, pen_color = 0;
zuvo_dtk_pen pen;
bool has_pattern = false;

/// Whether a call ends at once with a result that is not the platform's.
bool is_spoiled(unsigned int dtk, int& result)
{
    static const std::thread::id first_thread = std::this_thread::get_id();
    if (has("one thread only") && std::this_thread::get_id() != first_thread)
        return result = 0x999, true;
    return has("any engine is welcome") && dtk != true_engine && true_engine ? (result = 0, true) : false;
}

/// Passes a drawing call on, now or late.
template <typename Draw>
int draw(unsigned int dtk, const Draw& call)
{
    int result = 0;
    if (is_spoiled(dtk, result))
        return result;
    if (!has("draws late") || dtk != true_engine)
        return call();
    catch_up();
    late.push_back([call] { call(); });
    return 0;
}

unsigned int blended_or_not(unsigned int flags, bool is_border)
{
    if (has("always blends"))
        return flags | ZUVO_DTK_BLEND;
    const bool never = (has("borders do not blend") && is_border) || (has("patterns do not blend") && has_pattern);
    return never ? flags & ~ZUVO_DTK_BLEND : flags;
}

int narrowed(int coordinate)
{
    return has("coordinates of 16 bits") ? static_cast<short>(coordinate) : coordinate;
}

DFBRectangle narrowed(const DFBRectangle& rect)
{
    return {narrowed(rect.x), narrowed(rect.y), rect.w, rect.h};
}

DFBRectangle grown(DFBRectangle rect, const char* fault, DFBRectangle by)
{
    return has(fault) ? DFBRectangle{rect.x + by.x, rect.y + by.y, rect.w + by.w, rect.h + by.h} : rect;
}

/// Passes on a call that takes a box, which some faults change.
template <typename Function>
int draw_box(Function* next, unsigned int dtk, const DFBRectangle* rect, unsigned int flags,
             const std::function<DFBRectangle(const DFBRectangle&)>& change)
{
    if (!rect)
        return has("NULL is welcome") ? 0 : next(dtk, rect, flags);
    const DFBRectangle box = change(narrowed(*rect));
    return draw(dtk, [=] { return next(dtk, &box, flags); });
}

/// A border of four lines, which blend where they meet.
int draw_sides(unsigned int dtk, const DFBRectangle& box, unsigned int flags)
{
    const int right = box.x + box.w - 1, bottom = box.y + box.h - 1;
    const int errors[] = {zuvo_dtk_draw_line(dtk, box.x, box.y, right, box.y, flags),
                          zuvo_dtk_draw_line(dtk, right, box.y, right, bottom, flags),
                          zuvo_dtk_draw_line(dtk, right, bottom, box.x, bottom, flags),
                          zuvo_dtk_draw_line(dtk, box.x, bottom, box.x, box.y, flags)};
    return *std::max_element(std::begin(errors), std::end(errors));
}

bool is_one_pixel()
{
    return pen.x1 - pen.x0 == 1 && pen.y2 - pen.y0 == 1;
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
    if (has("another handle each time"))
        surface &= ~(1u << 30);
    result = next(dtk, surface);
    if (result == 0) {
        true_engine = dtk;
        output = surface;
        known.insert(surface);
        return 0;
    }
    if (has("an output survives failure") && dtk == true_engine)
        next(dtk, output);
    return has("released surfaces are welcome") && known.count(surface) && dtk == true_engine ? 0 : result;
}

int zuvo_dtk_set_fill_color(unsigned int dtk, u8 r, u8 g, u8 b, u8 a)
{
    PLATFORM(zuvo_dtk_set_fill_color);
    catch_up();
    int result = 0;
    if (is_spoiled(dtk, result))
        return result;
    fill_color = u32{a} << 24 | u32{r} << 16 | u32{g} << 8 | b;
    has_pattern = false;
    if (has("a fill colours the pen"))
        pen_color = fill_color, pen.color = fill_color, zuvo_dtk_set_pen(dtk, &pen);
    const u32 color = has("colours of 15 bits") ? with_fewer_bits(fill_color) : fill_color;
    return next(dtk, static_cast<u8>(color >> 16), static_cast<u8>(color >> 8), static_cast<u8>(color), a);
}

int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int surface)
{
    PLATFORM(zuvo_dtk_set_fill_pattern);
    catch_up();
    const int result = next(dtk, has("another handle each time") ? surface & ~(1u << 30) : surface);
    has_pattern = result == 0;
    if (result && has("a fill survives failure") && dtk == true_engine)
        zuvo_dtk_set_fill_color(dtk, static_cast<u8>(fill_color >> 16), static_cast<u8>(fill_color >> 8),
                                static_cast<u8>(fill_color), static_cast<u8>(fill_color >> 24));
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
    pen = *new_pen;
    if (!has("pens are mirrored") || is_one_pixel())
        return next(dtk, &pen);
    const zuvo_dtk_pen mirrored = {-pen.x0, pen.y0, -pen.x1, pen.y1, -pen.x2, pen.y2, -pen.x3, pen.y3, pen.color};
    return next(dtk, &mirrored);
}

int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_line);
    const bool is_edge = !(flags & ZUVO_DTK_DRAW);
    if (has("lines lack their end") && !is_edge)
        x2 -= (x2 > x1) - (x2 < x1), y2 -= (y2 > y1) - (y2 < y1);
    if (has("edges are moved") && is_edge)
        ++y1, ++y2;
    const int left = narrowed(x1), right = narrowed(x2), chosen = static_cast<int>(blended_or_not(flags, true));
    return draw(dtk, [=] { return next(dtk, left, y1, right, y2, static_cast<unsigned int>(chosen)); });
}

int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_rectangle);
    if (has("crashes on extremes") && rect && rect->w == 2147483647)
        std::raise(SIGSEGV);
    return draw_box(next, dtk, rect, blended_or_not(flags, false), [](const DFBRectangle& box) {
        if (has("patterns begin at the surface") && has_pattern && box.x > 0)
            return DFBRectangle{0, box.y, box.x + box.w, box.h};
        return grown(box, "rectangles are one wider", {0, 0, box.w > 0 && box.w < 10000, 0});
    });
}

int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_rectangle_border);
    const unsigned int chosen = blended_or_not(flags, true);
    if (has("borders blend twice in corners") && rect && (chosen & ZUVO_DTK_BLEND) && rect->w > 0 && rect->h > 0)
        return draw_sides(dtk, *rect, chosen);
    return draw_box(next, dtk, rect, chosen,
                    [](const DFBRectangle& box) { return grown(box, "borders are one higher", {0, 0, 0, 1}); });
}

int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_ellipse);
    return draw_box(next, dtk, rect, blended_or_not(flags, false), [](const DFBRectangle& box) {
        const DFBRectangle moved = grown(box, "ellipses lie elsewhere", {6, 6, 0, 0});
        return has_pattern ? moved : grown(moved, "ellipses are one smaller", {0, 0, -1, -1});
    });
}

int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_ellipse_border);
    return draw_box(next, dtk, rect, blended_or_not(flags, true), [](const DFBRectangle& box) {
        return grown(box, "ellipse borders are one smaller", {0, 0, -1, -1});
    });
}

int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint* points, unsigned int num_points, unsigned int reserved)
{
    PLATFORM(zuvo_dtk_draw_polygon);
    if (!points)
        return has("NULL is welcome") ? 0 : next(dtk, points, num_points, reserved);
    std::deque<DFBPoint> moved(points, points + num_points);
    for (DFBPoint& point : moved)
        point = {narrowed(point.x) + has("polygons are moved"), point.y};
    return draw(dtk, [=] {
        const std::vector<DFBPoint> copy(moved.begin(), moved.end());
        return next(dtk, copy.data(), num_points, reserved);
    });
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
    *ret_handle |= turn++ % 2 << 30;
    return DFB_OK;
}
