#include "options.h"

#include <cstdlib>
#include <stdexcept>

#include "platform.h"

namespace tools {

std::vector<char*> other_arguments(int argc, char** argv, std::vector<std::string>& words)
{
    std::vector<char*> others;
    for (int i = 0; i < argc; ++i) {
        if (is_platform_word(argv[i]))
            words.push_back(argv[i]);
        else
            others.push_back(argv[i]);
    }
    return others;
}

void read_options(std::vector<char*> arguments, const option* known,
                  const std::function<void(int letter, const char* value)>& apply)
{
    const auto count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);

    // The leading + keeps the arguments in order, so that optind names the one that is read next.
    for (;;) {
        const std::string argument = optind < count ? arguments[static_cast<std::size_t>(optind)] : "";
        const int letter = getopt_long(count, arguments.data(), "+:", known, nullptr);
        if (letter == -1)
            break;
        if (letter == ':')
            throw std::invalid_argument(argument + " lacks its value");
        if (letter == '?')
            throw std::invalid_argument(argument + " is no option");
        apply(letter, optarg);
    }
    if (optind < count)
        throw std::invalid_argument(std::string("unexpected argument '") + arguments[static_cast<std::size_t>(optind)] +
                                    "'");
}

const char* parse_path(const char* name, const char* text)
{
    if (!*text)
        throw std::invalid_argument(std::string(name) + " takes a path, not ''");
    return text;
}

double parse_number(const char* name, const char* text, double smallest, const char* wanted)
{
    char* end = nullptr;
    const double number = std::strtod(text, &end);
    if (end == text || *end || !(number >= smallest && number <= 1e9))
        throw std::invalid_argument(std::string(name) + " takes " + wanted + ", not '" + text + "'");
    return number;
}

} // namespace tools
