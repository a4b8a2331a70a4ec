#include "real/reference_ledger.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace real {
namespace {

/// What the slots, which know nothing but their record, write down.
struct Books {
    std::map<const void*, int> references;
    DFBResult refusal = DFB_OK;
    IDirectFB directfb = {};
    IDirectFBSurface surface = {};
};

Books books;

DirectResult add_reference_on_directfb(IDirectFB* thiz)
{
    ++books.references[thiz];
    return books.directfb.AddRef(thiz);
}

DirectResult release_directfb(IDirectFB* thiz)
{
    --books.references[thiz];
    return books.directfb.Release(thiz);
}

DirectResult add_reference_on_surface(IDirectFBSurface* thiz)
{
    ++books.references[thiz];
    return books.surface.AddRef(thiz);
}

DirectResult release_surface(IDirectFBSurface* thiz)
{
    EXPECT_GT(books.references[thiz], 0) << "a surface is given back twice";
    --books.references[thiz];
    return books.surface.Release(thiz);
}

void enter(IDirectFBSurface* surface);

DFBResult make_sub_surface(IDirectFBSurface* thiz, const DFBRectangle* area, IDirectFBSurface** ret_surface)
{
    const DFBResult result = books.surface.GetSubSurface(thiz, area, ret_surface);
    if (result == DFB_OK)
        enter(*ret_surface);
    return result;
}

DFBResult create_surface(IDirectFB* thiz, const DFBSurfaceDescription* description, IDirectFBSurface** ret_surface)
{
    const DFBResult result =
        books.refusal ? books.refusal : books.directfb.CreateSurface(thiz, description, ret_surface);
    if (result == DFB_OK)
        enter(*ret_surface);
    return result;
}

/// All surfaces share their operations. A new one has one reference.
void enter(IDirectFBSurface* surface)
{
    if (!books.surface.Release)
        books.surface = *surface;
    books.references[surface] = 1;
    surface->AddRef = add_reference_on_surface;
    surface->Release = release_surface;
    surface->GetSubSurface = make_sub_surface;
}

} // namespace

ReferenceLedger::ReferenceLedger()
{
    books = Books();
    IDirectFB& dfb = *directfb();
    books.directfb = dfb;
    dfb.AddRef = add_reference_on_directfb;
    dfb.Release = release_directfb;
    dfb.CreateSurface = create_surface;
}

ReferenceLedger::~ReferenceLedger()
{
    IDirectFB& dfb = *directfb();
    dfb.AddRef = books.directfb.AddRef;
    dfb.Release = books.directfb.Release;
    dfb.CreateSurface = books.directfb.CreateSurface;
}

int ReferenceLedger::on_directfb() const
{
    return books.references[directfb()];
}

int ReferenceLedger::on(const Surface& surface) const
{
    return books.references[surface.get()] - 1;
}

int ReferenceLedger::surfaces_alive() const
{
    const auto lives = [](const auto& entry) { return entry.first != directfb() && entry.second > 0; };
    return static_cast<int>(std::count_if(books.references.begin(), books.references.end(), lives));
}

void ReferenceLedger::refuse_surfaces(DFBResult result)
{
    books.refusal = result;
}

} // namespace real
