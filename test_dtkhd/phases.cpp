#include "phases.h"

#include <cmath>

#include "timing.h"

namespace dtk {

namespace {

struct Colour {
    u8 r, g, b, a;
};

constexpr Colour shadow = {0x00, 0x00, 0x00, 0x40};
constexpr int series_length = 19;
constexpr int series_gaps = 21;
constexpr int frames_per_turn = 120;

using BoxOperation = DFBResult (*)(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags);

DFBResult set_fill(DTKHDDVD* toolkit, const Colour& colour)
{
    return toolkit->SetFillColor(toolkit, colour.r, colour.g, colour.b, colour.a);
}

DFBResult set_stroke(DTKHDDVD* toolkit, const Colour& colour)
{
    return toolkit->SetStrokeColor(toolkit, colour.r, colour.g, colour.b, colour.a);
}

DFBResult set_colours(DTKHDDVD* toolkit, const Colour& fill, const Colour& stroke)
{
    if (DFBResult result = set_fill(toolkit, fill))
        return result;
    return set_stroke(toolkit, stroke);
}

/// Goes from 0 up to @p highest and down again, one per @p step.
int back_and_forth(int step, int highest)
{
    if (highest <= 0)
        return 0;
    const int place = step % (2 * highest);
    return place <= highest ? place : 2 * highest - place;
}

DFBResult clear(const Scene& scene, int)
{
    if (DFBResult result = scene.surface->Clear(scene.surface, 0x55, 0x55, 0x55, 0xFF))
        return result;
    return scene.dfb->WaitIdle(scene.dfb);
}

DFBResult draw_centred_square(const Scene& scene, int size, const Colour& fill, const Colour& stroke)
{
    DTKHDDVD* toolkit = scene.toolkit;
    if (DFBResult result = set_colours(toolkit, fill, stroke))
        return result;
    if (DFBResult result = toolkit->SetPen(toolkit, nullptr))
        return result;

    const DFBRectangle box = {scene.width / 2 - size / 2, scene.height / 2 - size / 2, size, size};
    return toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL | DTKHDDVD_STROKE);
}

DFBResult draw_grey_squares(const Scene& scene, int)
{
    if (DFBResult result = draw_centred_square(scene, 400, {0x88, 0x88, 0x99, 0xFF}, {0xCC, 0xBB, 0xBB, 0xFF}))
        return result;
    return draw_centred_square(scene, 200, {0x66, 0x77, 0x66, 0xFF}, {0xBB, 0xAA, 0xBB, 0xFF});
}

/// Fills @p shadow_box with the shadow's colour and, 5 pixels up and left of it, the shape that throws it.
DFBResult fill_above_shadow(DTKHDDVD* toolkit, BoxOperation shape, const DFBRectangle& shadow_box, const Colour& colour)
{
    if (DFBResult result = set_fill(toolkit, shadow))
        return result;
    if (DFBResult result = shape(toolkit, &shadow_box, DTKHDDVD_FILL))
        return result;

    const DFBRectangle box = {shadow_box.x - 5, shadow_box.y - 5, shadow_box.w, shadow_box.h};
    if (DFBResult result = set_fill(toolkit, colour))
        return result;
    return shape(toolkit, &box, DTKHDDVD_FILL);
}

DFBResult draw_ellipse_series(const Scene& scene, int number)
{
    const int animation = 2 * number;
    int size = 62;
    u8 shade = 127;
    for (int i = series_length; i >= 1; --i, size -= 3, shade = static_cast<u8>(shade - 5)) {
        const DFBRectangle box = {(animation + i * scene.width / series_gaps) % scene.width,
                                  (animation + i * scene.height / series_gaps) % scene.height, size, size};
        const Colour colour = {0x20, shade, static_cast<u8>(0xA0 - shade), 0xFF};
        if (DFBResult result = fill_above_shadow(scene.toolkit, scene.toolkit->Ellipse, box, colour))
            return result;
    }
    return DFB_OK;
}

DFBResult draw_rectangle_series(const Scene& scene, int number)
{
    const int animation = 2 * number;
    int size = 5;
    u8 shade = 0x20;
    for (int i = series_length; i >= 1; --i, size += 3, shade = static_cast<u8>(shade + 5)) {
        const int x = animation + (scene.width - size) - i * scene.width / series_gaps;
        const DFBRectangle box = {x % scene.width,
                                  (animation + i * scene.height / series_gaps) % scene.height, size, size};
        const Colour colour = {shade, static_cast<u8>(0xA0 - shade), static_cast<u8>(0xA0 - shade), 0xFF};
        if (DFBResult result = fill_above_shadow(scene.toolkit, scene.toolkit->Rectangle, box, colour))
            return result;
    }
    return DFB_OK;
}

/// The ellipse goes up and down in the right half, against the movement of the rectangle in the left half.
DFBResult draw_pen_ellipse(const Scene& scene, int number)
{
    DTKHDDVD* toolkit = scene.toolkit;
    if (DFBResult result = toolkit->SetPen(toolkit, scene.ellipse_pen))
        return result;
    if (DFBResult result = set_colours(toolkit, {0x30, 0x40, 0x60, 0xBB}, {0xD0, 0xD0, 0xD0, 0xBB}))
        return result;

    const int steps = (scene.height - 140) / 5;
    const DFBRectangle box = {scene.width - 500, 5 * (steps - back_and_forth(number, steps)), 200, 140};
    return toolkit->Ellipse(toolkit, &box, DTKHDDVD_FILL | DTKHDDVD_STROKE);
}

DFBResult draw_polygon(const Scene& scene, int)
{
    DTKHDDVD* toolkit = scene.toolkit;
    if (DFBResult result = toolkit->SetPen(toolkit, scene.polygon_pen))
        return result;
    if (DFBResult result = toolkit->SetFillPattern(toolkit, scene.texture))
        return result;
    if (DFBResult result = set_stroke(toolkit, {0xD0, 0x80, 0x60, 0xBB}))
        return result;

    const int x = scene.width / 2;
    const int y = scene.height / 2;
    const DFBPoint corners[] = {{x, y - 150}, {x + 130, y + 75}, {x - 130, y + 75}};
    return toolkit->Polygon(toolkit, corners, 3, 1, DTKHDDVD_FILL | DTKHDDVD_STROKE);
}

DFBResult draw_pen_rectangle(const Scene& scene, int number)
{
    DTKHDDVD* toolkit = scene.toolkit;
    if (DFBResult result = toolkit->SetPen(toolkit, scene.rectangle_pens[number % 5]))
        return result;
    if (DFBResult result = set_colours(toolkit, {0xAA, 0xAA, 0x11, 0xBB}, {0xFF, 0xFF, 0x66, 0xBB}))
        return result;

    const DFBRectangle box = {300, 5 * back_and_forth(number, (scene.height - 100) / 5), 200, 100};
    return toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL | DTKHDDVD_STROKE);
}

DFBResult draw_clock_hand(const Scene& scene, int number)
{
    DTKHDDVD* toolkit = scene.toolkit;
    if (DFBResult result = toolkit->SetPen(toolkit, scene.line_pen))
        return result;
    if (DFBResult result = set_stroke(toolkit, {0xFF, 0xFF, 0xFF, 0xBB}))
        return result;

    const double angle = number % frames_per_turn * (2 * M_PI / frames_per_turn);
    const int x = scene.width / 2;
    const int y = scene.height / 2;
    return toolkit->Line(toolkit, x, y, x + static_cast<int>(std::cos(angle) * x),
                         y + static_cast<int>(std::sin(angle) * y));
}

/// Nothing is waited for: the phase shows what taking two stamps costs.
DFBResult sync(const Scene&, int)
{
    return DFB_OK;
}

DFBResult flip(const Scene& scene, int)
{
    return scene.surface->Flip(scene.surface, nullptr, DSFLIP_NONE);
}

struct Phase {
    int* start;
    int* stop;
    DFBResult (*draw)(const Scene& scene, int number);
};

const Phase phases[] = {
    {&clear_time_start, &clear_time_stop, clear},
    {&grey_time_start, &grey_time_stop, draw_grey_squares},
    {&soe_time_start, &soe_time_stop, draw_ellipse_series},
    {&sor_time_start, &sor_time_stop, draw_rectangle_series},
    {&ell_time_start, &ell_time_stop, draw_pen_ellipse},
    {&pol_time_start, &pol_time_stop, draw_polygon},
    {&rec_time_start, &rec_time_stop, draw_pen_rectangle},
    {&line_time_start, &line_time_stop, draw_clock_hand},
    {&sync_time_start, &sync_time_stop, sync},
    {&flip_time_start, &flip_time_stop, flip},
};

} // namespace

DFBResult draw_frame(const Scene& scene, int number)
{
    DFBResult first_failure = DFB_OK;
    for (const Phase& phase : phases) {
        *phase.start = microseconds_now();
        const DFBResult result = phase.draw(scene, number);
        *phase.stop = microseconds_now();
        if (!first_failure)
            first_failure = result;
    }
    return first_failure;
}

} // namespace dtk
