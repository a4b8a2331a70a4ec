#include <QImage>
#include <QPainter>

#include "geometry.h"
#include "peers.h"

namespace bench {

namespace {

QColor qt_colour(Colour colour)
{
    return QColor::fromRgba(colour);
}

QRectF rectangle(const EllipseAxes& axes)
{
    return {axes.cx - axes.a, axes.cy - axes.b, 2 * axes.a, 2 * axes.b};
}

/// Qt's raster engine on an image with premultiplied alpha, without antialiasing.
class QtPainter : public MemoryPainter {
public:
    explicit QtPainter(const Memory& memory)
        : MemoryPainter(memory), image_(reinterpret_cast<uchar*>(memory.pixels), picture_width, picture_height,
                                        static_cast<int>(memory.pitch * 4), QImage::Format_ARGB32_Premultiplied),
          texture_(texture_size, texture_size, QImage::Format_ARGB32_Premultiplied), painter_(&image_)
    {
        for (int y = 0; y < texture_size; ++y) {
            for (int x = 0; x < texture_size; ++x)
                texture_.setPixel(x, y, premultiplied(texture_pixel(x, y)));
        }
    }

    Draw prepare(const Task& task) override
    {
        const Shape& shape = task.shape;
        set_paint(task);
        QPainter* painter = &painter_;
        switch (shape.figure) {
        case Figure::ellipse: return [=, box = rectangle(ellipse_axes(task))] { painter->drawEllipse(box); };
        case Figure::line:
            return [=, line = QLineF(shape.points[0].x + 0.5, shape.points[0].y + 0.5, shape.points[1].x + 0.5,
                                     shape.points[1].y + 0.5)] { painter->drawLine(line); };
        case Figure::polygon: return filled_polygon(shape);
        case Figure::rectangle: break;
        }
        const Box& box = shape.box;
        if (shape.style == Style::filled)
            return [=, brush = painter_.brush()] { painter->fillRect(box.x, box.y, box.w, box.h, brush); };
        return [=] { painter->drawRect(QRectF(box.x + 0.5, box.y + 0.5, box.w - 1, box.h - 1)); };
    }

private:
    void set_paint(const Task& task)
    {
        const Shape& shape = task.shape;
        const QColor colour = qt_colour(colour_of(shape.paint));
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(Qt::NoPen);
        painter_.setBrushOrigin(task.bounds.x, task.bounds.y);
        if (shape.style == Style::thin)
            painter_.setPen(QPen(colour, 1));
        else if (shape.style == Style::thick)
            painter_.setPen(QPen(QBrush(colour), stroke_width(task), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        else
            painter_.setBrush(shape.paint == Paint::textured ? QBrush(texture_) : QBrush(colour));
    }

    Draw filled_polygon(const Shape& shape)
    {
        QVector<QPointF> points;
        for (const Point& point : shape.points)
            points.append(QPointF(point.x, point.y));
        return [points, painter = &painter_] { painter->drawPolygon(points.data(), points.size()); };
    }

    QImage image_;
    QImage texture_;
    QPainter painter_;
};

const bool is_added = add_peer("Qt 5", [](const Memory& memory) -> std::unique_ptr<Painter> {
    return std::make_unique<QtPainter>(memory);
});

} // namespace

} // namespace bench
