#pragma once

#include <cstddef>
#include <cstdint>

namespace fuzz {

/// Ends the program with a message unless the condition holds.
void require(bool condition, const char* what);

/// Memory whose end is the end of what the process may touch: a write beyond it is a crash. The bytes before it are
/// watched and lie behind a page that may not be touched either.
class GuardedMemory {
public:
    explicit GuardedMemory(std::size_t size);
    ~GuardedMemory();
    GuardedMemory(const GuardedMemory&) = delete;
    GuardedMemory& operator=(const GuardedMemory&) = delete;

    std::uint8_t* bytes() const { return bytes_; }

    /// Ends the program when something has been written in front of the memory.
    void check() const;

private:
    std::uint8_t* pages_;
    std::size_t page_count_;
    std::uint8_t* bytes_;
};

} // namespace fuzz
