#include "allocations.h"

#include <cstring>

#include <dlfcn.h>

extern "C" {
// The C library's own names of what is replaced here.
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
}

namespace bench {

namespace {

constexpr int most_calls = 100000;

struct Call {
    void* caller;
    std::size_t bytes;
};

// Plain memory, because keeping a call must not allocate.
Call calls[most_calls];
int call_count = 0;
bool is_counting = false;

void keep(void* caller, std::size_t bytes)
{
    if (is_counting && call_count < most_calls)
        calls[call_count++] = {caller, bytes};
}

std::string library_of(void* caller)
{
    Dl_info info = {};
    if (!dladdr(caller, &info) || !info.dli_fname)
        return "unknown";
    const char* slash = std::strrchr(info.dli_fname, '/');
    return slash ? slash + 1 : info.dli_fname;
}

} // namespace

void start_counting()
{
    call_count = 0;
    is_counting = true;
}

AllocationsByLibrary stop_counting()
{
    is_counting = false;
    AllocationsByLibrary result;
    for (int i = 0; i < call_count; ++i) {
        Allocations& library = result[library_of(calls[i].caller)];
        ++library.count;
        library.bytes += calls[i].bytes;
    }
    return result;
}

} // namespace bench

extern "C" void* malloc(std::size_t size)
{
    bench::keep(__builtin_return_address(0), size);
    return __libc_malloc(size);
}

extern "C" void* calloc(std::size_t count, std::size_t size)
{
    bench::keep(__builtin_return_address(0), count * size);
    return __libc_calloc(count, size);
}

extern "C" void* realloc(void* memory, std::size_t size)
{
    bench::keep(__builtin_return_address(0), size);
    return __libc_realloc(memory, size);
}
