/// The pictures of the guide: `guide_pictures NAME FILE [software|hardware]` draws one of them as PNG.
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include <dtkhddvd.h>

#include "platform.h"
#include "sheet.h"
#include "write_png.h"

namespace {

using tools::check;
using tools::Owned;
using tools::Platform;
using tools::Sheet;

using Pen = Owned<DTKHDDVDPen>;
using Toolkit = Owned<DTKHDDVD>;
using Surface = Owned<IDirectFBSurface>;

constexpr u32 both = DTKHDDVD_FILL | DTKHDDVD_STROKE;

Toolkit create_toolkit(IDirectFB* dfb, IDirectFBSurface* surface, bool has_scratch_pad = true)
{
    DTKHDDVD* toolkit = nullptr;
    check(CreateDrawingToolkit_HDDVD(dfb, surface, has_scratch_pad ? 1 : 0, &toolkit), "cannot create a toolkit");
    return Toolkit(toolkit);
}

/// Makes the pen the current one; before it goes, the toolkit has to let go of it.
Pen set_new_pen(DTKHDDVD* toolkit, const DTKHDDVDPenShape& shape)
{
    DTKHDDVDPen* pen = nullptr;
    check(toolkit->CreatePen(toolkit, &shape, &pen), "cannot create a pen");
    Pen owned_pen(pen);
    check(toolkit->SetPen(toolkit, pen), "cannot set the pen");
    return owned_pen;
}

void drop_pen(DTKHDDVD* toolkit)
{
    check(toolkit->SetPen(toolkit, nullptr), "cannot drop the pen");
}

void set_colors(DTKHDDVD* toolkit, u8 fill_alpha, u8 stroke_alpha)
{
    check(toolkit->SetFillColor(toolkit, 0x18, 0x9A, 0xA8, fill_alpha), "cannot set the fill colour");
    check(toolkit->SetStrokeColor(toolkit, 0xC2, 0x2F, 0x7B, stroke_alpha), "cannot set the stroke colour");
}

/// One stamp, eight times as large, in a field of 24 x 24 pixels.
void draw_magnified_stamp(IDirectFB* dfb, IDirectFBSurface* sheet, const DTKHDDVDPenShape& shape, int x, int y)
{
    const Surface field = tools::create_surface(dfb, 24, 16, DSPF_ARGB);
    check(field->Clear(field.get(), 0xF2, 0xF3, 0xF6, 0xFF), "cannot clear the field");
    const Toolkit toolkit = create_toolkit(dfb, field.get());
    const Pen pen = set_new_pen(toolkit.get(), shape);
    check(toolkit->SetStrokeColor(toolkit.get(), 0x30, 0x50, 0x80, 0xFF), "cannot set the stroke colour");
    check(toolkit->Line(toolkit.get(), 12, 8, 12, 8), "cannot draw a stamp");
    drop_pen(toolkit.get());
    const DFBRectangle place = {x, y, 192, 128};
    check(sheet->StretchBlit(sheet, field.get(), nullptr, &place), "cannot magnify");
}

void draw_with_pen(IDirectFB* dfb, IDirectFBSurface* sheet, const DTKHDDVDPenShape& shape, int x, int y)
{
    const Toolkit toolkit = create_toolkit(dfb, sheet);
    const Pen pen = set_new_pen(toolkit.get(), shape);
    const DFBPoint zigzag[] = {
        {x + 10, y + 90}, {x + 53, y + 10}, {x + 96, y + 90}, {x + 139, y + 10}, {x + 182, y + 90}};
    const DFBRectangle box = {x + 12, y + 120, 168, 90};
    check(toolkit->SetStrokeColor(toolkit.get(), 0x30, 0x50, 0x80, 0xFF), "cannot set the stroke colour");
    check(toolkit->Polygon(toolkit.get(), zigzag, 5, 0, DTKHDDVD_STROKE), "cannot draw a polygon");
    check(toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_STROKE), "cannot draw an ellipse");
    drop_pen(toolkit.get());
}

/// One column a pen: its stamp magnified, and what it draws.
Sheet draw_pens(const Platform& platform)
{
    const struct {
        const char* caption;
        DTKHDDVDPenShape shape;
    } pens[] = {
        {"-4,-4  4,-4  4,4  -4,4", {-4, -4, 4, -4, 4, 4, -4, 4}},
        {"-6,-2  2,-6  6,2  -2,6", {-6, -2, 2, -6, 6, 2, -2, 6}},
        {"-8,6  6,-8  8,-6  -6,8", {-8, 6, 6, -8, 8, -6, -6, 8}},
        {"-6,-6  6,-6  -1,-1  -6,6", {-6, -6, 6, -6, -1, -1, -6, 6}},
    };
    Sheet sheet(platform.dfb(), 4 * 208 + 16, 400);
    int x = 16;
    for (const auto& pen : pens) {
        sheet.write(pen.caption, x + 96, 10);
        draw_magnified_stamp(platform.dfb(), sheet.surface(), pen.shape, x, 34);
        draw_with_pen(platform.dfb(), sheet.surface(), pen.shape, x, 176);
        x += 208;
    }
    return sheet;
}

/// A tile with a light corner and a dark diagonal.
Surface create_texture(IDirectFB* dfb, u8 alpha)
{
    Surface texture = tools::create_surface(dfb, 16, 16, DSPF_ARGB);
    IDirectFBSurface* tile = texture.get();
    check(tile->Clear(tile, 0x50, 0x40, 0x9F, alpha), "cannot clear the texture");
    check(tile->SetColor(tile, 0xF0, 0xB0, 0x40, 0xFF), "cannot set a colour");
    check(tile->FillRectangle(tile, 0, 0, 6, 6), "cannot draw the texture");
    check(tile->DrawLine(tile, 8, 8, 15, 15), "cannot draw the texture");
    return texture;
}

void draw_textured(DTKHDDVD* toolkit, int x, int y)
{
    const DFBRectangle box = {x + 190, y, 150, 110}, oval = {x + 370, y, 150, 110};
    const DFBPoint corners[] = {
        {x + 630, y}, {x + 720, y + 40}, {x + 680, y + 110}, {x + 580, y + 110}, {x + 540, y + 40}};
    check(toolkit->Rectangle(toolkit, &box, both), "cannot draw a rectangle");
    check(toolkit->Ellipse(toolkit, &oval, both), "cannot draw an ellipse");
    check(toolkit->Polygon(toolkit, corners, 5, 1, both), "cannot draw a polygon");
}

/// One row a texture: the texture magnified, and shapes that are filled with it.
Sheet draw_patterns(const Platform& platform)
{
    Sheet sheet(platform.dfb(), 760, 300);
    sheet.fill_checks({10, 10, 740, 280}, 10);
    const Toolkit toolkit = create_toolkit(platform.dfb(), sheet.surface());
    const Pen pen = set_new_pen(toolkit.get(), {-2, -2, 2, -2, 2, 2, -2, 2});
    set_colors(toolkit.get(), 0xFF, 0xFF);
    int y = 25;
    for (const u8 alpha : {u8(0xFF), u8(0x50)}) {
        const Surface texture = create_texture(platform.dfb(), alpha);
        const DFBRectangle place = {30, y, 112, 112};
        IDirectFBSurface* surface = sheet.surface();
        check(surface->SetBlittingFlags(surface, DSBLIT_BLEND_ALPHACHANNEL), "cannot blend");
        check(surface->StretchBlit(surface, texture.get(), nullptr, &place), "cannot magnify");
        check(toolkit->SetFillPattern(toolkit.get(), texture.get()), "cannot set the pattern");
        draw_textured(toolkit.get(), 0, y);
        check(toolkit->SetFillPattern(toolkit.get(), nullptr), "cannot drop the pattern");
        y += 140;
    }
    drop_pen(toolkit.get());
    return sheet;
}

void draw_translucent(DTKHDDVD* toolkit, int x, int y)
{
    const Pen pen = set_new_pen(toolkit, {-8, -3, 3, -8, 8, 3, -3, 8});
    const DFBRectangle box = {x + 30, y + 20, 150, 120}, oval = {x + 130, y + 60, 180, 120};
    const DFBPoint zigzag[] = {
        {x + 30, y + 230}, {x + 100, y + 160}, {x + 170, y + 230}, {x + 240, y + 160}, {x + 310, y + 230}};
    set_colors(toolkit, 0x80, 0x80);
    check(toolkit->Rectangle(toolkit, &box, both), "cannot draw a rectangle");
    check(toolkit->Ellipse(toolkit, &oval, both), "cannot draw an ellipse");
    check(toolkit->Polygon(toolkit, zigzag, 5, 0, DTKHDDVD_STROKE), "cannot draw a polygon");
    drop_pen(toolkit);
}

/// The same translucent shapes with a scratch pad and without.
Sheet draw_scratch_pad(const Platform& platform)
{
    Sheet sheet(platform.dfb(), 700, 290);
    int x = 10;
    for (const bool has_scratch_pad : {true, false}) {
        sheet.fill_checks({x, 34, 330, 250}, 10);
        sheet.write(has_scratch_pad ? "with a scratch pad" : "without", x + 165, 10);
        draw_translucent(create_toolkit(platform.dfb(), sheet.surface(), has_scratch_pad).get(), x, 34);
        x += 350;
    }
    return sheet;
}

/// What the back ends draw differently.
Sheet draw_back_end(const Platform& platform)
{
    Sheet sheet(platform.dfb(), 350, 290);
    sheet.fill_checks({10, 34, 330, 250}, 10);
    sheet.write(platform.has_engine() ? "drawing engine" : "software", 175, 10);
    draw_translucent(create_toolkit(platform.dfb(), sheet.surface()).get(), 10, 34);
    return sheet;
}

void draw_picture(const std::string& name, const std::string& file, tools::BackEnd back_end)
{
    const struct {
        const char* name;
        Sheet (*draw)(const Platform& platform);
    } pictures[] = {{"pens", draw_pens},
                    {"patterns", draw_patterns},
                    {"scratch-pad", draw_scratch_pad},
                    {"back-end", draw_back_end}};
    for (const auto& picture : pictures) {
        if (picture.name != name)
            continue;
        const Platform platform(640, 480, back_end, {"--zuvo:window=off"});
        tools::write_png(file, picture.draw(platform).surface());
        return;
    }
    throw std::invalid_argument("there is no picture '" + name + "'");
}

} // namespace

int main(int argc, char** argv)
{
    try {
        if (argc != 3 && argc != 4)
            throw std::invalid_argument("usage: guide_pictures NAME FILE [software|hardware]");
        draw_picture(argv[1], argv[2], tools::back_end_named(argc == 4 ? argv[3] : "software"));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "guide_pictures: %s\n", error.what());
        return 1;
    }
}
