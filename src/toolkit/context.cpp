#include "toolkit/context.h"

#include "toolkit/cairo_surface.h"

namespace dtk {

cairo_t* create_context(IDirectFB* dfb, IDirectFBSurface* surface, cairo_surface_t** ret_surface)
{
    cairo_surface_t* cairo_surface = create_cairo_surface(dfb, surface);
    cairo_t* context = cairo_create(cairo_surface);
    cairo_set_antialias(context, CAIRO_ANTIALIAS_NONE);
    cairo_surface_destroy(cairo_surface);
    if (ret_surface)
        *ret_surface = cairo_surface;
    return context;
}

void destroy_context(cairo_t*& context)
{
    if (context)
        cairo_destroy(context);
    context = nullptr;
}

} // namespace dtk
