/**
 * @file dtkhddvd.h
 * A drawing toolkit for DirectFB surfaces: lines, rectangles, polygons and ellipses, filled with a colour or a
 * texture and outlined with a pen.
 *
 * Conventions
 * - Coordinates and sizes are whole pixels. (0, 0) is the top left pixel of the surface that the toolkit is attached
 *   to; x grows to the right and y downwards. Points name pixels, and both ends of a line are drawn.
 * - Colours are straight (not premultiplied) bytes 0 to 255; alpha 255 is opaque and 0 invisible.
 * - Every operation takes its interface record first, `thiz`, and answers a DFBResult: DTKHDDVD_OK or why it failed.
 *   The results of failing DirectFB calls are passed on unchanged. A failed operation also writes one line to
 *   standard error.
 * - Records are reference counted. Who creates one owns one reference and gives it back with Release.
 * - Nothing is locked: a toolkit, its pens and its surfaces belong to one drawing thread, and two toolkits must not
 *   draw at the same moment, even in different threads: they share the stamps that wait and the drawing engine. Toolkits
 *   of several threads take turns under a lock of the application's. Other threads may use DirectFB meanwhile.
 *
 * DirectFB has to be initialised by the application; this library never does so and reads no configuration.
 */
#ifndef DTKHDDVD_H
#define DTKHDDVD_H

#include <directfb.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The version of the library that this header belongs to. @{ */
#define DTKHDDVD_VERSION_MAJOR 1
#define DTKHDDVD_VERSION_MINOR 0
#define DTKHDDVD_VERSION_MICRO 0
/** @} */

/** The library's own results, as DFBResult numbers. DirectFB's own constants of these names have other values. */
#define DTKHDDVD_OK 0           /**< Success. */
#define DTKHDDVD_FAILURE 1      /**< A drawing was lost: no drawing engine, no pen, no target, or cairo in error. */
#define DTKHDDVD_INIT 2         /**< No memory. */
#define DTKHDDVD_UNSUPPORTED 5  /**< A fill met a pixel format that it cannot write. */
#define DTKHDDVD_INVARG 8       /**< An argument is NULL that must not be, or an outline met such a pixel format. */
#define DTKHDDVD_THIZNULL 20    /**< `thiz` is NULL. */

/** What a rectangle, polygon or ellipse draws; both may be given, the fill then comes first. */
#define DTKHDDVD_STROKE 1u      /**< The outline, with the stroke colour and the current pen. */
#define DTKHDDVD_FILL 2u        /**< The inside, with the fill pattern or else the fill colour. */

typedef struct DTKHDDVD DTKHDDVD;
typedef struct DTKHDDVD_data DTKHDDVD_data;
typedef struct DTKHDDVDPen DTKHDDVDPen;
typedef struct DTKHDDVDPen_data DTKHDDVDPen_data;

/** The four corners of a pen in drawing order, in pixels relative to the point that is drawn. */
typedef struct DTKHDDVDPenShape {
    /** One of the corners. @{ */
    int x0, y0;
    int x1, y1;
    int x2, y2;
    int x3, y3;
    /** @} */
} DTKHDDVDPenShape;

/** The toolkit. Every slot holds the DTKHDDVD_ function of its name, which is documented below. */
struct DTKHDDVD {
    DTKHDDVD_data *priv;    /**< The toolkit's own state. */
    u32 magic;              /**< Always 0. */

    /** The DTKHDDVD_ function of this name. @{ */
    DFBResult (*AddRef)(DTKHDDVD *thiz);
    DFBResult (*Release)(DTKHDDVD *thiz);
    DFBResult (*SetStrokeColor)(DTKHDDVD *thiz, u8 r, u8 g, u8 b, u8 a);
    DFBResult (*SetFillColor)(DTKHDDVD *thiz, u8 r, u8 g, u8 b, u8 a);
    DFBResult (*SetFillPattern)(DTKHDDVD *thiz, IDirectFBSurface *texture);
    DFBResult (*CreatePen)(DTKHDDVD *thiz, const DTKHDDVDPenShape *shape, DTKHDDVDPen **ret_pen);
    DFBResult (*SetPen)(DTKHDDVD *thiz, DTKHDDVDPen *pen);
    DFBResult (*Line)(DTKHDDVD *thiz, int x1, int y1, int x2, int y2);
    DFBResult (*Rectangle)(DTKHDDVD *thiz, const DFBRectangle *rect, u32 flags);
    DFBResult (*Polygon)(DTKHDDVD *thiz, const DFBPoint *points, u32 num_points, u8 closed, u32 flags);
    DFBResult (*Ellipse)(DTKHDDVD *thiz, const DFBRectangle *rect, u32 flags);
    /** @} */
};

/** A pen. Every slot holds the DTKHDDVDPen_ function of its name; GetShape is NULL in a software pen. */
struct DTKHDDVDPen {
    DTKHDDVDPen_data *priv; /**< The pen's own state. */
    u32 magic;              /**< Always 0. */

    /** The DTKHDDVDPen_ function of this name. @{ */
    DFBResult (*AddRef)(DTKHDDVDPen *thiz);
    DFBResult (*Release)(DTKHDDVDPen *thiz);
    DFBResult (*GetSize)(DTKHDDVDPen *thiz, int *ret_width, int *ret_height);
    DFBResult (*GetSurface)(DTKHDDVDPen *thiz, IDirectFBSurface **ret_surface);
    DFBResult (*GetShape)(DTKHDDVDPen *thiz, const DTKHDDVDPenShape **ret_shape);
    /** @} */
};

/**
 * @name The toolkit
 *
 * Each function exists three times. The plain form serves every toolkit: it passes the call to the form with _SW when
 * the toolkit draws in software and to the form with _HW when it draws through the platform's drawing engine. Which
 * one that is, is settled once by the creation.
 * @{
 */

/**
 * Creates a toolkit and attaches it to @p surface.
 *
 * It draws through the drawing engine when the platform has one, else in software.
 *
 * @param dfb             DirectFB's main interface. One reference is taken by each successful attach.
 * @param surface         What to draw on, or NULL to attach a surface later. It must lie wholly inside its parent if
 *                        it is a sub-surface, and outlive the attachment.
 * @param use_scratch_pad Not 0: translucent and textured drawing goes through an off-screen surface of the same size
 *                        and blends onto the target once per primitive. 0: colours are stored as they are. The drawing
 *                        engine blends either way and leaves the surface unused.
 * @param ret_interface   Receives the toolkit, owned by the caller, or NULL when the creation fails.
 * @return DTKHDDVD_INIT without memory, DTKHDDVD_FAILURE when the _HW form finds no engine, DTKHDDVD_INVARG when
 *         @p ret_interface is NULL or @p dfb is NULL with a surface, or the result of a failing DirectFB call.
 *         A creation that fails after it made its record releases @p dfb although it took no reference.
 */
DFBResult CreateDrawingToolkit_HDDVD(IDirectFB *dfb, IDirectFBSurface *surface, u8 use_scratch_pad,
                                     DTKHDDVD **ret_interface);
DFBResult CreateDrawingToolkit_HDDVD_SW(IDirectFB *dfb, IDirectFBSurface *surface, u8 use_scratch_pad,
                                        DTKHDDVD **ret_interface);
DFBResult CreateDrawingToolkit_HDDVD_HW(IDirectFB *dfb, IDirectFBSurface *surface, u8 use_scratch_pad,
                                        DTKHDDVD **ret_interface);

/**
 * Makes @p surface what the toolkit draws on, in place of any surface before.
 *
 * Detach first: the attachment before is replaced, not given back. A surface that changes its size is attached anew, or
 * what goes through the scratch pad ends where the surface ended before.
 *
 * @return DTKHDDVD_INVARG when @p thiz or @p surface is NULL, or the result of a failing DirectFB call, after which
 *         the toolkit may be half attached: attach or detach it again.
 */
DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD(DTKHDDVD *thiz, IDirectFBSurface *surface);
DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD_SW(DTKHDDVD *thiz, IDirectFBSurface *surface);
DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD_HW(DTKHDDVD *thiz, IDirectFBSurface *surface);

/**
 * Parts the toolkit from its surface. Colours, pattern and pen stay; drawing fails until the next attach.
 *
 * @return DTKHDDVD_OK, or DTKHDDVD_THIZNULL.
 */
DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD(DTKHDDVD *thiz);
DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD_SW(DTKHDDVD *thiz);
DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD_HW(DTKHDDVD *thiz);

/** Takes one more reference on the toolkit. */
DFBResult DTKHDDVD_AddRef(DTKHDDVD *thiz);
DFBResult DTKHDDVD_AddRef_SW(DTKHDDVD *thiz);
DFBResult DTKHDDVD_AddRef_HW(DTKHDDVD *thiz);

/**
 * Gives one reference back; the last one destroys the toolkit.
 *
 * The reference that the toolkit holds on its pen is not given back: call SetPen with NULL first.
 */
DFBResult DTKHDDVD_Release(DTKHDDVD *thiz);
DFBResult DTKHDDVD_Release_SW(DTKHDDVD *thiz);
DFBResult DTKHDDVD_Release_HW(DTKHDDVD *thiz);

/** Sets the colour of lines and outlines, at first opaque white. The current pen takes the new colour at once. */
DFBResult DTKHDDVD_SetStrokeColor(DTKHDDVD *thiz, u8 r, u8 g, u8 b, u8 a);
DFBResult DTKHDDVD_SetStrokeColor_SW(DTKHDDVD *thiz, u8 r, u8 g, u8 b, u8 a);
DFBResult DTKHDDVD_SetStrokeColor_HW(DTKHDDVD *thiz, u8 r, u8 g, u8 b, u8 a);

/** Sets the colour of fills, at first opaque white, and ends pattern filling. */
DFBResult DTKHDDVD_SetFillColor(DTKHDDVD *thiz, u8 r, u8 g, u8 b, u8 a);
DFBResult DTKHDDVD_SetFillColor_SW(DTKHDDVD *thiz, u8 r, u8 g, u8 b, u8 a);
DFBResult DTKHDDVD_SetFillColor_HW(DTKHDDVD *thiz, u8 r, u8 g, u8 b, u8 a);

/**
 * Fills with @p texture from now on, repeated in both directions from the top left corner of each shape's box.
 *
 * @param texture A surface that is neither indexed nor the target itself, and that the application does not hold
 *                locked while the toolkit draws; NULL goes back to the fill colour. Keep it alive while it is set.
 * @return In software DTKHDDVD_FAILURE when the texture cannot be used; there is then no pattern. The drawing engine's
 *         toolkit always returns DTKHDDVD_OK: a texture that the engine cannot use makes the drawing with it fail.
 */
DFBResult DTKHDDVD_SetFillPattern(DTKHDDVD *thiz, IDirectFBSurface *texture);
DFBResult DTKHDDVD_SetFillPattern_SW(DTKHDDVD *thiz, IDirectFBSurface *texture);
DFBResult DTKHDDVD_SetFillPattern_HW(DTKHDDVD *thiz, IDirectFBSurface *texture);

/**
 * Creates a pen in the manner of the toolkit's back end.
 *
 * @param shape   Copied; four corners about the origin. A pen covers as many pixels as its corners are apart;
 *                DTKHDDVDPen_GetSize counts one more in each direction where the platform has an engine.
 * @param ret_pen Receives the pen, owned by the caller, or NULL when the creation fails.
 * @return DTKHDDVD_INIT without memory, DTKHDDVD_INVARG when an argument is NULL, or the result of a failing DirectFB
 *         call (DirectFB makes no surface for a software pen without width or height).
 */
DFBResult DTKHDDVD_CreatePen(DTKHDDVD *thiz, const DTKHDDVDPenShape *shape, DTKHDDVDPen **ret_pen);
DFBResult DTKHDDVD_CreatePen_SW(DTKHDDVD *thiz, const DTKHDDVDPenShape *shape, DTKHDDVDPen **ret_pen);
DFBResult DTKHDDVD_CreatePen_HW(DTKHDDVD *thiz, const DTKHDDVDPenShape *shape, DTKHDDVDPen **ret_pen);

/**
 * Makes @p pen the pen of the toolkit, which takes a reference on it and gives back the one on the pen before.
 *
 * @param pen NULL for none: outlines are then one pixel wide in software and left out by the engine. To set the
 *            current pen again the caller needs a reference of its own.
 * @return The result of a failing DirectFB call while the pen took the toolkit's colours; it is current all the same.
 */
DFBResult DTKHDDVD_SetPen(DTKHDDVD *thiz, DTKHDDVDPen *pen);
DFBResult DTKHDDVD_SetPen_SW(DTKHDDVD *thiz, DTKHDDVDPen *pen);
DFBResult DTKHDDVD_SetPen_HW(DTKHDDVD *thiz, DTKHDDVDPen *pen);

/** Draws a line from (x1, y1) to (x2, y2), both included. On the engine it needs a pen. */
DFBResult DTKHDDVD_Line(DTKHDDVD *thiz, int x1, int y1, int x2, int y2);
DFBResult DTKHDDVD_Line_SW(DTKHDDVD *thiz, int x1, int y1, int x2, int y2);
DFBResult DTKHDDVD_Line_HW(DTKHDDVD *thiz, int x1, int y1, int x2, int y2);

/**
 * Draws the rectangle @p rect.
 *
 * @param flags DTKHDDVD_STROKE, DTKHDDVD_FILL or both; neither draws nothing. Other bits are ignored.
 */
DFBResult DTKHDDVD_Rectangle(DTKHDDVD *thiz, const DFBRectangle *rect, u32 flags);
DFBResult DTKHDDVD_Rectangle_SW(DTKHDDVD *thiz, const DFBRectangle *rect, u32 flags);
DFBResult DTKHDDVD_Rectangle_HW(DTKHDDVD *thiz, const DFBRectangle *rect, u32 flags);

/**
 * Draws the polygon of @p num_points corners; fewer than two draw nothing.
 *
 * @param closed Not 0: the outline has an edge from the last corner back to the first. The fill always has.
 * @param flags  As for the rectangle. Corners 8388608 or more pixels away from the origin are not filled in software.
 */
DFBResult DTKHDDVD_Polygon(DTKHDDVD *thiz, const DFBPoint *points, u32 num_points, u8 closed, u32 flags);
DFBResult DTKHDDVD_Polygon_SW(DTKHDDVD *thiz, const DFBPoint *points, u32 num_points, u8 closed, u32 flags);
DFBResult DTKHDDVD_Polygon_HW(DTKHDDVD *thiz, const DFBPoint *points, u32 num_points, u8 closed, u32 flags);

/**
 * Draws the ellipse inside the box @p rect.
 *
 * @param flags As for the rectangle. Plain fills need an ARGB or RGB32 surface in software and outlines one pixel
 *              wide an ARGB surface; DTKHDDVD_UNSUPPORTED and DTKHDDVD_INVARG answer any other.
 */
DFBResult DTKHDDVD_Ellipse(DTKHDDVD *thiz, const DFBRectangle *rect, u32 flags);
DFBResult DTKHDDVD_Ellipse_SW(DTKHDDVD *thiz, const DFBRectangle *rect, u32 flags);
DFBResult DTKHDDVD_Ellipse_HW(DTKHDDVD *thiz, const DFBRectangle *rect, u32 flags);

/** @} */
/**
 * @name Pens
 * @{
 */

/** Takes one more reference on the pen. */
DFBResult DTKHDDVDPen_AddRef(DTKHDDVDPen *thiz);

/** Gives one reference back; the last one destroys the pen. */
DFBResult DTKHDDVDPen_Release(DTKHDDVDPen *thiz);

/**
 * Tells the pen's size in pixels: of its surface when the platform has no drawing engine, else the extent of its shape.
 *
 * @return DTKHDDVD_THIZNULL also for a pen without a surface where the platform has no drawing engine.
 */
DFBResult DTKHDDVDPen_GetSize(DTKHDDVDPen *thiz, int *ret_width, int *ret_height);
DFBResult DTKHDDVDPen_GetSize_SW(DTKHDDVDPen *thiz, int *ret_width, int *ret_height);
DFBResult DTKHDDVDPen_GetSize_HW(DTKHDDVDPen *thiz, int *ret_width, int *ret_height);

/**
 * Hands out the pen's picture, an 8-bit palette surface, with a reference that the caller releases.
 *
 * @param ret_surface Left as it is where the platform has a drawing engine: set it to NULL before the call.
 */
DFBResult DTKHDDVDPen_GetSurface(DTKHDDVDPen *thiz, IDirectFBSurface **ret_surface);
DFBResult DTKHDDVDPen_GetSurface_SW(DTKHDDVDPen *thiz, IDirectFBSurface **ret_surface);
DFBResult DTKHDDVDPen_GetSurface_HW(DTKHDDVDPen *thiz, IDirectFBSurface **ret_surface);

/** Points @p ret_shape at the pen's own shape, valid while the pen lives; all zero in a software pen. */
DFBResult DTKHDDVDPen_GetShape(DTKHDDVDPen *thiz, const DTKHDDVDPenShape **ret_shape);

/** Computes the inclusive extent of the four corners in pixels: one corner alone is 1 x 1. */
void ComputeSize(const DTKHDDVDPenShape *shape, int *ret_width, int *ret_height);

/** @} */
/**
 * @name Pixel routines
 *
 * What the software back end is made of, for callers that draw into surfaces of their own. They print nothing but
 * their complaint about a pixel format, and take no NULL unless it is said.
 * @{
 */

/**
 * Draws a pen's shape into a new DSPF_A8 surface: alpha 255 where the shape covers a pixel, else 0.
 *
 * @param ret_surface Receives the surface, owned by the caller.
 */
DFBResult render_pen_shape_a8(IDirectFB *dfb, const DTKHDDVDPenShape *shape, IDirectFBSurface **ret_surface);

/**
 * Draws a pen's shape into a new DSPF_LUT8 surface, with one palette index inside and another one outside.
 *
 * @param ret_surface Receives the surface, owned by the caller, or NULL when the drawing fails.
 */
DFBResult render_pen_shape_lut8(IDirectFB *dfb, const DTKHDDVDPenShape *shape, u8 background_index,
                                u8 foreground_index, IDirectFBSurface **ret_surface);

/** Stamps @p pen_surface centred on every pixel of a line, with the blitting flags that @p dest has. */
DFBResult stamp_line(IDirectFBSurface *dest, int x1, int y1, int x2, int y2, IDirectFBSurface *pen_surface);

/** Stamps @p pen_surface centred on every pixel of a rectangle's border. */
DFBResult stamp_rectangle(IDirectFBSurface *dest, const DFBRectangle *rect, IDirectFBSurface *pen_surface);

/** Stamps @p pen_surface centred on every point of an ellipse's outline. */
DFBResult stamp_ellipse(IDirectFBSurface *dest, const DFBRectangle *rect, IDirectFBSurface *pen_surface);

/**
 * Fills an ellipse on a DSPF_ARGB or DSPF_RGB32 surface, storing @p color without blending.
 *
 * @param rect  The ellipse's box.
 * @param clip  Limits every write and must lie inside the surface; NULL for the whole surface.
 * @param color 0xAARRGGBB.
 * @return DTKHDDVD_UNSUPPORTED for another pixel format.
 */
DFBResult fill_ellipse_argb(IDirectFBSurface *dest, const DFBRectangle *rect, const DFBRectangle *clip, u32 color);

/**
 * Fills an ellipse on a surface of 8 bits per pixel, indexed or not. The number of bits is all it looks at: of a planar
 * format such as YV12 it writes the first plane.
 *
 * @param color The palette index, in its low byte.
 * @return DTKHDDVD_UNSUPPORTED for another pixel format, else the result of filling the ellipse's central block: a
 *         narrow ellipse has an empty one, and DirectFB answers DFB_INVARG to it.
 */
DFBResult fill_ellipse_lut8(IDirectFBSurface *dest, const DFBRectangle *rect, const DFBRectangle *clip, u32 color);

/**
 * Draws an ellipse's outline, one pixel wide, on a DSPF_ARGB surface, storing @p color (0xAARRGGBB) without blending.
 *
 * Nothing is clipped: the outline must lie inside the surface. It reaches one column and one row beyond a box of even
 * size.
 *
 * @return DTKHDDVD_INVARG for another pixel format.
 */
DFBResult outline_ellipse_argb(IDirectFBSurface *dest, const DFBRectangle *rect, u32 color);

/** How many stamps one BatchBlit call carries at the most. */
#define DTKHDDVD_BATCH_SIZE 64

/** The stamps that wait to be sent, one batch for the whole process; empty whenever no stamping routine runs. */
extern DFBRectangle batch_rectangles[DTKHDDVD_BATCH_SIZE];
extern DFBPoint batch_points[DTKHDDVD_BATCH_SIZE];
extern DFBRectangle batch_source_rect;
extern IDirectFBSurface *batch_source;
extern IDirectFBSurface *batch_dest;
extern int batch_n_blits;

/** @} */
/**
 * @name The test and benchmark program
 *
 * The library also exports its `main`, which brings up the platform's display and DirectFB and runs test_dtkhd.
 * @{
 */

/**
 * Draws animated frames onto @p surface until a call fails, and reports timings to standard error every 20 frames.
 *
 * @return The first failing result.
 */
DFBResult test_dtkhd(IDirectFB *dfb, IDirectFBSurface *surface);

/** When each phase of the last frame started and stopped, in microseconds, cut to 32 bits. */
extern int clear_time_start, clear_time_stop;
extern int flip_time_start, flip_time_stop;
extern int sync_time_start, sync_time_stop;
extern int line_time_start, line_time_stop;
extern int rec_time_start, rec_time_stop;
extern int pol_time_start, pol_time_stop;
extern int ell_time_start, ell_time_stop;
extern int sor_time_start, sor_time_stop;
extern int soe_time_start, soe_time_stop;
extern int grey_time_start, grey_time_stop;

/** @} */

#ifdef __cplusplus
}
#endif

#endif
