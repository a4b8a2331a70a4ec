// dtk_plain_first_frame: a frame of the same shapes by DirectFB and cairo alone, for what these two take by themselves.

#include "first_frame.h"

#include <cairo.h>

using namespace bench;

namespace {

/// The shapes that blend, for which a toolkit keeps a scratch pad.
void draw_blended(cairo_t* context)
{
    cairo_set_source_rgba(context, 0.94, 0.69, 0.19, 0.63);
    cairo_save(context);
    cairo_translate(context, 360, 220);
    cairo_scale(context, 140, 100);
    cairo_arc(context, 0, 0, 1, 0, 6.283185307179586);
    cairo_restore(context);
    cairo_fill_preserve(context);
    cairo_set_source_rgba(context, 1, 1, 1, 0.75);
    cairo_set_line_width(context, 10);
    cairo_stroke(context);
    cairo_move_to(context, 60, 220);
    cairo_line_to(context, 340, 60);
    cairo_stroke(context);
}

void draw_polygon(cairo_t* context)
{
    cairo_set_source_rgb(context, 0.19, 0.38, 0.56);
    cairo_move_to(context, 60, 60);
    cairo_line_to(context, 500, 100);
    cairo_line_to(context, 300, 330);
    cairo_fill(context);
}

void draw(IDirectFBSurface* surface)
{
    void* pixels = nullptr;
    int pitch = 0;
    check(surface->SetColor(surface, 0x30, 0x60, 0x90, 0xff));
    check(surface->FillRectangle(surface, 40, 40, 320, 200));
    check(surface->Lock(surface, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE), &pixels, &pitch));
    cairo_surface_t* const image = cairo_image_surface_create_for_data(static_cast<unsigned char*>(pixels),
                                                                       CAIRO_FORMAT_ARGB32, 560, 360, pitch);
    cairo_t* const context = cairo_create(image);
    cairo_set_antialias(context, CAIRO_ANTIALIAS_NONE);
    draw_polygon(context);
    draw_blended(context);
    cairo_destroy(context);
    cairo_surface_destroy(image);
    check(surface->Unlock(surface));
}

} // namespace

int main(int argc, char** argv)
{
    print_phase("loader");
    IDirectFB* dfb = nullptr;
    check(DirectFBInit(&argc, &argv));
    check(DirectFBCreate(&dfb));
    IDirectFBSurface* const surface = create_screen(dfb);
    print_phase("DirectFB");
    draw(surface);
    print_phase("drawing");
    check(surface->Flip(surface, nullptr, DSFLIP_BLIT));
    print_phase("flip");
    print_end();

    surface->Release(surface);
    dfb->Release(dfb);
    return 0;
}
