#include "support/fake_cairo_objects.h"

#include "support/transcript.h"

#include <gtest/gtest.h>

namespace fake {
namespace {

std::string reals(double a, double b)
{
    return text(", %g, %g", a, b);
}

void set_source(CairoObject* context, CairoObject* source)
{
    if (source)
        source->references++;
    drop(context->source);
    context->source = source;
}

} // namespace
} // namespace fake

using namespace fake;

extern "C" {

void cairo_save(cairo_t* cr)
{
    note("cairo_save", cr);
}

void cairo_restore(cairo_t* cr)
{
    note("cairo_restore", cr);
}

void cairo_translate(cairo_t* cr, double x, double y)
{
    note("cairo_translate", cr, reals(x, y));
}

void cairo_scale(cairo_t* cr, double x, double y)
{
    EXPECT_TRUE(x != 0 && y != 0) << "a scale by 0 breaks a context for ever";
    note("cairo_scale", cr, reals(x, y));
}

void cairo_rectangle(cairo_t* cr, double x, double y, double w, double h)
{
    note("cairo_rectangle", cr, reals(x, y) + reals(w, h));
}

void cairo_move_to(cairo_t* cr, double x, double y)
{
    note("cairo_move_to", cr, reals(x, y));
}

void cairo_line_to(cairo_t* cr, double x, double y)
{
    note("cairo_line_to", cr, reals(x, y));
}

void cairo_arc(cairo_t* cr, double x, double y, double radius, double angle1, double angle2)
{
    note("cairo_arc", cr, reals(x, y) + text(", %g", radius) + text(", %g, %.15f", angle1, angle2));
}

void cairo_new_path(cairo_t* cr)
{
    note("cairo_new_path", cr);
}

void cairo_fill(cairo_t* cr)
{
    note("cairo_fill", cr);
    if (cairo().on_fill)
        cairo().on_fill(cr->name);
    if (cairo().status_after_fill)
        cr->status = cairo().status_after_fill;
}

void cairo_set_source(cairo_t* cr, cairo_pattern_t* source)
{
    note("cairo_set_source", cr, ", " + name(source));
    set_source(cr, source);
}

void cairo_set_source_rgb(cairo_t* cr, double r, double g, double b)
{
    note("cairo_set_source_rgb", cr, text(", %.6f, %.6f, %.6f", r, g, b));
    set_source(cr, nullptr);
}

void cairo_set_source_rgba(cairo_t* cr, double r, double g, double b, double a)
{
    note("cairo_set_source_rgba", cr, text(", %.6f, %.6f, %.6f, %.6f", r, g, b, a));
    set_source(cr, nullptr);
}

void cairo_pattern_set_extend(cairo_pattern_t* pattern, cairo_extend_t extend)
{
    note("cairo_pattern_set_extend", pattern, text(", %d", int(extend)));
}

void cairo_pattern_set_matrix(cairo_pattern_t* pattern, const cairo_matrix_t* m)
{
    EXPECT_TRUE(m->xx == 1 && m->yy == 1 && m->xy == 0 && m->yx == 0) << "the matrix must only translate";
    note("cairo_pattern_set_matrix", pattern, reals(m->x0 + 0.0, m->y0 + 0.0));
}

void cairo_matrix_init_translate(cairo_matrix_t* matrix, double x, double y)
{
    *matrix = {1, 0, 0, 1, x, y};
}

} // extern "C"
