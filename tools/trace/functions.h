#ifndef TOOLS_TRACE_FUNCTIONS_H
#define TOOLS_TRACE_FUNCTIONS_H

#include <cstdint>

namespace trace {

/// What a trace holds, by its number in the file. Numbers are never given anew; docs/guide/traces.md has them all.
enum class Number : std::uint8_t {
    end = 1,
    surface,
    pixels,
    flip,
    clear,
    result,
    create = 8,
    attach,
    detach,
    add_ref,
    release,
    set_stroke_color,
    set_fill_color,
    set_fill_pattern,
    create_pen,
    set_pen,
    line,
    rectangle,
    polygon,
    ellipse,
    pen_add_ref,
    pen_release,
    pen_get_size,
    pen_get_surface,
    pen_get_shape,
    compute_size,
    render_pen_shape_a8,
    render_pen_shape_lut8,
    stamp_line,
    stamp_rectangle,
    stamp_ellipse,
    fill_ellipse_argb,
    fill_ellipse_lut8,
    outline_ellipse_argb,
};

/// Which of the three forms of a function was called: the plain one, that with _SW or that with _HW.
enum class Form : std::uint8_t { plain, software, hardware };

/// The kind of one argument, a letter of a signature.
namespace kind {
constexpr char toolkit = 't', new_toolkit = 'T';    ///< A number, 0 for NULL. A new one is made by the call.
constexpr char pen = 'p', new_pen = 'N';
constexpr char surface = 's', new_surface = 'S';
constexpr char directfb = 'd';                      ///< Whether DirectFB is given.
constexpr char byte = 'b', natural = 'u', word = 'f', format = 'm';
constexpr char color = 'c';                         ///< Red, green, blue, alpha.
constexpr char point = 'q', box = 'r';              ///< A box may be NULL.
constexpr char points = 'P', shape = 'k';           ///< Both may be NULL.
constexpr char picture = 'X';
} // namespace kind

struct Function {
    const char* name;       ///< NULL for a number that stands for nothing.
    const char* signature;  ///< The kinds of the arguments, in their order.
    bool has_forms;
};

constexpr unsigned number_count = 36;

extern const Function functions[number_count];

/// The first byte of a call in the file; 0 is none.
constexpr std::uint8_t code_of(Number number, Form form)
{
    return static_cast<std::uint8_t>(static_cast<unsigned>(number) << 2 | static_cast<unsigned>(form));
}

constexpr Number number_of(std::uint8_t code)
{
    return static_cast<Number>(code >> 2);
}

constexpr Form form_of(std::uint8_t code)
{
    return static_cast<Form>(code & 3);
}

/// Whether a byte begins a call.
bool is_code(std::uint8_t code);

/// "", "_SW" or "_HW".
const char* suffix_of(Form form);

} // namespace trace

#endif
