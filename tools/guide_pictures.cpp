/// The pictures of the guide, each drawn as PNG.
#include <stdexcept>
#include <string>
#include <vector>

#include <dtkhddvd.hpp>

#include "options.h"
#include "picture_output.h"
#include "platform.h"
#include "sheet.h"

namespace {

using tools::check;
using tools::Owned;
using tools::Platform;
using tools::Sheet;

using dtkhddvd::Draw;
using dtkhddvd::Outline;
using dtkhddvd::ScratchPad;
using Toolkit = dtkhddvd::ThrowingToolkit;
using Surface = Owned<IDirectFBSurface>;

Toolkit create_toolkit(IDirectFB* dfb, IDirectFBSurface* surface, ScratchPad scratch_pad = ScratchPad::with)
{
    return Toolkit::create(dfb, surface, scratch_pad);
}

/// The toolkit keeps the pen.
void set_new_pen(Toolkit& toolkit, const DTKHDDVDPenShape& shape)
{
    toolkit.set_pen(toolkit.create_pen(shape));
}

void set_colors(Toolkit& toolkit, u8 fill_alpha, u8 stroke_alpha)
{
    toolkit.set_fill_color({fill_alpha, 0x18, 0x9A, 0xA8});
    toolkit.set_stroke_color({stroke_alpha, 0xC2, 0x2F, 0x7B});
}

/// One stamp, eight times as large, in a field of 24 x 24 pixels.
void draw_magnified_stamp(IDirectFB* dfb, IDirectFBSurface* sheet, const DTKHDDVDPenShape& shape, int x, int y)
{
    const Surface field = tools::create_surface(dfb, 24, 16, DSPF_ARGB);
    check(field->Clear(field.get(), 0xF2, 0xF3, 0xF6, 0xFF), "cannot clear the field");
    Toolkit toolkit = create_toolkit(dfb, field.get());
    set_new_pen(toolkit, shape);
    toolkit.set_stroke_color({0xFF, 0x30, 0x50, 0x80});
    toolkit.line({12, 8}, {12, 8});
    const DFBRectangle place = {x, y, 192, 128};
    check(sheet->StretchBlit(sheet, field.get(), nullptr, &place), "cannot magnify");
}

void draw_with_pen(IDirectFB* dfb, IDirectFBSurface* sheet, const DTKHDDVDPenShape& shape, int x, int y)
{
    Toolkit toolkit = create_toolkit(dfb, sheet);
    set_new_pen(toolkit, shape);
    const DFBPoint zigzag[] = {
        {x + 10, y + 90}, {x + 53, y + 10}, {x + 96, y + 90}, {x + 139, y + 10}, {x + 182, y + 90}};
    toolkit.set_stroke_color({0xFF, 0x30, 0x50, 0x80});
    toolkit.polygon(zigzag, Outline::open, Draw::stroke);
    toolkit.ellipse({x + 12, y + 120, 168, 90}, Draw::stroke);
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

void draw_textured(Toolkit& toolkit, int x, int y)
{
    const DFBPoint corners[] = {
        {x + 630, y}, {x + 720, y + 40}, {x + 680, y + 110}, {x + 580, y + 110}, {x + 540, y + 40}};
    toolkit.rectangle({x + 190, y, 150, 110}, Draw::both);
    toolkit.ellipse({x + 370, y, 150, 110}, Draw::both);
    toolkit.polygon(corners, Outline::closed, Draw::both);
}

/// One row a texture: the texture magnified, and shapes that are filled with it.
Sheet draw_patterns(const Platform& platform)
{
    Sheet sheet(platform.dfb(), 760, 300);
    sheet.fill_checks({10, 10, 740, 280}, 10);
    Toolkit toolkit = create_toolkit(platform.dfb(), sheet.surface());
    set_new_pen(toolkit, {-2, -2, 2, -2, 2, 2, -2, 2});
    set_colors(toolkit, 0xFF, 0xFF);
    int y = 25;
    for (const u8 alpha : {u8(0xFF), u8(0x50)}) {
        const Surface texture = create_texture(platform.dfb(), alpha);
        const DFBRectangle place = {30, y, 112, 112};
        IDirectFBSurface* surface = sheet.surface();
        check(surface->SetBlittingFlags(surface, DSBLIT_BLEND_ALPHACHANNEL), "cannot blend");
        check(surface->StretchBlit(surface, texture.get(), nullptr, &place), "cannot magnify");
        toolkit.set_fill_pattern(texture.get());
        draw_textured(toolkit, 0, y);
        toolkit.set_fill_pattern(nullptr);
        y += 140;
    }
    return sheet;
}

void draw_translucent(Toolkit toolkit, int x, int y)
{
    set_new_pen(toolkit, {-8, -3, 3, -8, 8, 3, -3, 8});
    const DFBPoint zigzag[] = {
        {x + 30, y + 230}, {x + 100, y + 160}, {x + 170, y + 230}, {x + 240, y + 160}, {x + 310, y + 230}};
    set_colors(toolkit, 0x80, 0x80);
    toolkit.rectangle({x + 30, y + 20, 150, 120}, Draw::both);
    toolkit.ellipse({x + 130, y + 60, 180, 120}, Draw::both);
    toolkit.polygon(zigzag, Outline::open, Draw::stroke);
}

/// The same translucent shapes with a scratch pad and without.
Sheet draw_scratch_pad(const Platform& platform)
{
    Sheet sheet(platform.dfb(), 700, 290);
    int x = 10;
    for (const ScratchPad scratch_pad : {ScratchPad::with, ScratchPad::without}) {
        sheet.fill_checks({x, 34, 330, 250}, 10);
        sheet.write(scratch_pad == ScratchPad::with ? "with a scratch pad" : "without", x + 165, 10);
        draw_translucent(create_toolkit(platform.dfb(), sheet.surface(), scratch_pad), x, 34);
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
    draw_translucent(create_toolkit(platform.dfb(), sheet.surface()), 10, 34);
    return sheet;
}

struct Picture {
    const char* name;
    Sheet (*draw)(const Platform& platform);
};

const Picture pictures[] = {{"pens", draw_pens},
                            {"patterns", draw_patterns},
                            {"scratch-pad", draw_scratch_pad},
                            {"back-end", draw_back_end}};

const Picture& picture_named(const std::string& name)
{
    for (const Picture& picture : pictures) {
        if (picture.name == name)
            return picture;
    }
    throw std::invalid_argument("there is no picture '" + name + "'");
}

} // namespace

int main(int argc, char** argv)
{
    std::string name;
    tools::BackEnd back_end = tools::BackEnd::software;
    tools::Program program("Draws a picture of the guide.", "guide_pictures");
    program.add_option("name", name, "pens, patterns, scratch-pad or back-end")->required();
    const tools::PictureOutput output(program);
    program.add_back_end(back_end);
    return program.run(argc, argv, [&] {
        const Picture& picture = picture_named(name);
        const Platform platform(640, 480, back_end, output.platform_arguments());
        output.put(platform, picture.draw(platform).surface());
        return 0;
    });
}
