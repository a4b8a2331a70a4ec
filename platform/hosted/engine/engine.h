#ifndef ZUVO_ENGINE_H
#define ZUVO_ENGINE_H

#include "engine/fill/fill_memory.h"
#include "engine/outline/outline_memory.h"
#include "engine/state.h"

namespace zuvo {

/// A drawing engine: what its calls set, and what each stage keeps from one call to the next. A plain record: an empty one
/// is ready for use. Everything is drawn when a call returns.
struct Engine : State, FillMemory, OutlineMemory {};

/// The one that the platform has.
extern Engine engine;

/// Returns whether @p handle is the engine's and the engine is there.
bool is_engine(unsigned int handle);

} // namespace zuvo

#endif
