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

const Wishes unspoken = {true, true, &formats[0], {true, false, 0, 0}};
Wishes current = unspoken;
bool were_read = false;

const char known_words[] =
    "dtk=on|off, accel=on|off, format=1080|720|576|480, window=on|off|fullscreen|WIDTHxHEIGHT";

const char prefix[] = "--zuvo:";
const size_t prefix_length = sizeof(prefix) - 1;

/// One word of a list, without its comma.
struct Word {
    const char* text;
    size_t length;

    bool is(const char* other) const
    {
        return text && std::strlen(other) == length && !std::memcmp(text, other, length);
    }
};

bool read_switch(Word word, const char* on, const char* off, bool& ret_value)
{
    if (word.is(on))
        ret_value = true;
    else if (word.is(off))
        ret_value = false;
    else
        return false;
    return true;
}

/// What follows the key, which ends with an equals sign; no text when the word has another key.
Word value_of(Word word, const char* key)
{
    const size_t key_length = std::strlen(key);
    if (word.length < key_length || std::memcmp(word.text, key, key_length))
        return {nullptr, 0};
    return {word.text + key_length, word.length - key_length};
}

bool read_format(Word word)
{
    const Word value = value_of(word, "format=");
    for (const DisplayFormat& format : formats) {
        if (!value.is(format.word))
            continue;
        current.format = &format;
        return true;
    }
    return false;
}

bool read_size(Word word, WindowWish& window)
{
    char text[16] = "";
    if (word.length >= sizeof(text))
        return false;
    std::memcpy(text, word.text, word.length);

    char rest;
    WindowWish sized = {true, false, 0, 0};
    // Every number of 5 digits fits. NOLINTNEXTLINE(cert-err34-c)
    if (std::sscanf(text, "%5dx%5d%c", &sized.width, &sized.height, &rest) != 2 || sized.width < 1 || sized.height < 1)
        return false;
    window = sized;
    return true;
}

bool read_window(Word word, WindowWish& window)
{
    const Word value = value_of(word, "window=");
    if (!value.text)
        return false;
    if (value.is("on"))
        window = unspoken.window;
    else if (value.is("off"))
        window = {false, false, 0, 0};
    else if (value.is("fullscreen"))
        window = {true, true, 0, 0};
    else
        return read_size(value, window);
    return true;
}

bool read_word(Word word)
{
    return read_switch(word, "dtk=on", "dtk=off", current.engine)
        || read_switch(word, "accel=on", "accel=off", current.accel) || read_format(word)
        || read_window(word, current.window);
}

enum class Unknown { reported, ignored };

void read_list(const char* list, Unknown unknown)
{
    for (;;) {
        const Word word = {list, std::strcspn(list, ",")};
        if (word.length > 0 && !read_word(word) && unknown == Unknown::reported)
            std::fprintf(stderr, "zuvo: unknown word '%.*s' (%s)\n", static_cast<int>(word.length), word.text, known_words);
        list += word.length;
        if (!*list)
            return;
        ++list;
    }
}

bool has_words(const char* argument)
{
    return !std::strncmp(argument, prefix, prefix_length);
}

/// The display is set up before the program hands over its arguments, so the format has to be known earlier. The
/// hand-over complains about unknown words.
void read_own_command_line()
{
    FILE* file = std::fopen("/proc/self/cmdline", "re");
    if (!file)
        return;

    char* argument = nullptr;
    size_t size = 0;
    while (getdelim(&argument, &size, '\0', file) > 0) {
        if (has_words(argument))
            read_list(argument + prefix_length, Unknown::ignored);
    }
    std::free(argument);
    std::fclose(file);
}

} // namespace

const Wishes& wishes()
{
    if (!were_read)
        read_start_wishes();
    return current;
}

const Wishes& read_wishes()
{
    return current;
}

void read_start_wishes()
{
    current = unspoken;
    were_read = true;
    if (const char* list = std::getenv("ZUVOARGS"))
        read_list(list, Unknown::reported);
    read_own_command_line();
}

void take_argument_wishes(int* argc, char*** argv)
{
    if (!argc || !argv || !*argv)
        return;

    char** arguments = *argv;
    const int count = *argc;
    int kept = 0;
    for (int i = 0; i < count; ++i) {
        if (i > 0 && arguments[i] && has_words(arguments[i]))
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
