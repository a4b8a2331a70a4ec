#include "faults/faults.h"

#include <cstring>
#include <dlfcn.h>

namespace faults {
namespace {

unsigned calls_until_failure;
std::string failed;
int references;

/// DirectFB's own operations. All surfaces have the same, and so have all palettes.
template <class Interface>
Interface originals;

bool is_in_cairo(const void* address)
{
    Dl_info where;
    return dladdr(address, &where) && where.dli_fname && std::strstr(where.dli_fname, "libcairo");
}

void watch_palette(IDirectFBPalette* palette);

/// What a succeeding call hands out is watched as well.
void take_over(IDirectFBSurface** ret_surface) { watch(*ret_surface); references++; }
void take_over(IDirectFBPalette** ret_palette) { watch_palette(*ret_palette); references++; }
template <class Argument>
void take_over(Argument) {}

/// DirectFB may leave the address of a surface behind that it could not complete.
void spoil(IDirectFBSurface** ret_surface) { std::memset(ret_surface, 0x11, sizeof *ret_surface); }
template <class Argument>
void spoil(Argument) {}

template <auto slot>
struct Shim;

template <class Interface, class Result, class... Arguments, Result (*Interface::*slot)(Interface*, Arguments...)>
struct Shim<slot> {
    static const char* name;

    static Result call(Interface* thiz, Arguments... arguments)
    {
        if (fails(name, __builtin_return_address(0))) {
            (spoil(arguments), ...);
            return Result(refusal);
        }
        const Result result = (originals<Interface>.*slot)(thiz, arguments...);
        if (!result)
            (take_over(arguments), ...);
        return result;
    }

    static void put(Interface& record, const char* name_of_slot)
    {
        name = name_of_slot;
        record.*slot = call;
    }
};

template <class Interface, class Result, class... Arguments, Result (*Interface::*slot)(Interface*, Arguments...)>
const char* Shim<slot>::name;

template <class Interface>
DirectResult add_reference(Interface* thiz)
{
    references++;
    return originals<Interface>.AddRef(thiz);
}

template <class Interface>
DirectResult release(Interface* thiz)
{
    references--;
    return originals<Interface>.Release(thiz);
}

/// Keeps the operations of the first record and counts the references of this one; answers whether it is news.
template <class Interface>
bool begin(Interface* record)
{
    if (record->AddRef == add_reference<Interface>)
        return false;
    originals<Interface> = *record;
    record->AddRef = add_reference<Interface>;
    record->Release = release<Interface>;
    return true;
}

void watch_palette(IDirectFBPalette* palette)
{
    if (begin(palette))
        Shim<&IDirectFBPalette::SetEntries>::put(*palette, "SetEntries");
}

void watch_questions(IDirectFBSurface& surface)
{
    Shim<&IDirectFBSurface::GetSize>::put(surface, "GetSize");
    Shim<&IDirectFBSurface::GetVisibleRectangle>::put(surface, "GetVisibleRectangle");
    Shim<&IDirectFBSurface::GetPixelFormat>::put(surface, "GetPixelFormat");
    Shim<&IDirectFBSurface::GetSubSurface>::put(surface, "GetSubSurface");
    Shim<&IDirectFBSurface::GetPalette>::put(surface, "GetPalette");
    Shim<&IDirectFBSurface::GetID>::put(surface, "GetID");
    Shim<&IDirectFBSurface::Lock>::put(surface, "Lock");
}

void watch_drawing(IDirectFBSurface& surface)
{
    Shim<&IDirectFBSurface::SetColor>::put(surface, "SetColor");
    Shim<&IDirectFBSurface::SetColorIndex>::put(surface, "SetColorIndex");
    Shim<&IDirectFBSurface::SetSrcColorKeyIndex>::put(surface, "SetSrcColorKeyIndex");
    Shim<&IDirectFBSurface::SetBlittingFlags>::put(surface, "SetBlittingFlags");
    Shim<&IDirectFBSurface::Clear>::put(surface, "Clear");
    Shim<&IDirectFBSurface::FillRectangle>::put(surface, "FillRectangle");
    Shim<&IDirectFBSurface::DrawRectangle>::put(surface, "DrawRectangle");
    Shim<&IDirectFBSurface::DrawLine>::put(surface, "DrawLine");
    Shim<&IDirectFBSurface::Blit>::put(surface, "Blit");
    Shim<&IDirectFBSurface::BatchBlit>::put(surface, "BatchBlit");
}

} // namespace

void watch(IDirectFB* dfb)
{
    if (!begin(dfb))
        return;
    Shim<&IDirectFB::CreateSurface>::put(*dfb, "CreateSurface");
    Shim<&IDirectFB::WaitIdle>::put(*dfb, "WaitIdle");
}

void watch(IDirectFBSurface* surface)
{
    if (!begin(surface))
        return;
    watch_questions(*surface);
    watch_drawing(*surface);
}

void fail_call(unsigned n)
{
    calls_until_failure = n;
    failed.clear();
}

std::string failed_call()
{
    return failed;
}

bool fails(const char* name, const void* caller)
{
    if (calls_until_failure == 0)
        return false;
    const bool is_from_cairo = is_in_cairo(caller);
    if ((is_from_cairo && std::strcmp(name, "Lock") != 0) || --calls_until_failure > 0)
        return false;
    failed = is_from_cairo ? std::string("cairo's ") + name : name;
    return true;
}

bool may_be_for_cairo(const std::string& call)
{
    static const bool has_back_end = dlsym(RTLD_DEFAULT, "cairo_directfb_surface_create") != nullptr;
    if (has_back_end)
        return call == "cairo's Lock";
    return call == "Lock" || call == "GetVisibleRectangle" || call == "GetPixelFormat";
}

int held_references()
{
    return references;
}

} // namespace faults
