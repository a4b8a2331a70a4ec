#ifndef GEOMETRY_ELLIPSE_FILLER_H
#define GEOMETRY_ELLIPSE_FILLER_H

#include "geometry/ellipse_walk.h"

namespace geometry {

/// The quarter of a filled ellipse in a box of this size. Its half axes are w / 2 and (h + 1) / 2, so that its rows come
/// out whole.
inline QuarterEllipse filled_quarter(int width, int height)
{
    return {width, height + 1LL, height + 1LL};
}

/// A filled ellipse inside a box, walked over one quarter that is mirrored into the other three.
///
/// Its centre lies half a row above the box's: with k rows left behind the walk is on the rows box.y + h - k and
/// box.y - 1 + k. While the outline is flat, a whole row is written when the walk enters it. Where it is steep, each row
/// is written left and right of the block, the columns where the outline was flat.
class EllipseFiller {
public:
    explicit EllipseFiller(const DFBRectangle& box)
        : width_(box.w), height_(box.h), twice_centre_(2LL * box.x + box.w), first_row_(box.y - 1LL),
          last_row_(0LL + box.y + box.h)
    {
    }

    /// Writes every row but for the ellipse's central block, and returns that block, whose far edges are not included. In a
    /// small box it may be empty or reach beyond the ellipse.
    ///
    /// `write_rows(lower, upper, left, width)` is called for the same columns of two rows, `write_sides(lower, upper, left,
    /// right, width)` for as wide columns twice, on both sides of the block.
    template <typename WriteRows, typename WriteSides>
    DFBRegion fill(const WriteRows& write_rows, const WriteSides& write_sides) const
    {
        const auto write_cap = [this, &write_rows](long long x, long long rows, bool turned) {
            if (turned)
                write_rows(last_row_ - rows, first_row_ + rows, column_left(x), 2 * x);
        };
        const auto write_steep = [this, &write_sides](long long x, long long rows, long long block) {
            if (x != block)
                write_sides(last_row_ - rows, first_row_ + rows, column_left(x), column_left(-block), x - block);
        };
        return region(walk_quarter(filled_quarter(width_, height_), write_cap, write_steep));
    }

private:
    /// The column at the distance x left of the centre, which lies between two columns when the width is odd. It is cut
    /// towards zero: what lies left of column 0 may differ from what would be the same shape further right.
    long long column_left(long long x) const { return (twice_centre_ - 2 * x) / 2; }

    DFBRegion region(const SteepStart& block) const
    {
        const long long left = column_left(block.x);
        return {static_cast<int>(left), static_cast<int>(first_row_ + 1 + block.rows),
                static_cast<int>(left + 2 * block.x), static_cast<int>(last_row_ + 1 - block.rows)};
    }

    int width_, height_;
    long long twice_centre_;
    long long first_row_, last_row_; ///< One above the box and one below it, which a walk of no rows would be on.
};

} // namespace geometry

#endif
