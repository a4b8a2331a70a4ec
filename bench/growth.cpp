#include "growth.h"

#include <cmath>
#include <cstdio>
#include <map>

namespace bench {

namespace {

const int sizes[] = {10, 20, 40, 80, 160, 320, 640, 1000, 1400, 1800};
const int point_counts[] = {1000, 10000, 100000, 1000000};

constexpr char ring_name[] = "ring of points";

/// A kind of shape, without its size.
struct Primitive {
    const char* name;
    Figure figure;
    Style style;
    Paint paint;
};

const Primitive primitives[] = {
    {"ellipse opaque", Figure::ellipse, Style::filled, Paint::opaque},
    {"ellipse alpha", Figure::ellipse, Style::filled, Paint::translucent},
    {"1px ellipse outline", Figure::ellipse, Style::thin, Paint::opaque},
    {"5x5 pen ellipse", Figure::ellipse, Style::thick, Paint::opaque},
    {"5x5 pen line", Figure::line, Style::thick, Paint::opaque},
    {"5x5 pen border", Figure::rectangle, Style::thick, Paint::opaque},
    {"rectangle opaque", Figure::rectangle, Style::filled, Paint::opaque},
    {"rectangle alpha", Figure::rectangle, Style::filled, Paint::translucent},
    {"textured rectangle", Figure::rectangle, Style::filled, Paint::textured},
    {"textured ellipse", Figure::ellipse, Style::filled, Paint::textured},
    {"triangle opaque", Figure::polygon, Style::filled, Paint::opaque},
    {"triangle alpha", Figure::polygon, Style::filled, Paint::translucent},
};

Item sized(const Primitive& primitive, int size)
{
    const int height = size * 10 / 18;
    const Box box = {51, 31, size, height};
    const Point first = {box.x, box.y}, second = {box.x + size - 1, box.y + height / 2};
    const std::vector<Point> points = primitive.figure == Figure::line
                                          ? std::vector<Point>{first, second}
                                          : std::vector<Point>{first, second, {box.x + size / 3, box.y + height}};
    return {std::string(primitive.name) + " " + std::to_string(size),
            {primitive.figure, primitive.style, primitive.paint, box, points}, 0, 0};
}

/// A ring around the middle of the picture whose border goes to and fro.
Item ring(int point_count)
{
    std::vector<Point> points;
    for (int i = 0; i < point_count; ++i) {
        const double angle = 2 * M_PI * i / point_count;
        const double radius = 300 + 150 * std::sin(angle * point_count / 7);
        points.push_back({960 + static_cast<int>(radius * std::cos(angle)), 540 + static_cast<int>(radius * std::sin(angle))});
    }
    return {ring_name + std::string(" ") + std::to_string(point_count),
            {Figure::polygon, Style::filled, Paint::opaque, {}, points}, 0, 0};
}

/// What an item's time grows with: the points of a ring, else the pixels.
double size_of(const Row& row)
{
    const std::size_t points = row.item.shape.points.size();
    return points > 3 ? static_cast<double>(points) : static_cast<double>(row.pixels);
}

struct Sample {
    double size, nanoseconds;
};

struct Fit {
    double start, slope;
    double worst;       ///< The greatest deviation, as a share of the time.
    double exponent;    ///< The power of the size with which the time grows over the larger half of the sizes.
};

double growth_exponent(const Sample& from, const Sample& to)
{
    return std::log(to.nanoseconds / from.nanoseconds) / std::log(to.size / from.size);
}

/// Least squares, each sample weighted by its time, so that small shapes count as much as large ones.
Fit fit(const std::vector<Sample>& samples)
{
    double weights = 0, x = 0, y = 0, xx = 0, xy = 0;
    for (const Sample& sample : samples) {
        const double weight = 1 / (sample.nanoseconds * sample.nanoseconds);
        weights += weight;
        x += weight * sample.size;
        y += weight * sample.nanoseconds;
        xx += weight * sample.size * sample.size;
        xy += weight * sample.size * sample.nanoseconds;
    }
    const double slope = (weights * xy - x * y) / (weights * xx - x * x);
    const double start = (y - slope * x) / weights;
    double worst = 0;
    for (const Sample& sample : samples)
        worst = std::max(worst, std::abs(start + slope * sample.size - sample.nanoseconds) / sample.nanoseconds);
    return {start, slope, worst, growth_exponent(samples[samples.size() / 2], samples.back())};
}

std::string without_size(const std::string& name)
{
    return name.substr(0, name.rfind(' '));
}

void print_fits_of(const std::vector<Row>& rows, const char* column)
{
    std::map<std::string, std::vector<Sample>> samples;
    for (const Row& row : rows) {
        if (const Cell* cell = row.find(column))
            samples[without_size(row.item.name)].push_back({size_of(row), cell->nanoseconds});
    }
    std::printf("\n%s: time = start + slope * pixels or points, exponent over the larger half\n%-27s %12s %14s %18s %10s\n",
                column, "primitive", "start, ns", "slope, ns", "worst deviation", "exponent");
    for (const auto& [name, list] : samples) {
        if (list.size() < 3)
            continue;
        const Fit line = fit(list);
        std::printf("%-27s %12.0f %14.3f %17.0f%% %10.2f\n", name.c_str(), line.start, line.slope,
                    line.worst * 100, line.exponent);
    }
}

} // namespace

std::vector<Item> growing_items()
{
    std::vector<Item> items;
    for (const Primitive& primitive : primitives) {
        for (const int size : sizes)
            items.push_back(sized(primitive, size));
    }
    for (const int count : point_counts)
        items.push_back(ring(count));
    return items;
}

void print_fits(const std::vector<Row>& rows)
{
    print_fits_of(rows, software_name);
    print_fits_of(rows, engine_name);
    print_fits_of(rows, "cairo");
}

} // namespace bench
