#ifndef ZUVO_SPAN_H
#define ZUVO_SPAN_H

namespace zuvo {

/// Neighbouring pixels of one row: the columns from left up to, but without, right.
struct Span {
    int left, right;
};

/// The size in pixels of what is drawn on; every coordinate from 0 up to it is inside.
struct Extent {
    int width, height;
};

/// Takes the coverage of a shape row by row: spans inside the extent, from left to right, which neither overlap nor
/// touch.
struct RowSink {
    void (*take)(RowSink& self, int row, const Span* spans, int count);
};

} // namespace zuvo

#endif
