#include "options.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sstream>
#include <stdexcept>

#include <dtkhddvd.h>

namespace tools {

namespace {

std::string library_version()
{
    return std::to_string(DTKHDDVD_VERSION_MAJOR) + "." + std::to_string(DTKHDDVD_VERSION_MINOR) + "." +
           std::to_string(DTKHDDVD_VERSION_MICRO);
}

bool read_size(const std::string& text, Size& size)
{
    char rest;
    if (std::sscanf(text.c_str(), "%9d%c", &size.width, &rest) != 1)
        return std::sscanf(text.c_str(), "%9dx%9d%c", &size.width, &size.height, &rest) == 2;
    size.height = size.width;
    return true;
}

bool is_within(const Size& size, const Size& smallest, const Size& largest)
{
    return size.width >= smallest.width && size.height >= smallest.height && size.width <= largest.width &&
           size.height <= largest.height;
}

std::string text_of(const Size& size)
{
    return std::to_string(size.width) + "x" + std::to_string(size.height);
}

/// What was printed may still be on its way to a disk that is full.
void finish_output()
{
    if (std::fflush(stdout) || std::ferror(stdout))
        throw std::runtime_error(std::string("cannot write to standard output: ") + std::strerror(errno));
}

} // namespace

Program::Program(const std::string& description, const std::string& name) : CLI::App(description, name)
{
    option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    set_help_flag("-h,--help", "show this help");
    set_version_flag("--version", name + " " + library_version(), "show the version");
    footer("--dfb:... are options of DirectFB (--dfb:system=fbdev), --zuvo:... of the platform (--zuvo:accel=off).");
}

CLI::Option* Program::add_back_end(BackEnd& back_end)
{
    const auto store = [&back_end](const std::string& name) { back_end = back_end_named(name); };
    return take_one_of(
        add_option_function<std::string>("--backend", store, "draw in software, or with the platform's drawing engine"),
        {"software", "hardware"});
}

CLI::Option* Program::add_size(const std::string& name, Size& size, const std::string& description, Size smallest,
                               Size largest)
{
    const auto store = [=, &size](const std::string& text) {
        if (!read_size(text, size) || !is_within(size, smallest, largest))
            throw CLI::ValidationError(name, "takes " + text_of(smallest) + " to " + text_of(largest) + ", not '" + text + "'");
    };
    return add_option_function<std::string>(name, store, description)->type_name("WxH")->default_str(text_of(size));
}

CLI::Option* Program::add_path(const std::string& name, std::string& path, const std::string& description)
{
    const auto refuse_nothing = [](const std::string& text) { return text.empty() ? "takes a path, not ''" : ""; };
    return add_option(name, path, description)->type_name("PATH")->check(CLI::Validator(refuse_nothing, ""));
}

void Program::take_command(std::vector<std::string>& command)
{
    command_ = &command;
    prefix_command();
    footer("PROGRAM [ARGUMENT...] follows the options. " + get_footer());
}

/// CLI11 takes an option that it does not know as the beginning of the command.
void Program::read_command(int argc, char** argv)
{
    parse(argc, argv);
    *command_ = remaining();
    if (command_->empty())
        throw CLI::RequiredError("PROGRAM");
    if (command_->front()[0] == '-')
        throw CLI::ExtrasError({command_->front()});
}

/// CLI11 takes the arguments in reverse order.
void Program::read(int argc, char** argv)
{
    if (command_)
        return read_command(argc, argv);
    std::vector<std::string> others;
    for (int i = argc - 1; i > 0; --i)
        (is_platform_word(argv[i]) ? words_ : others).push_back(argv[i]);
    words_ = {words_.rbegin(), words_.rend()};
    parse(others);
}

int Program::fail(int status, const std::string& message) const
{
    std::fprintf(stderr, "%s: %s\n", get_name().c_str(), message.c_str());
    return status;
}

int Program::run(int argc, char** argv, const std::function<int()>& work)
{
    try {
        int status = 0;
        try {
            read(argc, argv);
            status = work();
        } catch (const CLI::Success& wish) {
            status = exit(wish);
        }
        finish_output();
        return status;
    } catch (const CLI::ParseError& error) {
        return fail(2, std::string(error.what()) + "; try --help");
    } catch (const std::invalid_argument& error) {
        return fail(2, std::string(error.what()) + "; try --help");
    } catch (const std::exception& error) {
        return fail(1, error.what());
    }
}

CLI::Validator number_from(double smallest)
{
    const auto complaint = [=](const std::string& text) -> std::string {
        double number = 0;
        if (CLI::detail::lexical_cast(text, number) && number >= smallest && number <= 1e9)
            return "";
        std::ostringstream message;
        message << "takes a number from " << smallest << ", not '" << text << "'";
        return message.str();
    };
    return CLI::Validator(complaint, "");
}

CLI::Option* take_one_of(CLI::Option* option, const std::vector<std::string>& names)
{
    return option->type_name(CLI::detail::join(names, "|"))->check(CLI::IsMember(names).description(""));
}

std::vector<std::string> without_window(const std::vector<std::string>& words)
{
    std::vector<std::string> result = {"--zuvo:window=off"};
    result.insert(result.end(), words.begin(), words.end());
    return result;
}

} // namespace tools
