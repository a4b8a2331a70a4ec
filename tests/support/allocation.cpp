#include "support/allocation.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <dlfcn.h>
#include <iterator>

/// The heap's functions, in front of the C library's: those calls that come from one library can fail.

namespace fake {
namespace {

const char* library_name = "libdtkhddvd";
int allocations_until_failure;
bool failed;

/// What the library has allocated and nobody has freed; more than this are not watched.
void* held[64];

bool is_in_the_library(const void* address)
{
    Dl_info where;
    return dladdr(address, &where) && where.dli_fname && std::strstr(where.dli_fname, library_name);
}

bool fails(const void* caller)
{
    if (allocations_until_failure == 0 || !is_in_the_library(caller) || --allocations_until_failure != 0)
        return false;
    failed = true;
    return true;
}

void* watch(void* memory, const void* caller)
{
    if (memory && is_in_the_library(caller))
        *std::find(std::begin(held), std::end(held) - 1, nullptr) = memory;
    return memory;
}

template <class Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

void watch_allocations_of(const char* library)
{
    library_name = library;
}

void fail_allocation(int n)
{
    allocations_until_failure = n;
    failed = false;
}

bool allocation_failed()
{
    return failed;
}

int held_allocations()
{
    return static_cast<int>(std::end(held) - std::begin(held) - std::count(std::begin(held), std::end(held), nullptr));
}

} // namespace fake

extern "C" {

void* malloc(std::size_t size)
{
    static void* (*const the_next)(std::size_t) = fake::next<void* (*)(std::size_t)>("malloc");
    void* const caller = __builtin_return_address(0);
    return fake::fails(caller) ? nullptr : fake::watch(the_next(size), caller);
}

void* calloc(std::size_t count, std::size_t size)
{
    static void* (*const the_next)(std::size_t, std::size_t) =
        fake::next<void* (*)(std::size_t, std::size_t)>("calloc");
    void* const caller = __builtin_return_address(0);
    return fake::fails(caller) ? nullptr : fake::watch(the_next(count, size), caller);
}

void* realloc(void* memory, std::size_t size)
{
    static void* (*const the_next)(void*, std::size_t) = fake::next<void* (*)(void*, std::size_t)>("realloc");
    return fake::fails(__builtin_return_address(0)) ? nullptr : the_next(memory, size);
}

void free(void* memory)
{
    static void (*const the_next)(void*) = fake::next<void (*)(void*)>("free");
    if (memory)
        std::replace(std::begin(fake::held), std::end(fake::held), memory, static_cast<void*>(nullptr));
    the_next(memory);
}

} // extern "C"
