#ifndef ZUVO_PLATFORM_H
#define ZUVO_PLATFORM_H

namespace zuvo {

/// Returns whether zuvo_init has run, and zuvo_uninit not since.
bool is_started();

/// Makes the drawing engine forget its surfaces, fill and pen.
void reset_engine();

} // namespace zuvo

#endif
