#include "toolkit/records.h"
#include "toolkit/ref.h"
#include "zuvo.h"

#include <algorithm>

using namespace dtk;

namespace {

/// The number of pixels from the least to the greatest corner; negative only when the corners overflow.
int extent(int a, int b, int c, int d)
{
    const auto [least, greatest] = std::minmax({a, b, c, d});
    const int size = greatest + 1 - least;
    return size < 0 ? -size : size;
}

void destroy(DTKHDDVDPen* thiz)
{
    give_back(thiz->priv->surface);
    std::free(thiz->priv);
    std::free(thiz);
}

} // namespace

void ComputeSize(const DTKHDDVDPenShape* shape, int* ret_width, int* ret_height)
{
    *ret_width = extent(shape->x0, shape->x1, shape->x2, shape->x3);
    *ret_height = extent(shape->y0, shape->y1, shape->y2, shape->y3);
}

DFBResult DTKHDDVDPen_AddRef(DTKHDDVDPen* thiz)
{
    if (!thiz)
        return result::thiz_null;
    ++thiz->priv->ref_count;
    return result::ok;
}

DFBResult DTKHDDVDPen_Release(DTKHDDVDPen* thiz)
{
    if (!thiz)
        return result::thiz_null;
    if (--thiz->priv->ref_count == 0)
        destroy(thiz);
    return result::ok;
}

/// A pen knows no toolkit: the platform decides which form is called.
DFBResult DTKHDDVDPen_GetSize(DTKHDDVDPen* thiz, int* ret_width, int* ret_height)
{
    const auto get_size = zuvo_dtk_get_handle() ? DTKHDDVDPen_GetSize_HW : DTKHDDVDPen_GetSize_SW;
    return get_size(thiz, ret_width, ret_height);
}

DFBResult DTKHDDVDPen_GetSize_SW(DTKHDDVDPen* thiz, int* ret_width, int* ret_height)
{
    if (!thiz || !thiz->priv->surface)
        return result::thiz_null;
    return thiz->priv->surface->GetSize(thiz->priv->surface, ret_width, ret_height);
}

DFBResult DTKHDDVDPen_GetSize_HW(DTKHDDVDPen* thiz, int* ret_width, int* ret_height)
{
    if (!thiz)
        return result::thiz_null;
    if (ret_width)
        *ret_width = thiz->priv->width;
    if (ret_height)
        *ret_height = thiz->priv->height;
    return result::ok;
}

DFBResult DTKHDDVDPen_GetSurface(DTKHDDVDPen* thiz, IDirectFBSurface** ret_surface)
{
    const auto get_surface = zuvo_dtk_get_handle() ? DTKHDDVDPen_GetSurface_HW : DTKHDDVDPen_GetSurface_SW;
    return get_surface(thiz, ret_surface);
}

/// A pen that the hardware back end made has no surface and hands out NULL.
DFBResult DTKHDDVDPen_GetSurface_SW(DTKHDDVDPen* thiz, IDirectFBSurface** ret_surface)
{
    if (!thiz)
        return result::thiz_null;
    if (!ret_surface)
        return result::invalid_argument;
    IDirectFBSurface* surface = thiz->priv->surface;
    if (surface)
        surface->AddRef(surface);
    *ret_surface = surface;
    return result::ok;
}

DFBResult DTKHDDVDPen_GetSurface_HW(DTKHDDVDPen* thiz, IDirectFBSurface**)
{
    return thiz ? result::ok : result::thiz_null;
}

DFBResult DTKHDDVDPen_GetShape(DTKHDDVDPen* thiz, const DTKHDDVDPenShape** ret_shape)
{
    if (!thiz)
        return result::thiz_null;
    if (!ret_shape)
        return result::invalid_argument;
    *ret_shape = &thiz->priv->shape;
    return result::ok;
}
