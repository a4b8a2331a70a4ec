#pragma once

namespace targets {

/// How many operations on doubles the program has computed in software so far. DirectFB's, cairo's and the platform's
/// are not among them: they are libraries with operations of their own.
unsigned long counted_doubles();

} // namespace targets
