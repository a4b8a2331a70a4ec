#ifndef BENCH_FLOOR_H
#define BENCH_FLOOR_H

#include "painter.h"

namespace bench {

/// The plainest loops over the pixels of a shape, whose rows are known beforehand: what every other column is a
/// multiple of.
class Floor : public MemoryPainter {
public:
    using MemoryPainter::MemoryPainter;

    Draw prepare(const Task& task) override;

private:
    Draw prepare_stores(const Task& task, Colour colour) const;
    Draw prepare_thin(const Task& task) const;
    Draw prepare_texture(const Task& task) const;
};

} // namespace bench

#endif
