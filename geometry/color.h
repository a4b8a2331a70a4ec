/**
 * @file color.h
 * A colour as rasterisers and engines take it. Plain C, because DirectFB's drivers are.
 */
#ifndef GEOMETRY_COLOR_H
#define GEOMETRY_COLOR_H

#include <directfb.h>
#include <stdint.h>

#ifdef __cplusplus
namespace geometry {
#endif

/// The pixel 0xAARRGGBB.
static inline uint32_t color_word(DFBColor color)
{
    return (uint32_t)color.a << 24 | (uint32_t)color.r << 16 | (uint32_t)color.g << 8 | color.b;
}

#ifdef __cplusplus
} // namespace geometry
#endif

#endif
