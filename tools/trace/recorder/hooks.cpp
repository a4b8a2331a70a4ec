#include <algorithm>
#include <vector>

#include "surfaces.h"

namespace recorder {

namespace {

using Flip = DFBResult (*)(IDirectFBSurface*, const DFBRegion*, DFBSurfaceFlipFlags);
using Clear = DFBResult (*)(IDirectFBSurface*, u8, u8, u8, u8);

/// The slots of a surface as they were, and how many toolkits draw on it.
struct Watched {
    IDirectFBSurface* surface;
    Flip flip;
    Clear clear;
    int users;
};

/// In a turn alone.
std::vector<Watched>& watched_surfaces()
{
    static auto* all = new std::vector<Watched>;
    return *all;
}

std::vector<Watched>::iterator find(IDirectFBSurface* surface)
{
    auto& all = watched_surfaces();
    return std::find_if(all.begin(), all.end(), [&](const Watched& watched) { return watched.surface == surface; });
}

/// Whoever kept a slot of ours from before may call it when the surface is not watched any more.
Watched last_watched = {};

Watched originals_of(IDirectFBSurface* surface)
{
    const Turn turn;
    const auto found = find(surface);
    return found == watched_surfaces().end() ? last_watched : *found;
}

DFBResult recorded_flip(IDirectFBSurface* thiz, const DFBRegion* region, DFBSurfaceFlipFlags flags)
{
    const Flip flip = originals_of(thiz).flip;
    describe(thiz);
    record(Number::flip, Form::plain, trace::most_call, [&](Encoder& encoder) {
        encoder.natural(state().surfaces.of(thiz));
        const DFBRectangle corners = region ? DFBRectangle{region->x1, region->y1, region->x2, region->y2} : DFBRectangle{};
        put_box(encoder, region ? &corners : nullptr);
        encoder.word(static_cast<std::uint32_t>(flags));
    });
    {
        const Turn turn;
        count_frame();
    }
    return flip(thiz, region, flags);
}

DFBResult recorded_clear(IDirectFBSurface* thiz, u8 r, u8 g, u8 b, u8 a)
{
    const Clear clear = originals_of(thiz).clear;
    describe(thiz);
    record(Number::clear, Form::plain, trace::most_call, [&](Encoder& encoder) {
        encoder.natural(state().surfaces.of(thiz));
        put_color(encoder, r, g, b, a);
    });
    return clear(thiz, r, g, b, a);
}

} // namespace

void watch(IDirectFBSurface* surface)
{
    if (!surface)
        return;
    const Turn turn;
    const auto found = find(surface);
    if (found != watched_surfaces().end()) {
        ++found->users;
        return;
    }
    surface->AddRef(surface);
    last_watched = {surface, surface->Flip, surface->Clear, 1};
    watched_surfaces().push_back(last_watched);
    surface->Flip = recorded_flip;
    surface->Clear = recorded_clear;
}

/// A slot that somebody else has changed since stays as it is.
void leave(IDirectFBSurface* surface)
{
    {
        const Turn turn;
        const auto found = find(surface);
        if (found == watched_surfaces().end() || --found->users > 0)
            return;
        if (surface->Flip == recorded_flip)
            surface->Flip = found->flip;
        if (surface->Clear == recorded_clear)
            surface->Clear = found->clear;
        watched_surfaces().erase(found);
    }
    surface->Release(surface);
}

} // namespace recorder
