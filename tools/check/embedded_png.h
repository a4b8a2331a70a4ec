#pragma once

#include "stage.h"

#include <string>

namespace conformance {

/// A picture of the stage's size as the contents of a PNG file, without its alpha.
///
/// @throws std::runtime_error when libpng makes none.
std::string png_of(const Picture& picture);

/// Bytes as text for the address of an embedded picture.
std::string base64(const std::string& bytes);

} // namespace conformance
