#include "targets.h"

#include "surfaces.h"

namespace recorder {

namespace {

struct Toolkit {
    int references = 1;
    IDirectFBSurface* target = nullptr;
    IDirectFBSurface* texture = nullptr;
};

/// In a turn alone.
std::unordered_map<DTKHDDVD*, Toolkit>& toolkits()
{
    static auto* all = new std::unordered_map<DTKHDDVD*, Toolkit>;
    return *all;
}

/// Lets @p change do something with what is known of a toolkit, and returns what it returns.
template <typename Change>
auto with(DTKHDDVD* toolkit, Change&& change)
{
    const Turn turn;
    return change(toolkits()[toolkit]);
}

IDirectFBSurface* drop(DTKHDDVD* toolkit)
{
    const Turn turn;
    const auto found = toolkits().find(toolkit);
    if (found == toolkits().end() || --found->second.references > 0)
        return nullptr;
    IDirectFBSurface* target = found->second.target;
    toolkits().erase(found);
    return target;
}

} // namespace

void toolkit_was_made(DTKHDDVD* toolkit, IDirectFBSurface* target)
{
    with(toolkit, [](Toolkit& known) { known = Toolkit(); return 0; });
    target_was_set(toolkit, target);
}

void target_was_set(DTKHDDVD* toolkit, IDirectFBSurface* target)
{
    IDirectFBSurface* before = with(toolkit, [&](Toolkit& known) { return std::exchange(known.target, target); });
    watch(target);
    if (before)
        leave(before);
}

void reference_was_taken(DTKHDDVD* toolkit)
{
    with(toolkit, [](Toolkit& known) { return ++known.references; });
}

void reference_was_given_back(DTKHDDVD* toolkit)
{
    if (IDirectFBSurface* target = drop(toolkit))
        leave(target);
}

void texture_was_set(DTKHDDVD* toolkit, IDirectFBSurface* texture)
{
    with(toolkit, [&](Toolkit& known) { return known.texture = texture; });
}

void take_drawn_texture(DTKHDDVD* toolkit, u32 flags)
{
    if (!state().takes_drawn_textures || !(flags & DTKHDDVD_FILL))
        return;
    if (IDirectFBSurface* texture = with(toolkit, [](Toolkit& known) { return known.texture; }))
        take_picture(texture);
}

} // namespace recorder
