#ifndef BOARD_COMMAND_H
#define BOARD_COMMAND_H

#include <vector>

#include "surfaces.h"
#include "zuvo.h"

namespace board {

enum class Shape { line, rectangle, rectangle_border, ellipse, ellipse_border, polygon };

/// One drawing call with all that it draws with: what a board writes into its engine's registers or command buffer.
struct Command {
    Shape shape;
    DFBRectangle box;                   ///< Of a rectangle or an ellipse; of a polygon, where its pattern begins.
    std::vector<DFBPoint> points;       ///< Of a line, two, or of a polygon.
    zuvo_dtk_pen pen;                   ///< Of lines and borders.
    bool blends;
    u32 color;
    bool has_pattern;
    Memory target, pattern;
};

/// Lets the engine draw a command. The memory is open when this is called and closed when it has returned. The
/// skeleton draws at once; an engine that draws later keeps the command.
void submit(const Command& command);

/// Waits until everything that was submitted has been drawn.
void wait_until_drawn();

/// Draws a command into its memory.
void draw(const Command& command);

} // namespace board

#endif
