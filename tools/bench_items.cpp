#include "bench_items.h"

namespace tools {

namespace {

constexpr Manner manners[] = {
    {"", DTKHDDVD_FILL, 0xFF, false, 0},
    {", translucent", DTKHDDVD_FILL, 0x80, false, 0},
    {", pattern", DTKHDDVD_FILL, 0xFF, true, 0},
    {"", DTKHDDVD_STROKE, 0xFF, false, 1},
    {", 5x5 pen", DTKHDDVD_STROKE, 0xFF, false, 5},
    {", 5x5 pen, translucent", DTKHDDVD_STROKE, 0x80, false, 5},
};

/// The size of the pattern's tile.
constexpr int tile = 16;

DFBResult draw_line(DTKHDDVD* toolkit, const DFBRectangle& box, u32)
{
    return toolkit->Line(toolkit, box.x, box.y, box.x + box.w - 1, box.y + box.h - 1);
}

DFBResult draw_rectangle(DTKHDDVD* toolkit, const DFBRectangle& box, u32 flags)
{
    return toolkit->Rectangle(toolkit, &box, flags);
}

DFBResult draw_triangle(DTKHDDVD* toolkit, const DFBRectangle& box, u32 flags)
{
    const DFBPoint corners[] = {{box.x + box.w / 2, box.y},
                                {box.x + box.w - 1, box.y + box.h - 1},
                                {box.x, box.y + box.h - 1}};
    return toolkit->Polygon(toolkit, corners, 3, 1, flags);
}

DFBResult draw_ellipse(DTKHDDVD* toolkit, const DFBRectangle& box, u32 flags)
{
    return toolkit->Ellipse(toolkit, &box, flags);
}

struct Figure {
    const char* filled;     ///< Its name, or NULL for a figure without an inside.
    const char* outlined;
    DFBResult (*draw)(DTKHDDVD* toolkit, const DFBRectangle& box, u32 flags);
};

constexpr Figure figures[] = {
    {nullptr, "Line", draw_line},
    {"Rectangle", "Rectangle outline", draw_rectangle},
    {"Triangle", "Triangle outline", draw_triangle},
    {"Ellipse", "Ellipse outline", draw_ellipse},
};

/// A pen leaves as many pixels as its corners are apart.
DTKHDDVDPenShape square_pen(int size)
{
    const int first = -(size / 2), last = first + size;
    return {first, first, last, first, last, last, first, last};
}

} // namespace

std::vector<BenchItem> bench_items(const std::string& text)
{
    std::vector<BenchItem> items;
    for (const Figure& figure : figures) {
        for (const Manner& manner : manners) {
            const char* figure_name = manner.flags == DTKHDDVD_FILL ? figure.filled : figure.outlined;
            if (!figure_name)
                continue;
            const std::string name = figure_name + std::string(manner.name);
            if (name.find(text) != std::string::npos)
                items.push_back({name, manner, figure.draw});
        }
    }
    return items;
}

ItemPainter::ItemPainter(IDirectFB* dfb, IDirectFBSurface* surface, const BenchItem& item, bool has_engine)
    : item_(item)
{
    DTKHDDVD* toolkit = nullptr;
    check(CreateDrawingToolkit_HDDVD(dfb, surface, 1, &toolkit), "cannot create the toolkit");
    toolkit_.reset(toolkit);
    create_pen(has_engine);
    if (item.manner.has_pattern)
        create_texture(dfb);
}

/// In software an outline of one pixel is drawn without a pen, the engine wants one.
void ItemPainter::create_pen(bool has_engine)
{
    const int size = item_.manner.pen_size;
    if (size < (has_engine ? 1 : 2))
        return;
    const DTKHDDVDPenShape shape = square_pen(size);
    DTKHDDVDPen* pen = nullptr;
    check(toolkit_->CreatePen(toolkit_.get(), &shape, &pen), "cannot create a pen");
    pen_.reset(pen);
    check(toolkit_->SetPen(toolkit_.get(), pen), "cannot set the pen");
}

void ItemPainter::create_texture(IDirectFB* dfb)
{
    texture_ = create_surface(dfb, tile, tile, DSPF_ARGB);
    IDirectFBSurface* texture = texture_.get();
    check(texture->Clear(texture, 0xE0, 0xA0, 0x40, 0xFF), "cannot clear the texture");
    check(texture->SetColor(texture, 0x40, 0x60, 0xC0, 0xFF), "cannot set a colour");
    check(texture->FillRectangle(texture, 0, 0, tile / 2, tile / 2), "cannot draw the texture");
    check(toolkit_->SetFillPattern(toolkit_.get(), texture), "cannot set the pattern");
}

ItemPainter::~ItemPainter()
{
    toolkit_->SetPen(toolkit_.get(), nullptr);
}

void ItemPainter::set_color(u8 r, u8 g, u8 b)
{
    check(toolkit_->SetStrokeColor(toolkit_.get(), r, g, b, item_.manner.alpha), "cannot set the stroke colour");
    if (!item_.manner.has_pattern)
        check(toolkit_->SetFillColor(toolkit_.get(), r, g, b, item_.manner.alpha), "cannot set the fill colour");
}

} // namespace tools
