#include "raster/reference_ellipse.h"

#include <algorithm>

namespace reference {

EllipseFill::EllipseFill(const DFBRectangle& rect, const DFBRectangle& clip)
    : rect_(rect), clip_(clip), a_(rect.w * 0.5), b_((rect.h + 1) * 0.5), cx_(rect.x + a_), cy_((rect.y - 1) + b_),
      a2_(a_ * a_), b2_(b_ * b_), x_(0), y_(b_)
{
    walk_flat_part();
    xe_ = x_;
    ye_ = y_;
    if (ye_ > 0)
        walk_steep_part();
    add_block();
}

void EllipseFill::walk_flat_part()
{
    double d1 = b2_ - a2_ * b_ + a2_ * 0.25;
    for (;;) {
        const double x1 = x_ + 1;
        if (!((y_ - 0.5) * a2_ > x1 * b2_))
            return;
        if (d1 < 0) {
            d1 += (2 * x_ + 3) * b2_;
        } else {
            d1 += (2 * x_ + 3) * b2_ + (-2 * y_ + 2) * a2_;
            y_ = y_ - 1;
            cap_spans(x1);
        }
        x_ = x1;
    }
}

void EllipseFill::cap_spans(double x1)
{
    int left = int(cx_ - x1);
    int width = int(x1 + x1);
    if (cx_ - x1 < clip_.x) {
        width = width - (clip_.x - left);
        left = clip_.x;
    }
    if (!(cx_ + x1 < clip_.x + clip_.w))
        width = clip_.x + clip_.w - left;
    rows_of(left, width);
}

void EllipseFill::walk_steep_part()
{
    double d2 = (xe_ + 0.5) * ((xe_ + 0.5) * b2_) + (ye_ - 1) * ((ye_ - 1) * a2_) - a2_ * b2_;
    do {
        if (d2 < 0) {
            d2 += (2 * x_ + 2) * b2_ + (-2 * y_ + 3) * a2_;
            x_ = x_ + 1;
        } else {
            d2 += (-2 * y_ + 3) * a2_;
        }
        y_ = y_ - 1;
        side_spans(cx_ - x_);
        side_spans(xe_ + cx_);
    } while (y_ > 0);
}

void EllipseFill::side_spans(double column)
{
    const int outside_the_block = int(x_ - xe_);
    int left = int(column);
    int width = outside_the_block;
    if (left < clip_.x) {
        width = outside_the_block - (clip_.x - left);
        left = clip_.x;
    }
    if (!(left + width < clip_.x + clip_.w))
        width = clip_.x + clip_.w - left;
    rows_of(left, width);
}

void EllipseFill::rows_of(int left, int width)
{
    if (width <= 0)
        return;
    for (double row : {cy_ + y_, cy_ - y_}) {
        if (clip_.y <= row && row < clip_.y + clip_.h)
            fill.spans.push_back({left, int(row), width});
    }
}

void EllipseFill::add_block()
{
    const int left = int(rect_.x + (a_ - xe_));
    const int top = int(rect_.y + (b_ - ye_));
    const int right = left + int(xe_ + xe_);
    const int bottom = top + int(ye_ + ye_);
    const int x0 = std::max(left, clip_.x), y0 = std::max(top, clip_.y);
    const int xr = std::min(right, clip_.x + clip_.w), yb = std::min(bottom, clip_.y + clip_.h);
    fill.block = {x0, y0, xr - x0, yb - y0};
}

} // namespace reference
