#include "runs.h"

#include <cstring>

#include "encoder.h"

namespace trace {

namespace {

class Runs {
public:
    explicit Runs(const Picture& picture)
        : pixels_(picture.bytes.data()), size_(picture.pixel_size), count_(picture.bytes.size() / picture.pixel_size)
    {
    }

    std::size_t count() const { return count_; }
    const std::uint8_t* pixel(std::size_t index) const { return pixels_ + index * size_; }

    /// Whether a pixel and the one after it are equal.
    bool repeats(std::size_t index) const
    {
        return index + 1 < count_ && std::memcmp(pixel(index), pixel(index + 1), size_) == 0;
    }

    std::size_t end_of_run(std::size_t index) const
    {
        while (repeats(index))
            ++index;
        return index + 1;
    }

    std::size_t end_of_others(std::size_t index) const
    {
        while (index < count_ && !repeats(index))
            ++index;
        return index;
    }

private:
    const std::uint8_t* pixels_;
    std::size_t size_, count_;
};

void append_natural(std::vector<std::uint8_t>& bytes, std::uint32_t value)
{
    std::uint8_t memory[most_natural];
    Place place;
    Encoder encoder(memory, place);
    encoder.natural(value);
    bytes.insert(bytes.end(), memory, encoder.position());
}

} // namespace

void append_runs(std::vector<std::uint8_t>& bytes, const Picture& picture)
{
    const Runs runs(picture);
    for (std::size_t index = 0; index < runs.count();) {
        const bool is_run = runs.repeats(index);
        const std::size_t end = is_run ? runs.end_of_run(index) : runs.end_of_others(index);
        append_natural(bytes, static_cast<std::uint32_t>((end - index) * 2 + !is_run));
        bytes.insert(bytes.end(), runs.pixel(index), runs.pixel(is_run ? index + 1 : end));
        index = end;
    }
}

} // namespace trace
