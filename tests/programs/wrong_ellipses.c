/* Put before the platform's library: the engine draws ellipses one pixel too far to the right. */
#include <dlfcn.h>

#include <zuvo.h>

int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle *rect, unsigned int flags)
{
    int (*const draw)(unsigned int, const DFBRectangle *, unsigned int) =
        (int (*)(unsigned int, const DFBRectangle *, unsigned int))dlsym(RTLD_NEXT, "zuvo_dtk_draw_ellipse");
    const DFBRectangle moved = {rect->x + 1, rect->y, rect->w, rect->h};

    return draw(dtk, &moved, flags);
}
