#include "process.h"

#include <csignal>
#include <filesystem>

#include <sys/wait.h>
#include <unistd.h>

Process::Process(const std::string& line)
{
    static int count = 0;
    file_ = temporary_file("output-" + std::to_string(++count));
    const std::string command = line + " > " + file_ + " 2>&1";
    pid_ = fork();
    if (pid_ == 0) {
        execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
        _exit(127);
    }
}

Process::~Process()
{
    if (pid_ > 0) {
        signal(SIGKILL);
        wait();
    }
    std::filesystem::remove(file_);
}

void Process::signal(int number) const
{
    kill(pid_, number);
}

Outcome Process::wait()
{
    int status = 0;
    if (!await([&] { return waitpid(pid_, &status, WNOHANG) == pid_; })) {
        signal(SIGKILL);
        waitpid(pid_, &status, 0);
    }
    pid_ = -1;
    return outcome_of(status, output());
}

std::string Process::output() const
{
    return contents(file_);
}

bool Process::says(const std::string& text) const
{
    return await([&] { return output().find(text) != std::string::npos; });
}
