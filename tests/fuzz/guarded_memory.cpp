#include "guarded_memory.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace fuzz {
namespace {

constexpr std::uint8_t watched = 0xA5;

std::size_t page_size()
{
    static const auto size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size;
}

} // namespace

void require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "fuzz: %s\n", what);
    std::abort();
}

GuardedMemory::GuardedMemory(std::size_t size)
{
    const std::size_t page = page_size();
    page_count_ = (size + page - 1) / page + 2;
    void* pages = mmap(nullptr, page_count_ * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    require(pages != MAP_FAILED, "no memory for a surface");
    pages_ = static_cast<std::uint8_t*>(pages);

    std::uint8_t* end = pages_ + (page_count_ - 1) * page;
    require(mprotect(pages_ + page, (page_count_ - 2) * page, PROT_READ | PROT_WRITE) == 0, "cannot open the pages");
    bytes_ = end - size;
    std::fill(pages_ + page, bytes_, watched);
}

GuardedMemory::~GuardedMemory()
{
    munmap(pages_, page_count_ * page_size());
}

void GuardedMemory::check() const
{
    const std::uint8_t* start = pages_ + page_size();
    require(std::all_of(start, static_cast<const std::uint8_t*>(bytes_), [](std::uint8_t byte) { return byte == watched; }),
            "something was written in front of a surface's memory");
}

} // namespace fuzz
