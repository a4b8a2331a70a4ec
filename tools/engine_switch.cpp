#include "engine_switch.h"

#include <dlfcn.h>

#include <zuvo.h>

namespace {

using GetHandle = unsigned int (*)();

const GetHandle platform_handle = reinterpret_cast<GetHandle>(dlsym(RTLD_NEXT, "zuvo_dtk_get_handle"));
bool engine_is_visible = true;

} // namespace

/// Stands before the platform's own in the order of symbols.
unsigned int zuvo_dtk_get_handle(void)
{
    return engine_is_visible ? platform_handle() : 0;
}

namespace tools {

void show_engine(bool is_visible)
{
    engine_is_visible = is_visible;
}

} // namespace tools
