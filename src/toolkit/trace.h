#ifndef DTK_TOOLKIT_TRACE_H
#define DTK_TOOLKIT_TRACE_H

#include "toolkit/records.h"

namespace dtk {

/// Whether one of DirectFB's debug domains "DTKHDDVD/Software" and "DTKHDDVD/Hardware" is on.
[[gnu::visibility("hidden")]] extern bool is_tracing;

/// Asks DirectFB which of its debug domains are on. This is done once for each toolkit, as asking takes longer than the
/// shortest drawings can afford.
void configure_tracing();

void print_trace(const char* operation, const DTKHDDVD_data& toolkit, u32 flags);

/// Says which back end draws a primitive and which way it takes, when DirectFB was started with `debug=DTKHDDVD`.
inline void trace(const char* operation, const DTKHDDVD_data& toolkit, u32 flags)
{
    if (is_tracing)
        print_trace(operation, toolkit, flags);
}

} // namespace dtk

#endif
