#include "prescribed.h"
#include "prescribed_stores.h"

namespace bench {

namespace {

/// The toolkit draws one pixel inside the box.
DFBRectangle inner(const Box& box)
{
    return {box.x + 1, box.y + 1, box.w - 2, box.h - 2};
}

void set_colour(IDirectFBSurface* surface, Colour colour)
{
    surface->SetColor(surface, static_cast<u8>(red(colour)), static_cast<u8>(green(colour)),
                      static_cast<u8>(blue(colour)), static_cast<u8>(alpha(colour)));
}

/// The thin outline's points in the order in which they are stored, which is that of a pen's stamps.
std::vector<std::ptrdiff_t> outline_places(IDirectFBSurface* surface, IDirectFBSurface* pen, Shape shape)
{
    shape.box = {shape.box.x + 1, shape.box.y + 1, shape.box.w - 2, shape.box.h - 2};
    const int words_per_row = pitch_of(surface) / 4;
    int width = 0, height = 0;
    pen->GetSize(pen, &width, &height);

    std::vector<std::ptrdiff_t> list;
    for (const Stamps& stamps : record_stamps(surface, pen, shape)) {
        for (const DFBPoint& point : stamps.points)
            list.push_back(static_cast<std::ptrdiff_t>(point.y + height / 2) * words_per_row + point.x + width / 2);
    }
    return list;
}

/// Clears a surface, records the ellipse's block, and reads back which pixels lie outside of it.
std::vector<Run> spans_around_block(IDirectFBSurface* surface, const DFBRectangle& box, DFBRectangle& ret_block)
{
    set_colour(surface, background);
    surface->FillRectangle(surface, 0, 0, picture_width, picture_height);
    ret_block = record_block(surface, box, opaque_colour);

    Picture picture;
    const int pitch = pitch_of(surface);
    store_locked(surface, [&](u32* pixels) { picture = read({pixels, pitch / 4}); });
    surface->Clear(surface, 0, 0, 0, 0);
    return painted_runs(picture);
}

} // namespace

Draw Prescribed::filled_ellipse(const Task& task) const
{
    const Paint paint = task.shape.paint;
    const Colour colour = colour_of(paint);
    IDirectFBSurface* surface = canvas(paint).surface;
    IDirectFBSurface* scratch = scratch_.get();
    DFBRectangle block;
    const auto spans = places(spans_around_block(surface, inner(task.shape.box), block), pitch_of(surface));

    const Draw draw = [=] {
        DFBSurfacePixelFormat format;
        int width = 0, height = 0;
        scratch->GetPixelFormat(scratch, &format);
        surface->GetPixelFormat(surface, &format);
        surface->GetSize(surface, &width, &height);
        store_locked(surface, [&](u32* pixels) {
            for (const Place& place : spans)
                std::fill_n(pixels + place.offset, place.width, colour);
        });
        set_colour(surface, colour);
        surface->FillRectangle(surface, block.x, block.y, block.w, block.h);
    };
    return blended(draw, paint, to_rectangle(task.shape.box));
}

Draw Prescribed::thin_ellipse(const Task& task) const
{
    IDirectFBSurface* surface = target_.get();
    IDirectFBSurface* scratch = scratch_.get();
    const auto points = outline_places(surface, pen_.get(), task.shape);
    return [=] {
        DFBSurfacePixelFormat format;
        scratch->GetPixelFormat(scratch, &format);
        surface->GetPixelFormat(surface, &format);
        store_locked(surface, [&](u32* pixels) {
            for (const std::ptrdiff_t point : points)
                pixels[point] = opaque_colour;
        });
    };
}

Draw Prescribed::filled_rectangle(const Task& task) const
{
    const Paint paint = task.shape.paint;
    const Colour colour = colour_of(paint);
    IDirectFBSurface* surface = canvas(paint).surface;
    const DFBRectangle box = to_rectangle(task.shape.box);
    const Draw draw = [=] {
        DFBSurfacePixelFormat format;
        surface->GetPixelFormat(surface, &format);
        set_colour(surface, colour);
        surface->FillRectangle(surface, box.x, box.y, box.w, box.h);
    };
    return blended(draw, paint, box);
}

} // namespace bench
