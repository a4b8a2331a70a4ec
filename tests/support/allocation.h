#pragma once

namespace fake {

/// The library whose allocations are meant: the drawing library, unless another one's name is given.
void watch_allocations_of(const char* library);

/// Lets the n-th allocation that the library makes from now on fail; 1 is the next one, 0 lets all succeed.
void fail_allocation(int n);

/// Whether that allocation has been asked for.
bool allocation_failed();

/// How many of the library's allocations have not been freed.
int held_allocations();

} // namespace fake
