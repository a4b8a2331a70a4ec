// Surfaces whose fields lie apart, whose rows are not where the driver looks for them.
#include <gtest/gtest.h>

#include <array>

#include "accel_canvases.h"
#include "accel_session.h"
#include "common/surface.h"

namespace {

using accel::operator|;
using accel::Canvas;
using accel::Driver;
using accel::Lines;
using accel::must;

Canvas make(IDirectFB& directfb, DFBSurfaceCapabilities caps)
{
    const DFBSurfaceDescription description = common::describe(16, 16, DSPF_ARGB, caps);
    Canvas canvas{"", nullptr, DSPF_ARGB, 16, 16, false};
    must(directfb.CreateSurface(&directfb, &description, &canvas.surface));
    must(canvas.surface->Clear(canvas.surface, 1, 2, 3, 4));
    return canvas;
}

void draw(IDirectFB& directfb, Lines& said)
{
    const Canvas apart = make(directfb, DSCAPS_INTERLACED | DSCAPS_SEPARATED), whole = make(directfb, DSCAPS_NONE);
    for (const Canvas* target : {&apart, &whole}) {
        IDirectFBSurface* const surface = target->surface;
        must(surface->SetColor(surface, 200, 100, 50, 255));
        must(surface->FillRectangle(surface, 3, 2, 7, 5));
        must(surface->SetBlittingFlags(surface, DSBLIT_BLEND_ALPHACHANNEL));
        must(surface->Blit(surface, (target == &apart ? whole : apart).surface, nullptr, 1, 4));
        said.push_back(std::to_string(accel::hash_of(*target)));
    }
}

} // namespace

TEST(AccelSeparatedFields, AreLeftToDirectFB)
{
    const Lines with = accel::run_with_directfb(Driver::on, draw);
    EXPECT_EQ(with, accel::run_with_directfb(Driver::off, draw));
    EXPECT_EQ(with.back(), "finished");
}
