"""beside_pycairo.py EXAMPLES DIRECTFB-OPTION FIRST SECOND: imports pycairo (cairo) and what the Python examples share
(screen) in this order and lets both draw. Fails where a pixel is not what it should be."""
import gzip
import importlib
import os
import sys
import tempfile

examples, option, *order = sys.argv[1:]
sys.argv = ["beside_pycairo", option]
sys.path.insert(0, examples)
modules = {name: importlib.import_module(name) for name in order}
cairo, screen = modules["cairo"], modules["screen"]
from dtkhddvd_cffi import FILL, FLIP_BLIT, call, ffi

ORANGE = bytes([0xF0, 0x80, 0x20])


def last_pixel_of_dump(surface):
    with tempfile.TemporaryDirectory() as folder:
        call(surface, "Dump", folder.encode(), b"shown")
        names = [name for name in os.listdir(folder) if ".ppm" in name]
        with open(os.path.join(folder, names[0]), "rb") as file:
            content = file.read()
    return (gzip.decompress(content) if names[0].endswith(".gz") else content)[-3:]


def pixel_by_toolkit():
    """A filled polygon, which the toolkit leaves to cairo."""
    dfb = screen.start_directfb()
    surface = screen.create_primary_surface(dfb, 440, 440)
    toolkit = screen.create_toolkit(dfb, surface, use_scratch_pad=0)
    corners = ffi.new("DFBPoint[]", [(0, 0), (900, 0), (900, 900), (0, 900)])
    call(toolkit, "SetFillColor", *ORANGE, 0xFF)
    call(toolkit, "Polygon", corners, 4, 1, FILL)
    call(toolkit, "Release")
    call(surface, "Flip", ffi.NULL, FLIP_BLIT)
    pixel = last_pixel_of_dump(surface)
    call(surface, "Release")
    call(dfb, "Release")
    return pixel


def pixel_by_pycairo():
    image = cairo.ImageSurface(cairo.FORMAT_RGB24, 4, 4)
    context = cairo.Context(image)
    context.set_source_rgb(*(component / 255 for component in ORANGE))
    context.paint()
    return bytes(image.get_data()[2::-1])


for pixel in (pixel_by_pycairo(), pixel_by_toolkit(), pixel_by_pycairo()):
    if pixel != ORANGE:
        sys.exit(f"a pixel is {pixel.hex()} and should be {ORANGE.hex()}")
