#include "output.h"

static SDL_Surface *surface;        /* The window's. */
static bool is_direct;              /* Whether the picture is kept in it. */
static bool is_new;                 /* Whether nothing of it has been shown. */

static bool open_surface(SDL_Window *window)
{
    surface = SDL_GetWindowSurface(window);
    return surface != NULL;
}

static bool fit_surface(const OutputFrame *frame, Picture *picture)
{
    const SDL_Rect *box = &frame->box;

    // The old surface ends when a new one is asked for.
    picture_move(NULL, 0);
    if (!open_surface(frame->window))
        return false;
    SDL_FillRect(surface, NULL, 0);
    is_direct = surface->format->format == SDL_PIXELFORMAT_RGB888 && box->w == picture->width && box->h == picture->height;
    if (is_direct)
        picture_move((unsigned char *)surface->pixels + box->y * surface->pitch + box->x * 4, surface->pitch);
    is_new = true;
    return true;
}

static bool scale(const OutputFrame *frame, const Picture *picture)
{
    SDL_Surface *source = SDL_CreateRGBSurfaceWithFormatFrom(picture->pixels, picture->width, picture->height, 32,
                                                             picture->pitch, SDL_PIXELFORMAT_RGB888);
    SDL_Rect box = frame->box;
    int failure;

    if (!source)
        return false;
    if (frame->is_whole_multiple || surface->format->format != SDL_PIXELFORMAT_RGB888)
        failure = SDL_BlitScaled(source, NULL, surface, &box);
    else
        failure = SDL_SoftStretchLinear(source, NULL, surface, &box);
    SDL_FreeSurface(source);
    return !failure;
}

/* The server has read the memory when this returns, so that nobody draws into it meanwhile. */
static bool take_into_surface(const OutputFrame *frame, const Picture *picture)
{
    SDL_Rect changed = frame->box;

    if (is_direct) {
        changed = picture->dirty;
        changed.x += frame->box.x;
        changed.y += frame->box.y;
    } else if (!scale(frame, picture)) {
        return false;
    }
    if (is_new)
        changed = (SDL_Rect){0, 0, surface->w, surface->h};
    is_new = false;
    return !SDL_UpdateWindowSurfaceRects(frame->window, &changed, 1);
}

static void present_nothing(const OutputFrame *frame)
{
    (void)frame;
}

static void close_nothing(void)
{
}

const Output surface_output = {
    .open = open_surface,
    .fit = fit_surface,
    .take = take_into_surface,
    .present = present_nothing,
    .close = close_nothing,
};
