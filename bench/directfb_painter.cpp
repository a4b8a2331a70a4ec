#include "directfb_painter.h"

namespace bench {

namespace {

std::vector<DFBRectangle> rows(const Task& task)
{
    std::vector<DFBRectangle> list;
    for (const Run& run : task.runs)
        list.push_back({run.left, run.row, run.width, 1});
    return list;
}

/// The four sides of a border that is 5 pixels wide.
std::vector<DFBRectangle> sides(const Box& outer)
{
    const int width = 5, inner_height = outer.h - 2 * width;
    return {{outer.x, outer.y, outer.w, width},
            {outer.x, outer.y + width, width, inner_height},
            {outer.x + outer.w - width, outer.y + width, width, inner_height},
            {outer.x, outer.y + outer.h - width, outer.w, width}};
}

/// A shape as rectangles, as few as it has.
std::vector<DFBRectangle> rectangles(const Task& task)
{
    if (task.shape.figure != Figure::rectangle)
        return rows(task);
    if (task.shape.style != Style::filled)
        return sides(task.bounds);
    return {{task.bounds.x, task.bounds.y, task.bounds.w, task.bounds.h}};
}

} // namespace

void DirectFBPainter::set_paint(Paint paint) const
{
    const Colour colour = colour_of(paint);
    surface()->SetColor(surface(), static_cast<u8>(red(colour)), static_cast<u8>(green(colour)),
                        static_cast<u8>(blue(colour)), static_cast<u8>(alpha(colour)));
    surface()->SetDrawingFlags(surface(), paint == Paint::opaque ? DSDRAW_NOFX : DSDRAW_BLEND);
    surface()->SetBlittingFlags(surface(), DSBLIT_BLEND_ALPHACHANNEL);
}

/// Only a rectangle can be tiled.
Draw DirectFBPainter::tiled(const Task& task) const
{
    if (task.shape.figure != Figure::rectangle)
        return {};
    const Box& box = task.bounds;
    const DFBRegion clip = {box.x, box.y, box.x + box.w - 1, box.y + box.h - 1};
    return [=, target = surface(), texture = texture_.get()] {
        target->SetClip(target, &clip);
        target->TileBlit(target, texture, nullptr, clip.x1, clip.y1);
        target->SetClip(target, nullptr);
    };
}

Draw DirectFBPainter::prepare(const Task& task)
{
    const Shape& shape = task.shape;
    IDirectFBSurface* target = surface();
    set_paint(shape.paint);
    if (shape.paint == Paint::textured)
        return tiled(task);
    if (shape.figure == Figure::polygon && shape.points.size() == 3) {
        return [target, p = shape.points] {
            target->FillTriangle(target, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
        };
    }
    return [target, list = rectangles(task)] {
        target->FillRectangles(target, list.data(), static_cast<unsigned int>(list.size()));
    };
}

} // namespace bench
