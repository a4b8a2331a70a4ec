/**
 * @file zuvo.h
 * The platform's media library, as far as the drawing toolkit and its programs call it: start-up, display, DirectFB and
 * the drawing engine.
 *
 * A board exports these functions from a library of its own, libzuvo. In this project platform/hosted implements them for
 * desktops and build machines, and platform/skeleton in the smallest way. A program calls zuvo_init, opens the display,
 * starts DirectFB, and ends in the opposite order. The toolkit itself calls the functions of the drawing engine alone.
 *
 * What holds everywhere:
 * - Results: 0 is success. Any other number is an error code of the platform's own, which the toolkit prints in
 *   hexadecimal and never interprets. A call that fails draws nothing and changes nothing but what it says.
 * - Handles: 32-bit numbers that the platform chooses. 0 stands for none. A handle that was given back, or was never
 *   handed out, is an error and no crash.
 * - Ownership: a record or an array that is passed in is the caller's, and is read before the call returns. Strings that
 *   are returned belong to the platform and are never given back.
 * - Coordinates: pixels of the surface that is drawn on, whole numbers, (0, 0) in its upper left corner, y downwards. A
 *   rectangle covers x to x + w - 1 and y to y + h - 1. Every number of the type may come; what lies outside the surface
 *   is not drawn, and takes no time to speak of.
 * - Colours: red, green, blue and alpha from 0 to 255, not premultiplied; as one number 0xAARRGGBB.
 * - Threads: start-up, display and DirectFB functions are for one thread. For the engine see there.
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

/** What the hosted platform and the skeleton return when a call fails. A board has codes of its own; 0 is success there, too. */
enum zuvo_error {
    ZUVO_OK = 0,                        /**< Success. */
    ZUVO_NO_SUCH_DISPLAY = 0x101,       /**< The display handle is wrong. */
    ZUVO_NO_SUCH_VIDEO_FORMAT = 0x102,  /**< The display has no format of this number. */
    ZUVO_NO_SUCH_LAYER = 0x103,         /**< The layer handle is wrong. */
    ZUVO_NULL_ARGUMENT = 0x104,         /**< A pointer is NULL that must not be. */
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
    ZUVO_NO_MEMORY = 0x20a,             /**< There is no memory to draw with. */
    ZUVO_EMPTY_RECTANGLE = 0x20b        /**< A rectangle, or a border one pixel wide, without width or height. */
};

/**
 * Returns an error code as a sentence without a full stop, for messages to people.
 *
 * @param error  Any number; for one that is no code the text says so.
 * @return A string of the platform's, never NULL, which is never given back.
 */
const char *zuvo_error_text(int error);

/** @} */

/**
 * @name Start-up and display
 * @{
 */

/** A display's settings. zuvo_display_get fills the whole record, zuvo_display_set reads it. */
typedef struct zuvo_display_settings {
    u32 video_format;       /**< 9 is 1920 x 1080 pixels, 7 is 1280 x 720, 3 is 720 x 576, 1 is 720 x 480; 0 in
                                 zuvo_display_set asks for the display's own format. */
    u32 reserved[31];       /**< The platform's. */
} zuvo_display_settings;

/**
 * Starts the platform's components; from then on there is a drawing engine, if the platform has one.
 *
 * To be called before everything else here. A second call starts anew: the engine forgets its output, fill and pen.
 *
 * @param components  A mask of the platform's own; the hosted platform takes any.
 * @return 0, or the platform's error code when a component does not start.
 */
int zuvo_init(unsigned int components);

/** Ends what zuvo_init started. Displays are closed and DirectFB is ended before; afterwards there is no engine. */
void zuvo_uninit(void);

/**
 * Opens a display.
 *
 * @param index  The platform's number of the display; the first one is 1.
 * @return Its handle, to be given back by zuvo_display_close; 0 when there is none of that number.
 */
unsigned int zuvo_display_open(unsigned int index);

/** Gives back a display's handle, whose picture may stay. */
void zuvo_display_close(unsigned int display);

/**
 * Reads a display's settings.
 *
 * @param display   A handle of zuvo_display_open.
 * @param settings  Written as a whole on success, else left as it is.
 * @return 0, or the platform's error code for a wrong handle or NULL.
 */
int zuvo_display_get(unsigned int display, zuvo_display_settings *settings);

/**
 * Changes a display's settings, to be called before DirectFB is started.
 *
 * @param display   A handle of zuvo_display_open.
 * @param settings  The wanted ones. On success the video format in force is written back.
 * @return 0, or the platform's error code for a wrong handle, NULL, or a format that the display does not have.
 */
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
 * Starts DirectFB, in place of DirectFBInit and DirectFBCreate.
 *
 * @param mode  The platform's own number.
 * @param argc  The program's argument count, or NULL. It changes when options of DirectFB or the platform are removed.
 * @param argv  The program's arguments, or NULL. The strings stay the program's.
 * @return DirectFB's main interface with one reference, which the caller releases before zuvo_dfb_ext_close; NULL when
 *     DirectFB does not start.
 */
IDirectFB *zuvo_dfb_ext_open_with_params(unsigned int mode, int *argc, char ***argv);

/**
 * Ends the platform's side of DirectFB; the interface is released before. After it, and not sooner, DirectFB may be
 * started again in the same process.
 */
void zuvo_dfb_ext_close(void);

/**
 * Opens a graphics layer.
 *
 * @param layer  The platform's number of it; programs draw on 7.
 * @return Its handle, which is never given back; 0 when there is none of that number.
 */
unsigned int zuvo_dfb_ext_layer_open(unsigned int layer);

/**
 * Reads a layer's settings.
 *
 * @param layer     A handle of zuvo_dfb_ext_layer_open.
 * @param settings  Written as a whole on success, else left as it is.
 * @return 0, or the platform's error code for a wrong handle or NULL.
 */
int zuvo_dfb_ext_layer_get(unsigned int layer, zuvo_dfb_ext_layer_settings *settings);

/** @} */

/**
 * @name The drawing engine
 *
 * It holds one output surface, one fill (a colour or a pattern) and one pen, and draws with them straight onto the output
 * surface. A surface is named by its engine handle, see zuvo_dtk_surface_handle.
 *
 * The toolkit sets the output, and the fill or the pen, before every fill and every outline, so nothing has to last from
 * one primitive to the next. It goes on after most failures: what could not be set is forgotten, so that a drawing call
 * fails, too, and does not draw onto the surface, or with the fill or pen, that was set before.
 *
 * **Threads.** The engine is for one thread at a time. Several take turns, each from setting the output to the end of the
 * drawing, and meanwhile others may call DirectFB for anything, also for other surfaces' drawing and release.
 *
 * **When it is drawn.** An engine may return before it has drawn; it may keep commands as long as it likes. But everything
 * that was submitted has been drawn
 * - when zuvo_dtk_sync returns, and when IDirectFB::WaitIdle returns;
 * - when IDirectFBSurface::Lock of a surface that it draws on returns, and when DirectFB itself draws on or reads from that
 *   surface;
 * - in what IDirectFBSurface::Flip shows;
 * - when the memory of a surface that it draws on or fills with is given back.
 *
 * A board's DirectFB does the last four by its graphics driver: it marks what the engine has touched, and waits.
 *
 * **Order.** Calls are drawn in the order in which they are made. One exception is allowed: a rectangle that does not
 * blend may be filled by a unit of its own, ahead of what is still waiting; the toolkit calls WaitIdle before it asks for
 * one.
 *
 * **What may be kept.** The engine's handle and the handles of surfaces stay as they are. The address of a surface's
 * memory does not: it may be another one after each Flip, after a change of size, and whenever nobody has the surface
 * locked.
 * @{
 */

/**
 * Draw flag: blend, source over target, each pixel of the primitive once, however often a pen passes it. Without it the
 * colour is stored as it is, alpha included.
 */
#define ZUVO_DTK_BLEND 0x01u

/** Draw flags that the toolkit always sets, but for the edges of a polygon. An engine may ignore them. */
#define ZUVO_DTK_DRAW 0x30u

/**
 * A pen: a shape of four corners, and the colour that it leaves.
 *
 * Only the shape counts, not where it lies: with W and H the distances between its outermost corners, it covers the W x H
 * pixels from W / 2 to the left of the point that is drawn, and H / 2 above it, as a polygon with these corners fills them.
 * The corners come in any order and may cross. A pen of 1 x 1 pixel draws an outline as software draws one without a pen. A
 * pen without width or height covers the single pixels from corner to corner.
 */
typedef struct zuvo_dtk_pen {
    /** One of the corners. @{ */
    int x0, y0;
    int x1, y1;
    int x2, y2;
    int x3, y3;
    /** @} */
    u32 color;  /**< 0xAARRGGBB. */
} zuvo_dtk_pen;

/**
 * Returns the handle of the drawing engine. Toolkits and pens ask it to choose their back end, so it is the same as long as
 * any of them lives. Any thread may call it at any time.
 *
 * @return The handle, which is never given back; 0 when the platform has no engine: then all is drawn in software.
 */
unsigned int zuvo_dtk_get_handle(void);

/**
 * Waits until everything that was submitted has been drawn. The toolkit calls it before DirectFB blends a scratch pad.
 *
 * @return 0, or the platform's error code for a wrong engine or when the engine hangs.
 */
int zuvo_dtk_sync(unsigned int dtk);

/**
 * Names the surface to draw onto, its back buffer. DSPF_ARGB and DSPF_RGB32 are required, other formats may be refused. On
 * failure there is no output.
 *
 * @param surface  A handle of zuvo_dtk_surface_handle. It takes no reference: when the surface is released, drawing fails.
 */
int zuvo_dtk_set_output_surface(unsigned int dtk, unsigned int surface);

/** Fills with a colour from now on, in place of a pattern. Each value is from 0 to 255, alpha last. */
int zuvo_dtk_set_fill_color(unsigned int dtk, u8 r, u8 g, u8 b, u8 a);

/**
 * Fills with a surface from now on, in place of a colour. It begins at the upper left corner of each shape's box (of a
 * polygon's, the least x and y of its points) and is repeated both ways. Its pixels are read when a shape is drawn, its own
 * alpha counts where a call blends; DSPF_RGB32 has none and covers. On failure there is no fill.
 *
 * @param surface  As in zuvo_dtk_set_output_surface. The output itself may be refused when a shape is drawn.
 */
int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int surface);

/**
 * Draws lines and borders with a pen from now on. On failure there is no pen.
 *
 * @param pen  Copied. NULL is an error. Corners up to 4096 pixels apart are required.
 */
int zuvo_dtk_set_pen(unsigned int dtk, const zuvo_dtk_pen *pen);

/**
 * Draws a line with the pen: the pen is put at each point of the way, both ends included. A polygon's outline comes as one
 * line for each edge, with ZUVO_DTK_BLEND or no flag at all.
 */
int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags);

/** Fills a rectangle. Without width or height, or with a negative one, it draws nothing and is an error. */
int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle *rect, unsigned int flags);

/** Draws a rectangle's border: the pen is put at each of the outermost pixels of the rectangle. */
int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle *rect, unsigned int flags);

/**
 * Fills the ellipse inside a box: with a colour the one that lies one pixel further in on all sides, with a pattern the one
 * that touches the box. That is how the software back end fills them. A box without an inside is no error.
 */
int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle *rect, unsigned int flags);

/**
 * Draws the outline of the ellipse that touches a box: the pen is put at each of its points. A pen of 1 x 1 pixel draws the
 * one that lies one pixel further in.
 */
int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle *rect, unsigned int flags);

/**
 * Fills a polygon by the winding rule, closed between its last and its first point. It always blends.
 *
 * @param points      Read before the call returns; NULL is an error.
 * @param num_points  None draws nothing and is no error.
 * @param reserved    0.
 */
int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint *points, unsigned int num_points, unsigned int reserved);

/**
 * Writes the engine's handle of a part of a surface, as IDirectFBSurface::GetSubSurface makes one. Optional: a platform
 * whose engine knows whole surfaces alone leaves it out. What is drawn on a part has the part's upper left corner as its
 * origin and is cut to it.
 *
 * @param surface    Any interface. If it is not one of DirectFB's own, nothing but its slot GetID is looked at.
 * @param ret_handle Written on success only.
 * @return DFB_UNSUPPORTED for a whole surface and for an interface that is not DirectFB's own: GetID returns the handle of
 *         these.
 */
DFBResult zuvo_dtk_get_part_handle(IDirectFBSurface *surface, unsigned int *ret_handle) __attribute__((weak));

/**
 * Writes the engine's handle of a surface: that of a part where the platform has such, else by the platform's extension
 * method of IDirectFBSurface. Here that is GetID, which gives the whole surface for a part; a board's header may call
 * another one. The handle is the same throughout, and of no use when the surface has been released.
 *
 * @param surface    Any living interface.
 * @param ret_handle Written on success only.
 * @return DFB_OK, or DirectFB's result.
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
