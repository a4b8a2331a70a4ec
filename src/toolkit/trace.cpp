// DirectFB's headers leave debugging out unless this is defined before them.
#define DIRECT_ENABLE_DEBUG

#include "toolkit/trace.h"

#include "toolkit/drawing.h"

#include <direct/debug.h>

D_DEBUG_DOMAIN(software_domain, "DTKHDDVD/Software", "Drawing with DirectFB and cairo");
D_DEBUG_DOMAIN(hardware_domain, "DTKHDDVD/Hardware", "Drawing with the platform's engine");

namespace dtk {

namespace {

const char* fill_text(const DTKHDDVD_data& toolkit, u32 flags)
{
    if (!(flags & DTKHDDVD_FILL))
        return "no fill";
    return toolkit.fill_pattern || toolkit.has_fill_pattern ? "pattern fill" : "colour fill";
}

const char* outline_text(const DTKHDDVD_data& toolkit, u32 flags)
{
    if (!(flags & DTKHDDVD_STROKE))
        return "no outline";
    return toolkit.pen ? "outline with a pen" : "outline without a pen";
}

} // namespace

bool is_tracing;

void configure_tracing()
{
    is_tracing = direct_log_domain_check(&software_domain) || direct_log_domain_check(&hardware_domain);
}

void print_trace(const char* operation, const DTKHDDVD_data& toolkit, u32 flags)
{
    const char* fill = fill_text(toolkit, flags);
    const char* outline = outline_text(toolkit, flags);
    if (toolkit.dtk)
        D_DEBUG_AT(hardware_domain, "%s: %s, %s\n", operation, fill, outline);
    else
        D_DEBUG_AT(software_domain, "%s: %s, %s, %s\n", operation, fill, outline,
                   uses_scratch_pad(toolkit, flags) ? "through the scratch pad" : "straight onto the target");
}

} // namespace dtk
