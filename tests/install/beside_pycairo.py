"""beside_pycairo.py EXAMPLES DIRECTFB-OPTION FIRST SECOND: imports pycairo (cairo) and the Python example (df_rosette) in
this order and lets both draw. Fails where a pixel is not what it should be."""
import gzip
import importlib
import os
import sys
import tempfile

examples, option, *order = sys.argv[1:]
sys.argv = ["beside_pycairo", option]
sys.path.insert(0, examples)
modules = {name: importlib.import_module(name) for name in order}
cairo, example = modules["cairo"], modules["df_rosette"]

ORANGE = bytes([0xF0, 0x80, 0x20])


def last_pixel_of_dump(screen):
    with tempfile.TemporaryDirectory() as folder:
        example.call(screen, "Dump", folder.encode(), b"shown")
        names = [name for name in os.listdir(folder) if ".ppm" in name]
        with open(os.path.join(folder, names[0]), "rb") as file:
            content = file.read()
    return (gzip.decompress(content) if names[0].endswith(".gz") else content)[-3:]


def pixel_by_toolkit():
    """A filled polygon, which the toolkit leaves to cairo."""
    dfb, _ = example.start_directfb()
    screen = example.create_screen(dfb)
    toolkit = example.ffi.new("DTKHDDVD **")
    example.check(example.dtkhddvd.CreateDrawingToolkit_HDDVD(dfb, screen, 0, toolkit), "CreateDrawingToolkit_HDDVD")
    corners = example.ffi.new("DFBPoint[]", [(0, 0), (900, 0), (900, 900), (0, 900)])
    example.call(toolkit[0], "SetFillColor", *ORANGE, 0xFF)
    example.call(toolkit[0], "Polygon", corners, 4, 1, example.FILL)
    example.call(toolkit[0], "Release")
    example.call(screen, "Flip", example.ffi.NULL, 0)
    pixel = last_pixel_of_dump(screen)
    example.call(screen, "Release")
    example.call(dfb, "Release")
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
