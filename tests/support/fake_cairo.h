#pragma once

#include <cairo.h>
#include <functional>
#include <string>

namespace fake {

/// What a creating function of cairo answers.
enum class Outcome { works, null, error_state };

/// A stand-in for cairo that writes its calls down. Objects are named after the surface that they were made for:
/// "screen.cairo" is a cairo surface, "screen.cr" a context, "texture.pattern" a pattern. Questions about states are
/// not written down.
struct Cairo {
    Outcome surface_creation = Outcome::works;
    Outcome pattern_creation = Outcome::works;
    Outcome context_creation = Outcome::works;
    cairo_status_t status_after_fill = CAIRO_STATUS_SUCCESS;  ///< What a context's state becomes by cairo_fill.
    std::function<void(const std::string& context)> on_fill;
    int live_objects = 0;           ///< Objects with references, those in an error state included.
};

Cairo& cairo();

} // namespace fake
