#ifndef DTK_TOOLKIT_RESULT_H
#define DTK_TOOLKIT_RESULT_H

#include "dtkhddvd.h"

/// The results that the library itself returns. DirectFB numbers its own constants of these names differently.
namespace dtk::result {

inline constexpr auto ok = static_cast<DFBResult>(DTKHDDVD_OK);
inline constexpr auto failure = static_cast<DFBResult>(DTKHDDVD_FAILURE);
inline constexpr auto no_memory = static_cast<DFBResult>(DTKHDDVD_INIT);
inline constexpr auto unsupported = static_cast<DFBResult>(DTKHDDVD_UNSUPPORTED);
inline constexpr auto invalid_argument = static_cast<DFBResult>(DTKHDDVD_INVARG);
inline constexpr auto thiz_null = static_cast<DFBResult>(DTKHDDVD_THIZNULL);

/// Nothing was left of a blit after clipping. DirectFB returns its own constant, boards return 22.
inline bool is_invalid_area(DFBResult result)
{
    return result == DFB_INVAREA || result == static_cast<DFBResult>(22);
}

} // namespace dtk::result

#endif
