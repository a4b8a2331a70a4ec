#include "toolkit/report.h"

#include <cstdio>

namespace dtk {

namespace {

DFBResult in_directfb_numbers(DFBResult result)
{
    switch (static_cast<unsigned>(result)) {
    case DTKHDDVD_FAILURE:
        return DFB_FAILURE;
    case DTKHDDVD_INIT:
        return DFB_INIT;
    case DTKHDDVD_UNSUPPORTED:
        return DFB_UNSUPPORTED;
    case DTKHDDVD_INVARG:
        return DFB_INVARG;
    case DTKHDDVD_THIZNULL:
        return DFB_THIZNULL;
    default:
        return result;
    }
}

} // namespace

const char* error_text(DFBResult result)
{
    return DirectFBErrorString(in_directfb_numbers(result));
}

DFBResult report_failure(const char* operation, DFBResult result)
{
    std::fprintf(stderr, "error in %s: %s\n", operation, error_text(result));
    return result;
}

} // namespace dtk
