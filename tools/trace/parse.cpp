#include "call.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <unordered_map>

#include "encoder.h"
#include "formats.h"
#include "lines.h"

namespace trace {

namespace {

/// Reads the arguments of one call.
class Arguments {
public:
    Arguments(Lines& lines, std::size_t& room, Call& call) : lines_(lines), room_(room), call_(call) {}

    void take(char kind)
    {
        switch (kind) {
        case kind::toolkit:
        case kind::new_toolkit:
            return take_object('t');
        case kind::pen:
        case kind::new_pen:
            return take_object('p');
        case kind::surface:
        case kind::new_surface:
            return take_object('s');
        case kind::directfb:
            return take_directfb(lines_.word());
        case kind::format:
            return take_format(lines_.word());
        case kind::word:
            return add(natural(lines_.word(), 0, 0xffffffff));
        case kind::color:
            return take_color(lines_.word());
        default:
            return take_geometry(kind);
        }
    }

private:
    void add(std::uint32_t number) { call_.numbers.push_back(number); }

    [[noreturn]] void refuse(const std::string& word, const char* what) const { lines_.fail("'" + word + "' is no " + what); }

    std::uint32_t natural(const std::string& word, int base, unsigned long long most) const
    {
        char* end = nullptr;
        const unsigned long long value = std::strtoull(word.c_str(), &end, base);
        if (word.empty() || !std::isxdigit(static_cast<unsigned char>(word[0])) || *end || value > most)
            refuse(word, "number");
        return static_cast<std::uint32_t>(value);
    }

    std::uint32_t integer(const std::string& word) const
    {
        char* end = nullptr;
        const long long value = std::strtoll(word.c_str(), &end, 10);
        if (word.empty() || *end || value < INT32_MIN || value > INT32_MAX)
            refuse(word, "number");
        return static_cast<std::uint32_t>(value);
    }

    void take_geometry(char kind)
    {
        switch (kind) {
        case kind::byte:
            return add(natural(lines_.word(), 10, 255));
        case kind::point:
            return take_integers(lines_.word(), 2);
        case kind::box:
            return take_optional(4);
        case kind::shape:
            return take_optional(8);
        case kind::points:
            return take_points(lines_.word());
        case kind::picture:
            return take_picture(lines_.word());
        default:
            return add(natural(lines_.word(), 10, 0xffffffff));
        }
    }

    void take_object(char letter)
    {
        const std::string word = lines_.word();
        if (word == "-")
            return add(0);
        if (word[0] != letter)
            refuse(word, letter == 't' ? "toolkit" : letter == 'p' ? "pen" : "surface");
        add(natural(word.substr(1), 10, 0xffffffff));
    }

    void take_directfb(const std::string& word)
    {
        if (word != "dfb" && word != "-")
            refuse(word, "DirectFB, which is dfb or -");
        add(word == "dfb");
    }

    void take_format(const std::string& word)
    {
        std::uint32_t format;
        add(read_format(word, format) ? format : natural(word, 0, 0xffffffff));
    }

    void take_color(const std::string& word)
    {
        if (word.size() != 9 || word[0] != '#')
            refuse(word, "colour, which is #rrggbbaa");
        add(natural(word.substr(1), 16, 0xffffffff));
    }

    void take_integers(const std::string& word, std::size_t count)
    {
        const std::vector<std::string> parts = split(word, ',');
        if (parts.size() != count)
            refuse(word, ("list of " + std::to_string(count) + " numbers").c_str());
        for (const std::string& part : parts)
            add(integer(part));
    }

    void take_optional(std::size_t count)
    {
        const std::string word = lines_.word();
        add(word != "-");
        if (word != "-")
            take_integers(word, count);
    }

    /// "x,y;x,y;", ";" for no point, "-3" for three points at NULL. A point may begin with a minus, too.
    void take_points(const std::string& word)
    {
        const bool is_given = word.find(';') != std::string::npos;
        add(is_given);
        if (!is_given) {
            if (word[0] != '-')
                refuse(word, "list of points, which is x,y;x,y;");
            return add(natural(word.substr(1), 10, 0xffffffff));
        }
        const std::vector<std::string> points = word == ";" ? std::vector<std::string>() : split(word, ';');
        add(static_cast<std::uint32_t>(points.size()));
        for (const std::string& point : points)
            take_integers(point, 2);
    }

    void take_picture(const std::string& word)
    {
        const std::vector<std::string> sides = split(word, 'x');
        if (sides.size() != 3)
            refuse(word, "size of a picture, which is WxHxBYTES");
        Picture& picture = call_.picture;
        picture.width = natural(sides[0], 10, largest_side);
        picture.height = natural(sides[1], 10, largest_side);
        picture.pixel_size = static_cast<std::uint8_t>(natural(sides[2], 10, 4));
        const std::size_t size = std::size_t(picture.width) * picture.height * picture.pixel_size;
        if (!picture.pixel_size || size > room_)
            refuse(word, "size of a picture");
        room_ -= size;
        lines_.require_end();
        for (std::uint32_t y = 0; y < (picture.width ? picture.height : 0); ++y)
            take_row();
    }

    void take_row()
    {
        if (!lines_.next())
            lines_.fail("rows of the picture are missing");
        const std::size_t digits = 2u * call_.picture.pixel_size;
        for (std::uint32_t x = 0; x < call_.picture.width; ++x) {
            const std::string word = lines_.word();
            if (word.size() != digits)
                refuse(word, "pixel");
            const std::uint32_t pixel = natural(word, 16, 0xffffffff);
            for (unsigned i = 0; i < call_.picture.pixel_size; ++i)
                call_.picture.bytes.push_back(static_cast<std::uint8_t>(pixel >> 8 * i));
        }
    }

    Lines& lines_;
    std::size_t& room_;
    Call& call_;
};

std::unordered_map<std::string, std::uint8_t> codes_by_name()
{
    std::unordered_map<std::string, std::uint8_t> codes;
    for (unsigned code = 0; code < 4 * number_count; ++code) {
        if (is_code(static_cast<std::uint8_t>(code)))
            codes[Call{static_cast<std::uint8_t>(code), {}, {}, 0}.name()] = static_cast<std::uint8_t>(code);
    }
    return codes;
}

void require_header(Lines& lines)
{
    if (!lines.next() || lines.word() != std::string(std::begin(magic), std::end(magic)))
        throw std::runtime_error("this is no trace");
    const std::string number = lines.word();
    if (number != std::to_string(version))
        throw std::runtime_error("the trace has version " + number + ", and only version " + std::to_string(version) +
                                 " can be read");
    lines.require_end();
}

} // namespace

Trace parse(const std::string& text)
{
    static const std::unordered_map<std::string, std::uint8_t> codes = codes_by_name();
    Lines lines(text);
    require_header(lines);
    Trace trace;
    for (std::size_t room = most_picture_bytes; lines.next();) {
        if (trace.is_complete)
            lines.fail("something stands behind the end");
        const std::string name = lines.word();
        const auto code = codes.find(name);
        if (code == codes.end())
            lines.fail("nothing is called '" + name + "'");
        Call call = {code->second, {}, {}, lines.number()};
        Arguments arguments(lines, room, call);
        for (const char* kind = call.function().signature; *kind; ++kind)
            arguments.take(*kind);
        lines.require_end();
        trace.is_complete = call.number() == Number::end;
        if (!trace.is_complete)
            trace.calls.push_back(std::move(call));
    }
    return trace;
}

/// The binary form has its version, a small number, where the text has a blank.
bool is_text(const std::vector<std::uint8_t>& bytes)
{
    return !bytes.empty() && (bytes.size() < header_size || bytes[sizeof magic] >= ' ' || std::memcmp(bytes.data(), magic, sizeof magic) != 0);
}

} // namespace trace
