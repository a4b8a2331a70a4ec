#include "raster/reference_ellipse.h"

namespace reference {

std::vector<DFBPoint> outline_pixels(const DFBRectangle& rect)
{
    const double a = rect.w * 0.5, b = rect.h * 0.5;
    const int cx = rect.x + rect.w / 2, cy = rect.y + rect.h / 2;
    const double a2 = a * a, b2 = b * b;
    int yi = int(b);
    std::vector<DFBPoint> pixels = {{cx, cy + yi}, {cx, cy - yi}};

    int x = 0;
    double xh = 0.5;
    if (b2 < a2 * (yi - 0.5)) {
        double d1 = b2 - a2 * b + a2 * 0.25;
        int xp = 0;
        x = 1;
        for (;;) {
            if (d1 >= 0) {
                d1 += double(2 * xp + 3) * b2 + double(2 * (1 - yi)) * a2;
                yi = yi - 1;
            } else {
                d1 += double(2 * xp + 3) * b2;
            }
            for (const DFBPoint& p : {DFBPoint{x, yi}, {x, -yi}, {-x, yi}, {-x, -yi}})
                pixels.push_back({cx + p.x, cy + p.y});
            if (!((yi - 0.5) * a2 > (x + 1) * b2))
                break;
            xp = x;
            x = x + 1;
        }
        xh = x + 0.5;
    }
    if (yi <= 0)
        return pixels;

    double d2 = (b2 * xh) * xh + ((yi - 1) * a2) * (yi - 1) - a2 * b2;
    int down = cy + yi - 1, up = cy - yi + 1, k = 3 - 2 * yi;
    for (int pass = 0; pass < yi; pass++, down--, up++, k += 2) {
        if (d2 >= 0) {
            d2 += k * a2;
        } else {
            x = x + 1;
            d2 += double(2 * x) * b2 + k * a2;
        }
        for (const DFBPoint& p : {DFBPoint{cx + x, down}, {cx + x, up}, {cx - x, down}, {cx - x, up}})
            pixels.push_back(p);
    }
    return pixels;
}

std::vector<DFBPoint> stamp_points(const DFBRectangle& rect)
{
    const double a = rect.w * 0.5, b = rect.h * 0.5;
    const int cx = rect.x + rect.w / 2, cy = rect.y + rect.h / 2;
    const double a2 = a * a, b2 = b * b;
    int yi = int(b);
    std::vector<DFBPoint> points = {{cx, cy + yi}, {cx, cy - yi}};

    double d1 = b2 - a2 * b + a2 * 0.25;
    int x = 0;
    for (int k = 3; (yi - 0.5) * a2 > (x + 1) * b2; k += 2, x++) {
        const double east = k * b2;
        if (d1 >= 0) {
            d1 += east + double(2 * (1 - yi)) * a2;
            yi = yi - 1;
        } else {
            d1 += east;
        }
        for (int row : {cy + yi, cy - yi}) {
            points.push_back({cx + x + 1, row});
            points.push_back({cx - x - 1, row});
        }
    }
    if (yi <= 0)
        return points;

    const double xh = x + 0.5;
    double d2 = (xh * b2) * xh + ((yi - 1) * a2) * (yi - 1) - a2 * b2;
    int k = 3 - 2 * yi;
    for (int distance = yi - 1; distance >= 0; distance--, k += 2) {
        if (d2 >= 0) {
            d2 += k * a2;
        } else {
            x = x + 1;
            d2 += double(2 * x) * b2 + k * a2;
        }
        for (int row : {cy + distance, cy - distance}) {
            points.push_back({cx + x, row});
            points.push_back({cx - x, row});
        }
    }
    return points;
}

} // namespace reference
