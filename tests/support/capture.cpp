#include "support/capture.h"

#include <unistd.h>

Capture::Capture(std::FILE* stream) : stream_(stream), file_(std::tmpfile())
{
    std::fflush(stream_);
    saved_descriptor_ = dup(fileno(stream_));
    dup2(fileno(file_), fileno(stream_));
}

Capture::~Capture()
{
    std::fflush(stream_);
    dup2(saved_descriptor_, fileno(stream_));
    close(saved_descriptor_);
    std::fclose(file_);
}

std::string Capture::text()
{
    std::fflush(stream_);
    std::string all;
    char bytes[256];
    off_t offset = 0;
    for (;;) {
        const ssize_t count = pread(fileno(file_), bytes, sizeof bytes, offset);
        if (count <= 0)
            return all;
        all.append(bytes, static_cast<std::size_t>(count));
        offset += count;
    }
}
