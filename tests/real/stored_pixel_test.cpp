#include <cstdio>
#include <fstream>
#include <sstream>

#include "real/directfb.h"

#include <gtest/gtest.h>

/// What lands in a pixel: the guide's table is drawn and compared.
namespace real {
namespace {

constexpr u32 translucent_white = 0x40ffffff;
constexpr int size = 24;

using Draw = DFBResult (*)(DTKHDDVD*);

DFBResult draw_rectangle(DTKHDDVD* toolkit)
{
    const DFBRectangle box = {4, 4, 16, 16};
    return toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL);
}

DFBResult draw_ellipse(DTKHDDVD* toolkit)
{
    const DFBRectangle box = {4, 4, 16, 16};
    return toolkit->Ellipse(toolkit, &box, DTKHDDVD_FILL);
}

DFBResult draw_polygon(DTKHDDVD* toolkit)
{
    const DFBPoint corners[] = {{4, 4}, {20, 4}, {20, 20}, {4, 20}};
    return toolkit->Polygon(toolkit, corners, 4, 1, DTKHDDVD_FILL);
}

DFBResult draw_line(DTKHDDVD* toolkit)
{
    return toolkit->Line(toolkit, 4, 12, 20, 12);
}

/// The middle of a surface of the background's colour after the drawing.
u32 stored_pixel(Draw draw, bool use_scratch_pad, bool is_textured)
{
    const Surface texture = make_surface(8, 8), surface = make_surface(size, size);
    clear(texture, translucent_white);
    const Toolkit toolkit = make_toolkit(surface.get(), use_scratch_pad);
    EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 0xff, 0xff, 0xff, 0x40), DFB_OK);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0xff, 0xff, 0xff, 0x40), DFB_OK);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), is_textured ? texture.get() : nullptr), DFB_OK);
    EXPECT_EQ(draw(toolkit.get()), DFB_OK);
    return read(surface.get()).at(size / 2, size / 2);
}

std::string table_row(const char* name, Draw draw, bool is_textured)
{
    char row[80];
    std::snprintf(row, sizeof(row), "| %s | `%08x` | `%08x` |", name, stored_pixel(draw, true, is_textured),
                  stored_pixel(draw, false, is_textured));
    return row;
}

std::string guide()
{
    std::ostringstream text;
    text << std::ifstream(GUIDE "/formats.md").rdbuf();
    return text.str();
}

void expect_in_guide(const std::string& row)
{
    EXPECT_NE(guide().find(row + '\n'), std::string::npos) << "not in docs/guide/formats.md: " << row;
}

} // namespace

TEST(StoredPixel, IsWhatTheGuideSays)
{
    expect_in_guide(table_row("Rectangle", draw_rectangle, false));
    expect_in_guide(table_row("Ellipse", draw_ellipse, false));
    expect_in_guide(table_row("Polygon", draw_polygon, false));
    expect_in_guide(table_row("Line", draw_line, false));
    expect_in_guide(table_row("Rectangle, pattern", draw_rectangle, true));
    expect_in_guide(table_row("Ellipse, pattern", draw_ellipse, true));
    expect_in_guide(table_row("Polygon, pattern", draw_polygon, true));
}

} // namespace real
