#include "trace_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "../functions.h"

namespace recorder {

namespace {

/// What a program that is killed leaves behind its trace, at the most.
constexpr std::size_t step = 1 << 16;

bool is_new(int descriptor)
{
    struct stat status = {};
    return !fstat(descriptor, &status) && status.st_size == 0;
}

} // namespace

const char* TraceFile::open(const char* path)
{
    descriptor_ = ::open(path, O_RDWR | O_CLOEXEC);
    if (descriptor_ < 0)
        return std::strerror(errno);
    if (flock(descriptor_, LOCK_EX | LOCK_NB) || !is_new(descriptor_))
        return "it holds the calls of another process";
    if (!map(step))
        return std::strerror(errno);
    std::memcpy(memory_, trace::magic, sizeof trace::magic);
    memory_[sizeof trace::magic] = trace::version;
    size_ = trace::header_size;
    return nullptr;
}

/// The room on the disk is taken at once: a page that it had no room for would end the program.
bool TraceFile::map(std::size_t room)
{
    if (const int error = posix_fallocate(descriptor_, 0, static_cast<off_t>(room))) {
        errno = error;
        return false;
    }
    void* memory = memory_ ? mremap(memory_, room_, room, MREMAP_MAYMOVE)
                           : mmap(nullptr, room, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor_, 0);
    if (memory == MAP_FAILED)
        return false;
    memory_ = static_cast<std::uint8_t*>(memory);
    room_ = room;
    return true;
}

bool TraceFile::make_room(std::size_t size)
{
    if (!memory_)
        return false;
    if (map((size_ + size + step) / step * step))
        return true;
    give_up(std::strerror(errno));
    return false;
}

void TraceFile::give_up(const char* reason)
{
    std::fprintf(stderr, "dtk_trace: the rest is not recorded: %s\n", reason);
    abandon();
}

void TraceFile::close()
{
    if (!memory_)
        return;
    append(0, trace::code_of(trace::Number::end, trace::Form::plain), [](trace::Encoder&) {});
    if (memory_ && ftruncate(descriptor_, static_cast<off_t>(size_)))
        give_up(std::strerror(errno));
    abandon();
}

void TraceFile::abandon()
{
    if (memory_)
        munmap(memory_, room_);
    if (descriptor_ >= 0)
        ::close(descriptor_);
    memory_ = nullptr;
    size_ = room_ = 0;
    descriptor_ = -1;
}

} // namespace recorder
