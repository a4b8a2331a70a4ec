"""What Python programs share that draw with the toolkit: their options, a screen to draw on that is a window, a console
or a PNG file, and its end."""
import argparse
import os
import re
import select
import signal
import sys

from dtkhddvd_cffi import (ALL_INPUT, ARGB, DESCRIBED, ESCAPE, FLIP_BLIT, FULLSCREEN, KEYBOARD, KEY_PRESS, NAME, PNG_BGRA,
                           PNG_VERSION, PRIMARY_FLIPPING, READ, call, check, dtkhddvd, fail, ffi)

NAME_IN_MEMORY = ffi.new("char[]", NAME.encode())


def library_version():
    """The library's file is named after it."""
    with open("/proc/self/maps", encoding="utf-8") as maps:
        return re.search(r"libdtkhddvd\.so\.([0-9.]+)$", maps.read(), re.MULTILINE)[1]


class Parser(argparse.ArgumentParser):
    """The command line without the options of DirectFB and the window. What is wrong with it is one line."""

    def parse_args(self):
        others = [argument for argument in sys.argv[1:] if not argument.startswith(("--dfb:", "--zuvo:"))]
        return super().parse_args(others)

    def format_help(self):
        return super().format_help().replace("usage:", "Usage:", 1)

    def error(self, message):
        fail(message + "; try --help", 2)

    def _print_message(self, message, file=None):
        """argparse itself overlooks that a disk is full."""
        try:
            print(message, end="", file=file, flush=True)
        except OSError as error:
            fail(error.strerror)


def read_options(description):
    parser = Parser(prog=NAME, description=description,
                    epilog="--dfb:... are options of DirectFB (--dfb:system=fbdev), --zuvo:... of the window.")
    parser.add_argument("--png", metavar="FILE", help="write a picture to FILE, as PNG, instead of showing it")
    parser.add_argument("--version", action="version", version=f"{NAME} {library_version()}")
    return parser.parse_args()


def may_have_display():
    """Where DirectFB finds nothing to show a picture on, it may crash."""
    is_named = any(argument.startswith("--dfb:") and "system=" in argument for argument in sys.argv)
    variables = ("DISPLAY", "WAYLAND_DISPLAY", "DFBARGS")
    devices = ("/dev/fb0", "/dev/fb/0", "/dev/dri/card0", "/etc/directfbrc")
    return is_named or any(map(os.environ.get, variables)) or any(os.access(device, os.R_OK) for device in devices)


def start_directfb(*options):
    """Starts DirectFB with the options of the command line and these, pairs of a name and a value or NULL."""
    words = [ffi.new("char[]", word.encode()) for word in sys.argv]
    argc, argv = ffi.new("int *", len(words)), ffi.new("char ***", ffi.new("char *[]", words + [ffi.NULL]))
    check(dtkhddvd.DirectFBInit(argc, argv), "DirectFBInit")
    for name, value in options:
        check(dtkhddvd.DirectFBSetOption(name, value), "DirectFBSetOption")

    dfb = ffi.new("IDirectFB **")
    check(dtkhddvd.DirectFBCreate(dfb), "DirectFBCreate")
    return dfb[0]


def create_primary_surface(dfb, width, height):
    description = ffi.new("DFBSurfaceDescription *", [DESCRIBED, PRIMARY_FLIPPING, width, height, ARGB])
    surface = ffi.new("IDirectFBSurface **")
    call(dfb, "SetCooperativeLevel", FULLSCREEN)
    call(dfb, "CreateSurface", description, surface)
    return surface[0]


def create_toolkit(dfb, surface, use_scratch_pad=1):
    toolkit = ffi.new("DTKHDDVD **")
    check(dtkhddvd.CreateDrawingToolkit_HDDVD(dfb, surface, use_scratch_pad, toolkit), "CreateDrawingToolkit_HDDVD")
    return toolkit[0]


def as_png(pixels, pitch, width, height):
    """The bytes of a PNG file. What drawing leaves in the alpha, no picture wants."""
    rows = bytearray(ffi.buffer(pixels, pitch * height))
    rows[3::4] = b"\xff" * (len(rows) // 4)
    image = ffi.new("Image *", {"version": PNG_VERSION, "width": width, "height": height, "format": PNG_BGRA})
    size = ffi.new("size_t *", 2 * len(rows))
    memory = ffi.new("char[]", size[0])
    libpng = ffi.dlopen("libpng16.so.16")
    if not libpng.png_image_write_to_memory(image, memory, size, 0, ffi.from_buffer(rows), pitch, ffi.NULL):
        fail(ffi.string(image.text).decode())
    return bytes(ffi.buffer(memory, size[0]))


class Screen:
    """Reads the command line and opens the screen. --help, which shows the description, --version and a wrong option end
    the program before anything is opened."""

    def __init__(self, description, width, height):
        self.png, self.size, self.signal = read_options(description).png, (width, height), None
        if not self.png and not may_have_display():
            self.fail_without_display()
        # The window's title shows it, which would else be the interpreter.
        ffi.dlopen(None).program_invocation_short_name = NAME_IN_MEMORY
        system = [(b"system", b"dummy")] if self.png else []
        self.dfb = start_directfb((b"quiet", ffi.NULL), (b"no-sighandler", ffi.NULL), *system)
        if not self.png:
            self.require_keyboard()
        self.events = ffi.new("IDirectFBEventBuffer **")
        call(self.dfb, "CreateInputEventBuffer", ALL_INPUT, 1, self.events)
        self.surface = create_primary_surface(self.dfb, width, height)
        for number in signal.SIGHUP, signal.SIGINT, signal.SIGTERM:
            signal.signal(number, self.catch)

    def fail_without_display(self):
        fail("there is no display; --png FILE writes the picture to a file")

    def require_keyboard(self):
        """Without one nobody could end the program, and nobody sees it."""
        keyboard = ffi.new("IDirectFBInputDevice **")
        if self.dfb.GetInputDevice(self.dfb, KEYBOARD, keyboard):
            self.fail_without_display()
        call(keyboard[0], "Release")

    def catch(self, number, _):
        self.signal = number

    def show(self):
        """Shows the picture until the end. With --png it is written instead."""
        call(self.surface, "Flip", ffi.NULL, FLIP_BLIT)
        if self.png:
            self.save()
        else:
            self.wait()

    def save(self):
        pixels, pitch = ffi.new("void **"), ffi.new("int *")
        call(self.surface, "Lock", READ, pixels, pitch)
        content = as_png(pixels[0], pitch[0], *self.size)
        call(self.surface, "Unlock")
        try:
            with open(self.png, "wb") as stream:
                stream.write(content)
        except OSError as error:
            fail(f"cannot write {self.png}: {error.strerror}")

    def wait(self):
        """The end is Escape, which closing the window presses, a signal, or that nobody reads standard output any more."""
        output = select.poll()
        output.register(sys.stdout, 0)
        while not (self.was_escape_pressed() or self.signal or output.poll(0)):
            self.events[0].WaitForEventWithTimeout(self.events[0], 0, 200)

    def was_escape_pressed(self):
        event, was_pressed = ffi.new("DFBInputEvent *"), False
        while not self.events[0].GetEvent(self.events[0], event):
            was_pressed = was_pressed or (event.type == KEY_PRESS and event.key_symbol == ESCAPE)
        return was_pressed

    def close(self):
        for record in self.events[0], self.surface, self.dfb:
            call(record, "Release")
        if self.signal:
            signal.signal(self.signal, signal.SIG_DFL)
            signal.raise_signal(self.signal)
