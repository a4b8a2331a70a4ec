#include "items.h"

#include <cmath>

namespace bench {

namespace {

const Box corner = {101, 51, 0, 0};

Box sized(int width, int height)
{
    return {corner.x, corner.y, width, height};
}

std::string size_text(int width, int height)
{
    return std::to_string(width) + "x" + std::to_string(height);
}

Item boxed(const std::string& name, Figure figure, Style style, Paint paint, int width, int height, double software,
           double engine)
{
    return {name + " " + size_text(width, height), {figure, style, paint, sized(width, height), {}}, software, engine};
}

/// A line of the major length @p length, about 30 degrees down.
Item line(int length, double software, double engine)
{
    const Point from = {10, 20};
    const Point to = {10 + length - 1, 20 + length * 11 / 20};
    return {"5x5 pen line " + std::to_string(length),
            {Figure::line, Style::thick, Paint::opaque, {}, {from, to}}, software, engine};
}

/// A triangle, or a star whose every other corner lies nearer to the middle, in a box of 400 x 400.
std::vector<Point> corners(int count)
{
    if (count == 3)
        return {{300, 50}, {500, 450}, {100, 450}};
    std::vector<Point> points;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * M_PI * i / count;
        const double radius = i % 2 ? 126 : 200;
        points.push_back({300 + static_cast<int>(std::lround(radius * std::sin(angle))),
                          250 - static_cast<int>(std::lround(radius * std::cos(angle)))});
    }
    return points;
}

Item polygon(const std::string& name, Paint paint, int count, double software, double engine)
{
    return {name, {Figure::polygon, Style::filled, paint, {}, corners(count)}, software, engine};
}

void add_ellipses(std::vector<Item>& items)
{
    const auto add = [&](const char* name, Style style, Paint paint, int w, int h, double software, double engine) {
        items.push_back(boxed(name, Figure::ellipse, style, paint, w, h, software, engine));
    };
    add("ellipse opaque", Style::filled, Paint::opaque, 10, 10, 1.10, 8);
    add("ellipse opaque", Style::filled, Paint::opaque, 62, 62, 1.10, 1.8);
    add("ellipse opaque", Style::filled, Paint::opaque, 400, 300, 1.05, 1.2);
    add("ellipse opaque", Style::filled, Paint::opaque, 1800, 1000, 1.02, 1.1);
    add("ellipse alpha", Style::filled, Paint::translucent, 10, 10, 1.05, 3.5);
    add("ellipse alpha", Style::filled, Paint::translucent, 62, 62, 1.03, 1.3);
    add("ellipse alpha", Style::filled, Paint::translucent, 400, 300, 1.02, 1.15);
    add("ellipse alpha", Style::filled, Paint::translucent, 1800, 1000, 1.02, 1.1);
    add("1px ellipse outline", Style::thin, Paint::opaque, 10, 10, 1.10, 14);
    add("1px ellipse outline", Style::thin, Paint::opaque, 62, 62, 1.15, 3.3);
    add("1px ellipse outline", Style::thin, Paint::opaque, 400, 300, 1.15, 2.0);
    add("1px ellipse outline", Style::thin, Paint::opaque, 1800, 1000, 1.15, 2.0);
    add("5x5 pen ellipse", Style::thick, Paint::opaque, 100, 60, 1.02, 5);
    add("5x5 pen ellipse", Style::thick, Paint::opaque, 800, 600, 1.02, 2.5);
}

void add_rectangles(std::vector<Item>& items)
{
    const auto add = [&](const char* name, Style style, Paint paint, int w, int h, double software, double engine) {
        items.push_back(boxed(name, Figure::rectangle, style, paint, w, h, software, engine));
    };
    add("5x5 pen border", Style::thick, Paint::opaque, 200, 100, 1.02, 1.5);
    add("5x5 pen border", Style::thick, Paint::opaque, 1000, 600, 1.02, 1.0);
    add("rectangle opaque", Style::filled, Paint::opaque, 200, 100, 1.03, 1.15);
    add("rectangle opaque", Style::filled, Paint::opaque, 1000, 600, 1.02, 1.0);
    add("rectangle alpha", Style::filled, Paint::translucent, 200, 100, 1.02, 1.0);
    add("rectangle alpha", Style::filled, Paint::translucent, 1000, 600, 1.02, 1.0);
}

} // namespace

std::vector<Item> all_items()
{
    std::vector<Item> items;
    add_ellipses(items);
    items.push_back(line(50, 1.03, 5));
    items.push_back(line(400, 1.02, 2.5));
    items.push_back(line(1900, 1.02, 2.5));
    add_rectangles(items);
    items.push_back(polygon("polygon opaque 3 points", Paint::opaque, 3, 1.03, 1.3));
    items.push_back(polygon("polygon opaque 12 points", Paint::opaque, 12, 1.03, 1.5));
    items.push_back(polygon("polygon alpha 3 points", Paint::translucent, 3, 1.02, 1.2));
    items.push_back(polygon("polygon alpha 12 points", Paint::translucent, 12, 1.02, 1.2));
    items.push_back(
        boxed("textured rectangle", Figure::rectangle, Style::filled, Paint::textured, 400, 400, 1.02, 1.2));
    items.push_back(boxed("textured ellipse", Figure::ellipse, Style::filled, Paint::textured, 400, 400, 1.02, 1.4));
    items.push_back(polygon("textured polygon", Paint::textured, 3, 1.02, 1.5));
    return items;
}

} // namespace bench
