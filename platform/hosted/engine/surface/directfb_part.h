/**
 * @file directfb_part.h
 * Which part of a surface an interface stands for. DirectFB's internal headers are C only, so this is, too.
 */
#ifndef ZUVO_DIRECTFB_PART_H
#define ZUVO_DIRECTFB_PART_H

#include <directfb.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A part of a surface as GetSubSurface makes one, in pixels of the whole surface. */
typedef struct DirectFBPart {
    DFBSurfaceID id;        /**< The whole surface. */
    DFBRectangle wanted;    /**< Where the part's coordinates begin, and its size; it may reach past the surface. */
    DFBRectangle granted;   /**< What of it lies inside all its parents. */
} DirectFBPart;

/**
 * Finds the part that @p surface stands for. Returns false for a whole surface, and for an interface that is not
 * DirectFB's own, of which nothing but the slot GetID is looked at.
 */
bool directfb_get_part(const IDirectFBSurface *surface, DirectFBPart *ret_part);

#ifdef __cplusplus
}
#endif

#endif
