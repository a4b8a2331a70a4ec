#include "real/random_primitive.h"

#include <sstream>

namespace real {

RandomPrimitive::RandomPrimitive(Random& random, int surface_width, int surface_height)
    : kind_(static_cast<Kind>(random.between(rectangle, ellipse))), closed_(random.coin()),
      pen_width_(random.between(0, 7)), pen_height_(random.between(1, 7))
{
    const auto anywhere = [&](int size) { return random.between(-size, 2 * size); };
    const int x = anywhere(surface_width), y = anywhere(surface_height);
    const int w = random.between(2, surface_width), h = random.between(2, surface_height);
    box_ = {x, y, w, h};
    for (int i = random.between(2, 6); i > 0; --i) {
        const int right = random.between(0, w), down = random.between(0, h);
        points_.push_back({x + right, y + down});
    }
}

void RandomPrimitive::choose_pen(const Toolkit& toolkit) const
{
    if (pen_width_ > 0)
        set_pen(toolkit, rectangular_pen(pen_width_, pen_height_));
    else
        drop_pen(toolkit);
}

DFBResult RandomPrimitive::draw(const Toolkit& toolkit, u32 flags) const
{
    const DFBPoint& first = points_.front();
    const DFBPoint& last = points_.back();
    switch (kind_) {
    case rectangle:
        return toolkit->Rectangle(toolkit.get(), &box_, flags);
    case line:
        return toolkit->Line(toolkit.get(), first.x, first.y, last.x, last.y);
    case polygon:
        return toolkit->Polygon(toolkit.get(), points_.data(), static_cast<u32>(points_.size()), closed_, flags);
    default:
        return toolkit->Ellipse(toolkit.get(), &box_, flags);
    }
}

std::string RandomPrimitive::description() const
{
    std::ostringstream text;
    text << "kind " << kind_ << ", box " << box_.x << " " << box_.y << " " << box_.w << " " << box_.h << ", pen "
         << pen_width_ << " x " << pen_height_ << ", closed " << closed_ << ", points";
    for (const DFBPoint& point : points_)
        text << " (" << point.x << ", " << point.y << ")";
    return text.str();
}

} // namespace real
