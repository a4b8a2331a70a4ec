#!/usr/bin/python3
"""A rosette of translucent ellipses and a pen's star, drawn from Python through cffi. Escape ends it.

    ./df_rosette.py
    ./df_rosette.py --png rosette.png

screen.py beside it is what Python programs share, dtkhddvd_cffi.py has the declarations.
"""
import math

from dtkhddvd_cffi import FILL, STROKE, call, ffi
from screen import Screen, create_toolkit

SIDE = 440


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


def main():
    screen = Screen("Shows a rosette of translucent ellipses.", SIDE, SIDE)
    call(screen.surface, "Clear", 0x14, 0x14, 0x1C, 0xFF)
    toolkit = create_toolkit(screen.dfb, screen.surface)
    draw_petals(toolkit)
    draw_star(toolkit)
    call(toolkit, "Release")
    screen.show()
    screen.close()


if __name__ == "__main__":
    main()
