#ifndef TOOLS_TRACE_RECORDER_TRACE_FILE_H
#define TOOLS_TRACE_RECORDER_TRACE_FILE_H

#include "../encoder.h"

namespace recorder {

/// The trace in memory that is shared with its file, so that nothing of it is lost however the program ends.
class TraceFile {
public:
    /// Opens the file and puts the trace's header into it, unless another process has done so.
    ///
    /// @return NULL, or why nothing can be recorded.
    const char* open(const char* path);

    bool is_open() const { return memory_ != nullptr; }

    /// Lets @p write put a call of @p most_size bytes at the most behind the others. Its first byte comes last: without it
    /// the trace ends before.
    template <typename Write>
    void append(std::size_t most_size, std::uint8_t code, Write&& write)
    {
        if (size_ + most_size + 1 > room_ && !make_room(most_size + 1))
            return;
        std::uint8_t* start = memory_ + size_;
        trace::Encoder encoder(start + 1, place_);
        write(encoder);
        __atomic_store_n(start, code, __ATOMIC_RELEASE);
        size_ += static_cast<std::size_t>(encoder.position() - start);
    }

    /// Ends the trace: its program has, or has drawn as many frames as were asked for.
    void close();

    /// Leaves the file to the process that this one was forked from.
    void abandon();

private:
    bool make_room(std::size_t size);
    bool map(std::size_t room);
    void give_up(const char* reason);

    int descriptor_ = -1;
    std::uint8_t* memory_ = nullptr;
    std::size_t size_ = 0, room_ = 0;
    trace::Place place_;
};

} // namespace recorder

#endif
