#ifndef BOARD_PLATFORM_H
#define BOARD_PLATFORM_H

namespace board {

/// Whether zuvo_init has run, and zuvo_uninit not since.
bool is_started();

/// Makes the drawing engine forget its output, fill and pen.
void reset_engine();

/// What a board prepares before DirectFB starts, and after its end. The skeleton has nothing to do.
void prepare_directfb();
void finish_directfb();

} // namespace board

#endif
