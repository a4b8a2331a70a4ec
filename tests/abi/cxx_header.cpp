/* The C++ interface alone: that it compiles with each compiler, with and without exceptions. */
#include <dtkhddvd.hpp>

DFBResult draw(IDirectFB* dfb, IDirectFBSurface* surface);

template class dtkhddvd::BasicToolkit<dtkhddvd::ReturnResults>;
#ifdef __cpp_exceptions
template class dtkhddvd::BasicToolkit<dtkhddvd::ThrowErrors>;
#endif

DFBResult draw(IDirectFB* dfb, IDirectFBSurface* surface)
{
    auto toolkit = dtkhddvd::Toolkit::create(dfb, surface, dtkhddvd::ScratchPad::with);
    if (!toolkit)
        return toolkit.error();
    const DFBPoint corners[] = {{0, 0}, {9, 0}, {0, 9}};
    auto pen = toolkit->create_pen({-2, -2, 2, -2, 2, 2, -2, 2});
    if (!pen)
        return pen.error();
    toolkit->set_pen(*pen).ignore();
    toolkit->polygon(corners, dtkhddvd::Outline::open, dtkhddvd::Draw::fill | dtkhddvd::Draw::stroke).ignore();
    return toolkit->ellipse({0, 0, 9, 9}, dtkhddvd::Draw::both).error();
}
