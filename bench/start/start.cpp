// dtk_start: the time from a program's start to its first frame, and what memory is resident then: with each back end, and
// for DirectFB and cairo by themselves. The programs run in turn; medians are printed.

#include "first_frame.h"

#include <algorithm>
#include <map>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace {

const char headless[] = "--dfb:system=dummy,quiet,no-cursor,no-sighandler,mode=1920x1080";

struct Program {
    const char* title;
    std::vector<std::string> command;
    std::map<std::string, std::vector<double>> values;  ///< What it printed, each time it ran.
};

const char* const columns[] = {"loader", "DirectFB", "drawing", "flip", "together", "resident", "own-files"};

/// Starts a program with its standard output in a pipe, and returns the pipe's other end.
std::FILE* start(std::vector<std::string> command, pid_t& ret_process)
{
    std::vector<char*> arguments;
    for (std::string& argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);

    int ends[2];
    posix_spawn_file_actions_t actions;
    if (pipe(ends) || posix_spawn_file_actions_init(&actions))
        throw std::runtime_error("cannot make a pipe");
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    setenv(bench::start_variable, std::to_string(bench::now()).c_str(), 1);
    const int error = posix_spawn(&ret_process, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    if (error)
        throw std::runtime_error("cannot start " + command[0]);
    return fdopen(ends[0], "r");
}

void run(Program& program)
{
    pid_t process = 0;
    std::FILE* output = start(program.command, process);
    char name[32];
    double value = 0;
    while (std::fscanf(output, "%31s %lf", name, &value) == 2)
        program.values[name].push_back(value);
    std::fclose(output);
    int status = 0;
    if (waitpid(process, &status, 0) != process || status)
        throw std::runtime_error(program.command[0] + " failed");
}

double least(const std::vector<double>& values)
{
    return *std::min_element(values.begin(), values.end());
}

void print(const Program& program)
{
    std::printf("%-18s", program.title);
    for (const char* column : columns)
        std::printf(" %10.2f", least(program.values.at(column)) / 1e6);
    std::printf("\n");
}

void print_heads()
{
    std::printf("%-18s", "ms, MB");
    for (const char* column : columns)
        std::printf(" %10s", column);
    std::printf("\n");
}

} // namespace

int main(int count, char** arguments)
{
    const std::string self = arguments[0], folder = self.substr(0, self.rfind('/') + 1);
    const int repetitions = count > 1 ? std::atoi(arguments[1]) : 25;
    Program programs[] = {
        {"DirectFB, cairo", {folder + "dtk_plain_first_frame", headless}, {}},
        {"toolkit, software", {folder + "dtk_first_frame", headless, "--zuvo:dtk=off,accel=off"}, {}},
        {"with the driver", {folder + "dtk_first_frame", headless, "--zuvo:dtk=off"}, {}},
        {"toolkit, engine", {folder + "dtk_first_frame", headless}, {}},
    };
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "DFBARGS", "ZUVOARGS"})
        unsetenv(variable);
    try {
        for (int i = 0; i < repetitions; ++i)
            for (Program& program : programs)
                run(program);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "dtk_start: %s\n", failure.what());
        return 1;
    }
    print_heads();
    for (const Program& program : programs)
        print(program);
    return 0;
}
