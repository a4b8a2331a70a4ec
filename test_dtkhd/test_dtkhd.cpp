#include <cstdio>

#include <dtkhddvd.h>

#include "phases.h"
#include "scene.h"
#include "timing.h"

namespace dtk {

namespace {

constexpr DTKHDDVDPenShape round_shape = {-4, -2, 2, -4, 4, 2, -2, 4};
constexpr DTKHDDVDPenShape chisel_shape = {-5, 3, 3, -5, 5, -3, -3, 5};
constexpr DTKHDDVDPenShape diamond_shape = {0, -4, 4, 0, 0, 4, -4, 0};

constexpr DTKHDDVDPenShape rectangle_shapes[5] = {
    {-4, -4, 4, -4, 4, 4, -4, 4},
    {-6, 2, 2, -6, 6, -2, -2, 6},
    {0, -6, 6, 0, 0, 6, -6, 0},
    {-6, -2, 6, -2, 6, 2, -6, 2},
    {-6, -6, 6, -6, -1, -1, -6, 6},
};

/// A dark red tile with a white cross in its top left corner.
DFBResult draw_texture(IDirectFBSurface* texture)
{
    if (DFBResult result = texture->Clear(texture, 0xA0, 0x30, 0x10, 0xBB))
        return result;
    if (DFBResult result = texture->SetColor(texture, 255, 255, 255, 255))
        return result;
    if (DFBResult result = texture->DrawLine(texture, 0, 0, 7, 7))
        return result;
    return texture->DrawLine(texture, 0, 7, 7, 0);
}

DFBResult create_texture(Scene& scene)
{
    std::fputs("--Creating texture--\n", stderr);
    DFBSurfaceDescription description = {};
    description.flags = static_cast<DFBSurfaceDescriptionFlags>(DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.width = 15;
    description.height = 15;
    description.pixelformat = DSPF_ARGB;
    if (DFBResult result = scene.dfb->CreateSurface(scene.dfb, &description, &scene.texture))
        return result;
    return draw_texture(scene.texture);
}

DFBResult create_toolkit(Scene& scene)
{
    std::fputs("--Creating toolkit--\n", stderr);
    return CreateDrawingToolkit_HDDVD(scene.dfb, scene.surface, 1, &scene.toolkit);
}

DFBResult create_single_pens(Scene& scene)
{
    DTKHDDVD* toolkit = scene.toolkit;
    if (DFBResult result = toolkit->CreatePen(toolkit, &round_shape, &scene.ellipse_pen))
        return result;
    if (DFBResult result = toolkit->CreatePen(toolkit, &chisel_shape, &scene.polygon_pen))
        return result;
    return toolkit->CreatePen(toolkit, &diamond_shape, &scene.line_pen);
}

DFBResult create_pens(Scene& scene)
{
    std::fputs("--Creating pens--\n", stderr);
    if (DFBResult result = create_single_pens(scene))
        return result;
    for (int i = 0; i < 5; ++i) {
        if (DFBResult result = scene.toolkit->CreatePen(scene.toolkit, &rectangle_shapes[i], &scene.rectangle_pens[i]))
            return result;
    }
    return DFB_OK;
}

DFBResult set_up(Scene& scene)
{
    if (DFBResult result = scene.surface->GetSize(scene.surface, &scene.width, &scene.height))
        return result;
    if (DFBResult result = create_texture(scene))
        return result;
    if (DFBResult result = create_toolkit(scene))
        return result;
    return create_pens(scene);
}

DFBResult draw_until_failure(const Scene& scene)
{
    std::fputs("--lets begin--\n", stderr);
    FrameClock clock;
    DFBResult result = DFB_OK;
    for (int number = 1; !result; ++number) {
        result = draw_frame(scene, number);
        clock.note_end(number);
    }
    return result;
}

template <typename Interface>
void release(Interface* interface)
{
    if (interface)
        interface->Release(interface);
}

void clean_up(const Scene& scene)
{
    release(scene.ellipse_pen);
    for (DTKHDDVDPen* pen : scene.rectangle_pens)
        release(pen);
    release(scene.polygon_pen);
    release(scene.line_pen);
    release(scene.toolkit);
    release(scene.texture);
}

} // namespace

} // namespace dtk

DFBResult test_dtkhd(IDirectFB* dfb, IDirectFBSurface* surface)
{
    dtk::Scene scene = {};
    scene.dfb = dfb;
    scene.surface = surface;

    DFBResult result = dtk::set_up(scene);
    if (!result)
        result = dtk::draw_until_failure(scene);
    dtk::clean_up(scene);
    return result;
}
