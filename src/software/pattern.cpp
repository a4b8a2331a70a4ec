#include "software/pattern.h"

#include "toolkit/cairo_surface.h"
#include "toolkit/report.h"

#include <cstdio>

using namespace dtk;

namespace {

/// Destroys cairo's surface at the end of the scope; a pattern keeps its own reference.
class TextureSurface {
public:
    TextureSurface(IDirectFB* dfb, IDirectFBSurface* texture) : surface_(create_cairo_surface(dfb, texture)) {}
    TextureSurface(const TextureSurface&) = delete;
    TextureSurface& operator=(const TextureSurface&) = delete;
    ~TextureSurface() { cairo_surface_destroy(surface_); }

    cairo_surface_t* get() const { return surface_; }

    /// Cairo returns an object in error where older versions returned NULL.
    bool is_valid() const { return surface_ && cairo_surface_status(surface_) == CAIRO_STATUS_SUCCESS; }

private:
    cairo_surface_t* surface_;
};

void drop_pattern(DTKHDDVD_data& toolkit)
{
    if (toolkit.fill_pattern)
        cairo_pattern_destroy(toolkit.fill_pattern);
    toolkit.fill_pattern = nullptr;
    toolkit.texture = nullptr;
}

DFBResult complain(const char* message)
{
    std::fputs(message, stderr);
    return result::failure;
}

DFBResult create_pattern(IDirectFB* dfb, IDirectFBSurface* texture, cairo_pattern_t** ret_pattern)
{
    const TextureSurface surface(dfb, texture);
    if (!surface.is_valid())
        return complain("cant create cairo surface for texture\n");

    cairo_pattern_t* pattern = cairo_pattern_create_for_surface(surface.get());
    if (!pattern || cairo_pattern_status(pattern) != CAIRO_STATUS_SUCCESS) {
        cairo_pattern_destroy(pattern);
        return complain("cant create cairo pattern for texture\n");
    }
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_REPEAT);
    *ret_pattern = pattern;
    return result::ok;
}

DFBResult set_fill_pattern(DTKHDDVD_data& toolkit, IDirectFBSurface* texture)
{
    drop_pattern(toolkit);
    if (!texture)
        return result::ok;
    if (DFBResult result = create_pattern(toolkit.dfb, texture, &toolkit.fill_pattern))
        return result;
    toolkit.texture = texture;
    return result::ok;
}

/// Patterns that begin further to the left or above are beyond cairo's numbers, and it draws nothing.
constexpr int least_origin = -32765;

int nearest_origin(int origin, int tile)
{
    return origin < least_origin && tile > 0 ? origin % tile : origin;
}

} // namespace

namespace dtk {

DFBPoint pattern_origin(IDirectFBSurface* texture, const DFBPoint& origin)
{
    if (origin.x >= least_origin && origin.y >= least_origin)
        return origin;
    DFBDimension tile = {0, 0};
    texture->GetSize(texture, &tile.w, &tile.h);
    return {nearest_origin(origin.x, tile.w), nearest_origin(origin.y, tile.h)};
}

void renew_fill_pattern(DTKHDDVD_data& toolkit)
{
    // The old pattern may hold the last reference on the texture, so it goes when the new one has its own.
    cairo_pattern_t* pattern = nullptr;
    if (create_pattern(toolkit.dfb, toolkit.texture, &pattern))
        return;
    cairo_pattern_destroy(toolkit.fill_pattern);
    toolkit.fill_pattern = pattern;
}

} // namespace dtk

DFBResult DTKHDDVD_SetFillPattern_SW(DTKHDDVD* thiz, IDirectFBSurface* texture)
{
    if (!thiz)
        return result::thiz_null;
    return report("DTKHDDVD_SetFillPattern", set_fill_pattern(*thiz->priv, texture));
}
