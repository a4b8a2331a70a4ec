// dtk_first_frame: hello's first frame on the platform; the argument --zuvo:dtk=on or off chooses the back end.

#include "first_frame.h"

#include <dtkhddvd.h>
#include <zuvo.h>

using namespace bench;

namespace {

void draw(DTKHDDVD* toolkit)
{
    const DTKHDDVDPenShape diamond = {0, -5, 5, 0, 0, 5, -5, 0};
    const DFBRectangle board = {40, 40, 320, 200}, disc = {220, 120, 280, 200};
    const DFBPoint corners[] = {{60, 60}, {500, 100}, {300, 330}};
    DTKHDDVDPen* pen = nullptr;
    check(toolkit->SetFillColor(toolkit, 0x30, 0x60, 0x90, 0xff));
    check(toolkit->Rectangle(toolkit, &board, DTKHDDVD_FILL));
    check(toolkit->Polygon(toolkit, corners, 3, 1, DTKHDDVD_FILL));
    check(toolkit->CreatePen(toolkit, &diamond, &pen));
    check(toolkit->SetPen(toolkit, pen));
    check(toolkit->SetFillColor(toolkit, 0xf0, 0xb0, 0x30, 0xa0));
    check(toolkit->SetStrokeColor(toolkit, 0xff, 0xff, 0xff, 0xc0));
    check(toolkit->Ellipse(toolkit, &disc, DTKHDDVD_FILL | DTKHDDVD_STROKE));
    check(toolkit->Line(toolkit, 60, 220, 340, 60));
    check(toolkit->SetPen(toolkit, nullptr));
    pen->Release(pen);
}

} // namespace

int main(int argc, char** argv)
{
    print_phase("loader");
    zuvo_init(0);
    IDirectFB* const dfb = zuvo_dfb_ext_open_with_params(6, &argc, &argv);
    if (!dfb)
        return 1;
    IDirectFBSurface* const surface = create_screen(dfb);
    print_phase("DirectFB");
    DTKHDDVD* toolkit = nullptr;
    check(CreateDrawingToolkit_HDDVD(dfb, surface, 1, &toolkit));
    draw(toolkit);
    print_phase("drawing");
    check(surface->Flip(surface, nullptr, DSFLIP_BLIT));
    print_phase("flip");
    print_end();

    toolkit->Release(toolkit);
    surface->Release(surface);
    dfb->Release(dfb);
    zuvo_dfb_ext_close();
    zuvo_uninit();
    return 0;
}
