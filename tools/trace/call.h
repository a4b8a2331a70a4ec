#ifndef TOOLS_TRACE_CALL_H
#define TOOLS_TRACE_CALL_H

#include <string>
#include <vector>

#include "functions.h"
#include "runs.h"

namespace trace {

/// One call of a trace. Its arguments are numbers in the order of the signature: a colour is one, 0xRRGGBBAA, a point two;
/// boxes (four), shapes (eight) and points (their count, then two each) follow a number that is 0 for NULL and else 1.
struct Call {
    std::uint8_t code = 0;
    std::vector<std::uint32_t> numbers;
    Picture picture = {};   ///< Of a call that has one.
    std::size_t place = 0;  ///< Where it stands: the byte, or the line of the text.

    Number number() const { return number_of(code); }
    const Function& function() const { return functions[code >> 2]; }
    std::string name() const { return std::string(function().name) + suffix_of(form_of(code)); }
};

struct Trace {
    std::vector<Call> calls;
    bool is_complete = false;   ///< The program ended by itself, or as many frames as were asked for are there.
};

/// Reads the binary form. What stands behind the last whole call of a file that is cut off is left out.
///
/// @throws std::runtime_error for a file that is damaged or none of ours.
Trace decode(const std::vector<std::uint8_t>& bytes);

std::vector<std::uint8_t> encode(const Trace& trace);

/// Reads the text form.
///
/// @throws std::runtime_error with the line that is wrong.
Trace parse(const std::string& text);

std::string print(const Trace& trace);

/// Whether a file's content is the text form.
bool is_text(const std::vector<std::uint8_t>& bytes);

/// A surface's largest side, and what all pictures of a trace take at the most, in bytes.
constexpr std::uint32_t largest_side = 16384;
constexpr std::size_t most_picture_bytes = std::size_t(1) << 28;

} // namespace trace

#endif
