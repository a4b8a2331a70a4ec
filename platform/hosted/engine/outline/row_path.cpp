#include "row_path.h"

#include <algorithm>

namespace zuvo {

bool RowPath::begin(int new_chain_count, int64_t new_top, int64_t new_bottom)
{
    top = cut_to_far(new_top);
    bottom = std::max(top, cut_to_far(new_bottom));
    chain_count = new_chain_count;
    turns_once = false;

    const size_t rows = static_cast<size_t>(bottom - top);
    if (!columns.reserve(4 * rows))
        return false;
    for (int i = 0; i < chain_count; ++i) {
        int* const start = columns.items + 2 * static_cast<size_t>(i) * rows;
        chains[i] = {start, start + rows};
        std::fill_n(chains[i].first, rows, far_away);
        std::fill_n(chains[i].last, rows, -far_away);
    }
    return true;
}

void RowPath::add_run(int chain, int64_t row, int64_t first, int64_t last)
{
    if (row < top || row >= bottom)
        return;
    int& kept_first = chains[chain].first[row - top];
    int& kept_last = chains[chain].last[row - top];
    kept_first = std::min(kept_first, cut_to_far(first));
    kept_last = std::max(kept_last, cut_to_far(last));
}

void RowPath::set_column(int chain, int64_t column)
{
    std::fill_n(chains[chain].first, bottom - top, cut_to_far(column));
    std::fill_n(chains[chain].last, bottom - top, cut_to_far(column));
}

} // namespace zuvo
