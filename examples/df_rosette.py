#!/usr/bin/python3
"""A rosette of translucent ellipses and a pen's star, drawn from Python through cffi.

    ./df_rosette.py                  shows it for five seconds
    ./df_rosette.py --png FILE

Needs Debian's python3-cffi. The declarations are those of directfb.h and dtkhddvd.h; operations that are not called
here are skipped by their number.
"""
import argparse
import math
import os
import signal
import sys
import time

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

    typedef struct IDirectFB {
        void *priv;
        int magic, refs;
        DFBResult (*AddRef)(struct IDirectFB *);
        DFBResult (*Release)(struct IDirectFB *);
        DFBResult (*SetCooperativeLevel)(struct IDirectFB *, int level);
        void *skipped_to_create_surface[3];
        DFBResult (*CreateSurface)(struct IDirectFB *, const DFBSurfaceDescription *, IDirectFBSurface **);
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
""")
# It brings the DirectFB along that it is linked with; another one beside it would crash.
dtkhddvd = ffi.dlopen("libdtkhddvd.so.1")

STROKE, FILL = 1, 2
READ, FLIP_BLIT = 1, 2
PNG_VERSION, PNG_BGRA = 1, 0x13
SIDE = 440


def call(record, operation, *arguments):
    """Calls an operation of an interface record; a failure ends the program."""
    check(getattr(record, operation)(record, *arguments), operation)


def check(result, what):
    if result:
        sys.exit(f"df_rosette: {what}: {ffi.string(dtkhddvd.DirectFBErrorString(result)).decode()}")


def start_directfb(*options):
    """Starts DirectFB with the options of the command line, and returns its interface and the other arguments."""
    words = [ffi.new("char[]", word.encode()) for word in sys.argv]
    array = ffi.new("char *[]", words + [ffi.NULL])
    argc, argv = ffi.new("int *", len(words)), ffi.new("char ***", array)
    check(dtkhddvd.DirectFBInit(argc, argv), "DirectFBInit")
    for name, value in options:
        check(dtkhddvd.DirectFBSetOption(name, value), "DirectFBSetOption")

    dfb = ffi.new("IDirectFB **")
    check(dtkhddvd.DirectFBCreate(dfb), "DirectFBCreate")
    return dfb[0], [ffi.string(argv[0][i]).decode() for i in range(1, argc[0])]


def create_screen(dfb):
    fullscreen, described, caps, argb = 1, 0x0F, 0x211, 0x00418C04
    description = ffi.new("DFBSurfaceDescription *", [described, caps, SIDE, SIDE, argb])
    screen = ffi.new("IDirectFBSurface **")
    call(dfb, "SetCooperativeLevel", fullscreen)
    call(dfb, "CreateSurface", description, screen)
    return screen[0]


def point_at(turn, distance):
    angle = 2 * math.pi * turn
    return SIDE // 2 + round(distance * math.sin(angle)), SIDE // 2 - round(distance * math.cos(angle))


def draw_petals(toolkit):
    for i in range(24):
        x, y = point_at(i / 24, 96)
        warmth = round(127.5 + 127.5 * math.cos(2 * math.pi * i / 24))
        call(toolkit, "SetFillColor", warmth, 0x50, 255 - warmth, 0x28)
        call(toolkit, "Ellipse", ffi.new("DFBRectangle *", [x - 96, y - 96, 192, 192]), FILL)


def draw_star(toolkit):
    pen = ffi.new("DTKHDDVDPen **")
    call(toolkit, "CreatePen", ffi.new("DTKHDDVDPenShape *", [-4, -1, 1, -4, 4, 1, -1, 4]), pen)
    call(toolkit, "SetPen", pen[0])
    call(toolkit, "SetStrokeColor", 0xFF, 0xF4, 0xD8, 0xB0)
    corners = ffi.new("DFBPoint[]", [point_at(i * 4 / 9, 184) for i in range(9)])
    call(toolkit, "Polygon", corners, 9, 1, STROKE)
    call(toolkit, "SetPen", ffi.NULL)
    call(pen[0], "Release")


def save(screen, file):
    """Writes the picture as PNG, without its alpha."""
    pixels, pitch = ffi.new("void **"), ffi.new("int *")
    call(screen, "Lock", READ, pixels, pitch)
    rows = bytearray(ffi.buffer(pixels[0], pitch[0] * SIDE))
    call(screen, "Unlock")
    rows[3::4] = b"\xff" * (len(rows) // 4)

    image = ffi.new("Image *", {"version": PNG_VERSION, "width": SIDE, "height": SIDE, "format": PNG_BGRA})
    size = ffi.new("size_t *", 2 * len(rows))
    memory = ffi.new("char[]", size[0])
    libpng = ffi.dlopen("libpng16.so.16")
    if not libpng.png_image_write_to_memory(image, memory, size, 0, ffi.from_buffer(rows), pitch[0], ffi.NULL):
        sys.exit(f"df_rosette: {ffi.string(image.text).decode()}")
    try:
        with open(file, "wb") as stream:
            stream.write(ffi.buffer(memory, size[0]))
    except OSError as error:
        sys.exit(f"df_rosette: cannot write {file}: {error.strerror}")


def is_directfb_option(argument):
    return argument.startswith(("--dfb:", "--zuvo:"))


def read_options():
    """The command line without the options of DirectFB and the platform, read before anything is opened."""
    parser = argparse.ArgumentParser(prog="df_rosette", description="Shows a rosette for five seconds.",
                                     epilog="--dfb:... are options of DirectFB, --zuvo:... of the window.")
    parser.add_argument("--png", metavar="FILE", help="write a picture to FILE instead of showing it")
    parser.add_argument("--version", action="version", version="df_rosette 1.0.0")
    return parser.parse_args([argument for argument in sys.argv[1:] if not is_directfb_option(argument)])


def has_display():
    """DirectFB 1.7 may crash where it finds nothing to show a picture on."""
    named = any("system=" in argument for argument in sys.argv)
    variables = ("DISPLAY", "WAYLAND_DISPLAY", "DFBARGS")
    return named or any(map(os.environ.get, variables)) or any(map(os.path.exists, ("/dev/fb0", "/dev/dri/card0")))


def main():
    signal.signal(signal.SIGINT, signal.SIG_DFL)
    options = read_options()
    if not options.png and not has_display():
        sys.exit("df_rosette: there is no display; --png FILE writes the picture to a file")
    system = [(b"system", b"dummy")] if options.png else []
    dfb, _ = start_directfb((b"quiet", ffi.NULL), (b"no-sighandler", ffi.NULL), *system)
    screen = create_screen(dfb)
    call(screen, "Clear", 0x14, 0x14, 0x1C, 0xFF)

    toolkit = ffi.new("DTKHDDVD **")
    check(dtkhddvd.CreateDrawingToolkit_HDDVD(dfb, screen, 1, toolkit), "CreateDrawingToolkit_HDDVD")
    draw_petals(toolkit[0])
    draw_star(toolkit[0])
    call(toolkit[0], "Release")

    call(screen, "Flip", ffi.NULL, FLIP_BLIT)
    if options.png:
        save(screen, options.png)
    else:
        time.sleep(5)
    call(screen, "Release")
    call(dfb, "Release")


if __name__ == "__main__":
    main()
