/*
 * traced_calls CASE [engine]: calls the toolkit in the ways that a recorder has to see. It draws in software, or through the
 * platform's engine.
 */
#include <pthread.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>

#include <dtkhddvd.h>
#include <zuvo.h>

enum { width = 160, height = 120 };

static IDirectFB *dfb;
static const DTKHDDVDPenShape shape = {-2, -2, 2, -2, 2, 2, -2, 2};
static const DFBRectangle box = {20, 20, 60, 40};
static const DFBPoint points[] = {{5, 5}, {60, 10}, {30, 70}};

static void expect(int condition, const char *what)
{
    if (condition)
        return;
    fprintf(stderr, "traced_calls: not so: %s\n", what);
    exit(1);
}

static void check(DFBResult result)
{
    expect(result == DFB_OK, DirectFBErrorString(result));
}

static IDirectFBSurface *make_surface(int w, int h, DFBSurfacePixelFormat format)
{
    const DFBSurfaceDescription description = {
        .flags = DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT, .width = w, .height = h, .pixelformat = format};
    IDirectFBSurface *surface;

    check(dfb->CreateSurface(dfb, &description, &surface));
    check(surface->Clear(surface, 0x10, 0x20, 0x30, 0xFF));
    return surface;
}

static IDirectFBSurface *make_texture(void)
{
    IDirectFBSurface *texture = make_surface(4, 3, DSPF_ARGB);

    check(texture->SetColor(texture, 0xC0, 0x40, 0x20, 0xFF));
    check(texture->FillRectangle(texture, 1, 1, 2, 1));
    return texture;
}

/* ---- by name ---- */

static void call_pen_functions(DTKHDDVDPen *pen)
{
    const DTKHDDVDPenShape *told;
    IDirectFBSurface *picture = NULL;
    int w, h;

    check(DTKHDDVDPen_AddRef(pen));
    check(DTKHDDVDPen_GetSize(pen, &w, &h));
    check(DTKHDDVDPen_GetShape(pen, &told));
    check(DTKHDDVDPen_GetSurface(pen, &picture));
    if (picture)
        picture->Release(picture);
    ComputeSize(&shape, &w, &h);
    check(DTKHDDVDPen_Release(pen));
}

static void call_pixel_routines(IDirectFBSurface *surface)
{
    const DFBRectangle clip = {0, 0, width, height};
    IDirectFBSurface *a8, *lut8, *indexed = make_surface(width, height, DSPF_LUT8);

    check(render_pen_shape_a8(dfb, &shape, &a8));
    check(render_pen_shape_lut8(dfb, &shape, 2, 0, &lut8));
    check(stamp_line(surface, 10, 10, 30, 20, a8));
    check(stamp_rectangle(surface, &box, a8));
    check(stamp_ellipse(surface, &box, a8));
    check(fill_ellipse_argb(surface, &box, &clip, 0xFF00FF00));
    check(fill_ellipse_lut8(indexed, &box, NULL, 3));
    check(outline_ellipse_argb(surface, &box, 0xFFFF00FF));
    a8->Release(a8);
    lut8->Release(lut8);
    indexed->Release(indexed);
}

static void draw_by_name(DTKHDDVD *toolkit, DTKHDDVDPen *pen, IDirectFBSurface *texture)
{
    check(DTKHDDVD_AddRef(toolkit));
    check(DTKHDDVD_SetPen(toolkit, pen));
    check(DTKHDDVD_SetStrokeColor(toolkit, 0xF0, 0xE0, 0xD0, 0xFF));
    check(DTKHDDVD_SetFillColor(toolkit, 0x30, 0x60, 0x90, 0xFF));
    check(DTKHDDVD_Line(toolkit, 3, 4, 150, 100));
    check(DTKHDDVD_Rectangle(toolkit, &box, DTKHDDVD_FILL | DTKHDDVD_STROKE));
    check(DTKHDDVD_SetFillPattern(toolkit, texture));
    check(DTKHDDVD_Polygon(toolkit, points, 3, 1, DTKHDDVD_FILL));
    check(DTKHDDVD_Ellipse(toolkit, &box, DTKHDDVD_FILL));
    check(DTKHDDVD_SetPen(toolkit, NULL));
    check(DTKHDDVD_Release(toolkit));
}

static void call_functions(IDirectFBSurface *surface, IDirectFBSurface *texture)
{
    DTKHDDVD *toolkit;
    DTKHDDVDPen *pen;

    check(CreateDrawingToolkit_HDDVD(dfb, NULL, 1, &toolkit));
    check(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit, surface));
    check(DTKHDDVD_CreatePen(toolkit, &shape, &pen));
    draw_by_name(toolkit, pen, texture);
    call_pen_functions(pen);
    call_pixel_routines(surface);
    surface->Flip(surface, NULL, DSFLIP_NONE);
    check(DTKHDDVDPen_Release(pen));
    check(DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit));
    expect(DTKHDDVD_Line(NULL, 1, 2, 3, 4) == DTKHDDVD_THIZNULL, "a line of no toolkit fails");
    check(DTKHDDVD_Release(toolkit));
}

/* ---- through the records ---- */

static DTKHDDVDPen *make_pen(DTKHDDVD *toolkit)
{
    DTKHDDVDPen *pen;

    check(toolkit->CreatePen(toolkit, &shape, &pen));
    return pen;
}

static void call_slots(IDirectFBSurface *surface, IDirectFBSurface *texture)
{
    DTKHDDVD *toolkit;
    DTKHDDVDPen *pen;
    int w, h;

    check(CreateDrawingToolkit_HDDVD(dfb, surface, 1, &toolkit));
    check(surface->Clear(surface, 0x40, 0x50, 0x60, 0xFF));
    pen = make_pen(toolkit);
    check(toolkit->AddRef(toolkit));
    check(toolkit->SetPen(toolkit, pen));
    check(toolkit->SetStrokeColor(toolkit, 0xF0, 0xE0, 0xD0, 0xFF));
    check(toolkit->SetFillColor(toolkit, 0x30, 0x60, 0x90, 0xFF));
    check(toolkit->Line(toolkit, 3, 4, 150, 100));
    check(toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL | DTKHDDVD_STROKE));
    check(toolkit->SetFillPattern(toolkit, texture));
    check(toolkit->Polygon(toolkit, points, 3, 1, DTKHDDVD_FILL));
    check(toolkit->Ellipse(toolkit, &box, DTKHDDVD_FILL));
    surface->Flip(surface, NULL, DSFLIP_NONE);
    check(texture->Clear(texture, 0xFF, 0xFF, 0x00, 0xFF));
    check(toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL));
    check(pen->AddRef(pen));
    check(pen->GetSize(pen, &w, &h));
    check(pen->Release(pen));
    check(toolkit->SetPen(toolkit, NULL));
    check(pen->Release(pen));
    check(toolkit->Release(toolkit));
    check(toolkit->Release(toolkit));
}

/* ---- what the program sees of its surface ---- */

/* An attach to an attached toolkit leaves what the one before has made, by contract. */
extern void __lsan_disable(void) __attribute__((weak));
extern void __lsan_enable(void) __attribute__((weak));

static void attach_for_a_while(DTKHDDVD *toolkit, IDirectFBSurface *surface)
{
    if (__lsan_disable)
        __lsan_disable();
    check(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit, surface));
    if (__lsan_enable)
        __lsan_enable();
}

static void look_at_slots(IDirectFBSurface *surface, IDirectFBSurface *texture)
{
    const IDirectFBSurface before = *surface, other = *texture;
    DTKHDDVD *one, *two;

    check(CreateDrawingToolkit_HDDVD(dfb, surface, 0, &one));
    check(CreateDrawingToolkit_HDDVD(dfb, surface, 0, &two));
    expect(!memcmp(&other, texture, sizeof other), "another surface is left alone");
    surface->Flip(surface, NULL, DSFLIP_NONE);
    check(DetachDFBSurfaceToDrawingToolkit_HDDVD(one));
    check(surface->Clear(surface, 0, 0, 0, 0xFF));
    check(two->Release(two));
    expect(!memcmp(&before, surface, sizeof before), "the slots are what they were");
    attach_for_a_while(one, texture);
    check(AttachDFBSurfaceToDrawingToolkit_HDDVD(one, surface));
    expect(!memcmp(&other, texture, sizeof other), "a surface that was left has its slots again");
    check(one->Release(one));
    expect(!memcmp(&before, surface, sizeof before), "the slots are what they were once more");
}

/* ---- ends, threads and children ---- */

static void draw_lines(IDirectFBSurface *surface, int count)
{
    DTKHDDVD *toolkit;
    int i;

    check(CreateDrawingToolkit_HDDVD(dfb, surface, 0, &toolkit));
    for (i = 0; i < count; ++i)
        check(toolkit->SetStrokeColor(toolkit, (u8)i, 0, 0, 0xFF));
}

static void *flip_often(void *argument)
{
    IDirectFBSurface *surface = argument;
    int i;

    for (i = 0; i < 1000; ++i)
        surface->Flip(surface, NULL, DSFLIP_NONE);
    return NULL;
}

static void draw_beside_a_thread(IDirectFBSurface *surface)
{
    pthread_t thread;
    DTKHDDVD *toolkit;
    int i;

    check(CreateDrawingToolkit_HDDVD(dfb, surface, 0, &toolkit));
    expect(!pthread_create(&thread, NULL, flip_often, surface), "there is a thread");
    for (i = 0; i < 1000; ++i)
        check(toolkit->SetFillColor(toolkit, (u8)i, 0, 0, 0xFF));
    pthread_join(thread, NULL);
    check(toolkit->Release(toolkit));
}

/* The child's calls are its own. */
static void call_in_a_child(IDirectFBSurface *surface)
{
    DTKHDDVD *toolkit;
    pid_t child;

    check(CreateDrawingToolkit_HDDVD(dfb, surface, 0, &toolkit));
    child = fork();
    if (child == 0) {
        toolkit->SetFillColor(toolkit, 1, 2, 3, 4);
        _exit(0);
    }
    waitpid(child, NULL, 0);
    check(toolkit->SetFillColor(toolkit, 5, 6, 7, 8));
    check(toolkit->Release(toolkit));
}

int main(int argc, char **argv)
{
    const char *name = argc > 1 ? argv[1] : "";
    IDirectFBSurface *surface, *texture;

    if (argc > 2)
        zuvo_init(4108);
    check(DirectFBInit(NULL, NULL));
    check(DirectFBCreate(&dfb));
    surface = make_surface(width, height, DSPF_ARGB);
    texture = make_texture();
    if (!strcmp(name, "functions"))
        call_functions(surface, texture);
    if (!strcmp(name, "slots"))
        call_slots(surface, texture);
    if (!strcmp(name, "looks"))
        look_at_slots(surface, texture);
    if (!strcmp(name, "killed")) {
        draw_lines(surface, 20000);
        raise(SIGKILL);
    }
    if (!strcmp(name, "threads"))
        draw_beside_a_thread(surface);
    if (!strcmp(name, "forks"))
        call_in_a_child(surface);
    texture->Release(texture);
    surface->Release(surface);
    dfb->Release(dfb);
    if (argc > 2)
        zuvo_uninit();
    return 0;
}
