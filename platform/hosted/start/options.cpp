#include "options.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zuvo {
namespace {

const DisplayFormat formats[] = {
    {"1080", 9, 1920, 1080},
    {"720", 7, 1280, 720},
    {"576", 3, 720, 576},
    {"480", 1, 720, 480},
};

const Options defaults = {true, true, &formats[0], {true, false, 0, 0}};
Options current = defaults;
bool were_read = false;

const char known_options[] =
    "dtk=on|off, accel=on|off, format=1080|720|576|480, window=on|off|fullscreen|WIDTHxHEIGHT";

const char prefix[] = "--zuvo:";
const size_t prefix_length = sizeof(prefix) - 1;

/// One option of a list, without its comma.
struct Option {
    const char* text;
    size_t length;

    bool is(const char* other) const
    {
        return text && std::strlen(other) == length && !std::memcmp(text, other, length);
    }
};

bool read_switch(Option option, const char* on, const char* off, bool& ret_value)
{
    if (option.is(on))
        ret_value = true;
    else if (option.is(off))
        ret_value = false;
    else
        return false;
    return true;
}

/// What follows the key, which ends with an equals sign; no text when the option has another key.
Option value_of(Option option, const char* key)
{
    const size_t key_length = std::strlen(key);
    if (option.length < key_length || std::memcmp(option.text, key, key_length))
        return {nullptr, 0};
    return {option.text + key_length, option.length - key_length};
}

bool read_format(Option option)
{
    const Option value = value_of(option, "format=");
    for (const DisplayFormat& format : formats) {
        if (!value.is(format.name))
            continue;
        current.format = &format;
        return true;
    }
    return false;
}

bool read_size(Option option, WindowSettings& window)
{
    char text[16] = "";
    if (option.length >= sizeof(text))
        return false;
    std::memcpy(text, option.text, option.length);

    char rest;
    WindowSettings sized = {true, false, 0, 0};
    // Every number of 5 digits fits. NOLINTNEXTLINE(cert-err34-c)
    if (std::sscanf(text, "%5dx%5d%c", &sized.width, &sized.height, &rest) != 2 || sized.width < 1 || sized.height < 1)
        return false;
    window = sized;
    return true;
}

bool read_window(Option option, WindowSettings& window)
{
    const Option value = value_of(option, "window=");
    if (!value.text)
        return false;
    if (value.is("on"))
        window = defaults.window;
    else if (value.is("off"))
        window = {false, false, 0, 0};
    else if (value.is("fullscreen"))
        window = {true, true, 0, 0};
    else
        return read_size(value, window);
    return true;
}

bool read_option(Option option)
{
    return read_switch(option, "dtk=on", "dtk=off", current.engine)
        || read_switch(option, "accel=on", "accel=off", current.accel) || read_format(option)
        || read_window(option, current.window);
}

enum class Unknown { reported, ignored };

void read_list(const char* list, Unknown unknown)
{
    for (;;) {
        const Option option = {list, std::strcspn(list, ",")};
        if (option.length > 0 && !read_option(option) && unknown == Unknown::reported)
            std::fprintf(stderr, "zuvo: unknown word '%.*s' (%s)\n", static_cast<int>(option.length), option.text,
                         known_options);
        list += option.length;
        if (!*list)
            return;
        ++list;
    }
}

bool has_options(const char* argument)
{
    return !std::strncmp(argument, prefix, prefix_length);
}

/// The display is set up before the program hands over its arguments, so the format has to be known earlier. The
/// hand-over reports unknown ones.
void read_own_command_line()
{
    FILE* file = std::fopen("/proc/self/cmdline", "re");
    if (!file)
        return;

    char* argument = nullptr;
    size_t size = 0;
    while (getdelim(&argument, &size, '\0', file) > 0) {
        if (has_options(argument))
            read_list(argument + prefix_length, Unknown::ignored);
    }
    std::free(argument);
    std::fclose(file);
}

} // namespace

const Options& options()
{
    if (!were_read)
        read_start_options();
    return current;
}

const Options& read_options()
{
    return current;
}

void read_start_options()
{
    current = defaults;
    were_read = true;
    if (const char* list = std::getenv("ZUVOARGS"))
        read_list(list, Unknown::reported);
    read_own_command_line();
}

void take_argument_options(int* argc, char*** argv)
{
    if (!argc || !argv || !*argv)
        return;

    char** arguments = *argv;
    const int count = *argc;
    int kept = 0;
    for (int i = 0; i < count; ++i) {
        if (i > 0 && arguments[i] && has_options(arguments[i]))
            read_list(arguments[i] + prefix_length, Unknown::reported);
        else
            arguments[kept++] = arguments[i];
    }
    if (kept == count)
        return;
    arguments[kept] = nullptr;
    *argc = kept;
}

const DisplayFormat* find_format(unsigned int video_format)
{
    for (const DisplayFormat& format : formats) {
        if (format.video_format == video_format)
            return &format;
    }
    return nullptr;
}

void set_format(const DisplayFormat* format)
{
    current.format = format;
}

} // namespace zuvo
