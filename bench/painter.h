#ifndef BENCH_PAINTER_H
#define BENCH_PAINTER_H

#include <functional>
#include <memory>
#include <string>

#include "picture.h"
#include "shape.h"

namespace bench {

/// Draws a shape once. Everything that an application would keep from one drawing to the next is ready.
using Draw = std::function<void()>;

/// Draws shapes with one library onto a picture; a column of the table.
class Painter {
public:
    virtual ~Painter() = default;

    /// Fills the picture with the background's colour.
    virtual void clear() = 0;

    virtual Picture picture() = 0;

    /// Makes ready what drawing @p task needs. An empty function stands for a shape that the library does not know. The
    /// function lives until the next call.
    virtual Draw prepare(const Task& task) = 0;

    /// Called before a row of drawings.
    virtual void activate() {}
};

/// A painter with a name. Peers are the libraries that the toolkit is compared with.
struct Column {
    std::string name;
    bool is_peer;
    std::unique_ptr<Painter> painter;
};

/// Paints into memory that is given.
class MemoryPainter : public Painter {
public:
    explicit MemoryPainter(const Memory& memory) : memory_(memory) {}

    void clear() override { bench::clear(memory_, background); }
    Picture picture() override { return read(memory_); }

protected:
    const Memory& memory() const { return memory_; }

private:
    Memory memory_;
};

} // namespace bench

#endif
