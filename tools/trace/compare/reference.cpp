#include "reference.h"

namespace trace {

namespace {

/// A toolkit on a surface with what a drawing needs.
class Easel {
public:
    Easel(IDirectFB* dfb, IDirectFBSurface* surface)
    {
        DTKHDDVD* toolkit = nullptr;
        tools::check(CreateDrawingToolkit_HDDVD(dfb, surface, 1, &toolkit), "cannot create a toolkit");
        toolkit_.reset(toolkit);
    }
    ~Easel()
    {
        if (toolkit_)
            toolkit_->SetPen(toolkit_.get(), nullptr);
    }
    Easel(const Easel&) = delete;
    Easel& operator=(const Easel&) = delete;

    bool draws(const Drawing& drawing)
    {
        DTKHDDVD* toolkit = toolkit_.get();
        toolkit->SetStrokeColor(toolkit, drawing.stroke.r, drawing.stroke.g, drawing.stroke.b, drawing.stroke.a);
        toolkit->SetFillColor(toolkit, drawing.fill.r, drawing.fill.g, drawing.fill.b, drawing.fill.a);
        if (drawing.texture && toolkit->SetFillPattern(toolkit, drawing.texture))
            return false;
        return takes_pen(drawing) && draw(drawing, toolkit) == DFB_OK;
    }

private:
    bool takes_pen(const Drawing& drawing)
    {
        DTKHDDVDPen* pen = nullptr;
        if (!drawing.pen)
            return true;
        if (toolkit_->CreatePen(toolkit_.get(), &*drawing.pen, &pen))
            return false;
        const tools::Owned<DTKHDDVDPen> owned(pen);
        return toolkit_->SetPen(toolkit_.get(), pen) == DFB_OK;
    }

    tools::Owned<DTKHDDVD> toolkit_;
};

Drawing only(const Drawing& drawing, u32 flags)
{
    Drawing part = drawing;
    part.flags = flags;
    return part;
}

Drawing edge(const Drawing& polygon, std::size_t from, std::size_t to)
{
    Drawing line = only(polygon, DTKHDDVD_STROKE);
    line.primitive = Number::line;
    line.points = {polygon.points[from], polygon.points[to]};
    return line;
}

void append_outline(std::vector<Drawing>& parts, const Drawing& drawing)
{
    if (drawing.primitive != Number::polygon) {
        parts.push_back(only(drawing, DTKHDDVD_STROKE));
        return;
    }
    for (std::size_t i = 1; i < drawing.points.size(); ++i)
        parts.push_back(edge(drawing, i - 1, i));
    if (drawing.is_closed && drawing.points.size() > 1)
        parts.push_back(edge(drawing, drawing.points.size() - 1, 0));
}

/// The parts that the engine blends by themselves.
std::vector<Drawing> parts_of(const Drawing& drawing)
{
    const bool has_one_part = !drawing.has_stroke() || (drawing.pen && drawing.primitive == Number::line);
    if (has_one_part || (drawing.pen && drawing.stroke.a == 255 && !drawing.is_premultiplied()))
        return {drawing};
    std::vector<Drawing> parts;
    if (drawing.has_fill())
        parts.push_back(only(drawing, DTKHDDVD_FILL));
    if (drawing.pen)
        append_outline(parts, drawing);
    return parts;
}

/// A rectangle over everything has the colour of a polygon's fill as it is.
Drawing with_true_color(const Drawing& polygon, int width, int height)
{
    Drawing everything = polygon;
    everything.primitive = Number::rectangle;
    everything.box = DFBRectangle{0, 0, width, height};
    return everything;
}

std::optional<Pixels> expected_part(Reference& reference, const Drawing& part, const Pixels& background,
                                    DFBSurfacePixelFormat format)
{
    const bool has_true_color = part.is_premultiplied();
    const Drawing drawn = has_true_color ? with_true_color(part, reference.width(), reference.height()) : part;
    auto picture = reference.draw(drawn, background, format);
    if (!picture || (!has_true_color && format == DSPF_ARGB))
        return picture;
    // DirectFB's blending onto RGB32 changes pixels around the shape, too.
    const auto shape = reference.shape_of(part, background);
    if (!shape)
        return std::nullopt;
    for (std::size_t i = 0; i < picture->size(); ++i) {
        if (!(*shape)[i])
            (*picture)[i] = background[i];
    }
    return picture;
}

} // namespace

std::optional<Pixels> Reference::draw(const Drawing& drawing, const Pixels& background, DFBSurfacePixelFormat format)
{
    const auto surface = tools::create_surface(dfb_, width_, height_, format);
    write_pixels(surface.get(), background, width_, height_);
    if (!Easel(dfb_, surface.get()).draws(drawing))
        return std::nullopt;
    return read_pixels(surface.get(), width_, height_);
}

std::optional<Pixels> Reference::draw_marked(Drawing drawing, const Pixels& background, u8 mark)
{
    drawing.stroke = drawing.fill = {255, mark, mark, mark};
    const auto tile = tools::create_surface(dfb_, 1, 1, DSPF_ARGB);
    tile->Clear(tile.get(), mark, mark, mark, 255);
    if (drawing.texture)
        drawing.texture = tile.get();
    return draw(drawing, background, DSPF_ARGB);
}

std::optional<std::vector<bool>> Reference::shape_of(const Drawing& drawing, const Pixels& background)
{
    const auto one = draw_marked(drawing, background, 1), other = draw_marked(drawing, background, 2);
    if (!one || !other)
        return std::nullopt;
    std::vector<bool> shape;
    for (std::size_t i = 0; i < one->size(); ++i)
        shape.push_back((*one)[i] != (*other)[i]);
    return shape;
}

std::optional<Pixels> expected_of_engine(Reference& reference, const Drawing& drawing, const Pixels& background,
                                         DFBSurfacePixelFormat format)
{
    std::optional<Pixels> picture = background;
    for (const Drawing& part : parts_of(drawing)) {
        picture = expected_part(reference, part, *picture, format);
        if (!picture)
            return std::nullopt;
    }
    return picture;
}

} // namespace trace
