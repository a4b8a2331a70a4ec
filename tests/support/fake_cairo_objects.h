#pragma once

#include "support/fake_cairo.h"

#include <cairo.h>
#include <string>

namespace fake {

/// What all objects of the stand-in for cairo have.
struct CairoObject {
    std::string name;
    int references = 1;
    cairo_status_t status = CAIRO_STATUS_SUCCESS;
    CairoObject* holds = nullptr;   ///< One reference held.
    CairoObject* source = nullptr;  ///< A context's source pattern, one reference held.
};

/// Gives one reference back, of none if it is NULL.
void drop(CairoObject* object);

/// The object's name for logs, NULL included; complains when the object is gone.
std::string name(const CairoObject* object);

/// Writes a call down: its function, its object, and the other arguments each after a comma.
void note(const char* function, const CairoObject* object, const std::string& arguments = "");

} // namespace fake

struct _cairo_surface : fake::CairoObject {};
struct _cairo : fake::CairoObject {};
struct _cairo_pattern : fake::CairoObject {};
