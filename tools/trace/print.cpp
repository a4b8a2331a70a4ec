#include "call.h"

#include <cinttypes>
#include <cstdio>

#include "encoder.h"
#include "formats.h"

namespace trace {

namespace {

std::string formatted(const char* format, std::uint32_t number)
{
    char text[32];
    std::snprintf(text, sizeof text, format, number);
    return text;
}

/// Writes the arguments of a call one after another.
class Arguments {
public:
    Arguments(const Call& call, std::string& text) : call_(call), next_(call.numbers.data()), text_(text) {}

    void print(char kind)
    {
        switch (kind) {
        case kind::toolkit:
        case kind::new_toolkit:
            return print_object('t');
        case kind::pen:
        case kind::new_pen:
            return print_object('p');
        case kind::surface:
        case kind::new_surface:
            return print_object('s');
        case kind::directfb:
            return print(*next_++ ? "dfb" : "-");
        case kind::format:
            return print(name_of_format(*next_++));
        case kind::word:
            return print(formatted("0x%08" PRIx32, *next_++));
        case kind::color:
            return print(formatted("#%08" PRIx32, *next_++));
        default:
            return print_geometry(kind);
        }
    }

private:
    void print(const std::string& text) { text_ += ' ' + text; }

    void print_geometry(char kind)
    {
        switch (kind) {
        case kind::point:
            return print_integers(2);
        case kind::box:
            return print_optional(4);
        case kind::shape:
            return print_optional(8);
        case kind::points:
            return print_points();
        case kind::picture:
            return print_picture();
        default:
            return print(std::to_string(*next_++));
        }
    }

    void print_object(char letter)
    {
        const std::uint32_t number = *next_++;
        print(number ? letter + std::to_string(number) : "-");
    }

    std::string integers(int count)
    {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += (i ? "," : "") + std::to_string(static_cast<std::int32_t>(*next_++));
        return text;
    }

    void print_integers(int count) { print(integers(count)); }

    void print_optional(int count)
    {
        if (*next_++)
            print_integers(count);
        else
            print("-");
    }

    void print_points()
    {
        const std::uint32_t is_given = *next_++, count = *next_++;
        std::string text = is_given ? "" : "-" + std::to_string(count);
        for (std::uint32_t i = 0; is_given && i < count; ++i)
            text += integers(2) + ";";
        print(text.empty() ? ";" : text);
    }

    void print_picture()
    {
        const Picture& picture = call_.picture;
        print(std::to_string(picture.width) + "x" + std::to_string(picture.height) + "x" + std::to_string(picture.pixel_size));
        const std::uint8_t* pixel = picture.bytes.data();
        for (std::uint32_t y = 0; y < picture.height; ++y) {
            text_ += "\n   ";
            for (std::uint32_t x = 0; x < picture.width; ++x, pixel += picture.pixel_size)
                print_pixel(pixel);
        }
    }

    /// The bytes as a number, the highest first.
    void print_pixel(const std::uint8_t* pixel)
    {
        text_ += ' ';
        for (int i = call_.picture.pixel_size - 1; i >= 0; --i)
            text_ += formatted("%02" PRIx32, pixel[i]);
    }

    const Call& call_;
    const std::uint32_t* next_;
    std::string& text_;
};

void append(std::string& text, const Call& call)
{
    text += call.name();
    Arguments arguments(call, text);
    for (const char* kind = call.function().signature; *kind; ++kind)
        arguments.print(*kind);
    text += '\n';
}

} // namespace

std::string print(const Trace& trace)
{
    std::string text(std::begin(magic), std::end(magic));
    text += ' ' + std::to_string(version) + '\n';
    for (const Call& call : trace.calls)
        append(text, call);
    if (trace.is_complete)
        text += "end\n";
    return text;
}

} // namespace trace
