"""The declarations of DirectFB, the library and libpng for cffi, and how their operations are called.

Needs Debian's python3-cffi. The declarations are those of directfb.h and dtkhddvd.h; operations that are not called
here are skipped by their number.
"""
import os
import sys

import cffi

ffi = cffi.FFI()
ffi.cdef("""
    typedef unsigned int DFBResult;
    typedef struct { int x, y; } DFBPoint;
    typedef struct { int x, y, w, h; } DFBRectangle;
    typedef struct { int flags, caps, width, height, pixelformat; char rest[128]; } DFBSurfaceDescription;

    typedef struct IDirectFBSurface {
        void *priv;
        int magic, refs;
        DFBResult (*AddRef)(struct IDirectFBSurface *);
        DFBResult (*Release)(struct IDirectFBSurface *);
        void *skipped_to_lock[12];
        DFBResult (*Lock)(struct IDirectFBSurface *, int flags, void **ret_pixels, int *ret_pitch);
        void *skipped_to_unlock[1];
        DFBResult (*Unlock)(struct IDirectFBSurface *);
        DFBResult (*Flip)(struct IDirectFBSurface *, const void *region, int flags);
        void *skipped_to_clear[2];
        DFBResult (*Clear)(struct IDirectFBSurface *, uint8_t r, uint8_t g, uint8_t b, uint8_t a);
        void *skipped_to_dump[33];
        DFBResult (*Dump)(struct IDirectFBSurface *, const char *directory, const char *prefix);
    } IDirectFBSurface;

    typedef struct IDirectFBInputDevice {
        void *priv;
        int magic, refs;
        DFBResult (*AddRef)(struct IDirectFBInputDevice *);
        DFBResult (*Release)(struct IDirectFBInputDevice *);
    } IDirectFBInputDevice;

    typedef struct {
        int clazz, type, device_id, flags;
        struct { long seconds, microseconds; } timestamp;
        int key_code, key_id, key_symbol;
        char rest[128];
    } DFBInputEvent;

    typedef struct IDirectFBEventBuffer {
        void *priv;
        int magic, refs;
        DFBResult (*AddRef)(struct IDirectFBEventBuffer *);
        DFBResult (*Release)(struct IDirectFBEventBuffer *);
        void *skipped_to_wait[2];
        DFBResult (*WaitForEventWithTimeout)(struct IDirectFBEventBuffer *, unsigned seconds, unsigned milliseconds);
        DFBResult (*GetEvent)(struct IDirectFBEventBuffer *, DFBInputEvent *);
    } IDirectFBEventBuffer;

    typedef struct IDirectFB {
        void *priv;
        int magic, refs;
        DFBResult (*AddRef)(struct IDirectFB *);
        DFBResult (*Release)(struct IDirectFB *);
        DFBResult (*SetCooperativeLevel)(struct IDirectFB *, int level);
        void *skipped_to_create_surface[3];
        DFBResult (*CreateSurface)(struct IDirectFB *, const DFBSurfaceDescription *, IDirectFBSurface **);
        void *skipped_to_get_input_device[6];
        DFBResult (*GetInputDevice)(struct IDirectFB *, int id, IDirectFBInputDevice **);
        void *skipped_to_create_input_event_buffer[1];
        DFBResult (*CreateInputEventBuffer)(struct IDirectFB *, int caps, int global, IDirectFBEventBuffer **);
    } IDirectFB;

    DFBResult DirectFBSetOption(const char *name, const char *value);
    DFBResult DirectFBInit(int *argc, char ***argv);
    DFBResult DirectFBCreate(IDirectFB **);
    const char *DirectFBErrorString(DFBResult);

    typedef struct { int x0, y0, x1, y1, x2, y2, x3, y3; } DTKHDDVDPenShape;
    typedef struct DTKHDDVDPen {
        void *priv;
        uint32_t magic;
        DFBResult (*AddRef)(struct DTKHDDVDPen *);
        DFBResult (*Release)(struct DTKHDDVDPen *);
    } DTKHDDVDPen;

    typedef struct DTKHDDVD {
        void *priv;
        uint32_t magic;
        DFBResult (*AddRef)(struct DTKHDDVD *);
        DFBResult (*Release)(struct DTKHDDVD *);
        DFBResult (*SetStrokeColor)(struct DTKHDDVD *, uint8_t r, uint8_t g, uint8_t b, uint8_t a);
        DFBResult (*SetFillColor)(struct DTKHDDVD *, uint8_t r, uint8_t g, uint8_t b, uint8_t a);
        DFBResult (*SetFillPattern)(struct DTKHDDVD *, IDirectFBSurface *);
        DFBResult (*CreatePen)(struct DTKHDDVD *, const DTKHDDVDPenShape *, DTKHDDVDPen **);
        DFBResult (*SetPen)(struct DTKHDDVD *, DTKHDDVDPen *);
        DFBResult (*Line)(struct DTKHDDVD *, int x1, int y1, int x2, int y2);
        DFBResult (*Rectangle)(struct DTKHDDVD *, const DFBRectangle *, uint32_t flags);
        DFBResult (*Polygon)(struct DTKHDDVD *, const DFBPoint *, uint32_t count, uint8_t closed, uint32_t flags);
        DFBResult (*Ellipse)(struct DTKHDDVD *, const DFBRectangle *, uint32_t flags);
    } DTKHDDVD;

    DFBResult CreateDrawingToolkit_HDDVD(IDirectFB *, IDirectFBSurface *, uint8_t use_scratch_pad, DTKHDDVD **);

    typedef struct { void *opaque; uint32_t version, width, height, format, flags, colors, error; char text[64]; } Image;
    int png_image_write_to_memory(Image *, void *memory, size_t *size, int to_8_bit, const void *, int32_t pitch, void *);

    extern char *program_invocation_short_name;
""")
# It brings the DirectFB along that it is linked with; another one beside it would crash.
dtkhddvd = ffi.dlopen("libdtkhddvd.so.1")

STROKE, FILL = 1, 2
READ, FLIP_BLIT = 1, 2
FULLSCREEN, DESCRIBED, PRIMARY_FLIPPING, ARGB = 1, 0x0F, 0x211, 0x00418C04
KEYBOARD, ALL_INPUT, KEY_PRESS, ESCAPE = 0, 7, 1, 0x1B
PNG_VERSION, PNG_BGRA = 1, 0x13

NAME = os.path.basename(sys.argv[0]).removesuffix(".py")


def fail(message, status=1):
    """Ends the program with a line. Python itself would say more where standard output cannot be written."""
    print(f"{NAME}: {message}", file=sys.stderr, flush=True)
    os._exit(status)


def check(result, what):
    if result:
        fail(f"{what}: {ffi.string(dtkhddvd.DirectFBErrorString(result)).decode()}")


def call(record, operation, *arguments):
    """Calls an operation of an interface record; a failure ends the program."""
    check(getattr(record, operation)(record, *arguments), operation)
