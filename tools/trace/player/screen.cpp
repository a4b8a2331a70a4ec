#include "screen.h"

namespace trace {

namespace {

tools::Owned<IDirectFBEventBuffer> listen(IDirectFB* dfb)
{
    IDirectFBEventBuffer* events = nullptr;
    tools::check(dfb->CreateInputEventBuffer(dfb, DICAPS_KEYS, DFB_TRUE, &events), "cannot listen to the keyboard");
    return tools::Owned<IDirectFBEventBuffer>(events);
}

} // namespace

Screen::Screen(const tools::Platform& platform, int width, int height)
    : surface_(platform.layer_surface(width, height)), events_(listen(platform.dfb()))
{
}

bool Screen::show(IDirectFBSurface* surface)
{
    tools::check(surface_->Blit(surface_.get(), surface, nullptr, 0, 0), "cannot show the frame");
    tools::check(surface_->Flip(surface_.get(), nullptr, DSFLIP_WAITFORSYNC), "cannot show the frame");
    return !was_escape_pressed();
}

bool Screen::was_escape_pressed()
{
    DFBEvent event;
    while (events_->GetEvent(events_.get(), &event) == DFB_OK) {
        if (event.input.type == DIET_KEYPRESS && event.input.key_symbol == DIKS_ESCAPE)
            return true;
    }
    return false;
}

} // namespace trace
