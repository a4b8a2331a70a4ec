#include "picture.h"

#include <pthread.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

enum { bytes_per_pixel = 4 };

static struct {
    pthread_mutex_t lock;
    pthread_cond_t changed;
    Picture picture;
    unsigned char *memory;      /* The picture's own; where the window's serves instead, it is never touched. */
    bool has_ended;
} shared;

static void init_locks(void)
{
    pthread_mutexattr_t checked;
    pthread_condattr_t monotonic;

    pthread_mutexattr_init(&checked);
    pthread_mutexattr_settype(&checked, PTHREAD_MUTEX_ERRORCHECK);
    pthread_mutex_init(&shared.lock, &checked);
    pthread_mutexattr_destroy(&checked);
    pthread_condattr_init(&monotonic);
    pthread_condattr_setclock(&monotonic, CLOCK_MONOTONIC);
    pthread_cond_init(&shared.changed, &monotonic);
    pthread_condattr_destroy(&monotonic);
}

void picture_reset(void)
{
    static pthread_once_t once = PTHREAD_ONCE_INIT;

    pthread_once(&once, init_locks);
    free(shared.memory);
    shared.memory = NULL;
    shared.picture = (Picture){0};
    shared.has_ended = false;
}

static bool allocate(int width, int height)
{
    unsigned char *memory = calloc((size_t)height, (size_t)width * bytes_per_pixel);

    if (!memory)
        return false;
    free(shared.memory);
    shared.memory = memory;
    shared.picture = (Picture){
        .width = width, .height = height, .pixels = memory, .pitch = width * bytes_per_pixel, .is_new = true};
    return true;
}

bool picture_resize(int width, int height)
{
    bool is_there;

    pthread_mutex_lock(&shared.lock);
    is_there = shared.picture.width == width && shared.picture.height == height;
    if (!is_there)
        is_there = allocate(width, height);
    pthread_mutex_unlock(&shared.lock);
    return is_there;
}

static SDL_Rect clip(const DFBRegion *part)
{
    const SDL_Rect whole = {0, 0, shared.picture.width, shared.picture.height};
    const SDL_Rect asked = {part->x1, part->y1, part->x2 - part->x1 + 1, part->y2 - part->y1 + 1};
    SDL_Rect clipped;

    SDL_IntersectRect(&whole, &asked, &clipped);
    return clipped;
}

/* The window's thread is woken by the first change only; it then knows when to show this and what is still to come. */
static void add_dirty(const SDL_Rect *area)
{
    if (SDL_RectEmpty(&shared.picture.dirty))
        pthread_cond_signal(&shared.changed);
    SDL_UnionRect(&shared.picture.dirty, area, &shared.picture.dirty);
}

void picture_draw(const DFBRegion *part, WindowCopy copy, const void *source)
{
    Picture *picture = picture_lock();
    const SDL_Rect area = clip(part);
    const DFBRectangle copied = {area.x, area.y, area.w, area.h};

    if (!SDL_RectEmpty(&area)) {
        copy(source, &copied, picture->pixels + area.y * picture->pitch + area.x * bytes_per_pixel, picture->pitch);
        add_dirty(&area);
    }
    picture_unlock();
}

void picture_end(void)
{
    pthread_mutex_lock(&shared.lock);
    shared.has_ended = true;
    pthread_cond_signal(&shared.changed);
    pthread_mutex_unlock(&shared.lock);
}

long long picture_clock(void)
{
    struct timespec now;

    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000000LL + now.tv_nsec / 1000;
}

static void sleep_until(long long time)
{
    const struct timespec until = {(time_t)(time / 1000000), (long)(time % 1000000) * 1000};

    pthread_cond_timedwait(&shared.changed, &shared.lock, &until);
}

static bool is_due(long long due)
{
    return !SDL_RectEmpty(&shared.picture.dirty) && picture_clock() >= due;
}

bool picture_await(long long due, int longest)
{
    const long long latest = picture_clock() + longest * 1000LL;
    bool is_ready;

    pthread_mutex_lock(&shared.lock);
    if (!shared.has_ended && !is_due(due))
        sleep_until(SDL_RectEmpty(&shared.picture.dirty) || latest < due ? latest : due);
    is_ready = !shared.has_ended && is_due(due);
    pthread_mutex_unlock(&shared.lock);
    return is_ready;
}

bool picture_has_ended(void)
{
    bool has_ended;

    pthread_mutex_lock(&shared.lock);
    has_ended = shared.has_ended;
    pthread_mutex_unlock(&shared.lock);
    return has_ended;
}

Picture *picture_lock(void)
{
    pthread_mutex_lock(&shared.lock);
    return &shared.picture;
}

void picture_unlock(void)
{
    pthread_mutex_unlock(&shared.lock);
}

static void copy_rows(unsigned char *target, int pitch)
{
    const Picture *picture = &shared.picture;
    int y;

    for (y = 0; y < picture->height; ++y)
        memcpy(target + y * pitch, picture->pixels + y * picture->pitch, (size_t)picture->width * bytes_per_pixel);
}

void picture_move(void *pixels, int pitch)
{
    Picture *picture = &shared.picture;
    unsigned char *target = pixels ? pixels : shared.memory;

    if (!pixels)
        pitch = picture->width * bytes_per_pixel;
    if (target == picture->pixels)
        return;
    copy_rows(target, pitch);
    picture->pixels = target;
    picture->pitch = pitch;
}
