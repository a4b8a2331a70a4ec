#ifndef ZUVO_ROW_PATH_H
#define ZUVO_ROW_PATH_H

#include "engine/buffer.h"
#include "engine/span.h"

namespace zuvo {

/// The points that a pen visits, as one or two chains that hold one run of neighbouring points a row.
///
/// A line is one chain. The border of a box is two, its left and its right half; the runs of both include those points
/// of its upper and lower edge that lie in the middle.
///
/// A plain record with buffers that are kept from one path to the next.
struct RowPath {
    /// One chain: the first and the last column of each row. An empty row has its first column far right of its last.
    struct Chain {
        int* first;
        int* last;
    };

    /// Starts an empty path that keeps the points on the rows from @p top up to, but without, @p bottom.
    /// Returns false without memory.
    bool begin(int chain_count, int64_t top, int64_t bottom);

    /// Adds neighbouring points of one row to a chain. Rows that the path does not keep are left out.
    void add_run(int chain, int64_t row, int64_t first, int64_t last);

    /// Makes one column the only point of a chain in every row that the path keeps.
    void set_column(int chain, int64_t column);

    /// Makes these the only points of a row that the path keeps.
    void set_run(int chain, int row, int first, int last)
    {
        chains[chain].first[row - top] = first;
        chains[chain].last[row - top] = last;
    }

    int top, bottom;
    int chain_count;

    /// Whether the chains are connected and, going down, the columns of each go one way as far as the row turn, and
    /// from there on the other way.
    bool turns_once;
    int turn;

    Chain chains[2];
    Buffer<int> columns;
};

} // namespace zuvo

#endif
