#include "state.h"

#include <core/palette.h>
#include <core/surface.h>
#include <core/surface_allocation.h>
#include <string.h>

#include "geometry/color.h"
#include "job.h"

/// DirectFB draws rectangles and spans with FillRectangle. Any other function is switched off when a state first asks
/// for it, which spares its calls the way past the driver.
static const DFBAccelerationMask done_functions = DFXL_FILLRECTANGLE | DFXL_BLIT;

/// DirectFB's renderer sets the unused byte of RGB32 pixels that it stores.
static const uint32_t opaque_bits = 0xff000000;

/// A blit that is done exactly as DirectFB's renderer does it.
typedef struct KnownBlit {
    DFBSurfacePixelFormat target, source;
    DFBSurfaceBlittingFlags flags;
    AccelBlit blit;
} KnownBlit;

static const KnownBlit known_blits[] = {
    {DSPF_ARGB, DSPF_ARGB, DSBLIT_NOFX, ACCEL_COPY},
    {DSPF_ARGB, DSPF_ARGB, DSBLIT_BLEND_ALPHACHANNEL, ACCEL_BLEND},
    {DSPF_RGB32, DSPF_ARGB, DSBLIT_BLEND_ALPHACHANNEL, ACCEL_BLEND_RGB32},
    {DSPF_ARGB, DSPF_LUT8, DSBLIT_NOFX, ACCEL_EXPAND},
    {DSPF_ARGB, DSPF_LUT8, DSBLIT_SRC_COLORKEY, ACCEL_EXPAND},
    {DSPF_RGB32, DSPF_LUT8, DSBLIT_NOFX, ACCEL_EXPAND},
    {DSPF_RGB32, DSPF_LUT8, DSBLIT_SRC_COLORKEY, ACCEL_EXPAND},
    {DSPF_ARGB, DSPF_LUT8, DSBLIT_BLEND_ALPHACHANNEL, ACCEL_EXPAND_BLEND},
    {DSPF_ARGB, DSPF_LUT8, DSBLIT_BLEND_ALPHACHANNEL | DSBLIT_SRC_COLORKEY, ACCEL_EXPAND_BLEND},
    {DSPF_LUT8, DSPF_LUT8, DSBLIT_NOFX, ACCEL_COPY},
    {DSPF_LUT8, DSPF_LUT8, DSBLIT_SRC_COLORKEY, ACCEL_COPY},
};

static const KnownBlit *find_blit(const CardState *state)
{
    for (size_t i = 0; i < D_ARRAY_SIZE(known_blits); ++i) {
        const KnownBlit *known = &known_blits[i];
        if (known->target == state->destination->config.format && known->source == state->source->config.format
            && known->flags == state->blittingflags)
            return known;
    }
    return NULL;
}

static bool is_plain(const CoreSurface *surface) { return !(surface->config.caps & DSCAPS_SEPARATED); }

/// DirectFB2 does not pass on to a driver which buffer of a layer is drawn to since the Flip.
static bool has_known_buffer(const CoreSurface *surface)
{
    return !DIRECTFB_SURFACE_FLIPS_LAYER || !(surface->type & CSTF_LAYER) || !(surface->config.caps & DSCAPS_FLIPPING);
}

static bool can_blit(const CardState *state)
{
    if (state->source == state->destination || !is_plain(state->source) || !find_blit(state))
        return false;
    return !(state->blittingflags & DSBLIT_BLEND_ALPHACHANNEL)
           || (state->src_blend == DSBF_SRCALPHA && state->dst_blend == DSBF_INVSRCALPHA);
}

static bool can_fill(const CardState *state)
{
    switch (state->destination->config.format) {
    case DSPF_ARGB:
    case DSPF_RGB32:
    case DSPF_LUT8:
    case DSPF_A8:
        return state->drawingflags == DSDRAW_NOFX;
    default:
        return false;
    }
}

void accel_check_state(void *driver_data, void *device_data, CardState *state, DFBAccelerationMask accel)
{
    (void)driver_data;
    (void)device_data;
    if (!(accel & done_functions)) {
        state->disabled |= accel;
        return;
    }
    if (state->render_options != DSRO_NONE || !is_plain(state->destination) || !has_known_buffer(state->destination))
        return;
    if ((accel == DFXL_FILLRECTANGLE && can_fill(state)) || (accel == DFXL_BLIT && can_blit(state)))
        state->accel |= accel;
}

/// Describes locked memory. Everything is drawn before the call returns, so DirectFB need not wait for it before the
/// CPU's next access. Another thread may be looking, under another lock.
static AccelImage image_of(CoreSurfaceBufferLock *lock)
{
    __atomic_store_n(&lock->allocation->accessed[CSAID_GPU], CSAF_NONE, __ATOMIC_RELAXED);
    const CoreSurfaceConfig *config = &lock->allocation->config;
    return (AccelImage){lock->addr, lock->pitch, config->size.w, config->size.h, DFB_BYTES_PER_PIXEL(config->format)};
}

static uint32_t fill_colour(const CardState *state)
{
    switch (state->destination->config.format) {
    case DSPF_LUT8:
        return state->color_index;
    case DSPF_A8:
        return state->color.a;
    case DSPF_RGB32:
        return opaque_bits | color_word(state->color);
    default:
        return color_word(state->color);
    }
}

/// Palettes rarely change, so it is cheaper to compare the entries than to turn them into pixels again.
static void take_palette(AccelPalette *palette, const DFBColor *entries, uint32_t set_bits, int transparent)
{
    if (palette->set_bits == set_bits && palette->transparent == transparent
        && !memcmp(palette->entries, entries, sizeof(palette->entries)))
        return;
    palette->set_bits = set_bits;
    palette->transparent = transparent;
    memcpy(palette->entries, entries, sizeof(palette->entries));
    for (size_t i = 0; i < D_ARRAY_SIZE(palette->pixels); ++i)
        palette->pixels[i] = set_bits | color_word(entries[i]);
    if (transparent >= 0)
        palette->pixels[transparent] = 0;
}

static bool take_source_palette(AccelJob *job, const CardState *state)
{
    CorePalette *palette = state->source->palette;
    if (!palette || palette->num_entries != D_ARRAY_SIZE(job->palette.entries))
        return false;
    if (state->destination->config.format == DSPF_LUT8)
        return state->destination->palette && dfb_palette_equal(palette, state->destination->palette);
    const uint32_t set_bits = state->destination->config.format == DSPF_RGB32 ? opaque_bits : 0;
    const int transparent = job->blit == ACCEL_EXPAND_BLEND && job->is_keyed ? job->key : -1;
    take_palette(&job->palette, palette->entries, set_bits, transparent);
    return true;
}

static bool overlap(const AccelImage *a, const AccelImage *b)
{
    const uint8_t *a_end = a->pixels + a->pitch * (size_t)a->height;
    const uint8_t *b_end = b->pixels + b->pitch * (size_t)b->height;
    return a->pixels < b_end && b->pixels < a_end;
}

/// Decides what a blit's state alone does not decide: palettes, keys and memory may change without a new check.
static bool take_source(AccelJob *job, CardState *state)
{
    const KnownBlit *known = find_blit(state);
    if (!known || !state->src.addr)
        return false;
    job->blit = known->blit;
    job->source = image_of(&state->src);
    job->is_keyed = state->blittingflags & DSBLIT_SRC_COLORKEY;
    job->key = (uint8_t)state->src_colorkey;
    if (overlap(&job->source, &job->target) || (job->is_keyed && state->src_colorkey != job->key))
        return false;
    return job->source.pixel_bytes != 1 || take_source_palette(job, state);
}

void accel_set_state(void *driver_data, void *device_data, GraphicsDeviceFuncs *funcs, CardState *state,
                     DFBAccelerationMask accel)
{
    (void)device_data;
    (void)funcs;
    AccelJob *job = driver_data;
    job->is_possible = state->dst.addr != NULL;
    if (!job->is_possible)
        return;
    job->target = image_of(&state->dst);
    job->clip = state->clip;
    if (accel == DFXL_BLIT)
        job->is_possible = take_source(job, state);
    else
        job->colour = fill_colour(state);
    // state->set stays empty: the addresses are those of this call, so each call asks for its job.
}
