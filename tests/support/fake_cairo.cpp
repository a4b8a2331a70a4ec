#include "support/fake_cairo_objects.h"

#include "support/fake_surface.h"
#include "support/transcript.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace fake {
namespace {

/// Objects stay in memory after their last reference, so that a use after it is seen and not undefined.
std::vector<std::shared_ptr<CairoObject>>& graveyard()
{
    static std::vector<std::shared_ptr<CairoObject>> objects;
    return objects;
}

template <class Object>
Object* make(const std::string& name, CairoObject* held, Outcome outcome)
{
    if (outcome == Outcome::null)
        return nullptr;
    auto object = std::make_shared<Object>();
    object->name = name;
    object->holds = held;
    if (held)
        held->references++;
    if (outcome == Outcome::error_state)
        object->status = CAIRO_STATUS_NO_MEMORY;
    cairo().live_objects++;
    graveyard().push_back(object);
    return object.get();
}

/// The name of the surface that an object was made for.
std::string stem(const CairoObject* object)
{
    return object ? object->name.substr(0, object->name.rfind('.')) : "NULL";
}

} // namespace

void drop(CairoObject* object)
{
    if (!object)
        return;
    EXPECT_GT(object->references, 0) << object->name << " is destroyed too often";
    if (--object->references != 0)
        return;
    cairo().live_objects--;
    drop(object->holds);
    drop(object->source);
}

std::string name(const CairoObject* object)
{
    if (!object)
        return "NULL";
    EXPECT_GT(object->references, 0) << object->name << " is used after it was destroyed";
    return object->name;
}

void note(const char* function, const CairoObject* object, const std::string& arguments)
{
    transcript().note(std::string(function) + "(" + name(object) + arguments + ")");
}

Cairo& cairo()
{
    static Cairo the_cairo;
    return the_cairo;
}

} // namespace fake

using namespace fake;

extern "C" {

/// cairo's header does not declare it where there is no DirectFB back end.
cairo_surface_t* cairo_directfb_surface_create(IDirectFB* dfb, IDirectFBSurface* surface);

cairo_surface_t* cairo_directfb_surface_create(IDirectFB*, IDirectFBSurface* surface)
{
    transcript().note("cairo_directfb_surface_create(dfb, " + name_of(surface) + ")");
    return make<_cairo_surface>(name_of(surface) + ".cairo", nullptr, cairo().surface_creation);
}

cairo_t* cairo_create(cairo_surface_t* surface)
{
    note("cairo_create", surface);
    auto* context = make<_cairo>(stem(surface) + ".cr", surface, cairo().context_creation);
    if (context && surface && surface->status)
        context->status = surface->status;
    return context;
}

cairo_pattern_t* cairo_pattern_create_for_surface(cairo_surface_t* surface)
{
    note("cairo_pattern_create_for_surface", surface);
    return make<_cairo_pattern>(stem(surface) + ".pattern", surface, cairo().pattern_creation);
}

void cairo_surface_destroy(cairo_surface_t* surface)
{
    if (surface)
        note("cairo_surface_destroy", surface);
    drop(surface);
}

void cairo_destroy(cairo_t* cr)
{
    if (cr)
        note("cairo_destroy", cr);
    drop(cr);
}

void cairo_pattern_destroy(cairo_pattern_t* pattern)
{
    if (pattern)
        note("cairo_pattern_destroy", pattern);
    drop(pattern);
}

cairo_surface_t* cairo_surface_reference(cairo_surface_t* surface)
{
    surface->references++;
    return surface;
}

cairo_t* cairo_reference(cairo_t* cr)
{
    cr->references++;
    return cr;
}

cairo_pattern_t* cairo_pattern_reference(cairo_pattern_t* pattern)
{
    pattern->references++;
    return pattern;
}

cairo_status_t cairo_status(cairo_t* cr)
{
    name(cr);
    return cr->status;
}

cairo_status_t cairo_surface_status(cairo_surface_t* surface)
{
    name(surface);
    return surface->status;
}

cairo_status_t cairo_pattern_status(cairo_pattern_t* pattern)
{
    name(pattern);
    return pattern->status;
}

cairo_surface_t* cairo_get_target(cairo_t* cr)
{
    name(cr);
    return static_cast<cairo_surface_t*>(cr->holds);
}

cairo_status_t cairo_pattern_get_surface(cairo_pattern_t* pattern, cairo_surface_t** surface)
{
    name(pattern);
    *surface = static_cast<cairo_surface_t*>(pattern->holds);
    return CAIRO_STATUS_SUCCESS;
}

void cairo_surface_flush(cairo_surface_t* surface)
{
    note("cairo_surface_flush", surface);
}

void cairo_set_antialias(cairo_t* cr, cairo_antialias_t antialias)
{
    note("cairo_set_antialias", cr, text(", %d", int(antialias)));
}

} // extern "C"
