#include "surfaces.h"
#include "targets.h"

using namespace recorder;

namespace {

/// The toolkit that a creation made is named with the number that the trace has for it.
DFBResult create(Form form, IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad, DTKHDDVD** ret_interface)
{
    const bool is_outermost = Call().is_outermost();
    if (is_outermost)
        describe_target(surface);
    std::uint32_t number = 0;
    const auto write = [&](Encoder& encoder) {
        number = ret_interface ? state().toolkits.next() : 0;
        encoder.byte(dfb != nullptr);
        encoder.natural(state().surfaces.of(surface));
        encoder.byte(use_scratch_pad);
        encoder.natural(number);
    };
    const DFBResult result =
        pass_on(Number::create, form, CreateDrawingToolkit_HDDVD, write, dfb, surface, use_scratch_pad, ret_interface);
    if (!is_outermost || result || !number)
        return result;
    {
        const Turn turn;
        state().toolkits.name(*ret_interface, number);
    }
    toolkit_was_made(*ret_interface, surface);
    return result;
}

/// A call whose only argument is the toolkit.
DFBResult pass_on_alone(Number number, Form form, DTKHDDVD* thiz)
{
    return pass_on(number, form, DTKHDDVD_AddRef,
                   [&](Encoder& encoder) { encoder.natural(state().toolkits.of(thiz)); }, thiz);
}

DFBResult attach(Form form, DTKHDDVD* thiz, IDirectFBSurface* surface)
{
    const bool is_outermost = Call().is_outermost();
    if (is_outermost)
        describe_target(surface);
    const auto write = [&](Encoder& encoder) {
        encoder.natural(state().toolkits.of(thiz));
        encoder.natural(state().surfaces.of(surface));
    };
    const DFBResult result = pass_on(Number::attach, form, AttachDFBSurfaceToDrawingToolkit_HDDVD, write, thiz, surface);
    if (is_outermost && !result)
        target_was_set(thiz, surface);
    return result;
}

DFBResult detach(Form form, DTKHDDVD* thiz)
{
    const DFBResult result = pass_on_alone(Number::detach, form, thiz);
    if (Call().is_outermost() && thiz)
        target_was_set(thiz, nullptr);
    return result;
}

DFBResult add_ref(Form form, DTKHDDVD* thiz)
{
    if (Call().is_outermost() && thiz)
        reference_was_taken(thiz);
    return pass_on_alone(Number::add_ref, form, thiz);
}

DFBResult release(Form form, DTKHDDVD* thiz)
{
    const DFBResult result = pass_on_alone(Number::release, form, thiz);
    if (Call().is_outermost() && thiz)
        reference_was_given_back(thiz);
    return result;
}

} // namespace

DFBResult CreateDrawingToolkit_HDDVD(IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad,
                                     DTKHDDVD** ret_interface)
{
    return create(Form::plain, dfb, surface, use_scratch_pad, ret_interface);
}

DFBResult CreateDrawingToolkit_HDDVD_SW(IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad,
                                        DTKHDDVD** ret_interface)
{
    return create(Form::software, dfb, surface, use_scratch_pad, ret_interface);
}

DFBResult CreateDrawingToolkit_HDDVD_HW(IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad,
                                        DTKHDDVD** ret_interface)
{
    return create(Form::hardware, dfb, surface, use_scratch_pad, ret_interface);
}

DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD(DTKHDDVD* thiz, IDirectFBSurface* surface)
{
    return attach(Form::plain, thiz, surface);
}

DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD_SW(DTKHDDVD* thiz, IDirectFBSurface* surface)
{
    return attach(Form::software, thiz, surface);
}

DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD_HW(DTKHDDVD* thiz, IDirectFBSurface* surface)
{
    return attach(Form::hardware, thiz, surface);
}

DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD(DTKHDDVD* thiz)
{
    return detach(Form::plain, thiz);
}

DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD_SW(DTKHDDVD* thiz)
{
    return detach(Form::software, thiz);
}

DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD_HW(DTKHDDVD* thiz)
{
    return detach(Form::hardware, thiz);
}

DFBResult DTKHDDVD_AddRef(DTKHDDVD* thiz)
{
    return add_ref(Form::plain, thiz);
}

DFBResult DTKHDDVD_AddRef_SW(DTKHDDVD* thiz)
{
    return add_ref(Form::software, thiz);
}

DFBResult DTKHDDVD_AddRef_HW(DTKHDDVD* thiz)
{
    return add_ref(Form::hardware, thiz);
}

DFBResult DTKHDDVD_Release(DTKHDDVD* thiz)
{
    return release(Form::plain, thiz);
}

DFBResult DTKHDDVD_Release_SW(DTKHDDVD* thiz)
{
    return release(Form::software, thiz);
}

DFBResult DTKHDDVD_Release_HW(DTKHDDVD* thiz)
{
    return release(Form::hardware, thiz);
}
