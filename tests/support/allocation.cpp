#include "support/allocation.h"

#include <cstddef>
#include <cstring>
#include <dlfcn.h>

/// The heap's functions, in front of the C library's: those calls that come from the drawing library can fail.

namespace fake {
namespace {

int allocations_until_failure;
bool failed;

bool is_in_the_library(const void* address)
{
    Dl_info where;
    return dladdr(address, &where) && where.dli_fname && std::strstr(where.dli_fname, "libdtkhddvd");
}

bool fails(const void* caller)
{
    if (allocations_until_failure == 0 || !is_in_the_library(caller) || --allocations_until_failure != 0)
        return false;
    failed = true;
    return true;
}

template <class Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

void fail_allocation(int n)
{
    allocations_until_failure = n;
    failed = false;
}

bool allocation_failed()
{
    return failed;
}

} // namespace fake

extern "C" {

void* malloc(std::size_t size)
{
    static void* (*const the_next)(std::size_t) = fake::next<void* (*)(std::size_t)>("malloc");
    return fake::fails(__builtin_return_address(0)) ? nullptr : the_next(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    static void* (*const the_next)(std::size_t, std::size_t) =
        fake::next<void* (*)(std::size_t, std::size_t)>("calloc");
    return fake::fails(__builtin_return_address(0)) ? nullptr : the_next(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    static void* (*const the_next)(void*, std::size_t) = fake::next<void* (*)(void*, std::size_t)>("realloc");
    return fake::fails(__builtin_return_address(0)) ? nullptr : the_next(memory, size);
}

} // extern "C"
