#include "toolkit/records.h"
#include "toolkit/ref.h"

using namespace dtk;

namespace {

DFBResult add_reference(DTKHDDVD* thiz)
{
    if (!thiz)
        return result::thiz_null;
    ++thiz->priv->ref_count;
    return result::ok;
}

/// Cairo's contexts own the cairo surfaces that draw on target and scratch pad.
void destroy_context(cairo_t*& context)
{
    if (context)
        cairo_destroy(context);
    context = nullptr;
}

/// Destroys what a toolkit without references holds. The reference on its pen is the pen owner's affair.
void destroy(DTKHDDVD* thiz)
{
    DTKHDDVD_data& toolkit = *thiz->priv;

    thiz->SetFillPattern(thiz, nullptr);
    destroy_context(toolkit.target_cr);
    give_back(toolkit.target);
    destroy_context(toolkit.scratch_cr);
    give_back(toolkit.scratch);
    give_back(toolkit.dfb);
    std::free(thiz->priv);
    std::free(thiz);
}

DFBResult release(DTKHDDVD* thiz)
{
    if (!thiz)
        return result::thiz_null;
    if (--thiz->priv->ref_count == 0)
        destroy(thiz);
    return result::ok;
}

} // namespace

DFBResult DTKHDDVD_AddRef_SW(DTKHDDVD* thiz)
{
    return add_reference(thiz);
}

DFBResult DTKHDDVD_AddRef_HW(DTKHDDVD* thiz)
{
    return add_reference(thiz);
}

DFBResult DTKHDDVD_Release_SW(DTKHDDVD* thiz)
{
    return release(thiz);
}

/// A hardware toolkit has no contexts; what else there is goes the same way.
DFBResult DTKHDDVD_Release_HW(DTKHDDVD* thiz)
{
    return release(thiz);
}
