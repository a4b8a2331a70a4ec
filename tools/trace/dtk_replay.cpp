#include <chrono>
#include <csignal>
#include <cstdio>
#include <optional>
#include <stdexcept>

#include "compare/compare_trace.h"
#include "player/files.h"
#include "player/frames.h"
#include "player/player.h"
#include "player/screen.h"
#include "player/times.h"
#include "replay_options.h"

namespace {

using namespace trace;
using Clock = std::chrono::steady_clock;

volatile std::sig_atomic_t is_interrupted = 0;

void interrupt(int)
{
    is_interrupted = 1;
}

/// Does @p work and returns how many microseconds it took.
template <typename Work>
double time(Work&& work)
{
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

/// One run through a trace.
class Run {
public:
    Run(const ReplayOptions& options, const Trace& trace, const tools::Platform& platform, Screen* screen, Times& times)
        : options_(options), trace_(trace), dfb_(platform.dfb()), screen_(screen), times_(times), player_(platform.dfb())
    {
    }

    void play()
    {
        const std::vector<Frame> frames = frames_of(trace_);
        const std::size_t count = count_of(frames, options_.frame);
        for (std::size_t i = 0; i < count && goes_on_ && !is_interrupted; ++i)
            play(frames[i]);
        if (!options_.png.empty())
            save(frames[count - 1]);
    }

private:
    void play(const Frame& frame)
    {
        for (; next_ < frame.end; ++next_)
            play(trace_.calls[next_]);
        times_.end_frame(time([&] { dfb_->WaitIdle(dfb_); }));
        IDirectFBSurface* surface = player_.surface(frame.surface).surface.get();
        if (screen_ && surface)
            goes_on_ = screen_->show(surface);
    }

    void play(const Call& call)
    {
        naming_call(options_.file, call, next_, [&] { times_.add_call(call, time([&] { player_.play(call); })); });
    }

    void save(const Frame& frame)
    {
        IDirectFBSurface* surface = player_.surface(frame.surface).surface.get();
        if (!surface)
            throw std::runtime_error("the frame shows nothing");
        save_picture(options_.png, dfb_, surface);
    }

    const ReplayOptions& options_;
    const Trace& trace_;
    IDirectFB* dfb_;
    Screen* screen_;
    Times& times_;
    Player player_;
    std::size_t next_ = 0;
    bool goes_on_ = true;
};

void print_heading(const ReplayOptions& options, const tools::Platform& platform)
{
    std::printf("%s, %s back end, DirectFB %s\n", options.file.c_str(), platform.has_engine() ? "hardware" : "software",
                platform.is_accelerated() ? "accelerated" : "not accelerated");
}

void write_times(const std::string& path, const Times& times)
{
    FILE* file = std::fopen(path.c_str(), "w");
    if (file)
        times.print_frames(file);
    if (!file || std::fclose(file))
        throw std::runtime_error("cannot write " + path);
}

void replay(const ReplayOptions& options, const Trace& trace, const std::vector<std::string>& words)
{
    const Extent extent = extent_of(trace);
    const tools::Platform platform(extent.width, extent.height, options.back_end,
                                   options.window ? words : tools::without_window(words));
    std::optional<Screen> screen;
    if (options.window)
        screen.emplace(platform, extent.width, extent.height);
    Times times;
    for (unsigned i = 0; i < options.repetitions && !is_interrupted; ++i)
        Run(options, trace, platform, screen ? &*screen : nullptr, times).play();
    print_heading(options, platform);
    times.print();
    if (!options.csv.empty())
        write_times(options.csv, times);
}

void convert(const ReplayOptions& options, const Trace& trace)
{
    if (!options.text.empty()) {
        const std::string text = print(trace);
        save(options.text, text.data(), text.size());
    }
    if (!options.binary.empty()) {
        const std::vector<std::uint8_t> bytes = encode(trace);
        save(options.binary, reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }
}

int run(const ReplayOptions& options, const std::vector<std::string>& words)
{
    const Trace trace = load(options.file);
    if (!trace.is_complete)
        std::fprintf(stderr, "dtk_replay: %s ends with call %zu, where its program was ended\n", options.file.c_str(),
                     trace.calls.size());
    if (!options.text.empty() || !options.binary.empty())
        convert(options, trace);
    else if (options.compare)
        return compare_trace(options, trace, words);
    else
        replay(options, trace, words);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    ReplayOptions options;
    tools::Program program("Plays a trace of a program's calls that dtk_trace has recorded, and tells how long they took.",
                           "dtk_replay");
    add_options(program, options);
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
    return program.run(argc, argv, [&] { return run(options, program.words()); });
}
