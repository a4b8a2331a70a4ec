#include "output.h"

static SDL_Renderer *renderer;
static SDL_Texture *texture;

static bool open_renderer(SDL_Window *window)
{
    renderer = SDL_CreateRenderer(window, -1, 0);
    return renderer && !SDL_SetRenderDrawColor(renderer, 0, 0, 0, SDL_ALPHA_OPAQUE);
}

static bool fit_texture(const OutputFrame *frame, Picture *picture)
{
    if (texture)
        SDL_DestroyTexture(texture);
    texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_RGB888, SDL_TEXTUREACCESS_STREAMING, picture->width,
                                picture->height);
    if (!texture)
        return false;
    SDL_SetTextureScaleMode(texture, frame->is_whole_multiple ? SDL_ScaleModeNearest : SDL_ScaleModeLinear);
    return true;
}

static bool take_into_texture(const OutputFrame *frame, const Picture *picture)
{
    const SDL_Rect *part = &picture->dirty;

    (void)frame;
    return !SDL_UpdateTexture(texture, part, picture->pixels + part->y * picture->pitch + part->x * 4, picture->pitch);
}

static void present_texture(const OutputFrame *frame)
{
    SDL_RenderClear(renderer);
    SDL_RenderCopy(renderer, texture, NULL, &frame->box);
    SDL_RenderPresent(renderer);
}

static void close_renderer(void)
{
    if (texture)
        SDL_DestroyTexture(texture);
    if (renderer)
        SDL_DestroyRenderer(renderer);
    texture = NULL;
    renderer = NULL;
}

const Output texture_output = {
    .open = open_renderer,
    .fit = fit_texture,
    .take = take_into_texture,
    .present = present_texture,
    .close = close_renderer,
};
