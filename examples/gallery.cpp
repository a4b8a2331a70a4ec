/// Every primitive in every manner of drawing, on one sheet, as PNG.
#include <string>
#include <vector>

#include <dtkhddvd.h>

#include "options.h"
#include "picture_output.h"
#include "platform.h"
#include "sheet.h"

namespace {

using tools::check;
using tools::Owned;

constexpr int margin = 14;
constexpr int caption_height = 24;
constexpr int cell_width = 150, cell_height = 130;
constexpr int columns = 7, rows = 5;
constexpr int sheet_width = 2 * margin + columns * cell_width;
constexpr int sheet_height = 2 * margin + caption_height + rows * cell_height;

struct Colour {
    u8 r, g, b, a;
};

/// How a column draws. Lines take its stroke, its pen and none of its fill.
struct Manner {
    const char* caption;
    u32 flags;
    Colour fill, stroke;
    bool has_pattern;
    DTKHDDVDPenShape pen;
};

constexpr DTKHDDVDPenShape hairline_shape = {};
constexpr DTKHDDVDPenShape dot_shape = {-1, -1, 2, -1, 2, 2, -1, 2};
constexpr DTKHDDVDPenShape round_shape = {-5, -2, 2, -5, 5, 2, -2, 5};
constexpr DTKHDDVDPenShape chisel_shape = {-7, 5, 5, -7, 7, -5, -5, 7};
constexpr DTKHDDVDPenShape diamond_shape = {0, -6, 6, 0, 0, 6, -6, 0};
constexpr DTKHDDVDPenShape boomerang_shape = {-6, -6, 6, -6, -1, -1, -6, 6};

constexpr u32 both = DTKHDDVD_FILL | DTKHDDVD_STROKE;

const Manner manners[columns] = {
    {"filled", DTKHDDVD_FILL, {0x2E, 0x6F, 0xB7, 0xFF}, {0x2E, 0x6F, 0xB7, 0xFF}, false, dot_shape},
    {"outlined", DTKHDDVD_STROKE, {}, {0x20, 0x20, 0x28, 0xFF}, false, hairline_shape},
    {"round pen", both, {0xF2, 0xC1, 0x4E, 0xFF}, {0x7A, 0x3E, 0x0F, 0xFF}, false, round_shape},
    {"chisel pen", both, {0xDD, 0xE8, 0xD0, 0xFF}, {0x2F, 0x6B, 0x3A, 0xFF}, false, chisel_shape},
    {"concave pen", both, {0xF4, 0xD6, 0xD2, 0xFF}, {0xA8, 0x2B, 0x3A, 0xFF}, false, boomerang_shape},
    {"pattern", both, {}, {0x4B, 0x3F, 0x72, 0xFF}, true, diamond_shape},
    {"translucent", both, {0x18, 0x9A, 0xA8, 0x70}, {0xC2, 0x2F, 0x7B, 0xA0}, false, diamond_shape},
};

using Pen = Owned<DTKHDDVDPen>;
using Toolkit = Owned<DTKHDDVD>;
using Surface = Owned<IDirectFBSurface>;

void draw_captions(const tools::Sheet& sheet)
{
    for (int column = 0; column < columns; ++column)
        sheet.write(manners[column].caption, margin + column * cell_width + cell_width / 2, margin);
}

/// A tile with a dark edge at two sides and a light diagonal.
Surface create_texture(IDirectFB* dfb)
{
    Surface texture = tools::create_surface(dfb, 12, 12, DSPF_ARGB);
    IDirectFBSurface* tile = texture.get();
    check(tile->Clear(tile, 0xB8, 0xA9, 0xE0, 0xFF), "cannot clear the texture");
    check(tile->SetColor(tile, 0x7C, 0x6B, 0xB5, 0xFF), "cannot set a colour");
    check(tile->FillRectangle(tile, 0, 0, 6, 6), "cannot fill");
    check(tile->SetColor(tile, 0xF6, 0xF2, 0xFF, 0xFF), "cannot set a colour");
    check(tile->DrawLine(tile, 6, 11, 11, 6), "cannot draw a line");
    return texture;
}

Toolkit create_toolkit(IDirectFB* dfb, IDirectFBSurface* sheet)
{
    DTKHDDVD* toolkit = nullptr;
    check(CreateDrawingToolkit_HDDVD(dfb, sheet, 1, &toolkit), "cannot create the toolkit");
    return Toolkit(toolkit);
}

bool is_hairline(const DTKHDDVDPenShape& shape)
{
    return shape.x0 == shape.x1 && shape.x1 == shape.x2 && shape.y0 == shape.y2;
}

/// The software back end draws outlines one pixel wide without a pen, the engine with a pen of one point.
Pen create_pen(DTKHDDVD* toolkit, const DTKHDDVDPenShape& shape, bool has_engine)
{
    if (is_hairline(shape) && !has_engine)
        return Pen();
    DTKHDDVDPen* pen = nullptr;
    check(toolkit->CreatePen(toolkit, &shape, &pen), "cannot create a pen");
    return Pen(pen);
}

void set_manner(DTKHDDVD* toolkit, const Manner& manner, DTKHDDVDPen* pen, IDirectFBSurface* texture)
{
    const Colour& fill = manner.fill;
    const Colour& stroke = manner.stroke;
    check(toolkit->SetPen(toolkit, pen), "SetPen");
    check(toolkit->SetFillColor(toolkit, fill.r, fill.g, fill.b, fill.a), "SetFillColor");
    check(toolkit->SetStrokeColor(toolkit, stroke.r, stroke.g, stroke.b, stroke.a), "SetStrokeColor");
    if (manner.has_pattern)
        check(toolkit->SetFillPattern(toolkit, texture), "SetFillPattern");
}

void draw_rectangle(DTKHDDVD* toolkit, int x, int y, u32 flags)
{
    const DFBRectangle box = {x + 20, y + 20, 110, 90};
    check(toolkit->Rectangle(toolkit, &box, flags), "Rectangle");
}

void draw_ellipse(DTKHDDVD* toolkit, int x, int y, u32 flags)
{
    const DFBRectangle box = {x + 20, y + 20, 110, 90};
    check(toolkit->Ellipse(toolkit, &box, flags), "Ellipse");
}

void draw_star(DTKHDDVD* toolkit, int x, int y, u32 flags)
{
    const DFBPoint corners[] = {{x + 75, y + 16}, {x + 88, y + 52}, {x + 130, y + 52}, {x + 97, y + 74},
                                {x + 110, y + 112}, {x + 75, y + 89}, {x + 40, y + 112}, {x + 53, y + 74},
                                {x + 20, y + 52}, {x + 62, y + 52}};
    check(toolkit->Polygon(toolkit, corners, 10, 1, flags), "Polygon");
}

void draw_zigzag(DTKHDDVD* toolkit, int x, int y, u32)
{
    const DFBPoint corners[] = {{x + 20, y + 100}, {x + 42, y + 30}, {x + 64, y + 100},
                                {x + 86, y + 30}, {x + 108, y + 100}, {x + 130, y + 30}};
    check(toolkit->Polygon(toolkit, corners, 6, 0, DTKHDDVD_STROKE), "Polygon");
}

void draw_fan(DTKHDDVD* toolkit, int x, int y, u32)
{
    const DFBPoint ends[] = {{x + 20, y + 65}, {x + 33, y + 38}, {x + 75, y + 20},
                             {x + 117, y + 38}, {x + 130, y + 65}};
    for (const DFBPoint& end : ends)
        check(toolkit->Line(toolkit, x + 75, y + 110, end.x, end.y), "Line");
}

void draw_column(DTKHDDVD* toolkit, int column)
{
    using Draw = void (*)(DTKHDDVD* toolkit, int x, int y, u32 flags);
    const Draw draws[rows] = {draw_rectangle, draw_ellipse, draw_star, draw_zigzag, draw_fan};
    for (int row = 0; row < rows; ++row)
        draws[row](toolkit, margin + column * cell_width, margin + caption_height + row * cell_height,
                   manners[column].flags);
}

void draw_shapes(const tools::Platform& platform, IDirectFBSurface* sheet)
{
    const Surface texture = create_texture(platform.dfb());
    const Toolkit toolkit = create_toolkit(platform.dfb(), sheet);
    for (int column = 0; column < columns; ++column) {
        const Pen pen = create_pen(toolkit.get(), manners[column].pen, platform.has_engine());
        set_manner(toolkit.get(), manners[column], pen.get(), texture.get());
        draw_column(toolkit.get(), column);
        check(toolkit->SetPen(toolkit.get(), nullptr), "SetPen");
    }
}

tools::Sheet draw_gallery(const tools::Platform& platform)
{
    tools::Sheet sheet(platform.dfb(), sheet_width, sheet_height);
    sheet.fill_checks({margin, margin + caption_height, columns * cell_width, rows * cell_height}, 10);
    draw_captions(sheet);
    draw_shapes(platform, sheet.surface());
    return sheet;
}

} // namespace

int main(int argc, char** argv)
{
    tools::BackEnd back_end = tools::BackEnd::any;
    tools::Program program("Draws every primitive in every manner on one sheet.", "gallery");
    const tools::PictureOutput output(program);
    program.add_back_end(back_end);
    return program.run(argc, argv, [&] {
        const tools::Platform platform(sheet_width, sheet_height, back_end, output.platform_arguments());
        output.put(platform, draw_gallery(platform).surface());
        return 0;
    });
}
