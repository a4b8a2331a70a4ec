#ifndef DTK_TOOLKIT_REPORT_H
#define DTK_TOOLKIT_REPORT_H

#include "toolkit/result.h"

namespace dtk {

/// What a result means, in words. DirectFBErrorString alone knows DirectFB's numbers, not the library's own.
const char* error_text(DFBResult result);

/// Prints "error in <operation>: <what the result means>" to standard error and passes the result on.
DFBResult report_failure(const char* operation, DFBResult result);

/// Every operation that reports ends with this: silent on success.
inline DFBResult report(const char* operation, DFBResult result)
{
    return result ? report_failure(operation, result) : result;
}

} // namespace dtk

#endif
