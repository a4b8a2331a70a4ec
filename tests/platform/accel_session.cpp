#include "accel_session.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "driver/accel.h"
#include "directfb_variant.h"

namespace accel {
namespace {

/// The layer's buffers as the hosted platform has them.
constexpr const char* layer_words = DIRECTFB_LAYER_BUFFERS == DLBM_FRONTONLY ? ",layer-buffer-mode=frontonly" : "";

void write_all(int file, const std::string& text)
{
    for (size_t done = 0; done < text.size();) {
        const ssize_t written = write(file, text.data() + done, text.size() - done);
        if (written <= 0)
            return;
        done += static_cast<size_t>(written);
    }
}

std::string read_all(int file)
{
    std::string text;
    char part[65536];
    for (ssize_t count; (count = read(file, part, sizeof(part))) > 0;)
        text.append(part, static_cast<size_t>(count));
    return text;
}

/// Leaves without tidying up: when DirectFB is released, its dispatching thread may still use what has been freed, and
/// on a busy machine now and then the process dies of it.
[[noreturn]] void run_child(int file, const std::function<void(Lines&)>& program)
{
    Lines lines;
    program(lines);
    lines.push_back("finished");
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    write_all(file, text);
    _exit(0);
}

} // namespace

void must(DFBResult result)
{
    if (result == DFB_OK)
        return;
    std::fprintf(stderr, "a DirectFB call failed: %s\n", DirectFBErrorString(result));
    std::abort();
}

Lines run_apart(const std::function<void(Lines&)>& program)
{
    int ends[2];
    if (pipe(ends))
        return {"no pipe"};
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        run_child(ends[1], program);
    }
    close(ends[1]);
    std::istringstream text(read_all(ends[0]));
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);

    Lines lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    if (status != 0)
        lines.push_back("child ended with status " + std::to_string(status));
    return lines;
}

IDirectFB* start_directfb(Driver driver, const std::string& words)
{
    std::string program = "test", options = "--dfb:system=dummy,quiet,no-cursor,no-sighandler,mode=320x240";
    options += layer_words + words;
    char* arguments[] = {program.data(), options.data(), nullptr};
    char** argv = arguments;
    int argc = 2;
    must(DirectFBInit(&argc, &argv));
    if (driver == Driver::on)
        accel_register();
    IDirectFB* directfb = nullptr;
    must(DirectFBCreate(&directfb));
    return directfb;
}

Lines run_with_directfb(Driver driver, const std::function<void(IDirectFB&, Lines&)>& program, const std::string& words)
{
    return run_apart([&](Lines& lines) {
        IDirectFB* directfb = start_directfb(driver, words);
        if (accel_is_on() == (driver == Driver::on))
            program(*directfb, lines);
        else
            lines.push_back("the driver is not as it should be");
    });
}

} // namespace accel
