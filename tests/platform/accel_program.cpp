#include "accel_program.h"

#include <cairo.h>

namespace accel {
namespace {

/// A call's name with its numbers and its result.
template <class... Numbers>
std::string told(const std::string& call, const Canvas& canvas, DFBResult result, Numbers... numbers)
{
    std::string line = canvas.name + '.' + call;
    ((line += ' ' + std::to_string(numbers)), ...);
    return line + " -> " + std::to_string(result);
}

std::string told(const std::string& call, const Canvas& canvas, const Canvas& source, DFBResult result,
                 const DFBRectangle& rect, int x, int y)
{
    return told(call + ' ' + source.name, canvas, result, rect.x, rect.y, rect.w, rect.h, x, y);
}

/// A walk of neighbouring points, with several ends that are moved in turn.
std::vector<DFBPoint> walk(Dice& dice, unsigned int count)
{
    const int shape = dice.number(0, 4), ends = shape < 3 ? 1 << shape : 1;
    std::vector<DFBPoint> heads;
    for (int i = 0; i < ends; ++i) {
        const int x = dice.number(-8, width), y = dice.number(-8, height);
        heads.push_back({x, y});
    }
    const int stride = shape == 4 ? 40 : 1, steady_x = dice.number(-1, 1), steady_y = dice.number(-1, 1);
    std::vector<DFBPoint> points;
    for (unsigned int i = 0; i < count; ++i) {
        DFBPoint& head = heads[i % heads.size()];
        points.push_back(head);
        head.x += shape == 3 ? steady_x : dice.number(-stride, stride);
        head.y += shape == 3 ? steady_y : dice.number(-stride, stride);
    }
    return points;
}

} // namespace

Program::Program(IDirectFB& directfb, unsigned int seed) : directfb_(directfb), dice_(seed), canvases_(directfb) {}

std::string Program::fill()
{
    Canvas& canvas = canvases_.any(dice_);
    const DFBRectangle rect = dice_.rectangle(canvas.width, canvas.height);
    if (dice_.one_in(3)) {
        const DFBRectangle rects[2] = {rect, dice_.rectangle(canvas.width, canvas.height)};
        return told("FillRectangles", canvas, canvas.surface->FillRectangles(canvas.surface, rects, 2), rect.x, rect.y);
    }
    const DFBResult result = canvas.surface->FillRectangle(canvas.surface, rect.x, rect.y, rect.w, rect.h);
    return told("FillRectangle", canvas, result, rect.x, rect.y, rect.w, rect.h);
}

std::string Program::draw_lines()
{
    Canvas& canvas = canvases_.any(dice_);
    IDirectFBSurface* surface = canvas.surface;
    const DFBRectangle rect = dice_.rectangle(canvas.width, canvas.height);
    if (dice_.one_in(2))
        return told("DrawRectangle", canvas, surface->DrawRectangle(surface, rect.x, rect.y, rect.w, rect.h), rect.x);
    const int x = dice_.number(-5, width), y = dice_.one_in(3) ? rect.y : dice_.number(-5, height);
    return told("DrawLine", canvas, surface->DrawLine(surface, rect.x, rect.y, x, y), rect.x, rect.y, x, y);
}

/// Blending onto other formats than these is not what a toolkit does.
void Program::choose_blitting_flags(const Canvas& target)
{
    constexpr DFBSurfaceBlittingFlags flags[] = {DSBLIT_NOFX, DSBLIT_SRC_COLORKEY, DSBLIT_BLEND_ALPHACHANNEL,
                                                 DSBLIT_BLEND_ALPHACHANNEL | DSBLIT_SRC_COLORKEY};
    const bool can_blend = target.format == DSPF_ARGB || target.format == DSPF_RGB32;
    must(target.surface->SetBlittingFlags(target.surface, flags[dice_.number(0, can_blend ? 3 : 1)]));
}

std::string Program::blit()
{
    Canvas& target = canvases_.any(dice_);
    Canvas& source = canvases_.any_source_for(target, dice_);
    choose_blitting_flags(target);
    const DFBRectangle rect = dice_.rectangle(source.width, source.height);
    const int x = dice_.number(-20, target.width), y = dice_.number(-20, target.height);
    const DFBResult result = target.surface->Blit(target.surface, source.surface, &rect, x, y);
    return told("Blit", target, source, result, rect, x, y);
}

std::string Program::stamp()
{
    Canvas& target = canvases_.any(dice_);
    Canvas& pen = canvases_.any_pen(dice_);
    if (&target == &pen)
        return "nothing";
    const DFBRectangle rect =
        dice_.one_in(3) ? dice_.rectangle_inside(pen.width, pen.height) : DFBRectangle{0, 0, pen.width, pen.height};
    const auto count = static_cast<unsigned int>(dice_.number(1, 64));
    const std::vector<DFBRectangle> rects(count, rect);
    const std::vector<DFBPoint> points = walk(dice_, count);
    must(target.surface->SetBlittingFlags(target.surface, DSBLIT_SRC_COLORKEY));
    const DFBResult result =
        target.surface->BatchBlit(target.surface, pen.surface, rects.data(), points.data(), static_cast<int>(count));
    return told("stamp", target, pen, result, rect, points[0].x, points[0].y);
}

std::string Program::batch()
{
    Canvas& target = canvases_.any(dice_);
    Canvas& source = canvases_.any_source_for(target, dice_);
    choose_blitting_flags(target);
    const auto count = static_cast<unsigned int>(dice_.number(1, 12));
    std::vector<DFBRectangle> rects;
    for (unsigned int i = 0; i < count; ++i)
        rects.push_back(i > 0 && dice_.one_in(2) ? rects.back() : dice_.rectangle_inside(source.width, source.height));
    const std::vector<DFBPoint> points = walk(dice_, count);
    const DFBResult result =
        target.surface->BatchBlit(target.surface, source.surface, rects.data(), points.data(), static_cast<int>(count));
    return told("BatchBlit", target, source, result, rects[0], points[0].x, points[0].y);
}

std::string Program::change_state()
{
    Canvas& canvas = canvases_.any(dice_);
    IDirectFBSurface* surface = canvas.surface;
    const DFBColor colour = dice_.colour();
    switch (dice_.number(0, 3)) {
    case 0:
        return told("SetColor", canvas, surface->SetColor(surface, colour.r, colour.g, colour.b, colour.a), colour.a,
                    colour.r);
    case 1: {
        const int index = dice_.number(0, dice_.one_in(3) ? 255 : 3);
        return told("SetColorIndex", canvas, surface->SetColorIndex(surface, static_cast<unsigned int>(index)), index);
    }
    case 2: {
        const DFBRectangle rect = dice_.rectangle_inside(canvas.width, canvas.height);
        const DFBRegion clip{rect.x, rect.y, rect.x + rect.w - 1, rect.y + rect.h - 1};
        return told("SetClip", canvas, surface->SetClip(surface, dice_.one_in(2) ? nullptr : &clip), rect.x, rect.w);
    }
    default: {
        const int index = dice_.number(0, 3);
        return canvas.format == DSPF_LUT8
                   ? told("SetSrcColorKeyIndex", canvas,
                          surface->SetSrcColorKeyIndex(surface, static_cast<unsigned int>(index)), index)
                   : told("SetSrcColorKey", canvas, surface->SetSrcColorKey(surface, colour.r, colour.g, colour.b),
                          colour.r);
    }
    }
}

/// The same three entries for all, or other ones for a single palette.
std::string Program::change_palette()
{
    const DFBColor colours[3] = {dice_.colour(), dice_.colour(), dice_.colour()};
    const bool is_for_all = dice_.one_in(2);
    const Canvas& chosen = canvases_.any_pen(dice_);
    for (const Canvas& canvas : canvases_.all()) {
        if (canvas.format != DSPF_LUT8 || (!is_for_all && &canvas != &chosen))
            continue;
        IDirectFBPalette* palette = nullptr;
        must(canvas.surface->GetPalette(canvas.surface, &palette));
        must(palette->SetEntries(palette, colours, 3, 0));
        palette->Release(palette);
    }
    return "SetEntries " + (is_for_all ? "all" : chosen.name);
}

std::string Program::write_directly()
{
    Canvas& canvas = dice_.one_in(2) ? canvases_.any_pen(dice_) : canvases_.any(dice_);
    const DFBRectangle rect = dice_.rectangle_inside(canvas.width, canvas.height);
    const int last_byte = canvas.format == DSPF_LUT8 ? 3 : 255;
    void* memory = nullptr;
    int pitch = 0;
    must(canvas.surface->Lock(canvas.surface, DSLF_READ | DSLF_WRITE, &memory, &pitch));
    for (int y = rect.y; y < rect.y + rect.h; ++y)
        for (int i = DFB_BYTES_PER_LINE(canvas.format, rect.x); i < DFB_BYTES_PER_LINE(canvas.format, rect.x + rect.w);
             ++i)
            static_cast<uint8_t*>(memory)[y * pitch + i] = static_cast<uint8_t>(dice_.number(0, last_byte));
    must(canvas.surface->Unlock(canvas.surface));
    return told("write", canvas, DFB_OK, rect.x, rect.y, rect.w, rect.h);
}

std::string Program::draw_with_cairo()
{
    Canvas& canvas = canvases_.any(dice_);
    if (canvas.format != DSPF_ARGB || canvas.is_part)
        return "nothing";
    void* memory = nullptr;
    int pitch = 0;
    must(canvas.surface->Lock(canvas.surface, DSLF_READ | DSLF_WRITE, &memory, &pitch));
    cairo_surface_t* target = cairo_image_surface_create_for_data(
        static_cast<unsigned char*>(memory), CAIRO_FORMAT_ARGB32, canvas.width, canvas.height, pitch);
    cairo_t* cairo = cairo_create(target);
    cairo_set_antialias(cairo, CAIRO_ANTIALIAS_NONE);
    for (int i = 0; i < 5; ++i) {
        const int x = dice_.number(-20, canvas.width + 20), y = dice_.number(-20, canvas.height + 20);
        cairo_line_to(cairo, x, y);
    }
    const DFBColor colour = dice_.colour();
    cairo_set_source_rgba(cairo, colour.r / 255.0, colour.g / 255.0, colour.b / 255.0, colour.a / 255.0);
    cairo_fill(cairo);
    const int status = cairo_status(cairo);
    cairo_destroy(cairo);
    cairo_surface_destroy(target);
    must(canvas.surface->Unlock(canvas.surface));
    return told("cairo_fill", canvas, DFB_OK, status);
}

std::string Program::flip()
{
    Canvas& canvas = canvases_.any_flipped(dice_);
    return told("Flip", canvas,
                canvas.surface->Flip(canvas.surface, nullptr, dice_.one_in(2) ? DSFLIP_BLIT : DSFLIP_NONE));
}

void Program::step(Lines& said)
{
    using Call = std::string (Program::*)();
    const Call calls[] = {
        &Program::fill,         &Program::fill,           &Program::draw_lines,     &Program::blit,
        &Program::blit,         &Program::blit,           &Program::stamp,          &Program::stamp,
        &Program::stamp,        &Program::batch,          &Program::flip,           &Program::change_state,
        &Program::change_state, &Program::change_palette, &Program::write_directly, &Program::draw_with_cairo};
    const int last = static_cast<int>(std::size(calls)) - 1;
    std::string line = (this->*calls[dice_.number(0, last)])();
    for (const Canvas& canvas : canvases_.all())
        if (!canvas.is_part)
            line += ' ' + std::to_string(hash_of(canvas));
    said.push_back(line);
}

} // namespace accel
