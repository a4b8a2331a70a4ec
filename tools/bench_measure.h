#ifndef TOOLS_BENCH_MEASURE_H
#define TOOLS_BENCH_MEASURE_H

#include "bench_items.h"
#include "bench_options.h"
#include "bench_row.h"
#include "interruption.h"

namespace tools {

/// Where items are drawn and measured.
class BenchStage {
public:
    /// @throws std::runtime_error when the surface cannot be had.
    BenchStage(const BenchOptions& options, const Platform& platform);

    /// Draws @p item by one back end until the time is over or enough has been drawn, or somebody ends it.
    Outcome measure(const BenchItem& item, BackEnd back_end, const Interruption& interruption);

    Size size() const { return size_; }

private:
    DFBResult draw_round(ItemPainter& painter, Outcome& outcome) const;
    DFBResult draw_all(ItemPainter& painter, Outcome& outcome, const Interruption& interruption) const;
    bool has_drawn_enough(const Outcome& outcome) const;
    void draw_picture(ItemPainter& painter, const BenchItem& item) const;
    void write_picture(const BenchItem& item, BackEnd back_end) const;
    void wait_until_drawn() const;

    const BenchOptions& options_;
    const Platform& platform_;
    Size size_;
    Owned<IDirectFBSurface> surface_;
    std::vector<DFBRectangle> boxes_; ///< Where the shapes are drawn, in turn.
};

} // namespace tools

#endif
