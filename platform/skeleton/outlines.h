#ifndef BOARD_OUTLINES_H
#define BOARD_OUTLINES_H

#include "coverage.h"
#include "zuvo.h"

namespace board {

/// A pen as rows of pixels around the point that is drawn.
class Pen {
public:
    explicit Pen(const zuvo_dtk_pen& pen);

    /// Covers what the pen leaves at a point.
    void stamp(Coverage& coverage, int64_t x, int64_t y) const;

    /// How far from a point a pen leaves pixels, at the most.
    int reach() const { return reach_; }

private:
    struct Row {
        int y, left, right;
    };

    void add_rows(const Coverage& shape, int row, int x, int y);

    std::vector<Row> rows_;
    int reach_;
};

/// Each covers what a pen leaves along a shape. Any numbers may be given; what lies outside costs no time.
void cover_line(Coverage& coverage, const Pen& pen, DFBPoint from, DFBPoint to);
void cover_rectangle_border(Coverage& coverage, const Pen& pen, const DFBRectangle& box);
void cover_ellipse_border(Coverage& coverage, const Pen& pen, const DFBRectangle& box);

} // namespace board

#endif
