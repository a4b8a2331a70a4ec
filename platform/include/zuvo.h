/**
 * @file zuvo.h
 * The platform's media library, as far as the drawing toolkit and its test program call it: start-up, display, DirectFB
 * and the drawing engine.
 *
 * A board exports these functions from a library of its own. Here platform/hosted implements them for desktops and
 * build machines. Handles are 32-bit numbers, 0 stands for none. Unless it is said otherwise, 0 is success and any
 * other answer is the platform's own error code.
 */
#ifndef ZUVO_H
#define ZUVO_H

#include <directfb.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Errors
 * @{
 */

/** What the hosted platform answers when a call fails. A board has codes of its own. */
enum zuvo_error {
    ZUVO_OK = 0,
    ZUVO_NO_SUCH_DISPLAY = 0x101,
    ZUVO_NO_SUCH_VIDEO_FORMAT = 0x102,
    ZUVO_NO_SUCH_LAYER = 0x103,
    ZUVO_NULL_ARGUMENT = 0x104,
    ZUVO_NO_SUCH_ENGINE = 0x201,        /**< The engine handle is wrong. */
    ZUVO_NO_SUCH_SURFACE = 0x202,       /**< The surface handle is unknown, or the surface was released. */
    ZUVO_WRONG_PIXEL_FORMAT = 0x203,    /**< The engine draws onto DSPF_ARGB and DSPF_RGB32 only, and not onto surfaces
                                             that keep their two fields apart (DSCAPS_SEPARATED). */
    ZUVO_NO_OUTPUT = 0x204,             /**< No output surface is set, or the last attempt to set one failed. */
    ZUVO_NO_FILL = 0x205,               /**< No fill is set, or the last attempt to set one failed. */
    ZUVO_NO_PEN = 0x206,                /**< No pen is set, or the last attempt to set one failed. */
    ZUVO_LOCK_FAILED = 0x207,           /**< A surface's memory cannot be reached. */
    ZUVO_PATTERN_IS_OUTPUT = 0x208,     /**< A surface cannot be filled with itself. */
    ZUVO_PEN_TOO_LARGE = 0x209,         /**< A pen's corners are more than 4096 pixels apart. */
    ZUVO_NO_MEMORY = 0x20a,
    ZUVO_EMPTY_RECTANGLE = 0x20b        /**< A rectangle, or a border one pixel wide, without width or height. */
};

/** Answers the text of an error, a string that is never given back. */
const char *zuvo_error_text(int error);

/** @} */
/**
 * @name Start-up and display
 * @{
 */

/** A display's settings. zuvo_display_get fills the whole record, zuvo_display_set reads it. */
typedef struct zuvo_display_settings {
    u32 video_format;       /**< 9 is 1920 x 1080; 0 in zuvo_display_set asks for the display's own format. */
    u32 reserved[31];       /**< The platform's. */
} zuvo_display_settings;

/** Starts the platform's components; @p components is a mask of the platform's. */
int zuvo_init(unsigned int components);

/** Ends what zuvo_init started. */
void zuvo_uninit(void);

/** Opens the display @p index and answers its handle, 0 when there is none. */
unsigned int zuvo_display_open(unsigned int index);

/** Closes a display. */
void zuvo_display_close(unsigned int display);

/** Reads a display's settings. */
int zuvo_display_get(unsigned int display, zuvo_display_settings *settings);

/** Changes a display's settings. The video format in force is written back into @p settings. */
int zuvo_display_set(unsigned int display, zuvo_display_settings *settings);

/** @} */
/**
 * @name DirectFB
 * @{
 */

/** A graphics layer's settings. */
typedef struct zuvo_dfb_ext_layer_settings {
    u32 layer_id;           /**< DirectFB's number of the layer, for IDirectFB::GetDisplayLayer. */
    u32 reserved[31];       /**< The platform's. */
} zuvo_dfb_ext_layer_settings;

/**
 * Starts DirectFB and answers its main interface, NULL on failure.
 *
 * @param mode  The platform's.
 * @param argc  The program's argument count, which changes when words meant for DirectFB or the platform are removed.
 * @param argv  The program's arguments.
 */
IDirectFB *zuvo_dfb_ext_open_with_params(unsigned int mode, int *argc, char ***argv);

/**
 * Ends the platform's side of DirectFB; the interface is released before. After it, and not sooner, DirectFB may be
 * started again in the same process.
 */
void zuvo_dfb_ext_close(void);

/** Opens the platform's graphics layer @p layer and answers its handle, 0 when there is none. */
unsigned int zuvo_dfb_ext_layer_open(unsigned int layer);

/** Reads a layer's settings. */
int zuvo_dfb_ext_layer_get(unsigned int layer, zuvo_dfb_ext_layer_settings *settings);

/** @} */
/**
 * @name The drawing engine
 *
 * It holds one output surface, one fill (a colour or a pattern) and one pen at a time, and draws with them straight onto
 * the output surface. A surface is named by its engine handle, see zuvo_dtk_surface_handle. It is for one thread at a
 * time: several take turns, each from setting the output surface to the end of the drawing.
 * @{
 */

/** Draw flags: bit 0 blends each pixel of the primitive once; without it colours are stored as they are. */
#define ZUVO_DTK_BLEND 0x01u
#define ZUVO_DTK_DRAW 0x30u

/** A pen: four corners, in pixels relative to the point that is drawn, and a colour. */
typedef struct zuvo_dtk_pen {
    /** One of the corners. @{ */
    int x0, y0;
    int x1, y1;
    int x2, y2;
    int x3, y3;
    /** @} */
    u32 color;  /**< What it leaves, 0xAARRGGBB. */
} zuvo_dtk_pen;

/** Answers the handle of the drawing engine, 0 when the platform has none. It is never given back. */
unsigned int zuvo_dtk_get_handle(void);

/** Waits until everything that was submitted has been drawn. */
int zuvo_dtk_sync(unsigned int dtk);

/** Names the surface to draw onto. */
int zuvo_dtk_set_output_surface(unsigned int dtk, unsigned int surface);

/** Fills with a colour from now on. */
int zuvo_dtk_set_fill_color(unsigned int dtk, u8 r, u8 g, u8 b, u8 a);

/** Fills with a surface from now on, repeated from the top left corner of each shape's box. */
int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int surface);

/** Draws lines and borders with @p pen from now on; the record is copied. */
int zuvo_dtk_set_pen(unsigned int dtk, const zuvo_dtk_pen *pen);

/** Draws a line with the pen, both end points included. */
int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags);

/** Fills a rectangle. */
int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle *rect, unsigned int flags);

/** Draws a rectangle's border with the pen. */
int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle *rect, unsigned int flags);

/** Fills the ellipse inside a box. */
int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle *rect, unsigned int flags);

/** Draws the outline of the ellipse inside a box with the pen. */
int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle *rect, unsigned int flags);

/** Fills a polygon, closed between its last and its first point. It blends when its fill is translucent. */
int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint *points, unsigned int num_points, unsigned int reserved);

/**
 * Tells the engine's handle of a part of a surface, as IDirectFBSurface::GetSubSurface makes one. Optional: a platform
 * whose engine knows whole surfaces alone leaves it out.
 *
 * @param surface    Any interface. If it is not one of DirectFB's own, nothing but its slot GetID is looked at.
 * @param ret_handle Written on success only.
 * @return DFB_UNSUPPORTED for a whole surface and for an interface that is not DirectFB's own: GetID answers for these.
 */
DFBResult zuvo_dtk_get_part_handle(IDirectFBSurface *surface, unsigned int *ret_handle) __attribute__((weak));

/**
 * Tells the engine's handle of a surface: that of a part where the platform has such, else by the platform's extension
 * method of IDirectFBSurface, here GetID, which DirectFB answers with the whole surface.
 *
 * @param ret_handle Written on success only.
 */
static inline DFBResult zuvo_dtk_surface_handle(IDirectFBSurface *surface, unsigned int *ret_handle)
{
    if (zuvo_dtk_get_part_handle && zuvo_dtk_get_part_handle(surface, ret_handle) == DFB_OK)
        return DFB_OK;
    return surface->GetID(surface, ret_handle);
}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
