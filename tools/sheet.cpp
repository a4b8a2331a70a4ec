#include "sheet.h"

namespace tools {

namespace {

Owned<IDirectFBFont> create_font(IDirectFB* dfb)
{
    DFBFontDescription description = {};
    description.flags = DFDESC_HEIGHT;
    description.height = 14;
    IDirectFBFont* font = nullptr;
    if (dfb->CreateFont(dfb, SHEET_FONT, &description, &font) != DFB_OK)
        return nullptr;
    return Owned<IDirectFBFont>(font);
}

} // namespace

Sheet::Sheet(IDirectFB* dfb, int width, int height)
    : surface_(create_surface(dfb, width, height, DSPF_ARGB)), font_(create_font(dfb))
{
    check(surface_->Clear(surface_.get(), 0xFF, 0xFF, 0xFF, 0xFF), "cannot clear the sheet");
}

void Sheet::fill_checks(const DFBRectangle& area, int size) const
{
    IDirectFBSurface* sheet = surface_.get();
    check(sheet->SetColor(sheet, 0xE4, 0xE6, 0xEA, 0xFF), "cannot set a colour");
    for (int y = 0; y < area.h / size; ++y) {
        for (int x = y % 2; x < area.w / size; x += 2)
            check(sheet->FillRectangle(sheet, area.x + x * size, area.y + y * size, size, size), "cannot fill");
    }
}

void Sheet::write(const char* text, int x, int y) const
{
    IDirectFBSurface* sheet = surface_.get();
    if (!font_)
        return;
    check(sheet->SetFont(sheet, font_.get()), "cannot set the font");
    check(sheet->SetColor(sheet, 0x30, 0x34, 0x3C, 0xFF), "cannot set a colour");
    check(sheet->DrawString(sheet, text, -1, x, y, DSTF_TOPCENTER), "cannot write");
}

} // namespace tools
