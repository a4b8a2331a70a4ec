/// Reads bytes as a trace, binary or text, takes it through both forms, and plays it on surfaces in guarded memory.
#include "fuzzed_platform.h"
#include "memory_surface.h"

#include "encoder.h"
#include "player/player.h"

#include <stdexcept>

namespace fuzz {
namespace {

using trace::Trace;

/// The first byte tells whether there is an engine and which form the others have; the header is not theirs to break.
Trace read(std::uint8_t choice, const std::uint8_t* data, std::size_t size)
{
    if (choice & 2)
        return trace::parse("dtktrace 1\n" + std::string(data, data + size));
    std::vector<std::uint8_t> bytes(std::begin(trace::magic), std::end(trace::magic));
    bytes.push_back(trace::version);
    bytes.insert(bytes.end(), data, data + size);
    return trace::decode(bytes);
}

void take_through_both_forms(const Trace& trace)
{
    const std::string text = trace::print(trace);
    const std::vector<std::uint8_t> bytes = trace::encode(trace);
    const Trace parsed = trace::parse(text);
    require(trace::print(parsed) == text, "a text is another one after it was read");
    require(trace::encode(parsed) == bytes, "a trace has other bytes after its text was read");
    require(trace::print(trace::decode(bytes)) == text, "a trace has another text after its bytes were read");
}

/// Ellipses are walked as a whole, which takes its time.
bool takes_long(const trace::Call& call)
{
    constexpr int most = 1 << 16;
    const bool is_ellipse = call.number() == trace::Number::ellipse || call.number() >= trace::Number::stamp_line;
    for (const std::uint32_t number : call.numbers) {
        if (is_ellipse && (static_cast<int>(number) > most || static_cast<int>(number) < -most))
            return true;
    }
    return false;
}

void play(const Trace& trace)
{
    MemoryDirectFB directfb;
    try {
        trace::Player player(&directfb);
        for (const trace::Call& call : trace.calls) {
            if (!takes_long(call))
                player.play(call);
        }
    } catch (const std::runtime_error&) {
    }
    directfb.check(nullptr);
    require(directfb.references == 1, "DirectFB's references are not balanced");
}

} // namespace
} // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    fuzz::platform() = {(data[0] & 1) != 0, 0};
    try {
        const trace::Trace trace = fuzz::read(data[0], data + 1, size - 1);
        fuzz::take_through_both_forms(trace);
        fuzz::play(trace);
    } catch (const std::runtime_error&) {
    }
    return 0;
}
