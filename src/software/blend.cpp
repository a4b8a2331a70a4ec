#include "software/blend.h"

#include "toolkit/records.h"
#include "zuvo.h"

#include <cstdio>

namespace dtk {

namespace {

/// How a blend ended, and in which call; a question about the pixel format has no name and is not complained about.
struct Outcome {
    DFBResult result;
    const char* call = nullptr;
};

enum class OutsideTarget { is_success, is_failure };

Outcome clear(IDirectFBSurface* scratch, const DFBRectangle& rect, bool is_indexed)
{
    if (is_indexed) {
        if (DFBResult result = scratch->SetColorIndex(scratch, key_index))
            return {result, "SetColorIndex"};
    } else {
        if (DFBResult result = scratch->SetColor(scratch, 0, 0, 0, 0))
            return {result, "SetColor"};
    }
    return {scratch->FillRectangle(scratch, rect.x, rect.y, rect.w, rect.h), "FillRectangle"};
}

Outcome blend_and_clear(IDirectFBSurface* target, IDirectFBSurface* scratch, const DFBRectangle& rect,
                        OutsideTarget outside)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    if (DFBResult result = scratch->GetPixelFormat(scratch, &format))
        return {result};
    const bool is_indexed = DFB_PIXELFORMAT_IS_INDEXED(format);

    const int flags = is_indexed ? DSBLIT_BLEND_ALPHACHANNEL | DSBLIT_SRC_COLORKEY : DSBLIT_BLEND_ALPHACHANNEL;
    if (DFBResult result = target->SetBlittingFlags(target, static_cast<DFBSurfaceBlittingFlags>(flags)))
        return {result, "SetBlittingFlags"};

    const DFBResult result = target->Blit(target, scratch, &rect, rect.x, rect.y);
    const bool is_tolerated = outside == OutsideTarget::is_success && result::is_invalid_area(result);
    if (result && !is_tolerated)
        return {result, "Blit"};
    return clear(scratch, rect, is_indexed);
}

void complain(const Outcome& outcome, const DFBRectangle& rect)
{
    if (!outcome.call)
        return;
    std::fprintf(stderr, "BlendScratchPad: %s returned with err=0x%x\n", outcome.call,
                 static_cast<unsigned>(outcome.result));
    if (std::strcmp(outcome.call, "Blit") == 0)
        std::printf("rectangle %d %d %d %d at %d %d\n", rect.x, rect.y, rect.w, rect.h, rect.x, rect.y);
}

DFBResult blend_after_engine(u32 dtk, IDirectFBSurface* target, IDirectFBSurface* scratch, const DFBRectangle& rect)
{
    if (const int error = zuvo_dtk_sync(dtk)) {
        std::fprintf(stderr, "BlendScratchPad: zuvo_dtk_sync failed with err 0x%x\n", static_cast<unsigned>(error));
        return result::failure;
    }
    const Outcome outcome = blend_and_clear(target, scratch, rect, OutsideTarget::is_success);
    if (outcome.result)
        complain(outcome, rect);
    return outcome.result;
}

} // namespace

DFBResult BlendScratchPad(IDirectFB* dfb, u32 dtk, IDirectFBSurface* target, IDirectFBSurface* scratch,
                          const DFBRectangle& rect)
{
    const DFBResult result = blend_after_engine(dtk, target, scratch, rect);
    dfb->WaitIdle(dfb);
    return result;
}

DFBResult BlendScratchPadNoSync(IDirectFBSurface* target, IDirectFBSurface* scratch, const DFBRectangle& rect)
{
    return blend_and_clear(target, scratch, rect, OutsideTarget::is_failure).result;
}

} // namespace dtk
