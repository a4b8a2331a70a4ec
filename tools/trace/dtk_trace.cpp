#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "../options.h"

namespace {

struct Options {
    std::string file = "trace.dtk", textures = "set";
    long frames = 0;
    std::vector<std::string> command;
};

/// Makes the file, empty. The recorder maps it into the program's memory, which only a regular file can be.
void make_file(const std::string& path)
{
    const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    struct stat status = {};
    if (descriptor < 0 || fstat(descriptor, &status))
        throw std::runtime_error("cannot write " + path + ": " + std::strerror(errno));
    close(descriptor);
    if (!S_ISREG(status.st_mode))
        throw std::runtime_error("cannot write " + path + ": it is no regular file");
}

std::string absolute(const std::string& path)
{
    char* real = realpath(path.c_str(), nullptr);
    if (!real)
        throw std::runtime_error("cannot find " + path + ": " + std::strerror(errno));
    const std::string result = real;
    std::free(real);
    return result;
}

/// It lies in the folder of the installation's libraries, or in the build directory beside this program.
std::string recorder()
{
    const std::string program = absolute("/proc/self/exe"), folder = program.substr(0, program.rfind('/'));
    for (const char* place : {"/" TRACE_RECORDER_FOLDER "/dtk_recorder.so", "/dtk_recorder.so"}) {
        if (access((folder + place).c_str(), R_OK) == 0)
            return absolute(folder + place);
    }
    throw std::runtime_error("cannot find dtk_recorder.so, which belongs to this program");
}

void set(const char* variable, const std::string& value)
{
    if (setenv(variable, value.c_str(), 1))
        throw std::runtime_error(std::string("cannot set ") + variable + ": " + std::strerror(errno));
}

/// Puts an entry before what the user has in a list.
void prepend(const char* variable, const std::string& entry)
{
    const char* others = std::getenv(variable);
    set(variable, entry + (others && *others ? std::string(":") + others : ""));
}

/// The list of what is loaded first is split at blanks, too, so that a folder with one is left to be searched.
void load_first(const std::string& path)
{
    if (path.find(':') != std::string::npos)
        throw std::runtime_error("cannot load " + path + ": there is a colon in its name");
    const std::size_t slash = path.rfind('/');
    const bool has_blank = path.find(' ') != std::string::npos;
    if (has_blank)
        prepend("LD_LIBRARY_PATH", path.substr(0, slash));
    prepend("LD_PRELOAD", has_blank ? path.substr(slash + 1) : path);
}

void prepare_environment(const Options& options)
{
    load_first(recorder());
    set("DTK_TRACE_FILE", absolute(options.file));
    set("DTK_TRACE_TEXTURES", options.textures);
    set("DTK_TRACE_FRAMES", std::to_string(options.frames));
}

/// The program takes this one's place, so that signals and its exit status are its own.
[[noreturn]] void run(std::vector<std::string> command)
{
    std::vector<char*> arguments;
    for (std::string& argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    throw std::runtime_error("cannot run " + command[0] + ": " + std::strerror(errno));
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    tools::Program program("Runs a program and records every call of the toolkit that it makes. dtk_replay plays them.",
                           "dtk_trace");
    program.add_path("-o,--output", options.file, "the file that takes the trace (trace.dtk)");
    program.add_option("--frames", options.frames, "record so many frames; the program goes on")
        ->type_name("N")
        ->check(tools::number_from(1));
    tools::take_one_of(program.add_option("--textures", options.textures,
                                          "take a texture's pixels when it is set (set), or each time it is drawn with"),
                       {"set", "drawn"});
    program.take_command(options.command);
    return program.run(argc, argv, [&]() -> int {
        make_file(options.file);
        prepare_environment(options);
        run(options.command);
    });
}
