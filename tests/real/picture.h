#pragma once

#include "real/directfb.h"

#include <map>
#include <string>

namespace real {

/// What the characters of a picture stand for: pixels of the surface's own format.
using Legend = std::map<char, u32>;

/// Compares a surface with rows of characters, one line each after a first empty line. The colours and the alpha of an
/// ARGB surface are compared separately; of RGB32 the colours only.
void expect_picture(IDirectFBSurface* surface, const Legend& legend, const std::string& rows);

/// Lays one picture over another of the same size: every '#' of `upper` becomes `mark`, elsewhere `lower` shows.
std::string overlay(const std::string& lower, const std::string& upper, char mark);

} // namespace real
