#include "real/differential/the_stage.h"

#include <stdexcept>
#include <zuvo.h>

namespace differential {
namespace {

IDirectFB* start()
{
    char name[] = "differential_tests";
    char options[] = "--dfb:system=dummy,quiet,no-cursor,no-sighandler,mode=1920x1080";
    char* arguments[] = {name, options, nullptr};
    int count = 2;
    char** vector = arguments;
    zuvo_init(4108);
    IDirectFB* const dfb = zuvo_dfb_ext_open_with_params(6, &count, &vector);
    if (!dfb)
        throw std::runtime_error("DirectFB does not start");
    return dfb;
}

} // namespace

Stage& the_stage()
{
    static Stage stage(start());
    return stage;
}

} // namespace differential
