#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <dtkhddvd.h>

#include "../platform.h"
#include "report.h"

namespace {

using namespace conformance;

constexpr int layer_width = 640, layer_height = 480;

struct Options {
    std::string html, json, level = name_of(Level::pixels);
    std::vector<std::string> only;
    int scenes = 300;
    bool lists_families = false;
    std::vector<std::string> words; ///< For DirectFB and the platform.
};

/// The family that is being examined, and where to say so when the platform ends the program.
const char* volatile examined = "the start";
volatile int crash_output = STDERR_FILENO;

/// Says where the platform crashed; nothing but writing is safe here.
void report_crash(int signal_number)
{
    const char* const parts[] = {"zuvo_check: the platform crashed while this was examined: ", examined, "\n"};
    for (const char* part : parts) {
        if (write(crash_output, part, std::strlen(part)) < 0)
            break;
    }
    std::signal(signal_number, SIG_DFL);
    std::raise(signal_number);
}

std::string device_of(IDirectFB* dfb)
{
    DFBGraphicsDeviceDescription device = {};
    if (dfb->GetDeviceDescription(dfb, &device) != DFB_OK)
        return "a DirectFB device without a description";
    return std::string(device.name) + ", driver " + device.driver.name;
}

bool is_chosen(const Options& options, const Family& family)
{
    const auto& only = options.only;
    return only.empty() || std::find(only.begin(), only.end(), family.name) != only.end();
}

/// The toolkit's own complaints about what fails are part of what is examined.
class QuietErrors {
public:
    QuietErrors() : kept_(dup(STDERR_FILENO))
    {
        std::fflush(stderr);
        if (!std::freopen("/dev/null", "w", stderr))
            throw std::runtime_error("cannot open /dev/null");
        crash_output = kept_;
    }
    ~QuietErrors()
    {
        std::fflush(stderr);
        dup2(kept_, STDERR_FILENO);
        crash_output = STDERR_FILENO;
        close(kept_);
    }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    int kept_;
};

Report examine(const Options& options, const tools::Platform& platform)
{
    const auto layer = platform.layer_surface(layer_width, layer_height);
    Stage stage(platform.dfb());
    Report report;
    report.device = device_of(platform.dfb());
    for (const Family& family : families()) {
        if (!is_chosen(options, family))
            continue;
        examined = family.name;
        report.results.push_back({&family, {}});
        family.examine({stage, layer.get(), options.scenes, report.results.back().verdict});
    }
    examined = "the speed";
    report.speeds = measure_speeds(stage);
    return report;
}

template <typename Write>
void write_file(const std::string& path, const Report& report, const Write& write)
{
    if (path.empty())
        return;
    std::ofstream file(path);
    write(file, report);
    if (!file.flush())
        throw std::runtime_error("cannot write " + path);
}

int check(const Options& options)
{
    if (options.lists_families) {
        for (const Family& family : families())
            std::printf("%-12s%-18s%s\n", name_of(family.level), family.name, family.promise);
        return 0;
    }
    std::vector<std::string> words = options.words;
    words.insert(words.begin(), "--zuvo:window=off");
    const tools::Platform platform(layer_width, layer_height, tools::BackEnd::hardware, words);
    for (const int signal_number : {SIGSEGV, SIGBUS, SIGFPE, SIGABRT})
        std::signal(signal_number, report_crash);
    const Report report = [&] {
        const QuietErrors quiet;
        return examine(options, platform);
    }();
    write_text(std::cout, report);
    write_file(options.html, report, write_html);
    write_file(options.json, report, write_json);
    return report.level() >= level_named(options.level) ? 0 : 1;
}

void add_options(CLI::App& app, Options& options)
{
    std::vector<std::string> names;
    for (const Family& family : families())
        names.push_back(family.name);
    app.add_option("--html", options.html, "write a page with pictures of what differs")->type_name("FILE");
    app.add_option("--json", options.json, "write the results for programs")->type_name("FILE");
    app.add_option("--level", options.level, "the level to be reached: required, geometry or pixels")
        ->check(CLI::IsMember({"required", "geometry", "pixels"}).description(""))
        ->type_name("LEVEL");
    app.add_option("--only", options.only, "examine this family alone; may be given several times")
        ->check(CLI::IsMember(names).description(""))
        ->type_name("FAMILY");
    app.add_option("--scenes", options.scenes, "how many random scenes to draw for each family (300)")
        ->check(CLI::Range(1, 1000000).description(""))
        ->type_name("N");
    app.add_flag("--list", options.lists_families, "list the families");
    app.set_help_flag("-h,--help", "show this help");
    app.set_version_flag("--version", "zuvo_check " + std::to_string(DTKHDDVD_VERSION_MAJOR) + "." +
                                          std::to_string(DTKHDDVD_VERSION_MINOR) + "." +
                                          std::to_string(DTKHDDVD_VERSION_MICRO),
                         "show the version");
    app.footer("--dfb:... are options of DirectFB, --zuvo:... of the platform. The status is 0 when the level is "
               "reached, else 1.");
}

/// Takes the options of DirectFB and the platform out of the command line; CLI11 wants the others in reverse.
std::vector<std::string> other_arguments(int argc, char** argv, std::vector<std::string>& words)
{
    std::vector<std::string> others;
    for (int i = 1; i < argc; ++i)
        (tools::is_platform_word(argv[i]) ? words : others).push_back(argv[i]);
    std::reverse(others.begin(), others.end());
    return others;
}

int run(int argc, char** argv)
{
    Options options;
    CLI::App app("Examines the platform's drawing engine: what it promises, and what it draws beside software.",
                 "zuvo_check");
    add_options(app, options);
    try {
        app.parse(other_arguments(argc, argv, options.words));
    } catch (const CLI::Success& wish) {
        return app.exit(wish);
    } catch (const CLI::ParseError& error) {
        throw std::invalid_argument(error.what());
    }
    return check(options);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "zuvo_check: %s; try --help\n", error.what());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zuvo_check: %s\n", error.what());
        return 1;
    }
}
