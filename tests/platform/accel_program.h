/// A random program of DirectFB and cairo calls on every kind of surface that a drawing toolkit uses.
#ifndef TESTS_PLATFORM_ACCEL_PROGRAM_H
#define TESTS_PLATFORM_ACCEL_PROGRAM_H

#include <directfb.h>

#include <string>

#include "accel_canvases.h"
#include "accel_dice.h"
#include "accel_session.h"

namespace accel {

class Program {
public:
    Program(IDirectFB& directfb, unsigned int seed);

    /// Makes one call and says which; then says a hash of every surface's memory.
    void step(Lines& said);

private:
    void choose_blitting_flags(const Canvas& target);

    std::string fill();
    std::string draw_lines();
    std::string blit();
    std::string stamp();
    std::string batch();
    std::string change_state();
    std::string change_palette();
    std::string write_directly();
    std::string draw_with_cairo();
    std::string flip();

    IDirectFB& directfb_;
    Dice dice_;
    Canvases canvases_;
};

} // namespace accel

#endif
