#include "toolkit/context.h"
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

/// Gives back what both back ends hold to the end, and frees the records. The reference on its pen is the pen owner's
/// affair.
void end(DTKHDDVD* thiz)
{
    give_back(thiz->priv->scratch);
    give_back(thiz->priv->dfb);
    std::free(thiz->priv);
    std::free(thiz);
}

void destroy_software(DTKHDDVD* thiz)
{
    DTKHDDVD_data& toolkit = *thiz->priv;

    thiz->SetFillPattern(thiz, nullptr);
    destroy_context(toolkit.target_cr);
    give_back(toolkit.target);
    destroy_context(toolkit.scratch_cr);
    end(thiz);
}

/// A hardware toolkit has nothing of cairo's.
void destroy_hardware(DTKHDDVD* thiz)
{
    thiz->SetFillPattern(thiz, nullptr);
    give_back(thiz->priv->target);
    end(thiz);
}

template <typename Destroy>
DFBResult release(DTKHDDVD* thiz, Destroy&& destroy)
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
    return release(thiz, destroy_software);
}

DFBResult DTKHDDVD_Release_HW(DTKHDDVD* thiz)
{
    return release(thiz, destroy_hardware);
}
