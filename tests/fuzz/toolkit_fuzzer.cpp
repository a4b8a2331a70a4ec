/// Reads bytes as a program of toolkit calls on surfaces in guarded memory, drawn by the real cairo.
#include "toolkit_session.h"

namespace {

constexpr int most_operations = 64;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Bytes bytes(data, size);
    fuzz::Session session(bytes);
    for (int i = 0; i < most_operations && !bytes.is_at_end(); ++i)
        session.run_operation();
    return 0;
}
