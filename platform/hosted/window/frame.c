#include "frame.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>

#include "display.h"

static struct {
    WindowOptions options;
    OutputFrame place;
    const Output *output;
    SDL_Point picture;      /* The size of the picture that the place is for. */
    bool is_outdated;       /* Whether the whole picture has to be shown again. */
    bool is_hidden;         /* There is no window, and there will be none. */
} frame;

void frame_reset(const WindowOptions *options)
{
    memset(&frame, 0, sizeof(frame));
    frame.options = *options;
}

/* ---- sizes ---- */

/* The largest rectangle of the picture's proportions in the middle of a room of this size. */
static SDL_Rect largest_box(SDL_Point picture, int width, int height)
{
    SDL_Rect box = {0, 0, width, height};

    if ((long long)picture.x * height > (long long)picture.y * width)
        box.h = SDL_max(1, (int)((long long)picture.y * width / picture.x));
    else
        box.w = SDL_max(1, (int)((long long)picture.x * height / picture.y));
    box.x = (width - box.w) / 2;
    box.y = (height - box.h) / 2;
    return box;
}

/* The picture's size, unless another one is wanted or the desktop has not that much room. */
static SDL_Point window_size(void)
{
    SDL_Point size = frame.picture;
    SDL_Rect room, box;

    if (frame.options.width > 0)
        size = (SDL_Point){frame.options.width, frame.options.height};
    else if (!SDL_GetDisplayUsableBounds(0, &room) && (size.x > room.w || size.y > room.h)) {
        box = largest_box(size, room.w, room.h);
        size = (SDL_Point){box.w, box.h};
    }
    return size;
}

static void place_picture(void)
{
    int width, height;

    SDL_GetWindowSizeInPixels(frame.place.window, &width, &height);
    frame.place.box = largest_box(frame.picture, width, height);
    frame.place.is_whole_multiple = frame.place.box.w % frame.picture.x == 0 && frame.place.box.h % frame.picture.y == 0;
}

/* A window that could not be opened has no size. */
SDL_Point frame_to_picture(int x, int y)
{
    const SDL_Rect *box = &frame.place.box;
    int width = 0, height = 0, pixel_width = 0, pixel_height = 0;

    SDL_GetWindowSize(frame.place.window, &width, &height);
    SDL_GetWindowSizeInPixels(frame.place.window, &pixel_width, &pixel_height);
    x = (int)((long long)(x * pixel_width / SDL_max(width, 1) - box->x) * frame.picture.x / SDL_max(box->w, 1));
    y = (int)((long long)(y * pixel_height / SDL_max(height, 1) - box->y) * frame.picture.y / SDL_max(box->h, 1));
    return (SDL_Point){SDL_clamp(x, 0, frame.picture.x - 1), SDL_clamp(y, 0, frame.picture.y - 1)};
}

SDL_Point frame_picture_size(void)
{
    return frame.picture;
}

/* ---- the window ---- */

static void note_picture_size(void)
{
    const Picture *picture = picture_lock();

    frame.picture = (SDL_Point){picture->width, picture->height};
    picture_unlock();
}

/* The picture is not locked: SDL waits for the window manager here, without an end where that hangs. */
static bool open_window(SDL_Point size)
{
    const Uint32 flags = SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI |
                         (frame.options.full_screen ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
    char title[256];

    snprintf(title, sizeof(title), "%s (F11: full screen)", program_invocation_short_name);
    frame.place.window = SDL_CreateWindow(title, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, size.x, size.y, flags);
    if (!frame.place.window)
        return false;
    frame.output = display_output();
    return frame.output->open(frame.place.window);
}

static void give_up(void)
{
    fprintf(stderr, "zuvo: no window: %s\n", SDL_GetError());
    frame_hide();
}

static bool has_window(void)
{
    if (frame.place.window)
        return true;
    note_picture_size();
    return open_window(window_size());
}

static bool fit(Picture *picture)
{
    const bool has_new_size = picture->width != frame.picture.x || picture->height != frame.picture.y;

    frame.picture = (SDL_Point){picture->width, picture->height};
    if (has_new_size && !frame.options.width) {
        const SDL_Point size = window_size();
        SDL_SetWindowSize(frame.place.window, size.x, size.y);
        SDL_SetWindowPosition(frame.place.window, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED);
    }
    place_picture();
    picture->is_new = false;
    picture->dirty = (SDL_Rect){0, 0, picture->width, picture->height};
    frame.is_outdated = false;
    return frame.output->fit(&frame.place, picture);
}

static bool take(Picture *picture)
{
    const bool is_fit = !picture->is_new && !frame.is_outdated;

    return (is_fit || fit(picture)) && frame.output->take(&frame.place, picture);
}

void frame_show(void)
{
    const bool can_show = !frame.is_hidden && has_window();
    Picture *picture = picture_lock();
    const bool is_taken = can_show && take(picture);

    picture->dirty = (SDL_Rect){0};
    picture_unlock();

    if (is_taken)
        frame.output->present(&frame.place);
    else if (!frame.is_hidden)
        give_up();
}

void frame_renew(void)
{
    frame.is_outdated = true;
    if (frame.place.window && !frame.is_hidden)
        frame_show();
}

void frame_toggle_full_screen(void)
{
    const bool is_full = SDL_GetWindowFlags(frame.place.window) & SDL_WINDOW_FULLSCREEN_DESKTOP;

    SDL_SetWindowFullscreen(frame.place.window, is_full ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
}

void frame_hide(void)
{
    frame.is_hidden = true;
    if (frame.place.window)
        SDL_HideWindow(frame.place.window);
}

void frame_close(void)
{
    if (frame.output)
        frame.output->close();
    if (frame.place.window)
        SDL_DestroyWindow(frame.place.window);
}
